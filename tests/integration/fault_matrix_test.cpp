// Every transfer against every fault the simulator can play over the raw
// socket: a link dropped at the transfer's first command, in its middle or
// later, a query never answered, noise for every reply. Whatever happens the
// transfer returns, the frame is free again, and a lost link is announced
// once, puts the lamp out and makes later commands silent no-ops.
#include "reading_simlink.h"

#include "acquire/operation.h"
#include "acquire/waverecord.h"
#include "analysis/readmeasure.h"
#include "controller/ctrlfile.h"
#include "controller/download.h"
#include "controller/upload.h"
#include "link/connection.h"
#include "link/linkcommands.h"
#include "link/linklamp.h"
#include "link/linkstate.h"
#include "link/visalibrary.h"

#include <functional>

namespace {

struct Transfer {
    const char* name;
    std::function<void()> run;
};

const Transfer Transfers[] = {
    {"Wave",
     [] {
         WaveRecords[3].setShowChannel(1, true);
         RunReadingFrame({OperationWaveWindow, 3});
     }},
    {"Table", [] { RunReadingFrame({OperationTableCH1}); }},
    {"Measure",
     [] {
         InstallMeasureOperations();
         RunReadingFrame({OperationMeasureCH1});
     }},
    {"Download",
     [] {
         InstallDownloadOperation();
         RunReadingFrame({OperationDownload});
         AfterDownload();
     }},
    {"Upload",
     [] {
         ASSERT_TRUE(ReadCtrlFile(QStringLiteral(SELVANE_TEST_DATA "/controller/data/golden.rmt")));
         BeforeUpload();
         InstallUploadOperation();
         RunReadingFrame({OperationUpload});
     }},
};

enum class Kind { Drop, Silent, Garbage };

struct Fault {
    const char* name;
    Kind kind;
    QStringList options;
};

// Connecting costs two commands, so "--drop-after 2" drops the transfer's first.
const Fault Faults[] = {
    {"DropAtStart", Kind::Drop, {"--drop-after", "2"}},
    {"DropInMiddle", Kind::Drop, {"--drop-after", "5"}},
    {"DropLate", Kind::Drop, {"--drop-after", "14"}},
    {"SilentAtStart", Kind::Silent, {"--silent", ":TRIGGER:STATUS?"}},
    {"SilentInMiddle", Kind::Silent, {"--silent", ":TIMEBASE:SCALE?"}},
    {"Garbage", Kind::Garbage, {"--garbage"}},
};

// A lost link is announced by the box of the step that failed: a send or a read.
qsizetype lostBoxes(const QStringList& texts)
{
    return texts.count("Send Message|Can't Connect to Device!") +
           texts.count("Read Message|Can't Read data from Device!");
}

class FaultMatrix : public SimReadingTest, public ::testing::WithParamInterface<std::tuple<int, int>> {};

TEST_P(FaultMatrix, TransferReturnsAndLeavesTheLinkInAKnownState)
{
    const Transfer& transfer = Transfers[std::get<0>(GetParam())];
    const Fault& fault = Faults[std::get<1>(GetParam())];
    ASSERT_TRUE(startSim(fault.options + QStringList{"--pty", "off"}));
    connectOverSocket();
    if (fault.kind == Kind::Garbage) {
        EXPECT_FALSE(Connected) << "noise is no instrument";
        // Read noise through the open session as a connected link would.
        platform->clearRecords();
        Connected = true;
    }
    ASSERT_TRUE(Connected) << boxTexts().join("; ").toStdString();
    // The instrument's long wait would make a silent query last 50 s.
    Visa().setAttribute(VisaSession, VI_ATTR_TMO_VALUE, 200);

    transfer.run();
    EXPECT_FALSE(OperationRunning);

    // A transfer shorter than the drop point loses the link at the next query.
    for (int i = 0; fault.kind == Kind::Drop && i < 3 && Connected; ++i)
        AskCmd("*IDN?");
    const QStringList texts = boxTexts();
    if (Connected) {
        EXPECT_NE(fault.kind, Kind::Drop);
        EXPECT_EQ(lostBoxes(texts), 0) << texts.join("; ").toStdString();
        if (fault.kind == Kind::Silent) {
            EXPECT_EQ(AskCmd("*IDN?").trimmed(), QString(SupportedIdentity)) << "silence costs a reply only";
        }
        return;
    }
    EXPECT_FALSE(LinkLampOn);
    EXPECT_EQ(lostBoxes(texts), 1) << texts.join("; ").toStdString();
    const qsizetype boxes = platform->boxes.size();
    WriteCmd(":RUN");
    EXPECT_EQ(AskCmd("*IDN?"), "");
    EXPECT_EQ(platform->boxes.size(), boxes) << "a lost link is announced once";
}

INSTANTIATE_TEST_SUITE_P(Sim, FaultMatrix,
                         ::testing::Combine(::testing::Range(0, int(std::size(Transfers))),
                                            ::testing::Range(0, int(std::size(Faults)))),
                         [](const auto& info) {
                             return std::string(Transfers[std::get<0>(info.param)].name) +
                                    Faults[std::get<1>(info.param)].name;
                         });

} // namespace
