#include "controller/pattern.h"

#include "controller/ctrlstate.h"
#include "link/linkcommands.h"
#include "text/treewords.h"
#include "text/valuetext.h"

#include <QStringList>

namespace {

// An edge row's text in either language.
bool isEdgeWord(const QString& text, const char* english)
{
    return text == NodeCaption(english, LanguageEnglish) || text == NodeCaption(english, LanguageChinese);
}

bool isRising(const QString& text)
{
    return isEdgeWord(text, "Rising");
}

bool isEdgeText(const QString& text)
{
    return isRising(text) || isEdgeWord(text, "Falling");
}

bool isWord(const QString& text, const char* english)
{
    return text == QLatin1String(english) || IsValueWord(text, QLatin1String(english));
}

// Rows 4 (EXT) and 5 (EXT/5) are the same input.
int inputOfRow(int row)
{
    return row == 5 ? 4 : row;
}

} // namespace

QString GetCodeString(int code)
{
    switch (code) {
    case CodeHigh: return QStringLiteral("H");
    case CodeLow: return QStringLiteral("L");
    case CodeUp: return QStringLiteral("Up");
    case CodeDown: return QStringLiteral("Dn");
    default: return QStringLiteral("X");
    }
}

QString PatternWireText(const PatternCodes& codes, bool extIsDiv5)
{
    int value = 0, mask = 0, edgeInput = -1;
    for (int i = 0; i < 5; ++i) {
        if (codes[size_t(i)] != CodeX) mask |= 1 << i;
        if (codes[size_t(i)] == CodeHigh) value |= 1 << i;
        if (edgeInput < 0 && (codes[size_t(i)] == CodeUp || codes[size_t(i)] == CodeDown)) edgeInput = i;
    }
    QString text = QStringLiteral("%1,%2,%3").arg(value).arg(mask).arg(extIsDiv5 ? 1 : 0);
    if (edgeInput >= 0)
        text += QStringLiteral(",%1,%2").arg(edgeInput).arg(codes[size_t(edgeInput)] == CodeUp);
    return text;
}

QString BuildPatternString()
{
    PatternCodes codes;
    std::copy(std::begin(CtrlData.PatternEdge), std::end(CtrlData.PatternEdge), codes.begin());
    return PatternWireText(codes, CtrlData.PatternExtIsDiv5);
}

QString BuildPatternDispString()
{
    QString text = GetCodeString(CtrlData.PatternEdge[4]);
    if (CtrlData.PatternExtIsDiv5) text += QLatin1Char('5');
    for (int i = 3; i >= 0; --i)
        text += GetCodeString(CtrlData.PatternEdge[i]);
    return text;
}

QString PatternCodeText(int code, int language)
{
    switch (code) {
    case CodeUp: return NodeCaption("Rising", language);
    case CodeDown: return NodeCaption("Falling", language);
    default: return ValueWord(GetCodeString(code), language);
    }
}

void ParsePatternString(const QString& reply)
{
    if (reply.isEmpty()) return;
    const QStringList fields = reply.split(QLatin1Char(','));
    const int value = fields.value(0).trimmed().toInt();
    const int mask = fields.value(1).trimmed().toInt();
    if (fields.size() > 2) CtrlData.PatternExtIsDiv5 = fields[2].trimmed().toUpper() != QLatin1String("EXT");
    int edgeInput = -1, edgeCode = CodeX;
    if (fields.size() > 3) {
        const QString input = fields[3].trimmed().toUpper();
        if (input == QLatin1String("EXT"))
            edgeInput = 4;
        else if (input != QLatin1String("NONE"))
            edgeInput = input.toInt();
    }
    if (fields.size() > 4) {
        const QString direction = fields.last().trimmed().toUpper();
        if (direction == QLatin1String("POSITIVE"))
            edgeCode = CodeUp;
        else if (direction == QLatin1String("NEGATIVE"))
            edgeCode = CodeDown;
    }
    for (int i = 0; i < 5; ++i) {
        int16_t code = (mask >> i & 1) == 0 ? CodeX : (value >> i & 1) ? CodeHigh : CodeLow;
        if (i == edgeInput && edgeCode != CodeX) code = int16_t(edgeCode);
        CtrlData.PatternEdge[i] = code;
    }
    FillPatternCodes();
}

void FillPatternCodes()
{
    for (int i = 0; i < 4; ++i)
        CtrlData.PatternCode[i] = PatternCodeText(CtrlData.PatternEdge[i], Language);
    const QString ext = PatternCodeText(CtrlData.PatternEdge[4], Language), none = ValueWord("X");
    CtrlData.PatternCode[4] = CtrlData.PatternExtIsDiv5 ? none : ext;
    CtrlData.PatternCode[5] = CtrlData.PatternExtIsDiv5 ? ext : none;
}

QString BuildPatternCommand(int changedRow)
{
    QString* rows = CtrlData.PatternCode;
    if (changedRow >= 0 && changedRow < 6 && isEdgeText(rows[changedRow]))
        for (int row = 0; row < 6; ++row)
            if (row != changedRow && isEdgeText(rows[row])) rows[row] = ValueWord("X");
    int value = 0, mask = 0, edgeRow = -1;
    for (int row = 0; row < 6; ++row) {
        const int bit = 1 << inputOfRow(row);
        if (isWord(rows[row], "H")) value |= bit;
        if (!isWord(rows[row], "X")) mask |= bit;
        if (edgeRow < 0 && isEdgeText(rows[row])) edgeRow = row;
    }
    const bool extFlag = isWord(rows[4], "X") && !isWord(rows[5], "X");
    QString command =
        QStringLiteral(":TRIGGER:PATTERN:PATTERN %1,%2,%3").arg(value).arg(mask).arg(extFlag ? 1 : 0);
    if (edgeRow >= 0)
        command += QStringLiteral(",%1,%2").arg(inputOfRow(edgeRow)).arg(isRising(rows[edgeRow]) ? 1 : 0);
    WriteCmd(command);
    return command;
}

void SendPatternLevel(int input, const QString& levelDivText)
{
    if (input < 0 || input > 4) return;
    const QString source = input < 4 ? QStringLiteral("CHANNEL%1").arg(input + 1) : QStringLiteral("EXT");
    WriteCmd(QStringLiteral(":TRIGGER:PATTERN:LEVEL %1,%2").arg(LevelToVolts(levelDivText, source), source));
}
