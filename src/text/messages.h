#pragma once
// The message catalogue: program-wide texts that LoadMessages fills for the
// language in force. Boxes take their text and title from here.

#include <QString>
#include <span>

extern QString MsgVersionTooLow;
extern QString MsgCurrentVersion;
extern QString MsgDeviceNotFound;
extern QString MsgConnectTitle;
extern QString MsgNoCode;
extern QString MsgNoSysInfo;
extern QString MsgConnectFirst;
extern QString MsgQueryOnly;
extern QString MsgNumberOnly;
extern QString MsgRootName;
extern QString MsgZoomFactor;
extern QString MsgSheetFormat;
extern QString MsgFileLimit;
extern QString MsgSheetFirst;
extern QString MsgFileFormat;
extern QString MsgCantConnect;
extern QString MsgInit;
extern QString MsgSend;
extern QString MsgRead;
extern QString MsgTimeout;
extern QString MsgCantRead;
extern QString MsgNumeric;
extern QString MsgFileFail;
extern QString MsgChannelData;
extern QString MsgFileError;
extern QString MsgWaveData;
extern QString MsgRs232Init;
extern QString MsgRs232Send;
extern QString MsgSaveSheet;
extern QString MsgSaveCtrl;
// The pair that sends the user to the maker's web site: the text and its box title.
extern QString MsgContactMaker;
extern QString MsgContactTitle;

// Texts that stand in no catalogue are English in both languages.
inline const QString MsgPositionAtLimit = QStringLiteral("Position at limit！");

// Fills every catalogue text for `Language`.
void LoadMessages();

// One catalogue entry: the global it fills and its two texts.
struct MessageEntry {
    QString* text;
    const char16_t* english;
    const char16_t* chinese;
};
std::span<const MessageEntry> MessageCatalogue();
