#include "sheet/sheetfile.h"

#include "acquire/waverecord.h"
#include "analysis/datarecord.h"
#include "analysis/measurerecord.h"
#include "document/sheetstate.h"
#include "platform/platform.h"
#include "sheet/sheetcodec.h"
#include "sheet/sheetsections.h"
#include "stored/memorywaveslot.h"
#include "stored/recordslot.h"
#include "text/productinfo.h"

#include <QFile>
#include <QSaveFile>

namespace {

// The sections stand in this order, each kind's count in the header likewise.
constexpr SheetKind FileOrder[] = {SheetKind::Wave, SheetKind::Measure, SheetKind::Data, SheetKind::Record,
                                   SheetKind::MemoryWave};

int filedCount(SheetKind kind)
{
    return std::min<int>(int(SheetSlotNames[std::size_t(KindIndex(kind))].size()), KindTableSize(kind));
}

void writeSection(SheetWriter& out, SheetKind kind, std::size_t slot)
{
    switch (kind) {
    case SheetKind::Wave: WriteWaveSection(out, WaveRecords[slot]); break;
    case SheetKind::Measure: WriteMeasureSection(out, MeasureRecords[slot]); break;
    case SheetKind::Data:
        WriteDataSection(out, DataRecords[slot],
                         SheetSlotNames[std::size_t(KindIndex(kind))].at(qsizetype(slot)));
        break;
    case SheetKind::Record: WriteRecordSection(out, RecordSlots[slot]); break;
    case SheetKind::MemoryWave: WriteMemoryWaveSection(out, MemoryWaveSlots[slot]); break;
    }
}

// Reads a section into its slot and answers the window's name.
QString readSection(SheetReader& in, SheetKind kind, std::size_t slot)
{
    switch (kind) {
    case SheetKind::Wave: ReadWaveSection(in, WaveRecords[slot]); return WaveRecords[slot].WaveTitle;
    case SheetKind::Measure: ReadMeasureSection(in, MeasureRecords[slot]); return MeasureRecords[slot].Title;
    case SheetKind::Data: {
        QString title;
        ReadDataSection(in, DataRecords[slot], title);
        return title;
    }
    case SheetKind::Record: ReadRecordSection(in, RecordSlots[slot]); return RecordSlots[slot].Name;
    case SheetKind::MemoryWave:
        ReadMemoryWaveSection(in, MemoryWaveSlots[slot]);
        return MemoryWaveSlots[slot].Name;
    }
    return {};
}

} // namespace

QString SheetSignature()
{
    return ProgramTitle + QLatin1Char(' ') + ProgramVersion + QStringLiteral(" Data Sheet");
}

QString SheetFormatInvalidText(int language)
{
    return IsChinese(language) ? QStringLiteral("数据文件格式无效！")
                               : QStringLiteral("Data Sheet File Format is Invaild !");
}

QByteArray SheetFileContent()
{
    SheetWriter out;
    out.text(SheetSignature());
    out.text(DataSheetName);
    for (SheetKind kind : FileOrder)
        out.integer(filedCount(kind));
    for (SheetKind kind : FileOrder)
        for (int slot = 0; slot < filedCount(kind); ++slot)
            writeSection(out, kind, std::size_t(slot));
    return out.bytes();
}

SheetLoadResult ReadSheetContent(const QByteArray& content)
{
    SheetReader in(content);
    if (in.text() != SheetSignature()) return SheetLoadResult::Refused;
    const QString name = in.text();
    int counts[std::size(FileOrder)] = {};
    for (std::size_t k = 0; k < std::size(FileOrder); ++k)
        counts[k] = std::clamp<int>(in.int16(), 0, KindWindowLimit(FileOrder[k]));
    for (QStringList& names : SheetSlotNames)
        names.clear();
    for (std::size_t k = 0; k < std::size(FileOrder); ++k) {
        const SheetKind kind = FileOrder[k];
        QStringList& names = SheetSlotNames[std::size_t(KindIndex(kind))];
        for (int slot = 0; slot < counts[k]; ++slot)
            names << readSection(in, kind, std::size_t(slot));
    }
    DataSheetName = name;
    DataSheetDirty = false;
    SheetSorted = false;
    SheetOpen = true;
    return SheetLoadResult::Loaded;
}

bool SaveSheet(const QString& path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(SheetFileContent()) < 0 || !file.commit()) {
        MsgBox(file.errorString(), vbCritical);
        return false;
    }
    SheetFileName = path;
    DataSheetDirty = false;
    return true;
}

SheetLoadResult ReadSheetFile(const QString& path, QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        MsgBox(file.errorString(), vbCritical);
        return SheetLoadResult::Unreadable;
    }
    content = file.readAll();
    if (SheetReader(content.left(content.indexOf('\n') + 1)).text() != SheetSignature()) {
        MsgBox(SheetFormatInvalidText(), vbExclamation);
        return SheetLoadResult::Refused;
    }
    return SheetLoadResult::Loaded;
}

SheetLoadResult LoadSheet(const QString& path)
{
    QByteArray content;
    const SheetLoadResult checked = ReadSheetFile(path, content);
    if (checked != SheetLoadResult::Loaded) return checked;
    const SheetLoadResult result = ReadSheetContent(content);
    if (result == SheetLoadResult::Loaded) SheetFileName = path;
    return result;
}

QString SheetOpenTitle(int language)
{
    return IsChinese(language) ? QStringLiteral("打开") : QStringLiteral("Open");
}

QString SheetSaveTitle(bool saveAs, int language)
{
    if (IsChinese(language)) return saveAs ? QStringLiteral("另存为") : QStringLiteral("保存");
    return saveAs ? QStringLiteral("Save As") : QStringLiteral("Save");
}

QString SheetFileFilter(int language)
{
    return IsChinese(language) ? QStringLiteral("数据浏览器文件 (*.kvs)")
                               : QStringLiteral("Data Sheet Files (*.kvs)");
}
