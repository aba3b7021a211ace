#include "platform/cliplatform.h"
#include "platform/settingsstore.h"
#include "platform/testplatform.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

TEST(MsgBoxButtons, StylesOfferTheirClassicButtonsAndDefaults)
{
    EXPECT_EQ(msgBoxButtons(vbOKOnly + vbExclamation), QList<int>({vbOK}));
    EXPECT_EQ(msgBoxButtons(vbYesNoCancel + vbQuestion), QList<int>({vbYes, vbNo, vbCancel}));
    EXPECT_EQ(msgBoxButtons(vbRetryCancel), QList<int>({vbRetry, vbCancel}));
    EXPECT_EQ(msgBoxDefaultAnswer(vbYesNoCancel), vbYes);
    EXPECT_EQ(msgBoxDefaultAnswer(vbYesNoCancel + vbDefaultButton3), vbCancel);
    EXPECT_EQ(msgBoxDefaultAnswer(vbOKCancel + vbDefaultButton2 + vbCritical), vbCancel);
    // A default beyond the buttons a style has falls back to the first.
    EXPECT_EQ(msgBoxDefaultAnswer(vbOKOnly + vbDefaultButton3), vbOK);
}

TEST(TestPlatform, RecordsBoxesDialogsAndSleepsAndAnswersFromItsScript)
{
    ScopedTestPlatform test;
    test->boxAnswers = {vbNo};
    test->savePaths = {"/tmp/a.kvs"};

    EXPECT_EQ(MsgBox("Save?", vbYesNoCancel + vbQuestion, "Title"), vbNo);
    EXPECT_EQ(MsgBox("Plain"), vbOK); // script used up: the default button answers
    ASSERT_EQ(test->boxes.size(), 2);
    EXPECT_EQ(test->boxes[0].text, "Save?");
    EXPECT_EQ(test->boxes[0].style, vbYesNoCancel + vbQuestion);
    EXPECT_EQ(test->boxes[0].title, "Title");

    EXPECT_EQ(SaveFileDialog({"Save As", "Data Sheet (*.kvs)", {}, {}}), "/tmp/a.kvs");
    EXPECT_EQ(SaveFileDialog({"Save As", {}, {}, {}}), QString());
    ASSERT_EQ(test->saveRequests.size(), 2);
    EXPECT_EQ(test->saveRequests[0].filter, "Data Sheet (*.kvs)");

    const QDateTime before = Now();
    Sleep(100);
    Sleep(50);
    EXPECT_EQ(test->sleeps, QList<int>({100, 50}));
    EXPECT_EQ(before.msecsTo(Now()), 150); // the virtual clock moves only by sleeps
}

TEST(TestPlatform, DoEventsRunsTheTestHookMeanwhile)
{
    ScopedTestPlatform test;
    int seen = 0;
    test->onDoEvents = [&] { ++seen; };
    DoEvents();
    DoEvents();
    EXPECT_EQ(seen, 2);
    EXPECT_EQ(test->doEventsCount, 2);
}

TEST(TestPlatform, InstallingRestoresThePreviousImplementation)
{
    Platform* outer = &platform();
    {
        ScopedTestPlatform test;
        EXPECT_EQ(&platform(), &*test);
    }
    EXPECT_EQ(&platform(), outer);
}

TEST(Settings, ValuesRoundTripAsTextInSectionsWithBlanksInTheirNames)
{
    ScopedTestPlatform test;
    EXPECT_EQ(GetSetting("IO Settings_KV7200B", "BaudRate", "9600"), "9600");
    SaveSetting("IO Settings_KV7200B", "BaudRate", "38400");
    SaveSetting("IO Settings_KV7200B", "VISA Resources", "TCPIP0::127.0.0.1::5025::SOCKET;ASRL1::INSTR");
    SaveSetting("Refresh_KV7200B", "Refresh Type", "Auto");
    EXPECT_EQ(GetSetting("IO Settings_KV7200B", "BaudRate"), "38400");
    EXPECT_EQ(GetSetting("IO Settings_KV7200B", "VISA Resources"),
              "TCPIP0::127.0.0.1::5025::SOCKET;ASRL1::INSTR");

    const SettingList io = GetAllSettings("IO Settings_KV7200B");
    ASSERT_EQ(io.size(), 2);
    EXPECT_TRUE(io.contains(qMakePair(QString("BaudRate"), QString("38400"))));

    DeleteSetting("IO Settings_KV7200B", "BaudRate");
    EXPECT_EQ(GetSetting("IO Settings_KV7200B", "BaudRate", "x"), "x");
    EXPECT_EQ(GetAllSettings("Nothing_KV7200B").size(), 0);
}

TEST(Settings, NumericReadsGiveZeroForTextThatIsNoNumber)
{
    ScopedTestPlatform test;
    EXPECT_EQ(GetSettingInt("General_KV7200B", "COM_Port", 1), 1); // absent: default
    SaveSetting("General_KV7200B", "COM_Port", "abc");
    EXPECT_EQ(GetSettingInt("General_KV7200B", "COM_Port", 1), 0);
    SaveSetting("General_KV7200B", "COM_Port", " 3 ");
    EXPECT_EQ(GetSettingInt("General_KV7200B", "COM_Port", 1), 3);
    SaveSetting("Settings_KV7200B", "MainLeft", "1234.5");
    EXPECT_DOUBLE_EQ(GetSettingNumber("Settings_KV7200B", "MainLeft", 1000), 1234.5);
    SaveSetting("Settings_KV7200B", "MainLeft", "99999999999");
    EXPECT_EQ(GetSettingInt("Settings_KV7200B", "MainLeft", 1000), 0);
}

TEST(Settings, StoreSurvivesReopeningTheSameFile)
{
    QTemporaryDir dir;
    const QString path = dir.filePath("Selvane.ini");
    SettingsStore("" + path).save("Selvane_Language_KV7200B", "Language", "0");
    EXPECT_EQ(SettingsStore(path).get("Selvane_Language_KV7200B", "Language", "1"), "0");
}

TEST(CliPlatform, BoxesTakeTheirDefaultAndDialogsHandOutQueuedPaths)
{
    QTemporaryDir dir;
    CliPlatform cli(dir.filePath("s.ini"));
    EXPECT_EQ(cli.msgBox("Save the changes?", vbYesNoCancel, "Selvane"), vbYes);
    cli.queueOpenPath("a.rmt");
    cli.queueOpenPath("b.rmt");
    EXPECT_EQ(cli.openFileName({}), "a.rmt");
    EXPECT_EQ(cli.openFileName({}), "b.rmt");
    EXPECT_EQ(cli.openFileName({}), QString());
}
