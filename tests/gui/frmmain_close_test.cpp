#include "mainwindowfixture.h"

#include "controller/ctrlstate.h"
#include "document/sheetstate.h"
#include "link/linkstate.h"

namespace {

class CloseTest : public MainWindowTest {
  protected:
    void SetUp() override
    {
        MainWindowTest::SetUp();
        load();
        test->clearRecords();
    }
};

TEST_F(CloseTest, CancelInEitherBoxKeepsTheProgramAndWritesNothing)
{
    DataSheetDirty = CtrlDirty = true;
    DataSheetName = "Bench run";
    CtrlFileName = "/bench/scope.rmt";
    test->boxAnswers = {vbCancel};
    EXPECT_FALSE(window->close());
    ASSERT_EQ(test->boxes.size(), 1) << "the control file is not asked about";
    EXPECT_EQ(test->boxes[0].text, "Save the changes to the Data Sheet File? Bench run");
    EXPECT_EQ(test->boxes[0].style, vbYesNoCancel);
    test->boxAnswers = {vbNo, vbCancel};
    EXPECT_FALSE(window->close());
    ASSERT_EQ(test->boxes.size(), 3);
    EXPECT_EQ(test->boxes[2].text, "Save the changes to the Control File? /bench/scope.rmt");
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(storedSettingCount(), 0);
    EXPECT_EQ(instrument->countOf("close 11"), 0);
}

TEST_F(CloseTest, TheQuestionsSpeakTheLanguageInForce)
{
    find("mnuLanguageChinese")->trigger();
    DataSheetDirty = CtrlDirty = true;
    test->clearRecords();
    test->boxAnswers = {vbNo, vbCancel};
    window->close();
    ASSERT_EQ(test->boxes.size(), 2);
    EXPECT_EQ(test->boxes[0].text, u"是否保存对数据浏览器文件的更改？");
    EXPECT_EQ(test->boxes[1].text, u"是否保存对控制器文件的更改？");
}

TEST_F(CloseTest, AnsweringGoesOnToSaveTheSettingsAndCloseVisa)
{
    DataSheetDirty = CtrlDirty = true;
    test->boxAnswers = {vbYes, vbNo};
    EXPECT_TRUE(window->close());
    EXPECT_EQ(test->boxes.size(), 2);
    EXPECT_EQ(GetSetting("IO Settings_KV7200B", "BaudRate"), "9600");
    EXPECT_EQ(GetSetting("Settings_KV7200B", "MainWidth"), QString::number(window->width() * 15));
    EXPECT_EQ(instrument->countOf("close 11"), 1);
    EXPECT_TRUE(instrument->writes.empty()) << "nothing is told to an instrument that is not connected";
}

TEST_F(CloseTest, AConnectedInstrumentGetsItsKeysBackAndItsSessionClosed)
{
    instrument->resources = {"USB0::0x1::0x2::SN::INSTR"};
    find("mnuToolsConnect")->trigger();
    ASSERT_TRUE(Connected);
    instrument->writes.clear();
    EXPECT_TRUE(window->close());
    EXPECT_EQ(instrument->commands(), std::vector<std::string>{":KEY:LOCK DISABLE"});
    EXPECT_EQ(instrument->countOf("clear "), 1);
    EXPECT_EQ(instrument->countOf("close 22"), 1);
    EXPECT_EQ(instrument->countOf("close 11"), 1);
}

} // namespace
