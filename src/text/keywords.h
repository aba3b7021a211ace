#pragma once
// Keyword tables between the values the control tree shows and the words the
// instrument takes and answers.
//
// Display words are those of the language given (the one in force by default),
// as ValueWord spells them: the tree compares a value against the words of the
// language in force, so a value set under the other language reads as unknown.
// Replies pass StripAtLineFeed first. Where a text matches no row, the table's
// last row applies: an empty reply (a timed-out link) gives that row too.

#include "text/language.h"

#include <QString>

// The AC-line trigger source as the tree shows it: "AC" or "市电".
QString AcLineText(int language = Language);

QString RunStateToWire(const QString& display, int language = Language);  // RUN ":RUN", other ":STOP"
QString RunStateFromReply(const QString& reply, int language = Language); // "STOP" STOP, other RUN
QString OnOffToWire(const QString& display, int language = Language);     // ON "ON", other "OFF"
QString OnOffFromReply(const QString& reply, int language = Language);    // "1" ON, other OFF
QString HfRejectFromReply(const QString& reply, int language = Language); // numeric 1 ON, other OFF
QString SamplingToWire(const QString& display, int language = Language);  // REAL_TIME "RTIME", other "ETIME"
QString SamplingFromReply(const QString& reply, int language = Language);
QString AcquisitionToWire(const QString& display,
                          int language = Language); // NORMAL, PEAKDETECT, other AVERAGE
QString AcquisitionFromReply(const QString& reply, int language = Language);
QString DisplayTypeToWire(const QString& display, int language = Language); // VECTORS, other DOTS
QString DisplayTypeFromReply(const QString& reply, int language = Language);
QString GridToWire(const QString& display, int language = Language); // FULL, HALF, other NONE
QString GridFromReply(const QString& reply, int language = Language);
QString TriggerTypeToWire(const QString& display,
                          int language = Language); // ALTERNATIVE is "ALTERNATION", other DURATION
QString TriggerTypeFromReply(const QString& reply, int language = Language);
QString SweepToWire(const QString& display, int language = Language); // AUTO, NORMAL, other SINGLE
QString SweepFromReply(const QString& reply, int language = Language);
QString CouplingToWire(const QString& display, int language = Language); // AC, DC, LF, HF, other GND
QString CouplingFromReply(const QString& reply, int language = Language);
QString
EdgeSlopeToWire(const QString& display,
                int language = Language); // RISING "POSITIVE", FALLING "NEGATIVE", other "ALTERNATION"
QString EdgeSlopeFromReply(const QString& reply, int language = Language);
// The pulse and slope modes are sent without blanks ("+LESSTHAN") and answered
// with them ("+LESS THAN"); the two sets differ only in their Chinese words.
QString PulseModeToWire(const QString& display, int language = Language);  // other "-EQUAL"
QString PulseModeFromReply(const QString& reply, int language = Language); // other -Equal
QString SlopeModeToWire(const QString& display, int language = Language);
QString SlopeModeFromReply(const QString& reply, int language = Language);
QString VideoPolarityToWire(const QString& display, int language = Language); // POSITIVE, other NEGATIVE
QString VideoPolarityFromReply(const QString& reply, int language = Language);
// Sent in upper case ("ALLLINES"); answered "ALL LINES", "LINE", "ODD FIELD", other EVENfield.
QString VideoSyncToWire(const QString& display, int language = Language);
QString VideoSyncFromReply(const QString& reply, int language = Language);
QString DurationQualifierFromReply(const QString& reply,
                                   int language = Language); // "LESS THAN", "GREATER THAN", other Equal

// Language-free fields.
QString VideoStandardToWire(const QString& display);  // "PAL/SECAM" "PALSECAM", other as is
QString VideoStandardFromReply(const QString& reply); // as is
QString TimeFormatToWire(const QString& display);     // "Y-T" "YT", "X-Y" "XY", other "ROLL"
QString TimeFormatFromReply(const QString& reply);    // "ROLL" "Roll", other as is
// "CHANNEL1" to "CHANNEL4", "EXT", "EXT5" as they are, the AC-line text "ACLINE";
// anything else (a logic input too) "CHANNEL1".
QString TriggerSourceToWire(const QString& display, int language = Language);
QString TriggerSourceFromReply(const QString& reply,
                               int language = Language); // "ACLINE" the AC-line text, other as is
// "ECL", "CMOS", "TTL" stay; a user level ("USER 1.500") loses its first five characters and reads as
// VoltText3.
QString LaThresholdFromReply(const QString& reply);
// "CHAN1CHAN2" and "CHANNEL1CHANNEL2" are "CH1CH2", the same for 3 and 4; other as is.
QString AltSourcesFromReply(const QString& reply);
