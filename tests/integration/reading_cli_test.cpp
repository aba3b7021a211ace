// selvane-cli wave and table against the simulator: the picture shows the
// grid and the traces where the instrument's codes put them; the table file
// is the export text.
#include "cliprocess.h"
#include "reading_simlink.h"

#include <QColor>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

namespace {

class CliReading : public SimReadingTest {
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(startSim());
        send(":STOP");
    }

    int runCli(const QStringList& arguments)
    {
        QStringList all = arguments;
        for (const QString& resource : socketResources())
            all << "--resource" << resource;
        const CliRun run = ::runCli(all);
        errors = run.err;
        return run.status;
    }

    QTemporaryDir dir;
    QString errors;
};

// Whether column x holds a pixel of colour within rows from..to.
bool columnHas(const QImage& image, int x, int from, int to, QColor colour)
{
    for (int y = std::max(from, 0); y <= std::min(to, image.height() - 1); ++y)
        if (image.pixelColor(x, y) == colour) return true;
    return false;
}

TEST_F(CliReading, WavePictureShowsGridAndTracesAtTheirCodes)
{
    const QString out = dir.filePath("wave.png");
    ASSERT_EQ(runCli({"wave", "--channels", "1,2", "--zoom", "2.0", "--out", out}), 0)
        << errors.toStdString();

    const QImage image(out);
    ASSERT_EQ(image.size(), QSize(700, 500));
    const QColor grey(192, 192, 192);
    EXPECT_EQ(image.pixelColor(25, 200), grey) << "left edge of the frame";
    EXPECT_EQ(image.pixelColor(325, 225), grey) << "centre cross";
    EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::black));
    const std::vector<int> ch1 = CodesOf(askBlock(":WAVEFORM:SCREENDATA? CHANNEL1"));
    const std::vector<int> ch2 = CodesOf(askBlock(":WAVEFORM:SCREENDATA? CHANNEL2"));
    ASSERT_EQ(ch1.size(), 600u);
    ASSERT_EQ(ch2.size(), 600u);
    // At zoom 2 one sample a pixel: sample j (from 0) near x = 25 + j. A
    // falling or rising trace spans the rows of its neighbours.
    for (const int j : {100, 250, 400, 550}) {
        const auto rows = [&](const std::vector<int>& c) {
            const auto [low, high] = std::minmax({c[size_t(j - 2)], c[size_t(j)], c[size_t(j + 2)]});
            return std::pair{25 + 2 * low - 1, 25 + 2 * high + 1};
        };
        const auto [top1, bottom1] = rows(ch1);
        EXPECT_TRUE(columnHas(image, 25 + j, top1, bottom1, QColor(255, 255, 0))) << "CH1 at sample " << j;
        const auto [top2, bottom2] = rows(ch2);
        EXPECT_TRUE(columnHas(image, 25 + j, top2, bottom2, QColor(0, 255, 255))) << "CH2 at sample " << j;
    }
}

TEST_F(CliReading, MonoBitmapIsBlackOnWhite)
{
    const QString out = dir.filePath("wave.bmp");
    ASSERT_EQ(runCli({"wave", "--channels", "1", "--mono", "--out", out}), 0) << errors.toStdString();

    const QImage image(out);
    ASSERT_EQ(image.size(), QSize(350, 250));
    EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(25, 100), QColor(Qt::black));
}

TEST_F(CliReading, TableWritesTheExportText)
{
    const QString out = dir.filePath("table.txt");
    ASSERT_EQ(runCli({"table", "--channel", "CH2", "--out", out}), 0) << errors.toStdString();

    QFile file(out);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().split('\n');
    ASSERT_GE(lines.size(), 612);
    EXPECT_EQ(lines[0], "Selvane -[Data]\r");
    EXPECT_TRUE(lines[4].startsWith("CH2 1.00V  500.0us "));
    EXPECT_TRUE(lines[610].startsWith("600\t")) << "the export's rows are tested in reading_table_test";
}

TEST_F(CliReading, UsageErrorsExitWithTwo)
{
    EXPECT_EQ(runCli({"wave", "--zoom", "abc", "--out", dir.filePath("x.png")}), 2);
    EXPECT_EQ(runCli({"table", "--channel", "CH9", "--out", dir.filePath("x.txt")}), 2);
    EXPECT_FALSE(QFile::exists(dir.filePath("x.png")));
}

} // namespace
