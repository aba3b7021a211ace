#include "acquire/tabletext.h"

#include "text/formatmask.h"

TableTextColumn DataTimeText;
TableTextColumn DataValueText;
TableTextColumn DataValueText2;
QString DataHeaderText;

QString FormatCode(float value)
{
    static const QString large = QStringLiteral("0.00E+00");
    static const QString small = QStringLiteral("0.00E-00");
    return FormatMaskSingle(value, value >= 1 ? large : small);
}

void ResetTableTexts()
{
    DataTimeText.fill(QString());
    DataValueText.fill(QString());
    DataValueText2.fill(QString());
    DataHeaderText.clear();
}
