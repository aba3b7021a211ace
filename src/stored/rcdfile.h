#pragma once
// The instrument's record file (.rcd): a 128-byte little-endian header and a
// frame area of 600-byte screens, read into a RecordSlot. The model is tested
// before the magic number, the other way round from the waveform file.

#include <QByteArray>
#include <QString>

struct RecordSlot;

inline constexpr qsizetype RecordReadLimit = 1100001; // bytes of the file that are read
inline constexpr qsizetype RecordHeaderSize = 128;
inline constexpr qsizetype RecordWorkSize = 2100001; // the frame area's work array
inline constexpr qsizetype RecordSecondStart = 524160;
inline constexpr qsizetype RecordSecondMinimum = 524288;
inline constexpr int RecordFrameSize = 600;
inline constexpr quint16 RecordMagic = 0xBABA;

// ParseRecord's result when the source channel is off or a promised second
// block can't be there.
inline constexpr int RecordChannelInvalid = -1;

// Fills the slot's samples, texts and frame numbers from the 128 header bytes
// and the frame area (data, of the file's length L = file length - 128, which
// may be longer than data: the rest reads as zeros). result is 0, or
// RecordChannelInvalid with the slot partly filled.
void ParseRecord(const QByteArray& header, const QByteArray& data, qint64 length, int& result,
                 RecordSlot& slot);

enum class RecordLoad { Loaded, Cancelled, Unreadable, BadModel, BadMagic, InvalidChannel };

// The checks and the parse over the first bytes of a file of fileLength bytes.
// Refused by model or magic, the slot is left as it was.
RecordLoad LoadRecordBytes(const QByteArray& bytes, qint64 fileLength, RecordSlot& slot);

// Reads a file into slot (0 to 4) and tells a refusal in a box. Loaded: the slot
// keeps the path, is stopped at frame 1 and the data sheet is changed. Invalid
// channel: the slot is marked empty.
RecordLoad LoadRecordFile(const QString& path, int slot, QString* failure = nullptr);
// Asks for a file, then as LoadRecordFile; a cancelled dialog changes nothing.
RecordLoad LoadRecord(int slot);

// The box text of a refusal in the language in force; empty for Loaded and Cancelled.
QString RecordLoadMessage(RecordLoad outcome);
// A window showing the slot's file: Name + "  (" + FileName + ")"; just Name without a file.
QString RecordCaption(const RecordSlot& slot);
