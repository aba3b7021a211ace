#pragma once
// The instrument's acquisition: which moment of the signals the screen
// holds. While the instrument runs, each reading takes a new frame at the
// next trigger; a stopped instrument keeps its last frame.

#include "model/simstate.h"

#include <array>

struct Frame {
    // Trigger time of each time base (the main one, or A and B in
    // alternate trigger); in Roll the time of the newest point.
    std::array<double, 2> start{};
    std::array<bool, Channels> captured{}; // the channel was on for this frame
    bool triggered = false;
    int rollFill = 300; // Roll: screen positions (of 300) that hold data
};

// What a reading fetches; a second fetch of the same thing starts a new frame.
enum class Delivery { Channel1, Channel2, Channel3, Channel4, Math, Fft, XY, Picture };

class Acquisition {
  public:
    explicit Acquisition(const SimState& state);

    const Frame& frame() const { return frame_; }
    // No trigger came while the sweep waits for one (normal or single).
    bool waiting() const { return waiting_; }

    // A reading begins: a running instrument takes its next frame.
    void startReading(SimState& state);
    // A block is about to be sent; fetching the same block twice is a new reading.
    void deliver(SimState& state, Delivery what);
    // A running instrument shows a channel as soon as it is switched on:
    // a frame that misses a shown channel (or holds a hidden one) is replaced.
    void catchUp(SimState& state);
    // A frame now, triggered or not (force trigger, auto set).
    void force(SimState& state);
    // After *RST.
    void reset(const SimState& state);

  private:
    void takeFrame(SimState& state, bool forced);
    double frameInterval(const SimState& state) const;

    Frame frame_;
    double clock_ = 0.0;
    unsigned delivered_ = 0;
    bool waiting_ = false;
    TimeFormat lastFormat_ = TimeFormat::YT;
};
