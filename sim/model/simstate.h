#pragma once
// Every setting of the simulated KV7200B that its command language can reach,
// as plain records. Volts are at the channel input (before the probe ratio is
// applied for display); times are seconds; levels are volts at the input of
// their source; positions are in divisions.

#include <array>

enum class TimeFormat { YT, XY, Roll };
enum class TriggerType { Edge, Pulse, Video, Slope, Alternation, Pattern, Duration };
enum class TriggerSource { Channel1, Channel2, Channel3, Channel4, Ext, Ext5, AcLine };
enum class Sweep { Auto, Normal, Single };
enum class ChannelCoupling { DC, AC, GND };
enum class TriggerCoupling { DC, AC, HF, LF };
enum class EdgeSlope { Positive, Negative, Alternation };
// Pulse widths and slope times: sign is the polarity, then the condition.
enum class PulseMode { PlusLess, MinusLess, PlusGreater, MinusGreater, PlusEqual, MinusEqual };
enum class VideoSync { AllLines, Line, OddField, EvenField };
enum class VideoStandard { Ntsc, PalSecam };
enum class SlopeWindow { PA, PB, PAB, NA, NB, NAB };
enum class Qualifier { Less, Greater, Equal };
enum class AcquireType { Normal, Average, PeakDetect };
enum class GridType { Full, Half, None };
// The byte s8MathOperate carries these numbers.
enum class MathOperation { Add = 0, Subtract = 1, Multiply = 2, Fft = 3 };
enum class FftWindow { Rectangle, Hanning, Hamming, Blackman };

constexpr int Channels = 4;
constexpr int PatternInputs = 5; // CH1 to CH4, then the external input

struct ChannelState {
    bool display = false;
    double scale = 1.0;    // volts a division at the input
    double position = 0.0; // divisions above the centre line
    double probe = 1.0;    // ratio: displayed volts = input volts * probe
    ChannelCoupling coupling = ChannelCoupling::DC;
    bool bwLimit = false;
    bool invert = false;
};

struct TimeWindow {
    double scale = 500e-6; // seconds a division
    double offset = 0.0;   // trigger delay: time of the screen centre
};

struct TimebaseState {
    TimeFormat format = TimeFormat::YT;
    TimeWindow main;
    TimeWindow windowA; // alternate trigger, source A
    TimeWindow windowB; // alternate trigger, source B
    int memorySize = 4000;
};

struct EdgeTrigger {
    TriggerSource source = TriggerSource::Channel1;
    EdgeSlope slope = EdgeSlope::Positive;
    Sweep sweep = Sweep::Auto;
    double level = 0.0;
};

struct PulseTrigger {
    TriggerSource source = TriggerSource::Channel1;
    PulseMode mode = PulseMode::PlusLess;
    double width = 1e-6;
    Sweep sweep = Sweep::Auto;
    double level = 0.0;
};

struct VideoTrigger {
    TriggerSource source = TriggerSource::Channel1;
    bool positive = true;
    VideoSync sync = VideoSync::AllLines;
    VideoStandard standard = VideoStandard::Ntsc;
    int line = 1;
    Sweep sweep = Sweep::Auto;
    double level = 0.0;
};

struct SlopeTrigger {
    TriggerSource source = TriggerSource::Channel1;
    PulseMode mode = PulseMode::PlusLess;
    double time = 1e-6;
    SlopeWindow window = SlopeWindow::PA;
    double levelA = 0.0;
    double levelB = 0.0;
    Sweep sweep = Sweep::Auto;
};

struct PatternTrigger {
    int value = 0; // bit i: input i must be high
    int mask = 0;  // bit i: input i takes part
    bool extDiv5 = false;
    int edgeInput = -1; // -1: no edge term
    bool edgeRising = true;
    std::array<double, PatternInputs> levels{};
    Sweep sweep = Sweep::Auto;
};

struct DurationTrigger {
    Qualifier qualifier = Qualifier::Less;
    double time = 1e-6;
    Sweep sweep = Sweep::Auto;
};

// What each of the two alternate sources triggers on.
struct AltSourceTrigger {
    TriggerType type = TriggerType::Edge;
    EdgeSlope slope = EdgeSlope::Positive;
    TriggerCoupling coupling = TriggerCoupling::DC;
    double level = 0.0;
    double sensitivity = 0.1;
    double holdoff = 100e-9;
    PulseMode pulseMode = PulseMode::PlusLess;
    double pulseTime = 1e-6;
    bool videoPositive = true;
    VideoSync videoSync = VideoSync::Line;
    VideoStandard videoStandard = VideoStandard::Ntsc;
    int videoLine = 1;
    PulseMode slopeMode = PulseMode::PlusLess;
    double slopeTime = 1e-6;
    SlopeWindow slopeWindow = SlopeWindow::PA;
    double slopeLevelA = 0.0;
    double slopeLevelB = 0.0;
};

struct AlternationTrigger {
    int channelA = 0; // 0..3, the first channel of the pair
    int channelB = 1; // 0..3, the second
    bool currentIsB = false;
    std::array<AltSourceTrigger, 2> sources{};
};

struct TriggerState {
    TriggerType mode = TriggerType::Edge;
    double holdoff = 500e-9;
    TriggerCoupling coupling = TriggerCoupling::DC;
    bool hfReject = false;
    double sensitivity = 0.4; // divisions
    EdgeTrigger edge;
    PulseTrigger pulse;
    VideoTrigger video;
    SlopeTrigger slope;
    PatternTrigger pattern;
    DurationTrigger duration;
    AlternationTrigger alternation;
};

struct AcquireState {
    AcquireType type = AcquireType::Normal;
    bool equivalentTime = false; // ETIME; RTIME otherwise
    int averages = 16;
};

struct DisplayState {
    bool vectors = true;
    GridType grid = GridType::Full;
    bool persist = false;
    bool menu = true;
};

struct MathState {
    bool display = false;
    MathOperation operation = MathOperation::Add;
    MathOperation lastArithmetic = MathOperation::Add; // restored when FFT goes off
};

struct FftState {
    int source = 0; // 0: CH1, 1: CH2
    FftWindow window = FftWindow::Hanning;
    bool fullScreen = false; // s8FFTScreen non-zero
    bool dbScale = true;
    double vrmsScale = 1.0; // Vrms a division
    int dbScalePerDiv = 20; // dB a division
    int vertOffset = 0;     // display codes
    int horizScaleCode = 4; // 1..7
    int horizOffset = 255;  // display codes; 255 puts the first line at the left edge
};

// What the front panel remembers between presses.
struct PanelState {
    int activeChannel = 0;                  // the channel the vertical menu and the off key act on
    std::array<bool, Channels> fineVolts{}; // the volts knob moves in fine steps
};

struct SimState {
    std::array<ChannelState, Channels> channels{};
    TimebaseState timebase;
    TriggerState trigger;
    AcquireState acquire;
    DisplayState display;
    MathState math;
    FftState fft;
    PanelState panel;
    bool running = true;
    bool keyLocked = false;
    int baudRate = 9600;
    int measureSource = 0; // 0..3
    int lcdBrightness = 50;
};

// The settings of a fresh instrument, and after *RST.
SimState powerOnState();
