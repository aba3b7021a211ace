#include "link/vocabulary.h"

#include <QSet>
#include <gtest/gtest.h>

namespace {

using namespace Vocab;

TEST(CommandBuilder, JoinsPiecesQueryMarkBlankAndValue)
{
    const struct {
        QString built;
        const char* expected;
    } cases[] = {
        {Query({Piece::Channel[0], Piece::Scale}), ":CHANNEL1:SCALE?"},
        {SetCommand({Piece::Timebase, Piece::Format}, Word::Yt), ":TIMEBASE:FORMAT YT"},
        {Query({Piece::Waveform, Piece::ScreenData}, Word::Channel[1]), ":WAVEFORM:SCREENDATA? CHANNEL2"},
        {Query({Piece::Measure, Piece::Vpp}, Word::Channel[3]), ":MEASURE:VPP? CHANNEL4"},
        {PatternLevelCommand(Word::Channel[2], u"0.52"), ":TRIGGER:PATTERN:LEVEL CHANNEL3,0.52"},
        {SetCommand({Piece::Trigger, AsPiece(Word::Edge), Piece::Source}, Word::Channel[0]),
         ":TRIGGER:EDGE:SOURCE CHANNEL1"},
        {SetCommand({Piece::Trigger, AsPiece(Word::Alternation), Piece::CurrentSourceMixed}, Word::SourceA),
         ":TRIGGER:ALTERNATION:CURRentSOURce SOURCEA"},
        {SetCommand({Piece::Trigger, Piece::PulseMode}, Word::PlusLessThan), ":TRIGGER:PULSE:MODE +LESSTHAN"},
        {SetCommand({Piece::Trigger, AsPiece(Word::Video), Piece::Mode}, Word::AllLines.toString().toUpper()),
         ":TRIGGER:VIDEO:MODE ALLLINES"},
        {Join({Piece::Storage, Piece::Load}), ":STORAGE:Load"},
        {Join({Piece::Storage, Piece::Save}), ":STORAGE:Save"},
        {Query({Piece::Trigger, Piece::Status}, u""), ":TRIGGER:STATUS?"},
        {KeyCommand(Key::ChVoltInc[2]), ":KEY:CH3_VOLT_INC"},
        {KeyLockCommand(false), ":KEY:LOCK DISABLE"},
        {KeyLockCommand(true), ":KEY:LOCK ENABLE"},
        {Whole::TrigPatternSet + QStringLiteral("X1X0"), ":TRIG:PATT:PATT X1X0"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.built, c.expected);
}

TEST(KeyPieces, ListEveryKeyOnceWithTheSixOfEachChannel)
{
    EXPECT_EQ(std::size(Key::All), 74u);
    QSet<QString> seen;
    for (Text key : Key::All) {
        EXPECT_TRUE(key.startsWith(u':')) << key.toString().toStdString();
        EXPECT_FALSE(key.contains(u' ')) << key.toString().toStdString();
        seen.insert(key.toString());
    }
    EXPECT_EQ(seen.size(), 74);
    for (int n = 1; n <= 4; ++n)
        for (const char* suffix : {"_POS_Z", "_POS_INC", "_POS_DEC", "_VOLT_Z", "_VOLT_INC", "_VOLT_DEC"})
            EXPECT_TRUE(seen.contains(QString(":CH%1%2").arg(n).arg(suffix))) << n << suffix;
}

TEST(ChannelPair, KnowsTheSixSpellingsOfTheTwoGroupPairsInAnyCase)
{
    for (const char* pair : {"CH1CH2", "CHAN1CHAN2", "CHANNEL1CHANNEL2", "CH3CH4", "CHAN3CHAN4",
                             "CHANNEL3CHANNEL4", "ch1ch2", "Channel3Channel4"})
        EXPECT_TRUE(IsChannelPair(QString::fromLatin1(pair))) << pair;
    for (const char* other :
         {"CH1CH3", "CH2CH3", "CH2CH1", "CH1CHAN2", "CHAN3CHANNEL4", "CH1CH2 ", "CH1", ""})
        EXPECT_FALSE(IsChannelPair(QString::fromLatin1(other))) << other;
}

} // namespace
