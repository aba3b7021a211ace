// Pattern codes: the wire text from codes, the command from the tree's rows,
// and the instrument's reply back into codes.

#include "controller/ctrlstate.h"
#include "controller/pattern.h"
#include "support/freshstate.h"

#include <gtest/gtest.h>

namespace {

using PatternTest = FreshStateTest;

TEST_F(PatternTest, WireTextFromCodes)
{
    struct Case {
        PatternCodes codes;
        bool div5;
        const char* expected;
    };
    const Case cases[] = {
        {{0, 0, 0, 0, 0}, false, "0,0,0"},     {{1, 2, 0, 0, 0}, false, "1,3,0"},
        {{0, 0, 3, 0, 0}, false, "0,4,0,2,1"}, {{0, 4, 0, 0, 1}, true, "16,18,1,1,0"},
        {{3, 0, 0, 4, 0}, false, "0,9,0,0,1"}, // the first edge is the edge term
    };
    for (const Case& c : cases)
        EXPECT_EQ(PatternWireText(c.codes, c.div5), c.expected) << c.expected;
}

TEST_F(PatternTest, CommandFromTreeRows)
{
    struct Case {
        std::array<const char*, 6> rows;
        int changed;
        const char* command;
        std::array<const char*, 6> after;
    };
    const Case cases[] = {
        {{"X", "X", "X", "X", "X", "X"}, 0, "0,0,0", {"X", "X", "X", "X", "X", "X"}},
        {{"H", "L", "X", "X", "X", "X"}, 1, "1,3,0", {"H", "L", "X", "X", "X", "X"}},
        {{"X", "X", "Rising", "X", "X", "X"}, 2, "0,4,0,2,1", {"X", "X", "Rising", "X", "X", "X"}},
        // A second edge clears the first.
        {{"Rising", "X", "X", "Falling", "X", "X"}, 3, "0,8,0,3,0", {"X", "X", "X", "Falling", "X", "X"}},
        // EXT/5 set and EXT don't care: the flag, and row 5 counts as input 4.
        {{"X", "X", "X", "X", "X", "H"}, 5, "16,16,1", {"X", "X", "X", "X", "X", "H"}},
        {{"X", "X", "X", "X", "X", "Falling"}, 5, "0,16,1,4,0", {"X", "X", "X", "X", "X", "Falling"}},
    };
    for (const Case& c : cases) {
        for (int row = 0; row < 6; ++row)
            CtrlData.PatternCode[row] = QString::fromUtf8(c.rows[size_t(row)]);
        EXPECT_EQ(BuildPatternCommand(c.changed), QStringLiteral(":TRIGGER:PATTERN:PATTERN ") + c.command);
        for (int row = 0; row < 6; ++row)
            EXPECT_EQ(CtrlData.PatternCode[row], QString::fromUtf8(c.after[size_t(row)])) << c.command;
    }
}

TEST_F(PatternTest, ReplyIntoCodes)
{
    struct Case {
        const char* reply;
        std::array<int16_t, 5> codes;
        bool div5;
        const char* display;
    };
    const Case cases[] = {
        {"1,3,EXT,NONE,POSITIVE", {1, 2, 0, 0, 0}, false, "XXXLH"},
        {"0,4,EXT,2,POSITIVE", {0, 0, 3, 0, 0}, false, "XXUpXX"},
        {"16,17,EXT5,EXT,NEGATIVE", {2, 0, 0, 0, 4}, true, "Dn5XXXL"},
        {" 0 , 0 , ext , none , positive ", {0, 0, 0, 0, 0}, false, "XXXXX"},
    };
    for (const Case& c : cases) {
        ParsePatternString(c.reply);
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(CtrlData.PatternEdge[i], c.codes[size_t(i)]) << c.reply << " input " << i;
        EXPECT_EQ(CtrlData.PatternExtIsDiv5, c.div5) << c.reply;
        EXPECT_EQ(BuildPatternDispString(), QString::fromLatin1(c.display)) << c.reply;
    }
    EXPECT_EQ(CtrlData.PatternCode[0], "X");

    // An empty reply changes nothing; the tree rows follow the codes.
    ParsePatternString("16,17,EXT5,EXT,NEGATIVE");
    ParsePatternString("");
    const char* rows[] = {"L", "X", "X", "X", "X", "Falling"};
    for (int row = 0; row < 6; ++row)
        EXPECT_EQ(CtrlData.PatternCode[row], QString::fromLatin1(rows[row])) << row;
    EXPECT_EQ(BuildPatternString(), "0,17,1,4,0");
}

} // namespace
