#pragma once
// The instrument's command language, kept as pieces and joined when a command is
// sent: root piece, sub pieces, "?" for a query, one blank, the value. Every
// spelling is the instrument's own, mixed case included; don't tidy them.
// The simulator keeps its own table of the same words (sim/model/keywords.h) on
// purpose: two sides written apart catch a misspelling that one shared table hides.

#include <QAnyStringView>
#include <QLatin1StringView>
#include <QString>
#include <initializer_list>

namespace Vocab {

using Text = QLatin1StringView;

// Whole commands, sent as they are.
namespace Whole {
inline constexpr Text Idn{"*IDN?"};
inline constexpr Text Rst{"*RST"};
inline constexpr Text Run{":RUN"};
inline constexpr Text Stop{":STOP"};
inline constexpr Text Auto{":AUTO"};
inline constexpr Text Single{":SINGLE"};
inline constexpr Text ForceTrig{":FORCETRIG"};
inline constexpr Text TrigTo50{":TRIG%50"};
inline constexpr Text DisplayData{":DISPLAY:DATA?"};
inline constexpr Text WaveformParameter{":WAVEFORM:PARAMETER?"};
inline constexpr Text TriggerPatternQuery{":TRIGGER:PATTERN:PATTERN?"};
inline constexpr Text LaPositionReset{":LA:POSITION:RESET"};
inline constexpr Text TrigPatternSet{":TRIG:PATT:PATT "}; // the pattern follows the blank
} // namespace Whole

// Pieces: each begins with ":" and serves as a root or behind one.
namespace Piece {
inline constexpr Text Channel[4] = {Text{":CHANNEL1"}, Text{":CHANNEL2"}, Text{":CHANNEL3"},
                                    Text{":CHANNEL4"}};
inline constexpr Text Timebase{":TIMEBASE"};
inline constexpr Text Acquire{":ACQUIRE"};
inline constexpr Text Display{":DISPLAY"};
inline constexpr Text Math{":MATH"};
inline constexpr Text Fft{":FFT"};
inline constexpr Text Trigger{":TRIGGER"};
inline constexpr Text Measure{":MEASURE"};
inline constexpr Text Waveform{":WAVEFORM"};
inline constexpr Text Storage{":STORAGE"};
inline constexpr Text La{":LA"};
inline constexpr Text System{":SYSTEM"};
inline constexpr Text Rs232{":RS232"};
inline constexpr Text Info{":INFO"};
inline constexpr Text Key{":KEY"};

// Channel
inline constexpr Text BwLimit{":BWLIMIT"};
inline constexpr Text Coupling{":COUPLING"};
inline constexpr Text Invert{":INVERT"};
inline constexpr Text Offset{":OFFSET"};
inline constexpr Text Probe{":PROBE"};
inline constexpr Text Scale{":SCALE"};
// Time base (":OFFSET", ":SCALE" as above)
inline constexpr Text Format{":FORMAT"};
inline constexpr Text Mode{":MODE"};
inline constexpr Text Scan{":SCAN"};
inline constexpr Text TimeScale{":TIMESCALE"};
inline constexpr Text TimeOffset{":TIMEOFFSET"};
// Acquire (":MODE" as above)
inline constexpr Text Averages{":AVERAGES"};
inline constexpr Text SRate{":SRATE"};
inline constexpr Text Type{":TYPE"};
// Display; ":DISPLAY" is also the display switch of channels, math and FFT
inline constexpr Text Clear{":CLEAR"};
inline constexpr Text Grid{":GRID"};
inline constexpr Text MenuDisplay{":MENUDISPLAY"};
inline constexpr Text Persist{":PERSIST"};
// Trigger; the trigger mode word follows ":TRIGGER" as a piece of its own (see AsPiece)
inline constexpr Text Status{":STATUS"};
inline constexpr Text Holdoff{":HOLDOFF"};
inline constexpr Text Source{":SOURCE"};
inline constexpr Text CurrentSourceMixed{":CURRentSOURce"};
inline constexpr Text CurrentSource{":CURRENTSOURCE"};
inline constexpr Text Level{":LEVEL"};
inline constexpr Text LevelA{":LEVELA"};
inline constexpr Text LevelB{":LEVELB"};
inline constexpr Text Slope{":SLOPE"};
inline constexpr Text SlopeMode{":SLOPE:MODE"};
inline constexpr Text SlopeTime{":SLOPE:TIME"};
inline constexpr Text SlopeWindow{":SLOPE:WINDOW"};
inline constexpr Text Sweep{":SWEEP"};
inline constexpr Text Sensitivity{":SENSITIVITY"};
inline constexpr Text Hfre{":HFRE"};
inline constexpr Text PulseMode{":PULSE:MODE"};
inline constexpr Text PulseWidth{":PULSE:WIDTH"};
inline constexpr Text Polarity{":POLARITY"};
inline constexpr Text Line{":LINE"};
inline constexpr Text Standard{":STANDARD"};
inline constexpr Text Time{":TIME"};
inline constexpr Text DurationTime{":DURATION:TIME"};
inline constexpr Text DurationQualifier{":DURATION:QUALIFIER"};
// Measure
inline constexpr Text Vpp{":VPP"};
inline constexpr Text VAmplitude{":VAMPLITUDE"};
inline constexpr Text VMax{":VMAX"};
inline constexpr Text VMin{":VMIN"};
inline constexpr Text VTop{":VTOP"};
inline constexpr Text VBase{":VBASE"};
inline constexpr Text VAverage{":VAVERAGE"};
inline constexpr Text VRms{":VRMS"};
inline constexpr Text Overshoot{":OVERSHOOT"};
inline constexpr Text Preshoot{":PRESHOOT"};
inline constexpr Text Frequency{":FREQUENCY"};
inline constexpr Text Period{":PERIOD"};
inline constexpr Text RiseTime{":RISETIME"};
inline constexpr Text FallTime{":FALLTIME"};
inline constexpr Text PWidth{":PWIDTH"};
inline constexpr Text NWidth{":NWIDTH"};
inline constexpr Text PDutyCycle{":PDUTYCYCLE"};
inline constexpr Text NDutyCycle{":NDUTYCYCLE"};
// Waveform
inline constexpr Text Data{":DATA"};
inline constexpr Text ScreenData{":SCREENDATA"};
inline constexpr Text WindowZoom{":WINDOWZOOM"};
inline constexpr Text SysMemSize{":SYSMEMSIZE"};
inline constexpr Text WinMemSize{":WINMEMSIZE"};
inline constexpr Text StartOfRoll{":STARTOFROLL"};
inline constexpr Text EraseOfRoll{":ERASEOFROLL"};
// Storage
inline constexpr Text Waveforms{":WAVEFORMS"};
inline constexpr Text Setups{":SETUPS"};
inline constexpr Text Pos{":POS"};
inline constexpr Text Load{":Load"};
inline constexpr Text Save{":Save"};
// Logic analyser
inline constexpr Text Digital{":DIGITAL"};
inline constexpr Text Position{":POSITION"};
inline constexpr Text Turn{":TURN"};
inline constexpr Text Threshold{":THRESHOLD"};
inline constexpr Text Group{":GROUP"};
inline constexpr Text Location{":LOCATION"};
// System, serial port, information, keys
inline constexpr Text Lcd{":LCD"};
inline constexpr Text Baud{":BAUD"};
inline constexpr Text Module{":MODULE"};
inline constexpr Text Lock{":LOCK"};
} // namespace Piece

// Literal values and query parameters.
namespace Word {
inline constexpr Text On{"ON"};
inline constexpr Text Off{"OFF"};
inline constexpr Text Dc{"DC"};
inline constexpr Text Ac{"AC"};
inline constexpr Text Gnd{"GND"};
inline constexpr Text Hf{"HF"};
inline constexpr Text Lf{"LF"};
inline constexpr Text Probes[] = {Text{"0.001X"}, Text{"0.01X"}, Text{"0.1X"}, Text{"1X"},  Text{"2X"},
                                  Text{"5X"},     Text{"10X"},   Text{"20X"},  Text{"50X"}, Text{"100X"},
                                  Text{"200X"},   Text{"500X"},  Text{"1000X"}};
// Time base format: sent, and as the instrument answers
inline constexpr Text Yt{"YT"};
inline constexpr Text Xy{"XY"};
inline constexpr Text Roll{"ROLL"};
inline constexpr Text YtReply{"Y-T"};
inline constexpr Text XyReply{"X-Y"};
// Acquire
inline constexpr Text RTime{"RTIME"};
inline constexpr Text ETime{"ETIME"};
inline constexpr Text Average{"AVERAGE"};
inline constexpr Text PeakDetect{"PEAKDETECT"};
inline constexpr Text Normal{"NORMAL"};
inline constexpr Text AverageCounts[] = {Text{"2"},  Text{"4"},  Text{"8"},   Text{"16"},
                                         Text{"32"}, Text{"64"}, Text{"128"}, Text{"256"}};
// Display
inline constexpr Text Vectors{"VECTORS"};
inline constexpr Text Dots{"DOTS"};
inline constexpr Text Full{"FULL"};
inline constexpr Text Half{"HALF"};
inline constexpr Text None{"NONE"};
// Trigger modes
inline constexpr Text Edge{"EDGE"};
inline constexpr Text Pulse{"PULSE"};
inline constexpr Text Video{"VIDEO"};
inline constexpr Text Slope{"SLOPE"};
inline constexpr Text Alternation{"ALTERNATION"};
inline constexpr Text Pattern{"PATTERN"};
inline constexpr Text Duration{"DURATION"};
// Trigger sources
inline constexpr Text Ch[4] = {Text{"CH1"}, Text{"CH2"}, Text{"CH3"}, Text{"CH4"}};
inline constexpr Text Channel[4] = {Text{"CHANNEL1"}, Text{"CHANNEL2"}, Text{"CHANNEL3"}, Text{"CHANNEL4"}};
inline constexpr Text Ext{"EXT"};
inline constexpr Text Ext5{"EXT5"};
inline constexpr Text Digital{"DIGITAL"};
// Slope and polarity
inline constexpr Text Positive{"POSITIVE"};
inline constexpr Text Negative{"NEGATIVE"};
// Sweeps ("NORMAL" as above)
inline constexpr Text Auto{"AUTO"};
inline constexpr Text Single{"SINGLE"};
// Pulse modes and duration qualifiers
inline constexpr Text PlusLessThan{"+LESSTHAN"};
inline constexpr Text MinusLessThan{"-LESSTHAN"};
inline constexpr Text PlusGreaterThan{"+GREATERTHAN"};
inline constexpr Text MinusGreaterThan{"-GREATERTHAN"};
inline constexpr Text PlusEqual{"+EQUAL"};
inline constexpr Text MinusEqual{"-EQUAL"};
inline constexpr Text LessThan{"LESSTHAN"};
inline constexpr Text GreaterThan{"GREATERTHAN"};
inline constexpr Text Equal{"EQUAL"};
// Slope windows
inline constexpr Text SlopeWindows[] = {Text{"PA"}, Text{"PB"}, Text{"PAB"},
                                        Text{"NA"}, Text{"NB"}, Text{"NAB"}};
// Video
inline constexpr Text AllLines{"ALLlines"};
inline constexpr Text Line{"LINE"};
inline constexpr Text OddField{"ODDfield"};
inline constexpr Text EvenField{"EVENfield"};
inline constexpr Text Ntsc{"NTSC"};
inline constexpr Text PalSecam{"PAL/SECAM"};
// Alternation
inline constexpr Text SourceA{"SOURCEA"};
inline constexpr Text SourceB{"SOURCEB"};
inline constexpr Text ChPairs[] = {Text{"CH1CH2"}, Text{"CH1CH3"}, Text{"CH1CH4"},
                                   Text{"CH2CH3"}, Text{"CH2CH4"}, Text{"CH3CH4"}};
inline constexpr Text ChannelPairs[] = {Text{"CHANNEL1CHANNEL2"}, Text{"CHANNEL1CHANNEL3"},
                                        Text{"CHANNEL1CHANNEL4"}, Text{"CHANNEL2CHANNEL3"},
                                        Text{"CHANNEL2CHANNEL4"}, Text{"CHANNEL3CHANNEL4"}};
// Trigger status
inline constexpr Text Stop{"STOP"};
inline constexpr Text Run{"RUN"};
// Waveform
inline constexpr Text Byte{"BYTE"};
inline constexpr Text Math{"MATH"};
inline constexpr Text Fft{"FFT"};
inline constexpr Text XyData{"XY"};
// Logic analyser thresholds
inline constexpr Text Cmos{"CMOS"};
inline constexpr Text Ecl{"ECL"};
inline constexpr Text Ttl{"TTL"};
inline constexpr Text User{"USER"};
// Key lock: these two carry their own blank, so nothing is put before them
inline constexpr Text Enable{" ENABLE"};
inline constexpr Text Disable{" DISABLE"};
// A measure reply with no value; it stays text and is never turned into a number
inline constexpr Text NoMeasure{"9.9E+37"};
} // namespace Word

// Front-panel keys; each follows ":KEY" and presses that key on the instrument.
namespace Key {
inline constexpr Text Run{":RUN"};
inline constexpr Text Auto{":AUTO"};
inline constexpr Text Single{":SINGLE"};
inline constexpr Text Utility{":UTILITY"};
inline constexpr Text Cursor{":CURSOR"};
inline constexpr Text Help{":HELP"};
inline constexpr Text QuickMeasure{":QUICKMEASURE"};
inline constexpr Text QuickPrint{":QUICKPRINT"};
inline constexpr Text MenuTime{":MNUTIME"};
inline constexpr Text MenuOff{":MNUOFF"};
inline constexpr Text F[5] = {Text{":F1"}, Text{":F2"}, Text{":F3"}, Text{":F4"}, Text{":F5"}};
inline constexpr Text FDown[5] = {Text{":F1DOWN"}, Text{":F2DOWN"}, Text{":F3DOWN"}, Text{":F4DOWN"},
                                  Text{":F5DOWN"}};
inline constexpr Text Ch[4] = {Text{":CH1"}, Text{":CH2"}, Text{":CH3"}, Text{":CH4"}};
inline constexpr Text Ref{":REF"};
inline constexpr Text Math{":MATH"};
inline constexpr Text La{":LA"};
inline constexpr Text Measure{":MEASURE"};
inline constexpr Text Acquire{":ACQUIRE"};
inline constexpr Text Storage{":STORAGE"};
inline constexpr Text Display{":DISPLAY"};
inline constexpr Text Timebase{":TIMEBASE"};
inline constexpr Text TrigMode{":TRIGMODE"};
inline constexpr Text TrigMenu{":TRIGMENU"};
inline constexpr Text TrigForce{":TRIGFORCE"};
inline constexpr Text TrigAuto{":TRIG_AUTO"};
inline constexpr Text TrigNormal{":TRIG_NORMAL"};
inline constexpr Text FuncZ{":FUNC_Z"};
inline constexpr Text FuncInc{":FUNC_INC"};
inline constexpr Text FuncDec{":FUNC_DEC"};
inline constexpr Text ChPosZ[4] = {Text{":CH1_POS_Z"}, Text{":CH2_POS_Z"}, Text{":CH3_POS_Z"},
                                   Text{":CH4_POS_Z"}};
inline constexpr Text ChPosInc[4] = {Text{":CH1_POS_INC"}, Text{":CH2_POS_INC"}, Text{":CH3_POS_INC"},
                                     Text{":CH4_POS_INC"}};
inline constexpr Text ChPosDec[4] = {Text{":CH1_POS_DEC"}, Text{":CH2_POS_DEC"}, Text{":CH3_POS_DEC"},
                                     Text{":CH4_POS_DEC"}};
inline constexpr Text ChVoltZ[4] = {Text{":CH1_VOLT_Z"}, Text{":CH2_VOLT_Z"}, Text{":CH3_VOLT_Z"},
                                    Text{":CH4_VOLT_Z"}};
inline constexpr Text ChVoltInc[4] = {Text{":CH1_VOLT_INC"}, Text{":CH2_VOLT_INC"}, Text{":CH3_VOLT_INC"},
                                      Text{":CH4_VOLT_INC"}};
inline constexpr Text ChVoltDec[4] = {Text{":CH1_VOLT_DEC"}, Text{":CH2_VOLT_DEC"}, Text{":CH3_VOLT_DEC"},
                                      Text{":CH4_VOLT_DEC"}};
inline constexpr Text TimePosZ{":TIME_POS_Z"};
inline constexpr Text TimePosInc{":TIME_POS_INC"};
inline constexpr Text TimePosDec{":TIME_POS_DEC"};
inline constexpr Text TimeZ{":TIME_Z"};
inline constexpr Text TimeInc{":TIME_INC"};
inline constexpr Text TimeDec{":TIME_DEC"};
inline constexpr Text TrigLevelZ{":TRIG_LEVEL_Z"};
inline constexpr Text TrigLevelInc{":TRIG_LEVEL_INC"};
inline constexpr Text TrigLevelDec{":TRIG_LEVEL_DEC"};
inline constexpr Text Copy{":COPY"};

// Every key piece once, in the order of the instrument's key table.
// clang-format off
inline constexpr Text All[] = {
    Run, Auto, Single, Utility, Cursor, Help, QuickMeasure, QuickPrint, MenuTime, MenuOff,
    F[0], F[1], F[2], F[3], F[4],
    FDown[0], FDown[1], FDown[2], FDown[3], FDown[4],
    Ch[0], Ch[1], Ch[2], Ch[3],
    Ref, Math, La, Measure, Acquire, Storage, Display, Timebase,
    TrigMode, TrigMenu, TrigForce, TrigAuto, TrigNormal, FuncZ, FuncInc, FuncDec,
    ChPosZ[0], ChPosInc[0], ChPosDec[0], ChVoltZ[0], ChVoltInc[0], ChVoltDec[0],
    ChPosZ[1], ChPosInc[1], ChPosDec[1], ChVoltZ[1], ChVoltInc[1], ChVoltDec[1],
    ChPosZ[2], ChPosInc[2], ChPosDec[2], ChVoltZ[2], ChVoltInc[2], ChVoltDec[2],
    ChPosZ[3], ChPosInc[3], ChPosDec[3], ChVoltZ[3], ChVoltInc[3], ChVoltDec[3],
    TimePosZ, TimePosInc, TimePosDec, TimeZ, TimeInc, TimeDec,
    TrigLevelZ, TrigLevelInc, TrigLevelDec, Copy,
};
// clang-format on
} // namespace Key

using Pieces = std::initializer_list<QAnyStringView>;

// A word used as a piece: "EDGE" -> ":EDGE".
QString AsPiece(QAnyStringView word);
// The pieces joined: ":CHANNEL1" ":SCALE" -> ":CHANNEL1:SCALE".
QString Join(Pieces pieces);
// A query: the pieces and "?", then a blank and the parameter when there is one.
QString Query(Pieces pieces, QAnyStringView parameter = {});
// A set command: the pieces, one blank, the value.
QString SetCommand(Pieces pieces, QAnyStringView value);
// A key press: ":KEY" and the key piece.
QString KeyCommand(QAnyStringView key);
// ":KEY:LOCK ENABLE" or ":KEY:LOCK DISABLE".
QString KeyLockCommand(bool locked);
// ":TRIGGER:PATTERN:LEVEL <channel>,<level>".
QString PatternLevelCommand(QAnyStringView channel, QAnyStringView level);

// True for both channel pairs of one channel group, in any of their spellings
// ("CH1CH2", "CHAN1CHAN2", "CHANNEL1CHANNEL2" and the same for 3 and 4), in any case.
bool IsChannelPair(QStringView text);

} // namespace Vocab
