#pragma once
// The resource-find expression language: `?` any character, postfix `*` and
// `+` on the preceding character or group, `[list]` and `[^list]` sets with
// ranges, `\` for a literal, `( )` groups and `|` alternation at the lowest
// precedence. A trailing `{...}` attribute filter is accepted and ignored.
// Matching covers the whole name and ignores case. Compiled to a small NFA
// and run state-set by state-set, so no expression can make matching slow.

#include <bitset>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace selvane::visa {

class FindPattern {
  public:
    // Empty when the expression is malformed.
    static std::optional<FindPattern> compile(std::string_view expression);

    bool matches(std::string_view name) const;

    struct State {
        enum Kind { Byte, Split, Accept } kind = Accept;
        std::bitset<256> bytes;
        int next = -1;
        int alternative = -1; // second way out of a Split
    };

  private:
    FindPattern(std::vector<State> states, int start) : states_(std::move(states)), start_(start) {}
    void addClosure(std::vector<bool>& set, int state) const;

    std::vector<State> states_;
    int start_ = 0;
};

} // namespace selvane::visa
