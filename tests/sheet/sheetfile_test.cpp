#include "acquire/waverecord.h"
#include "analysis/datarecord.h"
#include "analysis/measurerecord.h"
#include "document/sheetstate.h"
#include "platform/testplatform.h"
#include "sheet/sheetfile.h"
#include "sheet/sheetslots.h"
#include "stored/memorywaveslot.h"
#include "stored/recordslot.h"
#include "support/freshstate.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

std::vector<int16_t> ramp(std::size_t count, int16_t from)
{
    std::vector<int16_t> samples(count + 1, 0);
    for (std::size_t i = 0; i < count; ++i)
        samples[i] = static_cast<int16_t>(from + int(i % 200));
    return samples;
}

WaveArray waveRamp(std::size_t last, int32_t from)
{
    WaveArray array(last + 1, 0);
    for (std::size_t i = 1; i <= last; ++i)
        array[i] = from + int32_t(i % 250);
    return array;
}

class SheetFileTest : public FreshStateTest {
  protected:
    // A sheet with every kind of window, each kind's harder cases among them.
    void fillEveryKind()
    {
        OpenNewSheet();
        DataSheetName = QStringLiteral("Bench 数据");
        for (int i = 0; i < 4; ++i)
            ClaimSlot(SheetKind::Wave);
        WaveRecord& both = WaveRecords[0];
        both.HasData = true;
        both.PrevShow[1] = both.PrevShow[2] = true;
        both.WaveCH1 = waveRamp(1024, 0);
        both.WaveCH2 = waveRamp(1024, -100);
        both.Parameter.f32MathScale = 0.1f;
        both.Parameter.s8FFTScreen = -3;
        both.TimeScaleText = QStringLiteral("1.000ms");
        WaveRecord& fft = WaveRecords[1];
        fft.HasData = true;
        fft.PrevShow[2] = fft.PrevShow[5] = fft.PrevShow[6] = true;
        fft.FFTDisplayText = QStringLiteral("ON");
        fft.WaveCH2 = waveRamp(1024, 7);
        fft.WaveFFT = waveRamp(6144, 3);
        fft.WaveLa = waveRamp(2048, 1);
        WaveRecord& math = WaveRecords[2];
        math.HasData = true;
        math.PrevShow[5] = true;
        math.WaveMath = waveRamp(1024, 9);
        math.Parameter.f32FFTHorizScale = 1.0f / 3.0f;

        ClaimSlot(SheetKind::Measure);
        MeasureRecord& measure = MeasureRecords[0];
        measure.HasData = true;
        measure.Legend = QStringLiteral("CH1");
        measure.Items[4] = {QStringLiteral("1.02V"), true, 1.1, 0.9, QString()};
        ClaimSlot(SheetKind::Data);
        DataRecord& data = DataRecords[0];
        data.HasData = true;
        data.Count = 3;
        data.Voltages = {"V", "0.10V", "0.20V", "0.30V"};
        data.Times = {"s", "1us", "2us", "3us"};

        for (int i = 0; i < 2; ++i)
            ClaimSlot(SheetKind::Record);
        RecordSlot& replaying = RecordSlots[0];
        replaying.HasFile = true;
        replaying.LastFrame = 2;
        replaying.PlayState = RecordReplaying;
        replaying.CurrentFrame = 2;
        replaying.FrameInterval = 0.3;
        replaying.Samples = ramp(1200, 5);

        for (int i = 0; i < 3; ++i)
            ClaimSlot(SheetKind::MemoryWave);
        MemoryWaveSlot& plain = MemoryWaveSlots[0];
        plain.HasData = true;
        plain.ChanEnabled = {true, true, true, false};
        plain.SampleCount = 700;
        plain.Samples = {ramp(700, 1), ramp(700, 2), ramp(700, 3), {}};
        plain.ChanVoltDiv = {0.5f, 0.2f, 0.1f, 0};
        plain.TimeDiv = 1e-3;
        SnapshotLoadedSettings(plain);
        for (auto [slot, countB] : {std::pair{1, 400}, std::pair{2, 300}}) {
            MemoryWaveSlot& alt = MemoryWaveSlots[std::size_t(slot)];
            alt.HasData = alt.IsAlternation = true;
            alt.ChanEnabled = {true, true, false, false};
            alt.SampleCountA = 400;
            alt.SampleCountB = countB;
            alt.Samples = {ramp(400, 11), ramp(400, 12), {}, {}};
        }
    }

    ScopedTestPlatform test;
};

TEST_F(SheetFileTest, EveryKindComesBackByteForByteIntoAFreshProgram)
{
    fillEveryKind();
    QTemporaryDir dir;
    const QString path = dir.filePath("bench.kvs");
    ASSERT_TRUE(SaveSheet(path));
    EXPECT_EQ(SheetFileName, path);
    EXPECT_FALSE(DataSheetDirty);
    EXPECT_EQ(RecordSlots[0].PlayState, RecordPause) << "a replaying record is paused before it is filed";
    const QByteArray first = SheetFileContent();
    const auto waves = WaveRecords;
    const auto memory = MemoryWaveSlots[0].Samples;

    ResetProgramState();
    ASSERT_EQ(LoadSheet(path), SheetLoadResult::Loaded);
    EXPECT_EQ(SheetFileName, path);
    EXPECT_EQ(SheetFileContent(), first);
    EXPECT_TRUE(test->boxes.empty());

    EXPECT_EQ(DataSheetName, QStringLiteral("Bench 数据"));
    EXPECT_EQ(SheetSlotNames[KindIndex(SheetKind::Wave)], QStringList({"Wave0", "Wave1", "Wave2", "Wave3"}));
    for (std::size_t i : {0u, 1u})
        EXPECT_EQ(WaveRecords[i].WaveCH2, waves[i].WaveCH2);
    EXPECT_EQ(WaveRecords[1].WaveFFT, waves[1].WaveFFT);
    EXPECT_EQ(WaveRecords[1].WaveLa, waves[1].WaveLa);
    EXPECT_EQ(WaveRecords[2].WaveMath, waves[2].WaveMath);
    EXPECT_EQ(WaveRecords[2].Parameter, waves[2].Parameter);
    EXPECT_EQ(MeasureRecords[0].Items[4].OverLimit, 1.1);
    EXPECT_EQ(DataRecords[0].Times[3], "3us");
    EXPECT_EQ(RecordSlots[0].PlayState, RecordPause);
    EXPECT_EQ(RecordSlots[0].Samples.size(), 1201u) << "filed as far as the array reaches";
    EXPECT_EQ(MemoryWaveSlots[0].Samples[0], memory[0]);
    EXPECT_EQ(MemoryWaveSlots[0].Samples[1], memory[1]);
    EXPECT_TRUE(MemoryWaveSlots[0].Samples[2].empty()) << "CH3 isn't filed";
    EXPECT_EQ(MemoryWaveSlots[0].ChanVoltDiv[2], 0.0f);
    EXPECT_EQ(MemoryWaveSlots[0].Loaded.ChanVoltDiv[2], 0.0f);
    EXPECT_EQ(MemoryWaveSlots[0].ChanVoltDiv[1], 0.2f);
    EXPECT_EQ(MemoryWaveSlots[1].Samples[1], ramp(400, 12)) << "equal counts file CH1 and CH2";
    EXPECT_EQ(MemoryWaveSlots[2].Samples[1], std::vector<int16_t>(401, 0)) << "unequal counts file CH1 twice";
}

TEST_F(SheetFileTest, AnEmptySheetIsTheSignatureTheNameAndFiveZeros)
{
    OpenNewSheet(LanguageEnglish);
    EXPECT_EQ(SheetFileContent(), QByteArray("\"Selvane 00.01.05.00.00 Data Sheet\"\r\n\"Untitle\"\r\n"
                                             "0\r\n0\r\n0\r\n0\r\n0\r\n"));
}

TEST_F(SheetFileTest, AnotherVersionIsRefusedAndThePresentSheetStays)
{
    fillEveryKind();
    QByteArray content = SheetFileContent();
    content.replace("00.01.05.00.00", "00.01.04.00.00");
    QTemporaryDir dir;
    const QString path = dir.filePath("old.kvs");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();

    EXPECT_EQ(LoadSheet(path), SheetLoadResult::Refused);
    ASSERT_EQ(test->boxes.size(), 1);
    EXPECT_EQ(test->boxes[0].text, "Data Sheet File Format is Invaild !");
    EXPECT_EQ(DataSheetName, QStringLiteral("Bench 数据"));
    EXPECT_EQ(SheetCount(SheetKind::Wave), 4);
    EXPECT_TRUE(SheetFileName.isEmpty());

    EXPECT_EQ(LoadSheet(dir.filePath("missing.kvs")), SheetLoadResult::Unreadable);
    ASSERT_EQ(test->boxes.size(), 2);
    EXPECT_EQ(test->boxes[1].style, vbCritical);
}

TEST_F(SheetFileTest, AHandWrittenFileLoadsIntoTheRecords)
{
    QFile file(QStringLiteral(SELVANE_TEST_DATA "/sheet/data/golden.kvs"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    ASSERT_EQ(ReadSheetContent(file.readAll()), SheetLoadResult::Loaded);

    EXPECT_EQ(DataSheetName, "Bench A");
    for (SheetKind kind : AllSheetKinds)
        EXPECT_EQ(SheetCount(kind), 1);
    const WaveRecord& wave = WaveRecords[0];
    EXPECT_EQ(wave.ScaleText[2], "500mV");
    EXPECT_EQ(wave.DateText, "2026-11-25 10:00");
    EXPECT_EQ(wave.Parameter.s16ScrStartPos, -150);
    EXPECT_EQ(wave.Parameter.f32MathOffset, 0.5f);
    EXPECT_EQ(wave.Parameter.s16FFTdBVrms, 0);
    EXPECT_EQ(wave.Parameter.f32FFTHorizScale, 1000.0f);
    EXPECT_EQ(wave.MathDisplayText, "OFF");
    const MeasureRecord& measure = MeasureRecords[0];
    EXPECT_EQ(measure.Title, "Measure0");
    EXPECT_EQ(measure.Items[3].Value, "9.9E+37");
    EXPECT_TRUE(measure.Items[0].Enabled);
    EXPECT_EQ(measure.Items[0].UnderLimit, -0.25);
    EXPECT_EQ(measure.Items[17].Value, "17.00V");
    EXPECT_EQ(DataRecords[0].Voltages, DataColumn({"V", "0.10V"}));
    EXPECT_EQ(SheetSlotNames[KindIndex(SheetKind::Data)], QStringList{"Data0"});
    const RecordSlot& record = RecordSlots[0];
    EXPECT_EQ(record.FileName, "C:\\rec\\a.rcd");
    EXPECT_EQ(record.PlayState, RecordPause);
    EXPECT_TRUE(record.Circular);
    EXPECT_EQ(record.Samples, std::vector<int16_t>({10, 20, 30}));
    const MemoryWaveSlot& memory = MemoryWaveSlots[0];
    EXPECT_EQ(memory.Name, "Memory Wave0");
    EXPECT_EQ(memory.ChanShiftMeasured[0], -3);
    EXPECT_EQ(memory.SampleRate, 1e6f);
    EXPECT_EQ(memory.StartTime, -0.0005);
    EXPECT_EQ(memory.TriggerSourceB, 1);
    EXPECT_EQ(memory.Loaded.TimeDiv, 0.0001);
    EXPECT_EQ(memory.Samples[0], std::vector<int16_t>({125, 150, 175, 0}));
}

TEST_F(SheetFileTest, ACutFileLeavesTheUnreadValuesEmptyWithoutAMessage)
{
    QFile file(QStringLiteral(SELVANE_TEST_DATA "/sheet/data/golden.kvs"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    WaveRecords[0].TriggerMode = QStringLiteral("before");
    // Up to the wave's title and flag: the trigger mode on is read past the end.
    const QByteArray cut = whole.left(whole.indexOf("\"EDGE\""));
    ASSERT_EQ(ReadSheetContent(cut), SheetLoadResult::Loaded);
    EXPECT_EQ(WaveRecords[0].WaveTitle, "Wave0");
    EXPECT_TRUE(WaveRecords[0].TriggerMode.isEmpty());
    EXPECT_EQ(MeasureRecords[0].Legend, "");
    EXPECT_EQ(SheetCount(SheetKind::Record), 1);
    EXPECT_TRUE(test->boxes.empty());
}

} // namespace
