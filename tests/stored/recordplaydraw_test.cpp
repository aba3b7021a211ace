// A recorded frame's picture: where the trace points lie, which frame they come
// from, the second trace over the first, the colours and the texts.
#include "stored/recordplaydraw.h"
#include "stored/recordslot.h"
#include "wave/recordingsurface.h"
#include "wave/wavecanvas.h"
#include "wave/wavecolors.h"

#include <gtest/gtest.h>

namespace {

RecordSlot twoFrames(bool second)
{
    RecordSlot slot;
    slot.HasFile = true;
    slot.LastFrame = 2;
    slot.CurrentFrame = 2;
    slot.SourceName = "CH3";
    slot.VoltText = "1.00V";
    slot.OffsetText = "0.00uV";
    slot.TimeText = "1.000ms";
    slot.DelayText = "0.000s";
    slot.Samples.assign(1201, 0);
    slot.SecondSamples.assign(1201, 0);
    for (int n = 0; n < 600; ++n) {
        slot.Samples[size_t(600 + n)] = int16_t(n % 200);
        slot.SecondSamples[size_t(600 + n)] = 150;
    }
    slot.HasSecond = second;
    return slot;
}

// The points of every joined run in order: each Line starts a run.
std::vector<std::vector<QPointF>> tracesOf(const RecordingSurface& s)
{
    std::vector<std::vector<QPointF>> runs;
    for (const SurfaceCall& c : s.calls()) {
        if (c.kind == SurfaceCall::Line) runs.push_back({c.from, c.to});
        if (c.kind == SurfaceCall::LineTo && !runs.empty()) runs.back().push_back(c.to);
    }
    return runs;
}

TEST(RecordPlayDraw, TraceOfTheCurrentFrameAcrossTheGrid)
{
    for (double zoom : {1.0, 2.0}) {
        RecordingSurface s;
        DrawRecordTraces(WaveCanvas(s, zoom), twoFrames(false));
        const auto runs = tracesOf(s);
        ASSERT_EQ(runs.size(), 1u);
        ASSERT_EQ(runs[0].size(), 600u);
        EXPECT_EQ(runs[0][0], QPointF(25, 25));
        EXPECT_EQ(runs[0][199], QPointF(25 + 199 * 0.5 * zoom, 199 * zoom + 25));
        EXPECT_EQ(runs[0][599], QPointF(25 + 599 * 0.5 * zoom, 199 * zoom + 25));
        EXPECT_EQ(s.foreColorAt(s.calls().size() - 1), QColor(255, 0, 255)) << "CH3's colour";
    }
}

TEST(RecordPlayDraw, SecondTraceOverTheFirstAndBlackOnWhite)
{
    RecordSlot slot = twoFrames(true);
    slot.WhiteBackground = true;
    RecordingSurface s;
    DrawRecordTraces(WaveCanvas(s, 1.0), slot);
    const auto runs = tracesOf(s);
    ASSERT_EQ(runs.size(), 2u);
    EXPECT_EQ(runs[1][10], QPointF(30, 175));
    EXPECT_EQ(s.foreColorAt(s.calls().size() - 1), QColor(0, 0, 0));
}

TEST(RecordPlayDraw, BackgroundTextsAndFramesPastTheDataReadZero)
{
    RecordSlot slot = twoFrames(false);
    slot.CurrentFrame = 9;
    RecordingSurface s;
    DrawRecordFrame(WaveCanvas(s, 1.0), slot);
    QStringList texts;
    for (const SurfaceCall& c : s.callsOf(SurfaceCall::Text))
        texts << c.text;
    for (const char* want :
         {"KORVA", "T", "TimeDiv: 1.000ms", "Delay: 0.000s", "3", "CH3 Volt/Div: 1.00V", "Offset: 0.00uV"})
        EXPECT_TRUE(texts.contains(QString::fromLatin1(want)))
            << want << " in " << texts.join('|').toStdString();
    EXPECT_EQ(tracesOf(s).back()[300], QPointF(175, 25));
    EXPECT_EQ(s.callsOf(SurfaceCall::BackColor).front().color, PaletteFor(true).background);
}

} // namespace
