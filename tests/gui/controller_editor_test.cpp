// The value editor against the simulator: one case per dispatch family, with
// what goes on the wire and what the read-back leaves in CtrlData; the dialog's
// keypad and unit keys; selvane-cli set.

#include "reading_simlink.h"

#include "controller/ctrlstate.h"
#include "controller/editor.h"
#include "controller/frmCtrlDialog.h"
#include "link/linkstate.h"
#include "text/language.h"
#include "text/messages.h"
#include "text/treewords.h"

#include <QComboBox>
#include <QLineEdit>
#include <QProcess>

namespace {

class EditorTest : public SimReadingTest {
  protected:
    void SetUp() override
    {
        platform->realSleep = false;
        ASSERT_TRUE(startSim());
        ASSERT_TRUE(connectOverSocket());
    }
    static EditTarget target(const QString& path) { return ParseEditPath("KV7200B\\" + path); }
    // Applies value at path and returns the commands the simulator got for it.
    QStringList apply(const QString& path, const QString& value, EditResult* result = nullptr)
    {
        const qsizetype before = link->loggedCommands().size();
        const EditResult done = ApplyEdit(target(path), value);
        if (result) *result = done;
        send("*IDN?"); // a marker: everything before it has been logged
        QStringList commands = link->loggedCommands().mid(before);
        commands.removeAll("*IDN?");
        return commands;
    }
    static bool sent(const QStringList& commands, const char* command)
    {
        return commands.contains(QString::fromLatin1(command));
    }
};

TEST_F(EditorTest, ChannelListsNumbersAndProbeReadBack)
{
    EXPECT_TRUE(sent(apply("CH2\\Coupling", "AC"), ":CHANNEL2:COUPLING AC"));
    EXPECT_EQ(CtrlData.ChCoupling[2], "AC");
    EXPECT_TRUE(sent(apply("CH3\\Display", "ON"), ":CHANNEL3:DISPLAY ON"));
    EXPECT_EQ(CtrlData.ChDisplay[3], "ON") << "read back";

    EXPECT_TRUE(sent(apply("CH1\\Offset", "0.5"), ":CHANNEL1:OFFSET 0.5"));
    EXPECT_EQ(CtrlData.ChOffset[1], "500mV");
    EXPECT_TRUE(sent(apply("CH1\\Offset", "-1e9"), ":CHANNEL1:OFFSET -400000")) << "clamped";

    // The instrument keeps the input scale: the probe multiplies what it answers.
    CtrlData.ChVoltDiv[1] = QStringLiteral("stale");
    EXPECT_TRUE(sent(apply("CH1\\Probe", "10X"), ":CHANNEL1:PROBE 10X"));
    EXPECT_EQ(CtrlData.ChVoltDiv[1], "10.0V");
    EXPECT_TRUE(CtrlDirty);

    EXPECT_TRUE(sent(apply("CH1\\Volt/Div", "5.00V"), ":CHANNEL1:SCALE 0.5"));
    EXPECT_EQ(CtrlData.ChVoltDiv[1], "5.00V");

    // The dispatch reads the captions and the words of the language in force.
    Language = LanguageChinese;
    EXPECT_TRUE(sent(apply("CH4\\耦合", "交流"), ":CHANNEL4:COUPLING AC"));
    EXPECT_EQ(CtrlData.ChCoupling[4], "交流");
}

TEST_F(EditorTest, TimeBaseTakesExponentsAndFormatSwitchesTheChannels)
{
    EXPECT_TRUE(sent(apply("Time Base\\Time/Div", "500.0us"), ":TIMEBASE:SCALE 500.0e-6"));
    EXPECT_EQ(CtrlData.TimeDiv, "500.0us");
    EXPECT_TRUE(sent(apply("Time Base\\Time/Div", "2.000s"), ":TIMEBASE:SCALE 2.000e0"));
    EXPECT_EQ(CtrlData.TimeDiv, "2.000s");
    EXPECT_TRUE(sent(apply("Time Base\\Delay", "0.0005"), ":TIMEBASE:OFFSET 0.5e-3"));
    EXPECT_EQ(CtrlData.TimeDelay, "500.00us");

    CtrlData.ChDisplay[3] = ValueWord("ON");
    EditResult result;
    EXPECT_TRUE(sent(apply("Time Base\\Format", "X-Y", &result), ":TIMEBASE:FORMAT XY"));
    EXPECT_TRUE(result.relayout);
    EXPECT_EQ(CtrlData.TimeFormat, "X-Y");
    const QString on[] = {"", "ON", "ON", "OFF", "OFF"};
    for (int n = 1; n <= 4; ++n)
        EXPECT_EQ(CtrlData.ChDisplay[n], on[n]) << n;

    // Memory Size is only asked.
    EXPECT_EQ(PlanEdit(target("Time Base\\Memory Size")).shape, EditShape::None);
    EXPECT_EQ(platform->boxes.last().text, "This Item Query Only!");
}

TEST_F(EditorTest, TriggerMethodCouplingAndAlternateChannels)
{
    EditResult result;
    apply("Trigger\\Method", "PULSE", &result);
    EXPECT_TRUE(result.relayout);
    EXPECT_EQ(CtrlData.TrigMethod, "PULSE");
    EXPECT_EQ(QString::fromUtf8(askText(":TRIGGER:MODE?")), "PULSE");

    apply("Trigger\\Method", "EDGE");
    CtrlData.EdgeHf = ValueWord("ON");
    EXPECT_TRUE(sent(apply("Trigger\\Coupling", "LF"), ":TRIGGER:COUPLING LF"));
    EXPECT_EQ(CtrlData.EdgeHf, "OFF");
    const QStringList hf = apply("Trigger\\HF", "ON");
    EXPECT_TRUE(hf.filter(":TRIGGER:HFRE").isEmpty()) << hf.join(' ').toStdString();
    // The level in volts from the source's scale and offset (CH1 sits 2 divisions up).
    EXPECT_EQ(apply("Trigger\\Level", "1.00div").join(' ').toStdString(),
              ":TRIGGER:EDGE:SOURCE? :CHANNEL1:SCALE? :CHANNEL1:OFFSET? :TRIGGER:EDGE:LEVEL -1");

    // ChannelA meeting ChannelB moves B on, CH4 wrapping to CH1.
    EXPECT_TRUE(sent(apply("Trigger\\ChannelA", "CHANNEL2"), ":TRIGGER:ALTERNATION:SOURCE CH2CH3"));
    CtrlData.AltSourceB = QStringLiteral("CH4");
    apply("Trigger\\ChannelA", "CHANNEL4");
    EXPECT_EQ(CtrlData.AltSourceB, "CH1");
    EXPECT_EQ(CtrlData.AltChannel, "CH4CH1");

    // An alternate window's item selects its source in the editor's spelling first.
    CtrlData.TrigMethod = ValueWord("ALTERNATIVE");
    const QStringList window = apply("Time Base\\WindowB\\Time/Div", "2.000ms");
    EXPECT_EQ(window.mid(0, 2), QStringList({":TRIGGER:ALTERNATION:CURRentSOURce SOURceB",
                                             ":TRIGGER:ALTERNATION:TIMESCALE 2.000e-3"}));
    EXPECT_EQ(CtrlData.TimeDivB, "2.000ms");
    const QStringList level = apply("Trigger\\CH4\\Level", "0.40div"); // CH4 is source A now
    EXPECT_EQ(level.first().toStdString(), ":TRIGGER:ALTERNATION:CURRentSOURce SOURceA");
    EXPECT_TRUE(level.last().startsWith(":TRIGGER:ALTERNATION:LEVEL ")) << level.last().toStdString();
}

TEST_F(EditorTest, PatternCodesAndListsOfTheRarerItems)
{
    CtrlData.TrigMethod = ValueWord("PATTERN");
    EXPECT_TRUE(sent(apply("Trigger\\Code\\CH2", "H"), ":TRIGGER:PATTERN:PATTERN 2,2,0"));
    apply("Trigger\\Code\\EXT", "L");
    EXPECT_TRUE(sent(apply("Trigger\\Code\\EXT/5", "H"), ":TRIGGER:PATTERN:PATTERN 18,18,1"));
    EXPECT_EQ(CtrlData.PatternCode[4], "X") << "the two external inputs exclude each other";
    EXPECT_EQ(PlanEdit(target("Trigger\\Code\\CH1")).shape, EditShape::Pattern);

    EXPECT_EQ(PlanEdit(target("Acquire\\Anti-aliasing")).items, QStringList({"ON", "ON"}));
    EXPECT_EQ(PlanEdit(target("Acquire\\Intensity")).items.last(), "100%");
    CtrlData.TrigMethod = ValueWord("VIDEO");
    const EditPlan video = PlanEdit(target("Trigger\\Line number"));
    EXPECT_EQ(video.items.size(), 525);
    const EditPlan timeDiv = PlanEdit(target("Time Base\\Time/Div"));
    EXPECT_EQ(timeDiv.items.first(), "1.000ns");
    EXPECT_TRUE(link->loggedCommands().contains(":TIMEBASE:FORMAT?"));
}

TEST_F(EditorTest, ActionsWithoutADialog)
{
    const auto act = [this](const char* path) {
        const qsizetype before = link->loggedCommands().size();
        EXPECT_EQ(PlanEdit(target(QString::fromUtf8(path))).shape, EditShape::None) << path;
        send("*IDN?");
        QStringList commands = link->loggedCommands().mid(before);
        commands.removeAll("*IDN?");
        return commands.join(' ').toStdString();
    };
    EXPECT_EQ(act("Running Control\\Force Trigger"), ":FORCETRIG");
    EXPECT_EQ(act("Running Control\\Single Trigger"), ":KEY:SINGLE");
    EXPECT_EQ(act("Display\\Clear"), ":DISPLAY:CLEAR");
    CtrlData.EdgeLevel.clear();
    EXPECT_EQ(act("Running Control\\Set Trig to 50%"),
              ":TRIG%50 :TRIGGER:EDGE:SOURCE? :CHANNEL1:SCALE? :TRIGGER:EDGE:LEVEL?");
    EXPECT_TRUE(CtrlData.EdgeLevel.endsWith("div")) << CtrlData.EdgeLevel.toStdString();

    // Default: the reset, its pause, then a download that leaves the record unsaved.
    CtrlData.TimeDiv = QStringLiteral("stale");
    CtrlDirty = false;
    platform->sleeps.clear();
    const std::string reset = act("Running Control\\Default");
    EXPECT_EQ(reset.substr(0, 22), "*RST :TRIGGER:STATUS? ");
    EXPECT_TRUE(platform->sleeps.contains(2000));
    EXPECT_EQ(CtrlData.TimeDiv, "500.0us");
    EXPECT_TRUE(CtrlDirty);
}

TEST_F(EditorTest, DialogKeysAndALostLink)
{
    CtrlDialog dialog;
    dialog.Load(target("CH1\\Offset"), PlanEdit(target("CH1\\Offset")));
    EXPECT_FALSE(dialog.combo()->isVisibleTo(&dialog));
    EXPECT_EQ(dialog.input()->text(), "0");
    dialog.input()->setText("abc");
    dialog.cmdEnter_Click(0);
    EXPECT_EQ(platform->boxes.last().text, "Enter number only!");
    EXPECT_FALSE(dialog.stored());

    dialog.input()->setText("25");
    dialog.cmdKey_Click(11);
    EXPECT_EQ(dialog.input()->text(), "-25");
    dialog.cmdKey_Click(11);
    EXPECT_EQ(dialog.input()->text(), "25") << "the sign key twice restores the text";
    dialog.cmdKey_Click(12);
    dialog.cmdKey_Click(10);
    dialog.cmdKey_Click(5);
    EXPECT_EQ(dialog.input()->text(), "2.5");
    dialog.cmdEnter_Click(4); // mV: scaled, then OK at once
    EXPECT_TRUE(dialog.stored());
    EXPECT_TRUE(link->waitForLogged(":CHANNEL1:OFFSET 0.0025", 1));

    // With the link gone OK closes without storing.
    const QString before = CtrlData.ChCoupling[2];
    CtrlDirty = false;
    Connected = false;
    CtrlDialog gone;
    gone.Load(target("CH2\\Coupling"), PlanEdit(target("CH2\\Coupling")));
    gone.combo()->setCurrentText("GND");
    gone.cmdOK_Click();
    EXPECT_FALSE(gone.stored());
    EXPECT_EQ(CtrlData.ChCoupling[2], before);
    EXPECT_FALSE(CtrlDirty);
}

TEST_F(EditorTest, CliSetChangesOneSettingAndPrintsTheNode)
{
    const auto run = [this](const QStringList& head) {
        QStringList arguments = head;
        for (const QString& resource : socketResources())
            arguments << "--resource" << resource;
        QProcess cli;
        cli.start(QStringLiteral(SELVANE_CLI_PATH), arguments);
        EXPECT_TRUE(cli.waitForFinished(60000));
        return std::make_pair(cli.exitCode(), QString::fromUtf8(cli.readAllStandardOutput()).trimmed());
    };
    EXPECT_EQ(run({"set", "Time Base\\Time/Div", "2.000ms"}),
              std::make_pair(0, QString("Time/Div [2.000ms]")));
    EXPECT_EQ(QString::fromUtf8(askText(":TIMEBASE:SCALE?")), "2.000e-03");
    EXPECT_EQ(run({"set", "CH2\\Coupling", "SIDEWAYS"}).first, 3);
    EXPECT_EQ(run({"set", "Time Base\\Memory Size", "8000"}).first, 3);
    EXPECT_EQ(run({"set", "Time Base\\Time/Div"}).first, 2);
}

} // namespace
