#include "visa/findpattern.h"

#include <gtest/gtest.h>

#include <ostream>

using selvane::visa::FindPattern;

namespace {

struct MatchCase {
    const char* pattern;
    const char* name;
    bool matches;
};

std::ostream& operator<<(std::ostream& out, const MatchCase& c)
{
    return out << '"' << c.pattern << "\" against \"" << c.name << '"';
}

class FindPatternMatches : public ::testing::TestWithParam<MatchCase> {};

TEST_P(FindPatternMatches, MatchesTheWholeNameIgnoringCase)
{
    const MatchCase& c = GetParam();
    const auto pattern = FindPattern::compile(c.pattern);
    ASSERT_TRUE(pattern) << c.pattern;
    EXPECT_EQ(pattern->matches(c.name), c.matches) << c.pattern << " against " << c.name;
}

constexpr const char* kProgramPattern = "(USB|TCPIP|GPIB)?*INSTR";

INSTANTIATE_TEST_SUITE_P(
    Table, FindPatternMatches,
    ::testing::Values(
        // The pattern the program searches with.
        MatchCase{kProgramPattern, "USB0::0x1234::0x5678::A22-5::INSTR", true},
        MatchCase{kProgramPattern, "TCPIP0::192.168.1.5::inst0::INSTR", true},
        MatchCase{kProgramPattern, "GPIB0::7::INSTR", true},
        MatchCase{kProgramPattern, "usb0::0x1234::0x5678::a::instr", true},
        MatchCase{kProgramPattern, "ASRL1::INSTR", false},
        MatchCase{kProgramPattern, "TCPIP0::127.0.0.1::5025::SOCKET", false},
        MatchCase{kProgramPattern, "USB0::0x1234::0x5678::A::INSTR::", false},
        // Anchored at both ends; `?` is exactly one character.
        MatchCase{"INSTR", "USB0::INSTR", false}, MatchCase{"USB?*", "XUSB0", false},
        MatchCase{"?*", "", true}, MatchCase{"?", "", false}, MatchCase{"?*", "x", true},
        MatchCase{"a?c", "abbc", false},
        // Postfix repetition of a character or a group.
        MatchCase{"ab*c", "ac", true}, MatchCase{"ab*c", "abbbc", true}, MatchCase{"ab+c", "ac", false},
        MatchCase{"ab+c", "abbc", true}, MatchCase{"(ab)+", "ababab", true}, MatchCase{"(ab)+", "aba", false},
        MatchCase{"(ab)*c", "c", true}, MatchCase{"a**", "aaa", true},
        // Sets, ranges, negation, case.
        MatchCase{"GPIB[0-9]::1[0-5]::INSTR", "GPIB0::12::INSTR", true},
        MatchCase{"GPIB[0-9]::1[0-5]::INSTR", "GPIB0::16::INSTR", false},
        MatchCase{"GPIB[^0]::?*", "GPIB0::1::INSTR", false},
        MatchCase{"GPIB[^0]::?*", "GPIB1::1::INSTR", true}, MatchCase{"[a-c]+", "ABCA", true},
        MatchCase{"[^a-c]+", "ABD", false}, MatchCase{"[a\\]]+", "]a", true}, MatchCase{"[-x]", "-", true},
        // Escapes and the name side's own regex characters are literal.
        MatchCase{"a\\*b", "a*b", true}, MatchCase{"a\\*b", "aab", false}, MatchCase{"a.b", "axb", false},
        MatchCase{"1.2.3.4", "1.2.3.4", true}, MatchCase{"a^b$", "a^b$", true}, MatchCase{"a\\?", "a?", true},
        // Alternation has the lowest precedence.
        MatchCase{"USB?*|TCPIP?*", "TCPIP0::h::INSTR", true}, MatchCase{"ASRL1|GPIB?*", "ASRL1X", false},
        MatchCase{"ASRL1|GPIB?*", "ASRL1", true}, MatchCase{"a|b|c", "c", true},
        // An attribute filter is accepted and ignored.
        MatchCase{"?*INSTR{VI_ATTR_MANF_ID==0x1234}", "USB0::INSTR", true},
        // Pathological nesting stays a plain state-set walk.
        MatchCase{"(a*)*b", "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaac",
                  false},
        MatchCase{"(a|a)*(a|a)*(a|a)*b",
                  "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa", false}));

class FindPatternRejects : public ::testing::TestWithParam<const char*> {};

TEST_P(FindPatternRejects, MalformedExpression)
{
    EXPECT_FALSE(FindPattern::compile(GetParam())) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(Table, FindPatternRejects,
                         ::testing::Values("", "*abc", "+", "a|*", "(USB", "USB)", "(a))", "[abc", "[]",
                                           "[^]", "a|", "|a", "a||b", "()", "a\\", "[z-a]", "[a-\\", "?*{",
                                           "{x}", "?*{x}y", "(a{x})"));

TEST(FindPattern, RejectsNestingBeyondItsLimitWithoutExhaustingTheStack)
{
    const std::string deep = std::string(10000, '(') + "a" + std::string(10000, ')');
    EXPECT_FALSE(FindPattern::compile(deep));
    const std::string fine = std::string(20, '(') + "a" + std::string(20, ')');
    EXPECT_TRUE(FindPattern::compile(fine));
}

} // namespace
