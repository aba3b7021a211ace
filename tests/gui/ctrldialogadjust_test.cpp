// The fine adjust dialog: a held step button repeats until released, and the
// coarse or fine choice of a channel survives the dialog's closing.

#include "frmwave_fixture.h"

#include "controller/ctrlstate.h"
#include "controller/fineadjust.h"
#include "controller/frmCtrlDialogAdjust.h"
#include "state/programstate.h"

#include <QTimer>
#include <gtest/gtest.h>

namespace {

using AdjustDialogTest = WaveWindowTest; // a fresh program state

TEST_F(AdjustDialogTest, HeldButtonRepeatsUntilReleaseAndTheModeIsKept)
{
    CtrlData.ChVoltDiv[2] = QStringLiteral("1.00V");
    CtrlData.ChProbe[2] = QStringLiteral("1X");
    {
        CtrlDialogAdjust dialog;
        dialog.Load(1, "Volt/Div");
        dialog.OptVoltDiv_Click(1); // fine, remembered for channel 2
        dialog.StepPressed(true);
        EXPECT_EQ(dialog.value(), "1.02V");
        EXPECT_TRUE(dialog.timer()->isActive());
        dialog.Timer1_Timer();
        dialog.Timer1_Timer();
        EXPECT_EQ(dialog.value(), "1.06V");
        dialog.StepReleased();
        EXPECT_FALSE(dialog.timer()->isActive());
        EXPECT_EQ(dialog.stepCount(), 0);
        dialog.Timer1_Timer();
        EXPECT_EQ(dialog.value(), "1.06V");
    }
    EXPECT_TRUE(ChAdjustMode[1]);
    EXPECT_FALSE(ChAdjustMode[0]);
    CtrlDialogAdjust again;
    again.Load(1, "Volt/Div");
    again.StepPressed(false);
    EXPECT_EQ(again.value(), "990mV") << "the fine mode survives the closing";

    // The offset mode moves the offset by a twenty-fifth of the channel's division.
    CtrlData.ChOffset[2] = QStringLiteral("0.00mV");
    CtrlDialogAdjust offset;
    offset.Load(5, "Offset");
    offset.StepPressed(true);
    EXPECT_EQ(offset.value(), "40.0mV");
}

} // namespace
