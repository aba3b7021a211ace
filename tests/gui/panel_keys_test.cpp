// The virtual keyboard against kv7200b-sim: every control of the key table
// clicked once, a held repeat key ticking through the step table, the panel's
// two differing keys, and selvane-cli key.
#include "guitest.h"
#include "panel_simlink.h"

#include "link/connection.h"
#include "link/devicefacts.h"
#include "link/linkstate.h"
#include "panel/frmV_Key.h"
#include "panel/frmV_Panel.h"
#include "panel/keypress.h"
#include "panel/keysetwidgets.h"
#include "panel/keytable.h"
#include "panel/panelstate.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QFile>
#include <QKeyEvent>
#include <QProcess>
#include <QTimer>

namespace {

struct KeyRow {
    QString control;
    QStringList commands;
};

QList<KeyRow> keyRows()
{
    QList<KeyRow> rows;
    for (const QStringList& fields : ExpectationRows("panel_keys.txt"))
        rows.append({fields[0], fields.value(1).split(u'|', Qt::SkipEmptyParts)});
    return rows;
}

using KeyboardTest = PanelSimTest;

TEST_F(KeyboardTest, EachControlSendsItsCommandOnce)
{
    connectSim();
    frmV_Key keyboard;
    keyboard.show();
    const QList<KeyRow> rows = keyRows();
    QStringList names;
    QStringList expected;
    for (const KeyRow& row : rows) {
        names.append(row.control);
        expected += row.commands;
        if (auto* button = control<QAbstractButton>(keyboard, row.control))
            if (button->isVisible()) ClickButton(button);
    }
    EXPECT_EQ(KeyControlNames(), names) << "the table and its test data name the same controls";
    EXPECT_EQ(sentSinceConnect(int(expected.size())), expected);
}

TEST_F(KeyboardTest, HeldPositionKeyCountsUpWithTheTicks)
{
    connectSim();
    frmV_Key keyboard;
    KeySetWidgets& keys = keyboard.keys();
    auto* key = control<QAbstractButton>(keyboard, "VK_V_Pos_Inc_2");
    PressButton(key);
    EXPECT_TRUE(keys.ButtonPressTimer->isActive());
    EXPECT_EQ(keys.ButtonPressTimer->interval(), 200);
    for (int tick = 0; tick < 6; ++tick) // a second and a bit, through the timer's seam
        keys.repeat().tick();
    ReleaseButton(key);
    EXPECT_FALSE(keys.ButtonPressTimer->isActive());

    QStringList expected(6, ":KEY:CH3_POS_INC 0");
    expected << ":KEY:CH3_POS_INC 2"
             << ":KEY:CH3_POS_INC";
    EXPECT_EQ(sentSinceConnect(int(expected.size())), expected);
    EXPECT_EQ(keys.repeat().HeldCommand, ":KEY:CH3_POS_INC");
    EXPECT_EQ(keys.repeat().HeldTicks, 6);
}

TEST_F(KeyboardTest, PanelSendsTheBareOffKeyAndNoClickForTheFunctionKnob)
{
    connectSim();
    frmV_Panel panel;
    panel.tDrawBmp->stop(); // keys only: no screen loop
    ClickButton(control<QAbstractButton>(panel, "VK_CH_Off"));
    ClickButton(control<QAbstractButton>(panel, "VK_F_DEC"));
    ClickButton(control<QAbstractButton>(panel, "VK_H_Pos_Dec"));
    const QStringList expected{":KEY", ":KEY:FUNC_DEC 0", ":KEY:TIME_POS_DEC 0", ":KEY:TIME_POS_DEC"};
    EXPECT_EQ(sentSinceConnect(int(expected.size())), expected);
}

TEST_F(KeyboardTest, OperationsForOtherWindowsSendTheirKeys)
{
    connectSim();
    const QStringList expected{
        ":KEY:ACQUIRE",   ":KEY:AUTO",     ":KEY:CH1",    ":KEY:CH2",     ":KEY:CURSOR",  ":KEY:DISPLAY",
        ":KEY:F1",        ":KEY:F2",       ":KEY:F3",     ":KEY:F4",      ":KEY:F5",      ":KEY:MATH",
        ":KEY:MEASURE",   ":KEY:REF",      ":KEY:RUN",    ":KEY:STORAGE", ":KEY:MNUTIME", ":KEY:TRIG%50",
        ":KEY:TRIGFORCE", ":KEY:TRIGMENU", ":KEY:UTILITY"};
    for (int key = 0; key <= int(PanelKey::Utility); ++key)
        PressPanelKey(PanelKey(key));
    EXPECT_EQ(sentSinceConnect(int(expected.size())), expected);
}

TEST_F(KeyboardTest, OpeningShowsTheLaKeyByTheInstrumentAndEscCloses)
{
    for (const bool hasLa : {false, true}) {
        SetHasLa(hasLa);
        auto* keyboard = new frmV_Key;
        keyboard->show();
        EXPECT_TRUE(PanelFlags.KeyboardOpen);
        EXPECT_EQ(control<QAbstractButton>(*keyboard, "VK_La")->isVisible(), hasLa);
        const QPointer<frmV_Key> guard(keyboard);
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(keyboard, &escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(guard);
        EXPECT_FALSE(PanelFlags.KeyboardOpen);
    }
}

TEST_F(KeyboardTest, CliPressesAndHoldsKeysByName)
{
    connectSim();
    const QString hislip = hislipResource();
    QProcess cli;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("SELVANE_VISA", "builtin");
    cli.setProcessEnvironment(environment);
    cli.start(SELVANE_CLI_PATH, {"key", "--resource", hislip, "VK_Run", "VK_V_Pos_Inc_2@7", "VK_Trig_Force"});
    ASSERT_TRUE(cli.waitForFinished(30000));
    EXPECT_EQ(cli.exitCode(), 0) << cli.readAllStandardError().toStdString();

    QStringList held(6, ":KEY:CH3_POS_INC 0");
    held << ":KEY:CH3_POS_INC 2"
         << ":KEY:CH3_POS_INC 2"
         << ":KEY:CH3_POS_INC";
    const QStringList logged = link->loggedCommands();
    const qsizetype run = logged.indexOf(":KEY:RUN");
    ASSERT_GE(run, 0);
    EXPECT_EQ(logged.mid(run + 1, held.size()), held);
    EXPECT_EQ(logged.value(run + 1 + held.size()), ":FORCETRIG");

    cli.start(SELVANE_CLI_PATH, {"key", "--resource", hislip, "VK_Nothing"});
    ASSERT_TRUE(cli.waitForFinished(30000));
    EXPECT_EQ(cli.exitCode(), 2);
}

} // namespace
