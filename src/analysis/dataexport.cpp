#include "analysis/dataexport.h"

#include "text/productinfo.h"

namespace {

const QString LineEnd = QStringLiteral("\r\n");
const QChar Tab = QLatin1Char('\t');

QString cell(const DataColumn& column, int index)
{
    return index >= 0 && size_t(index) < column.size() ? column[size_t(index)] : QString();
}

QString headerLine(bool peak)
{
    QString line = QStringLiteral("NO.\tTime\tVoltage");
    if (peak) line += QStringLiteral("\tVoltage2");
    return line + LineEnd;
}

QString rowLine(const DataRecord& record, int row, int index)
{
    QString line =
        QString::number(row) + Tab + cell(record.Times, index) + Tab + cell(record.Voltages, index);
    if (record.IsPeak) line += Tab + cell(record.Voltages2, index);
    return line + LineEnd;
}

} // namespace

QString DataExportText(const DataRecord& record)
{
    QString text = ProgramTitle + QStringLiteral(" -[Data]") + LineEnd;
    text += LineEnd + LineEnd + LineEnd;
    text += record.Legend + LineEnd;
    text += LineEnd + LineEnd;
    text += headerLine(record.IsPeak) + LineEnd;
    const DataRows rows = DataRowsOf(record);
    for (int index = rows.first, row = 1; index <= rows.last; ++index, ++row)
        text += rowLine(record, row, index);
    return text;
}
