#include "drawtesting.h"
#include "wave/drawmarker.h"

namespace {

Path shape(const QString& kind, double Y)
{
    if (kind == QLatin1String("down")) return {{12, Y}, {22, Y}, {22, Y + 13}, {17, Y + 17}, {12, Y + 13}};
    if (kind == QLatin1String("up")) return {{12, Y}, {22, Y}, {22, Y - 13}, {17, Y - 17}, {12, Y - 13}};
    return {{6, Y}, {19, Y}, {23, Y + 5}, {19, Y + 10}, {6, Y + 10}};
}

// Every row of data/channelmarkers.txt: the outline, the digit and the legend,
// and the halves CH2 and CH3 take by the source pair in alternate trigger.
TEST(DrawChannelMarker, ShapeDigitAndLegendOfEveryCase)
{
    int cases = 0;
    for (const QStringList& f : DataRows("wave/data/channelmarkers.txt")) {
        ASSERT_EQ(f.size(), 14) << f.join(u' ').toStdString();
        SCOPED_TRACE(f[0].toStdString());
        ++cases;
        const int channel = f[1].toInt();
        const QByteArray pair = f[6] == QLatin1String("-") ? QByteArray() : f[6].toLatin1();
        RecordingSurface s;
        DrawChannelMarker(PairCanvas(s, f[7].toDouble(), pair.constData()), channel, f[2],
                          QStringLiteral("1.00V"), f[3], f[4], int8_t(f[5].toInt()));
        EXPECT_EQ(PathOf(s.calls()), Closed(shape(f[8], f[9].toDouble())));
        const std::vector<SurfaceCall> texts = TextsOf(s);
        ASSERT_EQ(texts.size(), 2u);
        EXPECT_EQ(texts[0].text, QString::number(channel));
        EXPECT_EQ(texts[0].to, QPointF(f[10].toDouble(), f[11].toDouble()));
        EXPECT_TRUE(texts[0].opaque);
        EXPECT_EQ(texts[1].text, QStringLiteral("CH%1 1.00V").arg(channel));
        EXPECT_EQ(texts[1].to, QPointF(f[12].toDouble(), f[13].toDouble()));
        EXPECT_FALSE(texts[1].opaque);
    }
    EXPECT_EQ(cases, 29);
}

TEST(DrawChannelMarker, ZeroScaleDrawsNothing)
{
    RecordingSurface s;
    DrawChannelMarker(WaveCanvas(s, 1), 1, QStringLiteral("1.00V"), QStringLiteral("0"),
                      QStringLiteral("EDGE"), QStringLiteral("OFF"), 1);
    DrawChannelMarker(WaveCanvas(s, 1), 5, QStringLiteral("1.00V"), QStringLiteral("1.00V"),
                      QStringLiteral("EDGE"), QStringLiteral("OFF"), 1);
    EXPECT_TRUE(s.calls().empty());
}

} // namespace
