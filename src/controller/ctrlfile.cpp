#include "controller/ctrlfile.h"

#include "controller/ctrlstate.h"
#include "platform/platform.h"
#include "text/messages.h"
#include "text/productinfo.h"

#include <QFile>
#include <QSaveFile>
#include <variant>
#include <vector>

namespace {

using Item = std::variant<QString*, int16_t*, bool*>;

// Every filed item after the header, in file order.
std::vector<Item> itemsOf(CtrlRecord& r)
{
    std::vector<Item> items;
    const auto add = [&items](auto&... fields) { (items.push_back(Item(&fields)), ...); };
    add(r.RunStop);
    for (int n = 1; n <= 4; ++n)
        add(r.ChDisplay[n], r.ChVoltDiv[n], r.ChOffset[n], r.ChCoupling[n], r.ChBwLimit[n], r.ChProbe[n],
            r.ChInvert[n]);
    add(r.LaEnable);
    for (int bit = 1; bit <= 16; ++bit)
        add(r.LaDisplay[bit]);
    for (int bit = 1; bit <= 16; ++bit)
        add(r.LaPosition[bit]);
    add(r.LaThreshold, r.LaHighByte, r.LaLowByte, r.Spare1, r.Spare2);
    add(r.TimeDiv, r.TimeDivA, r.TimeDivB, r.TimeDelay, r.TimeDelayA, r.TimeDelayB);
    add(r.Holdoff, r.MemorySize, r.SpareTime, r.TimeFormat, r.TrigMethod);
    add(r.EdgeSlope, r.EdgeSource, r.EdgeSweep, r.EdgeCoupling, r.EdgeHf, r.EdgeSensitivity, r.EdgeLevel);
    add(r.PulseSource, r.PulseMode, r.PulseWidth, r.PulseCoupling, r.PulseHf, r.PulseSensitivity,
        r.PulseLevel, r.PulseSweep);
    add(r.VideoSource, r.VideoPolarity, r.VideoSync, r.VideoStandard, r.VideoLine, r.VideoSensitivity,
        r.VideoLevel);
    add(r.PatternSource);
    for (QString& code : r.PatternCode)
        add(code);
    add(r.PatternSweep, r.PatternCoupling, r.PatternHf, r.PatternSensitivity, r.PatternOneLevel);
    add(r.SlopeSource, r.SlopeMode, r.SlopeTime, r.SlopeWindow, r.SlopeLevelA, r.SlopeLevelB, r.SlopeCoupling,
        r.SlopeSensitivity, r.SlopeSweep);
    add(r.AltSourceA, r.AltSourceB, r.AltTypeA, r.AltTypeB);
    for (AltEdgeFields& e : r.AltEdge)
        add(e.Slope, e.Coupling, e.Level, e.Sensitivity, e.Holdoff);
    for (AltPulseFields& p : r.AltPulse)
        add(p.Mode, p.Width, p.Coupling, p.Level, p.Sensitivity, p.Holdoff);
    for (AltVideoFields& v : r.AltVideo)
        add(v.Polarity, v.Sync, v.Standard, v.Line, v.Level, v.Sensitivity, v.Holdoff);
    for (AltSlopeFields& s : r.AltSlope)
        add(s.Mode, s.Time, s.Window, s.Coupling, s.LevelA, s.LevelB, s.Sensitivity, s.Holdoff);
    add(r.DurationQualifier);
    for (int i = 1; i <= 16; ++i)
        add(r.DurationCode[i]);
    add(r.DurationTime, r.DurationSweep, r.DurationSpare);
    add(r.AcqMode, r.AcqType, r.AcqAverages, r.AcqIntensity, r.AcqAntiAlias);
    add(r.DisplayType, r.DisplayPersist, r.DisplayGrid, r.AltChannel);
    for (int16_t& edge : r.PatternEdge)
        add(edge);
    add(r.PatternExtIsDiv5);
    for (QString& level : r.PatternLevel)
        add(level);
    return items;
}

// The reader files the pulse trigger's HF item into the edge trigger's field.
constexpr size_t PulseHfItem = 89; // item 91 counted from the first after the header

QByteArray quoted(const QString& text)
{
    return '"' + text.toUtf8() + '"';
}

QByteArray itemText(const Item& item)
{
    if (auto* text = std::get_if<QString*>(&item)) return quoted(**text);
    if (auto* number = std::get_if<int16_t*>(&item)) return QByteArray::number(**number);
    return *std::get<bool*>(item) ? "#TRUE#" : "#FALSE#";
}

// One item from its line: a quoted string ends at the next quote, whatever follows.
void storeItem(const Item& item, const QByteArray& line)
{
    if (auto* text = std::get_if<QString*>(&item)) {
        const QByteArray body = line.startsWith('"') ? line.mid(1) : line;
        const qsizetype end = body.indexOf('"');
        **text = QString::fromUtf8(end < 0 ? body : body.left(end));
    } else if (auto* number = std::get_if<int16_t*>(&item)) {
        **number = int16_t(line.trimmed().toInt());
    } else {
        *std::get<bool*>(item) = line.trimmed().toUpper() == "#TRUE#";
    }
}

QByteArray nextLine(QFile& file)
{
    QByteArray line = file.readLine();
    while (line.endsWith('\n') || line.endsWith('\r'))
        line.chop(1);
    return line;
}

} // namespace

QString CtrlFileHeader()
{
    return QStringLiteral("%1 %2 Controller").arg(CompanyName, ProductModel);
}

bool ReadCtrlFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        MsgBox(file.errorString(), vbCritical);
        return false;
    }
    QByteArray header = nextLine(file);
    CtrlRecord record;
    storeItem(Item(&record.RunStop), header);
    if (record.RunStop != CtrlFileHeader()) {
        MsgBox(MsgFileFormat, vbCritical);
        return false;
    }
    std::vector<Item> items = itemsOf(CtrlData);
    items[PulseHfItem] = Item(&CtrlData.EdgeHf);
    for (const Item& item : items) {
        if (file.atEnd()) {
            MsgBox(QStringLiteral("Input past end of file"), vbCritical);
            return false;
        }
        storeItem(item, nextLine(file));
    }
    return true;
}

bool WriteCtrlFile(const QString& path)
{
    QByteArray content = quoted(CtrlFileHeader()) + "\r\n";
    for (const Item& item : itemsOf(CtrlData))
        content += itemText(item) + "\r\n";
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit())
        return true;
    MsgBox(file.errorString(), vbCritical);
    return false;
}
