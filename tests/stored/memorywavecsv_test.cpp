#include "platform/testplatform.h"
#include "state/programstate.h"
#include "stored/memorysteps.h"
#include "stored/memorywavecsv.h"
#include "stored/wfmfile.h"
#include "text/formatmask.h"
#include "wfmbytes.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <random>

namespace {

MemoryWaveSlot slotOf(const WfmBytes& file)
{
    MemoryWaveSlot slot;
    int code = 0;
    EXPECT_TRUE(LoadMemoryWaveBytes(file.bytes, slot, code).accepted);
    return slot;
}

// Eight samples a channel, 1 MS/s, the first at -4 us.
WfmBytes smallFile(bool alternation)
{
    WfmBytes file(alternation ? 504 + 4 * 8 : 420 + 4 * 0x2000);
    file.put<int32_t>(60, 8).putFloat(180, 1e6f).put<int64_t>(192, -4'000'000);
    if (alternation)
        file.alternation().put<int32_t>(268, 8).putFloat(288, 2e6f).put<int64_t>(300, 1'500'000'000);
    const qsizetype first = alternation ? 504 : 420, pitch = alternation ? 8 : 0x2000;
    for (int n = 0; n < 4; ++n)
        file.ramp(first + n * pitch, 8, 70 + 10 * n);
    return file;
}

QStringList goldenLines(const char* name)
{
    QFile file(QStringLiteral(SELVANE_TEST_DATA "/stored/data/") + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return QString::fromLatin1(file.readAll()).split(QStringLiteral("\r\n"));
}

void expectGolden(const MemoryWaveSlot& slot, const char* name)
{
    const QStringList expected = goldenLines(name);
    const QStringList got = QString::fromLatin1(MemoryWaveCsv(slot)).split(QStringLiteral("\r\n"));
    ASSERT_EQ(got.size(), expected.size()) << name;
    for (qsizetype i = 0; i < got.size(); ++i)
        EXPECT_EQ(got[i], expected[i]) << name << " line " << i + 1;
}

class MemoryWaveCsvTest : public ::testing::Test {
  protected:
    MemoryWaveCsvTest() { ResetProgramState(); }
    ScopedTestPlatform platform;
};

TEST_F(MemoryWaveCsvTest, NumbersMatchTheMaskFormatter)
{
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    std::uniform_int_distribution<int> exponent(-15, 15);
    std::vector<double> values = {0,      -0.0,  1,     0.999999, 0.9995, 0.99949, 9.995,      2.675,
                                  -2.675, 1e-12, 999.5, -1,       5e-4,   1.005,   123456789.0};
    for (int k = 0; k < 20000; ++k)
        values.push_back(mantissa(random) * std::pow(10.0, exponent(random)));
    for (double v : values) {
        QByteArray fast;
        AppendCsvNumber(fast, v);
        EXPECT_EQ(QString::fromLatin1(fast), FormatMask(v, v >= 1 ? "0.00E+00" : "0.00E-00")) << v;
    }
}

TEST_F(MemoryWaveCsvTest, GoldenFiles)
{
    WfmBytes edge = smallFile(false);
    edge.channel(0, true, 500'000, 25).channel(2, true, 2'000, -60);
    expectGolden(slotOf(edge), "edge.csv");

    WfmBytes alternation = smallFile(true);
    alternation.channel(0, true).channel(1, true, 200'000, 10).channel(3, true, 5'000'000, -3);
    expectGolden(slotOf(alternation), "alternation.csv");

    WfmBytes peak = smallFile(false);
    peak.channel(0, true, 1'000'000, 0).channel(1, true).put<int32_t>(404, 2).put<uint8_t>(402, 1);
    expectGolden(slotOf(peak), "peak.csv");

    // Peak on one time base of ALTERNATION only: CH3 and CH4 (on B) keep every time cell.
    alternation.channel(2, true).put<int32_t>(404, 2).put<uint8_t>(402, 2);
    expectGolden(slotOf(alternation), "alternation_peak.csv");
}

TEST_F(MemoryWaveCsvTest, StepperChangesDontReachTheCsv)
{
    WfmBytes file = smallFile(false);
    file.channel(0, true, 500'000, 25).channel(1, true, 20'000, 3);
    MemoryWaveSlot slot = slotOf(file);
    const QByteArray before = MemoryWaveCsv(slot);
    StepMemoryValue(slot, 0, +1, 0);
    StepMemoryValue(slot, 1, -1, 0);
    StepMemoryValue(slot, StepTimeSingle, +1, 0);
    EXPECT_EQ(MemoryWaveCsv(slot), before);
}

TEST_F(MemoryWaveCsvTest, NeedsCh1OrCh2)
{
    WfmBytes file = smallFile(false);
    file.channel(2, true).channel(3, true);
    EXPECT_FALSE(MemoryWaveCsvAllowed(slotOf(file)));
    file.channel(1, true);
    EXPECT_TRUE(MemoryWaveCsvAllowed(slotOf(file)));
}

TEST_F(MemoryWaveCsvTest, WritesThroughASaveFileAndReportsFailure)
{
    WfmBytes file = smallFile(false);
    file.channel(0, true);
    const MemoryWaveSlot slot = slotOf(file);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("out.csv"));
    qint64 rows = 0;
    EXPECT_EQ(WriteMemoryWaveCsv(slot, path, [&](qint64, qint64) { ++rows; }), QString());
    EXPECT_EQ(rows, 8);
    QFile written(path);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.readAll(), MemoryWaveCsv(slot));
    EXPECT_NE(WriteMemoryWaveCsv(slot, dir.filePath(QStringLiteral("missing/out.csv"))), QString());
}

} // namespace
