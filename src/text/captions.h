#pragma once
// Every caption list of the program in both languages, and the slot pairing that
// ties a Chinese caption to its English one. A window names its controls by slot:
// for most lists the slot is simply the position in either language's list; where
// the two lists have different lengths the pairing table of that list decides.

#include <QString>
#include <QStringList>

enum class CaptionList : int {
    MainMenus,          // frmMain menus, in menu order
    MainToolbar,        // frmMain toolbar tooltips, then the two lamps
    PanePopups,         // pop-up menus of the data sheet pane, then of the controller pane
    SheetNames,         // default names of the data sheet
    CtrlList,           // frmCtrlList
    NewDocument,        // new document dialog
    OpenDocument,       // open document dialog
    Options,            // frmOptions
    VirtualPanel,       // frmV_Panel
    VirtualKeyboard,    // frmV_Key
    FineAdjust,         // fine-adjust dialog
    PassFailed,         // frmPassFailed
    Wave,               // frmWave
    MemoryWave,         // frmOpenWaveform, the memory wave window
    Data,               // frmData
    DataSecond,         // frmData, second form of the table
    Measure,            // frmMeasure
    MeasureSecond,      // frmMeasure, second form
    RecordPlay,         // frmRecordPlay
    RecordPlaySecond,   // frmRecordPlay, second form
    MemoryWaveFileMenu, // frmOpenWaveform, file menu
    MemoryWaveSecond,   // frmOpenWaveform, second form
    MeasureNames,       // the eighteen measurements
    ValueWords,         // value words of the control tree
    ValueWordsSecond,   // value words of the control tree, second list
    NodeNames,          // node names of the control tree
    ResourceDialog,     // DlgResource
    WaveSetting,        // frmWaveSetting, the FFT dialog
    About,              // frmAbout: the start of its title, its button
    HelpViewer,         // frmHelp: its title and the four buttons
};
inline constexpr int CaptionListCount = static_cast<int>(CaptionList::HelpViewer) + 1;

// Which of several meanings an English word has where Chinese tells them apart.
enum class WordSense : unsigned char {
    Plain,
    AcLine,       // "AC" as the mains trigger source, not the coupling
    SlopeMode,    // the pulse-mode words used for the slope trigger
    DisplayGroup, // "Display" as the tree's display group, not a channel's node
};

// One slot: its index in the English list and in the Chinese list. A negative
// index means that language has no caption of its own and shows the other's.
struct CaptionPair {
    short english;
    short chinese;
    WordSense sense = WordSense::Plain;
};

// The list exactly as kept for a language: 0 Chinese, any other English.
const QStringList& Captions(CaptionList which, int language);
int CaptionSlotCount(CaptionList which);
CaptionPair CaptionSlot(CaptionList which, int slot);
// The caption of a slot in a language; empty for a slot the list does not have.
QString Caption(CaptionList which, int slot, int language);
