#pragma once
// Placement of a received block into a record's arrays. The codes come as the
// reading leaves them (sample i at codes[i], from 1); the arrays get the layout
// the drawing expects: 600 screen points centred in the 1024 middle entries.
//
// Each routine returns false when an index leaves its bound (the block's codes,
// or TraceLast in an array): that is the reading's error path, and whatever was
// placed before the bound stays.

#include "acquire/waverecord.h"

#include <span>

// Highest index of a trace array while it is built.
inline constexpr int TraceLast = 2048;
// Sample i of an ordinary channel lies at i + ChannelOrigin; peak halves, X-Y and
// FFT samples one lower, at i + PeakOrigin.
inline constexpr int ChannelOrigin = 212;
inline constexpr int PeakOrigin = 211;
// Codes of an ordinary trace are clipped to this many rows above SampleBase.
inline constexpr int ScreenRows = 200;

enum class TraceSource {
    Channel, // a channel or math: clipped, at i + 212
    Fft,     // clipped, at i + 211
    Xy,      // the X-Y block: not clipped, at i + 211
    La,      // the logic channels: the codes as they stand
};

// ReadTraceBlock's placement: the trace is made anew with index 0 to TraceLast
// (for La: a copy of codes), then samples 1 to count are placed by the source's rule.
bool PlaceTraceBlock(std::span<const int32_t> codes, int count, TraceSource source, int sampleBase,
                     WaveArray& trace);

// ReadPeakBlock's placement: half = count / 2; samples 1 to half, less sampleBase,
// into first at i + 211; samples half to count into second at i + 211 - half, so
// the sample at half lies in both. Nothing is clipped.
bool PlacePeakBlock(std::span<const int32_t> codes, int count, int sampleBase, WaveArray& first,
                    WaveArray& second);

// The X-Y picture from a trace placed with TraceSource::Xy: with half = count / 2,
// ch1 and ch2 are made anew with index 0 to 1024, ch1[i] = trace[211 + i] and
// ch2[i] = trace[211 + i + half].
bool PlaceXyTraces(const WaveArray& trace, int count, WaveArray& ch1, WaveArray& ch2);
