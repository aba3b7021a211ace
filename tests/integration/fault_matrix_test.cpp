// Every transfer against every fault the simulator can play, over the raw
// socket and HiSLIP, and the serial link's four seconds of silence: a link
// dropped at the transfer's first, middle or last command, a query never
// answered, noise for every reply, cut blocks, replies later than the
// time-out. Whatever happens the transfer returns and the frame is free again;
// a lost link is announced once, puts the lamp out and makes later commands
// silent no-ops; an unanswered query leaves its field at the conversion of an
// empty reply and the transfer goes on.
#include "faultrows.h"
#include "reading_simlink.h"

#include "acquire/operation.h"
#include "acquire/tabletext.h"
#include "acquire/waverecord.h"
#include "analysis/measurejudge.h"
#include "analysis/measurerecord.h"
#include "analysis/readmeasure.h"
#include "controller/ctrlfile.h"
#include "controller/ctrlstate.h"
#include "controller/download.h"
#include "controller/editor.h"
#include "controller/upload.h"
#include "link/connection.h"
#include "link/linkcommands.h"
#include "link/linklamp.h"
#include "link/linkstate.h"
#include "link/visalibrary.h"
#include "text/valuetext.h"

#include <QDeadlineTimer>
#include <QThread>
#include <algorithm>
#include <functional>

namespace {

struct Transfer {
    const char* name;
    int commands;            // what it sends to a sound instrument
    const char* silentQuery; // one of its queries, left unanswered by the silent row
    bool overSerial;         // it reads text only, so the serial link carries it
    std::function<void()> run;
    // The field the silent query fills shows the conversion of an empty reply.
    std::function<bool()> showsEmptyReply;
};

QString measured(const char* item)
{
    const MeasureItemInfo& info = MeasureItems[size_t(MeasureRowOf(QLatin1String(item)))];
    return CurrentMeasures[size_t(info.slot)];
}

const Transfer Transfers[] = {
    {"Connect", 2, "*IDN?", true, [] { ConnectDevice(); }, [] { return !Connected; }},
    {"Wave", 12, ":TIMEBASE:SCALE?", false,
     [] {
         WaveRecords[3].setShowChannel(1, true);
         RunReadingFrame({OperationWaveWindow, 3});
     },
     [] { return WaveRecords[3].TimeScaleText == TimeText4(""); }},
    {"Table", 12, ":TIMEBASE:SCALE?", false, [] { RunReadingFrame({OperationTableCH1}); },
     [] { return DataHeaderText.contains("  " + TimeText4("") + " "); }},
    {"Measure", 24, ":MEASURE:VPP?", true,
     [] {
         InstallMeasureOperations();
         RunReadingFrame({OperationMeasureCH1});
     },
     [] { return measured("Vpp") == MeasureValueText(MeasureItems[size_t(MeasureRowOf("Vpp"))], ""); }},
    {"Download", 121, ":TRIGGER:ALTERNATION:TYPE?", true,
     [] {
         InstallDownloadOperation();
         RunReadingFrame({OperationDownload});
         AfterDownload();
     },
     // An unanswered type reads as the table's last row.
     [] { return CtrlData.AltTypeA == "DURATION"; }},
    {"Upload", 56, ":CHANNEL3:OFFSET?", true,
     [] {
         ASSERT_TRUE(ReadCtrlFile(QStringLiteral(SELVANE_TEST_DATA "/controller/data/golden.rmt")));
         BeforeUpload();
         InstallUploadOperation();
         RunReadingFrame({OperationUpload});
     },
     nullptr},
    {"EditorOK", 4, ":CHANNEL1:OFFSET?", true,
     [] { ApplyEdit(ParseEditPath("KV7200B\\CH1\\Probe [1X]"), "10X"); },
     [] { return CtrlData.ChOffset[1] == VoltText3(""); }},
};

struct Case {
    LinkTransport transport;
    int transfer;
    int fault;
};

std::vector<Case> Cases()
{
    std::vector<Case> cases;
    for (const LinkTransport transport : {LinkTransport::Socket, LinkTransport::Hislip})
        for (int t = 0; t < int(std::size(Transfers)); ++t)
            for (int f = 0; f < int(std::size(FaultRows)); ++f)
                cases.push_back({transport, t, f});
    // The serial link's own rule: four seconds of silence give an empty reply.
    const auto silent = std::find_if(std::begin(FaultRows), std::end(FaultRows),
                                     [](const FaultRow& row) { return row.kind == FaultKind::Silent; });
    for (int t = 0; t < int(std::size(Transfers)); ++t)
        if (Transfers[t].overSerial)
            cases.push_back({LinkTransport::Serial, t, int(silent - std::begin(FaultRows))});
    return cases;
}

// A lost link is announced by the box of the step that failed: a send or a read.
qsizetype lostBoxes(const QStringList& texts)
{
    return texts.count("Send Message|Can't Connect to Device!") +
           texts.count("Read Message|Can't Read data from Device!");
}

class FaultMatrix : public SimReadingTest, public ::testing::WithParamInterface<Case> {
  protected:
    // The pauses between commands pace the instrument, not the link: the
    // simulator keeps up without them, and the matrix runs in a fraction of the time.
    FaultMatrix() { platform->realSleep = false; }
    ~FaultMatrix() override { qunsetenv("SELVANE_VISA_TIMEOUT_MS"); }

    // Commands still on the wire reach the simulator's log a moment later.
    qsizetype sentSince(qsizetype before, int expected) const
    {
        const QDeadlineTimer deadline(2000);
        while (link->loggedCommands().size() - before < expected && !deadline.hasExpired())
            QThread::msleep(10);
        return link->loggedCommands().size() - before;
    }
};

TEST_P(FaultMatrix, TransferReturnsAndLeavesTheStateItShould)
{
    const Case c = GetParam();
    const Transfer& transfer = Transfers[c.transfer];
    const FaultRow& fault = FaultRows[c.fault];
    const bool connecting = c.transfer == 0; // the connect itself: nothing before it
    const QStringList options =
        FaultOptions(fault, connecting ? 0 : 2, transfer.commands, QString::fromLatin1(transfer.silentQuery));
    ASSERT_TRUE(
        startSim(options + QStringList{"--pty", c.transport == LinkTransport::Serial ? "on" : "off"}));
    link->aim(c.transport);
    BaudRate = QStringLiteral("115200");
    qsizetype before = 0;
    if (connecting) {
        // The program asks for 50 s; our VISA layer's ceiling makes a late reply cheap.
        qputenv("SELVANE_VISA_TIMEOUT_MS", QByteArray::number(FaultTimeoutMs));
    } else {
        ConnectDevice();
        if (fault.kind == FaultKind::Garbage) {
            EXPECT_FALSE(Connected) << "noise is no instrument";
            // Read noise through the open session as a connected link would.
            platform->clearRecords();
            Connected = true;
        }
        ASSERT_TRUE(Connected) << boxTexts().join("; ").toStdString();
        Visa().setAttribute(VisaSession, VI_ATTR_TMO_VALUE, FaultTimeoutMs);
        before = link->loggedCommands().size();
    }

    transfer.run();
    EXPECT_FALSE(OperationRunning);
    if (fault.kind == FaultKind::None) {
        EXPECT_TRUE(Connected);
        EXPECT_TRUE(platform->boxes.isEmpty()) << boxTexts().join("; ").toStdString();
        EXPECT_EQ(sentSince(before, transfer.commands), transfer.commands)
            << "the drop rows count on this length";
        return;
    }
    if (fault.kind == FaultKind::Silent && transfer.showsEmptyReply) {
        EXPECT_TRUE(transfer.showsEmptyReply()) << "an unanswered query is an empty reply";
    }
    if (fault.kind == FaultKind::Delay && connecting) {
        EXPECT_FALSE(Connected) << "the identity came after the time-out";
    }
    if (fault.kind == FaultKind::Silent && !connecting) {
        EXPECT_EQ(sentSince(before, transfer.commands), transfer.commands)
            << "the transfer went on to its end";
    }

    // A drop after the transfer's last query is seen at the next one.
    for (int i = 0; fault.kind == FaultKind::Drop && i < 3 && Connected; ++i)
        AskCmd("*IDN?");
    const QStringList texts = boxTexts();
    if (Connected) {
        EXPECT_NE(fault.kind, FaultKind::Drop);
        EXPECT_EQ(lostBoxes(texts), 0) << texts.join("; ").toStdString();
        if (fault.kind == FaultKind::Silent) {
            EXPECT_EQ(AskCmd("*IDN?").trimmed(), QString(SupportedIdentity)) << "silence costs a reply only";
        }
        return;
    }
    EXPECT_FALSE(LinkLampOn);
    if (connecting && texts.size() == 1 && lostBoxes(texts) == 0) {
        EXPECT_EQ(texts.front(), "Connect to Oscilloscope|Device not found!");
    } else {
        EXPECT_EQ(lostBoxes(texts), 1) << texts.join("; ").toStdString();
    }
    const qsizetype boxes = platform->boxes.size();
    const qsizetype logged = link->loggedCommands().size();
    WriteCmd(":RUN");
    EXPECT_EQ(AskCmd("*IDN?"), "");
    EXPECT_EQ(platform->boxes.size(), boxes) << "a lost link is announced once";
    EXPECT_EQ(link->loggedCommands().size(), logged) << "and sends nothing more";
}

INSTANTIATE_TEST_SUITE_P(Sim, FaultMatrix, ::testing::ValuesIn(Cases()), [](const auto& info) {
    const Case& c = info.param;
    return transportName(c.transport) + Transfers[c.transfer].name + FaultRows[c.fault].name;
});

} // namespace
