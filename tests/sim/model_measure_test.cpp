// The eighteen measurements against the signals they are made on.
#include "model/instrument.h"

#include <gtest/gtest.h>

namespace {

double value(Instrument& instrument, const QByteArray& query)
{
    return instrument.handle(query).trimmed().toDouble();
}

struct Expected {
    const char* query;
    double value;
    double tolerance; // relative
};

class DefaultSignalTest : public ::testing::TestWithParam<Expected> {};

// CH1: sine of 1 kHz, 3 Vpp; CH2: square of 2 kHz from -1 V to 1 V.
TEST_P(DefaultSignalTest, MeasurementAgreesWithTheSignal)
{
    Instrument instrument;
    const double result = value(instrument, GetParam().query);
    EXPECT_NEAR(result, GetParam().value, std::abs(GetParam().value) * GetParam().tolerance + 1e-3);
}

INSTANTIATE_TEST_SUITE_P(PowerOn, DefaultSignalTest,
                         ::testing::Values(Expected{":MEASURE:VPP? CHANNEL1", 3.0, 0.02},
                                           Expected{":MEASURE:VMAX? CHANNEL1", 1.5, 0.02},
                                           Expected{":MEASURE:VRMS? CHANNEL1", 1.5 / std::sqrt(2.0), 0.02},
                                           Expected{":MEASURE:VAVERAGE? CHANNEL1", 0.0, 0.0},
                                           Expected{":MEASURE:FREQUENCY? CHANNEL1", 1000.0, 0.01},
                                           Expected{":MEASURE:PERIOD? CHANNEL1", 1e-3, 0.01},
                                           Expected{":MEASURE:FREQUENCY? CHANNEL2", 2000.0, 0.01},
                                           Expected{":MEASURE:VTOP? CHANNEL2", 1.0, 0.01},
                                           Expected{":MEASURE:VBASE? CHANNEL2", -1.0, 0.01},
                                           Expected{":MEASURE:VAMPLITUDE? CHANNEL2", 2.0, 0.01},
                                           Expected{":MEASURE:PDUTYCYCLE? CHANNEL2", 50.0, 0.02},
                                           Expected{":MEASURE:NWIDTH? CHANNEL2", 250e-6, 0.02},
                                           Expected{":MEASURE:RISETIME? CHANNEL2", 3.2e-6, 0.1},
                                           Expected{":MEASURE:FALLTIME? CHANNEL2", 3.2e-6, 0.1}));

TEST(MeasureTest, ProbeAndInversionShapeTheDisplayedValues)
{
    Instrument instrument;
    instrument.handle(":CHANNEL1:PROBE 10X");
    instrument.handle(":CHANNEL1:INVERT ON");
    EXPECT_NEAR(value(instrument, ":MEASURE:VPP? CHANNEL1"), 30.0, 0.6);
    EXPECT_NEAR(value(instrument, ":MEASURE:VMIN? CHANNEL1"), -15.0, 0.3);
}

TEST(MeasureTest, PulseTrainDutyCycleWhenItsChannelIsOn)
{
    Instrument instrument;
    EXPECT_EQ(instrument.handle(":MEASURE:PDUTYCYCLE? CHANNEL4"), "9.9E+37\n"); // off at power-on
    instrument.handle(":CHANNEL4:DISPLAY ON");
    EXPECT_NEAR(value(instrument, ":MEASURE:PDUTYCYCLE? CHANNEL4"), 20.0, 0.5);
}

TEST(MeasureTest, NoValueWhereNoneExists)
{
    Instrument instrument;
    instrument.handle(":CHANNEL2:COUPLING GND");
    EXPECT_EQ(instrument.handle(":MEASURE:FREQUENCY? CHANNEL2"), "9.9E+37\n");
    EXPECT_EQ(instrument.handle(":MEASURE:RISETIME? CHANNEL2"), "9.9E+37\n");
    EXPECT_NE(instrument.handle(":MEASURE:VPP? CHANNEL2"), "9.9E+37\n");
    instrument.handle(":TIMEBASE:SCALE 20e-6"); // a quarter period of the sine on the screen
    EXPECT_EQ(instrument.handle(":MEASURE:PERIOD? CHANNEL1"), "9.9E+37\n");
}

TEST(MeasureTest, AcCouplingTakesTheMeanAway)
{
    Instrument instrument;
    instrument.handle(":CHANNEL4:DISPLAY ON");
    EXPECT_GT(value(instrument, ":MEASURE:VAVERAGE? CHANNEL4"), 0.4);
    instrument.handle(":CHANNEL4:COUPLING AC");
    EXPECT_NEAR(value(instrument, ":MEASURE:VAVERAGE? CHANNEL4"), 0.0, 0.02);
}

TEST(MeasureTest, SourceCommandNamesTheDefaultChannel)
{
    Instrument instrument;
    instrument.handle(":MEASURE:SOURCE CHANNEL2");
    EXPECT_EQ(instrument.handle(":MEASURE:SOURCE?"), "CHANNEL2\n");
    EXPECT_NEAR(value(instrument, ":MEASURE:FREQUENCY?"), 2000.0, 20.0);
}

} // namespace
