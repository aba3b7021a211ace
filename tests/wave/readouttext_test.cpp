#include "drawtesting.h"
#include "wave/readouttext.h"

namespace {

// Every row of data/readouttexts.txt: a routine, its number or text, and what it gives.
TEST(ReadoutTexts, EveryRowGivesItsResult)
{
    const std::vector<QStringList> rows = DataRows("wave/data/readouttexts.txt");
    EXPECT_EQ(rows.size(), 37u);
    for (const QStringList& f : rows) {
        ASSERT_EQ(f.size(), 3) << f.join(u' ').toStdString();
        SCOPED_TRACE(f.join(u' ').toStdString());
        const double value = f[1] == QLatin1String("nan") ? std::nan("") : f[1].toDouble();
        if (f[0] == QLatin1String("volt"))
            EXPECT_EQ(ConvertVoltToStr(value), f[2]);
        else if (f[0] == QLatin1String("time"))
            EXPECT_EQ(ConvertTimeToStr(value), f[2]);
        else if (f[0] == QLatin1String("freq"))
            EXPECT_EQ(ConvertFreqToStr(value), f[2]);
        else if (f[0] == QLatin1String("seconds"))
            EXPECT_DOUBLE_EQ(GetTimeVlu(f[1]), f[2].toDouble());
        else
            ADD_FAILURE() << "unknown routine";
    }
}

TEST(ConvertTimeToStr, HandsBackTheValueInTheUnitOfTheText)
{
    double scaled = -1;
    ConvertTimeToStr(0.0025, &scaled);
    EXPECT_DOUBLE_EQ(scaled, 2.5);
    ConvertTimeToStr(0, &scaled);
    EXPECT_EQ(scaled, 0);
}

TEST(ReadoutTexts, EveryTimeTextReadsBackToTheNumberItShows)
{
    for (double v = 1e-12; v < 100; v *= 3.7) {
        double scaled = 0;
        const QString text = ConvertTimeToStr(v, &scaled);
        const double back = GetTimeVlu(text);
        EXPECT_NEAR(back / v, 1, 0.01) << text.toStdString();
    }
}

} // namespace
