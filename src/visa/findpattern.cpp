#include "visa/findpattern.h"

#include <cctype>

namespace selvane::visa {

namespace {

using State = FindPattern::State;

// Bounds that keep a hostile expression from exhausting the stack or memory.
constexpr size_t MaxExpressionLength = 4096;
constexpr int MaxNesting = 64;

// A way out of a state that is not joined yet: its `next`, or a Split's `alternative`.
struct Exit {
    int state;
    bool alternative;
};

// A piece of automaton under construction: its entry and the exits still to be joined.
struct Fragment {
    int start = -1;
    std::vector<Exit> exits;
};

// Recursive descent over the expression, building a Thompson automaton.
class Compiler {
  public:
    explicit Compiler(std::string_view text) : text_(text) {}

    std::optional<std::pair<std::vector<State>, int>> run()
    {
        auto whole = alternation(0);
        if (!whole || !attributeFilterOrEnd()) return std::nullopt;
        const int accept = add(State{});
        join(*whole, accept);
        return std::make_pair(std::move(states_), whole->start);
    }

  private:
    bool atEnd() const { return pos_ >= text_.size(); }
    char peek() const { return text_[pos_]; }

    int add(State state)
    {
        states_.push_back(state);
        return int(states_.size()) - 1;
    }

    void join(Fragment& fragment, int target)
    {
        for (const Exit& exit : fragment.exits)
            (exit.alternative ? states_[exit.state].alternative : states_[exit.state].next) = target;
        fragment.exits.clear();
    }

    Fragment single(const std::bitset<256>& bytes)
    {
        State state;
        state.kind = State::Byte;
        state.bytes = bytes;
        const int index = add(state);
        return Fragment{index, {Exit{index, false}}};
    }

    Fragment split(int first, int second)
    {
        State state;
        state.kind = State::Split;
        state.next = first;
        state.alternative = second;
        const int index = add(state);
        return Fragment{index, {}};
    }

    std::optional<Fragment> alternation(int depth)
    {
        if (depth > MaxNesting) return std::nullopt;
        auto left = sequence(depth);
        while (left && !atEnd() && peek() == '|') {
            ++pos_;
            auto right = sequence(depth);
            if (!right) return std::nullopt;
            Fragment either = split(left->start, right->start);
            either.exits = std::move(left->exits);
            either.exits.insert(either.exits.end(), right->exits.begin(), right->exits.end());
            left = std::move(either);
        }
        return left;
    }

    std::optional<Fragment> sequence(int depth)
    {
        std::optional<Fragment> whole;
        while (!atEnd() && peek() != '|' && peek() != ')' && peek() != '{') {
            auto next = repeated(depth);
            if (!next) return std::nullopt;
            if (whole) {
                join(*whole, next->start);
                whole->exits = std::move(next->exits);
            } else {
                whole = std::move(next);
            }
        }
        return whole; // empty: a sequence needs at least one atom
    }

    std::optional<Fragment> repeated(int depth)
    {
        auto item = atom(depth);
        while (item && !atEnd() && (peek() == '*' || peek() == '+')) {
            const bool zeroAllowed = peek() == '*';
            ++pos_;
            Fragment loop = split(item->start, -1);
            join(*item, loop.start);
            loop.exits = {Exit{loop.start, true}};
            if (!zeroAllowed) loop.start = item->start;
            item = std::move(loop);
        }
        return item;
    }

    std::optional<Fragment> atom(int depth)
    {
        const char c = text_[pos_++];
        switch (c) {
        case '*':
        case '+': return std::nullopt; // nothing to repeat
        case '?': return single(std::bitset<256>().set());
        case '[': return set();
        case '(': return group(depth);
        case '\\':
            if (atEnd()) return std::nullopt;
            return single(caseless(text_[pos_++]));
        default: return single(caseless(c));
        }
    }

    std::optional<Fragment> group(int depth)
    {
        auto inner = alternation(depth + 1);
        if (!inner || atEnd() || peek() != ')') return std::nullopt;
        ++pos_;
        return inner;
    }

    std::optional<Fragment> set()
    {
        const bool negated = !atEnd() && peek() == '^';
        if (negated) ++pos_;
        std::bitset<256> bytes;
        bool any = false;
        while (!atEnd() && peek() != ']') {
            auto low = setCharacter();
            if (!low) return std::nullopt;
            unsigned char high = *low;
            if (pos_ + 1 < text_.size() && peek() == '-' && text_[pos_ + 1] != ']') {
                ++pos_;
                auto end = setCharacter();
                if (!end || *end < *low) return std::nullopt;
                high = *end;
            }
            for (unsigned v = *low; v <= high; ++v)
                bytes |= caseless(char(v));
            any = true;
        }
        if (atEnd() || !any) return std::nullopt;
        ++pos_;
        return single(negated ? ~bytes : bytes);
    }

    std::optional<unsigned char> setCharacter()
    {
        char c = text_[pos_++];
        if (c == '\\') {
            if (atEnd()) return std::nullopt;
            c = text_[pos_++];
        }
        return static_cast<unsigned char>(c);
    }

    // The optional attribute filter: "{", anything, "}" as the very last character.
    bool attributeFilterOrEnd()
    {
        if (atEnd()) return true;
        return peek() == '{' && text_.back() == '}' && text_.size() - pos_ >= 2;
    }

    static std::bitset<256> caseless(char c)
    {
        const auto byte = static_cast<unsigned char>(c);
        std::bitset<256> bytes;
        bytes.set(byte);
        bytes.set(static_cast<unsigned char>(std::tolower(byte)));
        bytes.set(static_cast<unsigned char>(std::toupper(byte)));
        return bytes;
    }

    std::string_view text_;
    size_t pos_ = 0;
    std::vector<State> states_;
};

} // namespace

std::optional<FindPattern> FindPattern::compile(std::string_view expression)
{
    if (expression.empty() || expression.size() > MaxExpressionLength) return std::nullopt;
    auto built = Compiler(expression).run();
    if (!built) return std::nullopt;
    return FindPattern(std::move(built->first), built->second);
}

void FindPattern::addClosure(std::vector<bool>& set, int state) const
{
    std::vector<int> pending{state};
    while (!pending.empty()) {
        const int s = pending.back();
        pending.pop_back();
        if (s < 0 || set[s]) continue;
        set[s] = true;
        if (states_[s].kind == State::Split) {
            pending.push_back(states_[s].next);
            pending.push_back(states_[s].alternative);
        }
    }
}

bool FindPattern::matches(std::string_view name) const
{
    std::vector<bool> current(states_.size()), next(states_.size());
    addClosure(current, start_);
    for (char c : name) {
        std::fill(next.begin(), next.end(), false);
        const auto byte = static_cast<unsigned char>(c);
        for (size_t s = 0; s < states_.size(); ++s)
            if (current[s] && states_[s].kind == State::Byte && states_[s].bytes.test(byte))
                addClosure(next, states_[s].next);
        current.swap(next);
    }
    for (size_t s = 0; s < states_.size(); ++s)
        if (current[s] && states_[s].kind == State::Accept) return true;
    return false;
}

} // namespace selvane::visa
