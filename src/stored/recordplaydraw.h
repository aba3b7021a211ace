#pragma once
// The picture of one recorded frame: background, grid, the trigger mark and
// time texts, the source channel's mark and texts, the frame's trace and, when
// the file has one, the second block's trace over it.

#include <QImage>
#include <QSize>
#include <cstdint>
#include <vector>

struct RecordSlot;
struct WaveCanvas;

// The record window's picture at its start size, and the command line's.
inline constexpr double RecordPictureZoom = 1.5;

// Sample n (0 to 599) of frame (from 1) in a slot's array; 0 past its end.
int RecordSample(const std::vector<int16_t>& samples, int frame, int n);
// 1 to 4 from "CH1" to "CH4"; 1 for anything else.
int RecordSourceChannel(const RecordSlot& slot);

// Everything that does not change from frame to frame.
void DrawRecordBackground(const WaveCanvas& canvas, const RecordSlot& slot);
// The trace of frame CurrentFrame, then the second block's.
void DrawRecordTraces(const WaveCanvas& canvas, const RecordSlot& slot);
void DrawRecordFrame(const WaveCanvas& canvas, const RecordSlot& slot);

QSize RecordPictureSize(double zoom);
// The frame CurrentFrame of the slot as a picture at zoom.
QImage RecordFrameImage(const RecordSlot& slot, double zoom = RecordPictureZoom);
