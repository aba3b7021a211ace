// Paths the editor is given: the node each names, and odd ones that must open
// nothing and change nothing.

#include "controller/ctrlstate.h"
#include "controller/editor.h"
#include "platform/testplatform.h"
#include "state/programstate.h"
#include "text/treewords.h"

#include <gtest/gtest.h>

namespace {

class EditPathTest : public ::testing::Test {
  protected:
    void SetUp() override { ResetProgramState(); }
    void TearDown() override { ResetProgramState(); }
    ScopedTestPlatform platform;
};

TEST_F(EditPathTest, PathsNameTheirNodes)
{
    CtrlData.TrigMethod = ValueWord("ALTERNATIVE");
    CtrlData.AltSourceA = QStringLiteral("CH3");
    CtrlData.AltSourceB = QStringLiteral("CH4");
    const EditTarget b = ParseEditPath("KV7200B\\Trigger [x]\\CH4\\Level [0.00div]");
    EXPECT_EQ(b.altWindow, 1);
    EXPECT_EQ(b.sub, "Level");
    EXPECT_EQ(b.EditKey, "TriggerCH2Level") << "source B reads CH2 whichever channel it is";
    const EditTarget window = ParseEditPath("KV7200B\\Time Base\\WindowA\\Delay [0.0000s]");
    EXPECT_EQ(window.altWindow, 0);
    EXPECT_EQ(ParseEditPath("KV7200B\\CH3\\Invert").item, "Invert") << "answered though no node shows it";
    EXPECT_EQ(EditRule(b), 1) << "no Format node in this layout: not Y-T";
}

TEST_F(EditPathTest, OddPathsOpenNothingAndChangeNothing)
{
    const CtrlRecord before = CtrlData;
    for (const char* path : {"", "KV7200B", "KV7200B\\", "KV7200B\\\\\\", "KV7200B\\CH1\\Memory Size",
                             "KV7200B\\Trigger\\CH9\\Level", "KV7200B\\Time Base\\WindowA", "[ [ [",
                             "KV7200B\\Acquire\\Averages", "KV7200B\\Nowhere\\Level"}) {
        const EditTarget target = ParseEditPath(QString::fromUtf8(path));
        const EditPlan plan = PlanEdit(target);
        EXPECT_TRUE(plan.shape == EditShape::None || plan.shape == EditShape::List) << path;
        EXPECT_EQ(ApplyEdit(target, "1").outcome, EditOutcome::LinkGone) << path;
    }
    EXPECT_EQ(CtrlData.TimeDiv, before.TimeDiv);
    EXPECT_FALSE(CtrlDirty);
}

} // namespace
