#include "frame/frmAbout.h"
#include "frame/frmHelp.h"
#include "platform/testplatform.h"
#include "state/programstate.h"
#include "text/language.h"

#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <gtest/gtest.h>

namespace {

class AboutAndHelp : public ::testing::Test {
  protected:
    void SetUp() override { ResetProgramState(); }
    void TearDown() override { ResetProgramState(); }
    ScopedTestPlatform test;
};

TEST_F(AboutAndHelp, AClickOnTheIconTellsTheVersion)
{
    frmAbout about;
    about.show();
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(4, 4), QPointF(4, 4), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(about.findChild<QLabel*>("picIcon"), &release);
    ASSERT_EQ(test->boxes.size(), 1);
    EXPECT_EQ(test->boxes[0].text, "00.01.05.00.00");
    EXPECT_EQ(test->boxes[0].title, "Version");
    EXPECT_EQ(test->boxes[0].style, vbOKOnly);
}

// The test program has no help pages beside it.
TEST_F(AboutAndHelp, AMissingHelpFileIsToldWithItsReason)
{
    for (int language : {LanguageEnglish, LanguageChinese}) {
        test->clearRecords();
        EXPECT_FALSE(OpenHelpFile(language));
        ASSERT_EQ(test->boxes.size(), 1);
        EXPECT_TRUE(test->boxes[0].text.endsWith(HelpFilePath(language))) << qPrintable(test->boxes[0].text);
        EXPECT_TRUE(test->boxes[0].text.contains("No such file")) << qPrintable(test->boxes[0].text);
    }
}

} // namespace
