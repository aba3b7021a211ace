#include "stored/filemodel.h"

#include "text/valuetext.h"

QString ReadFileModel(const QByteArray& bytes, qsizetype offset)
{
    QString model;
    for (qsizetype i = 0; i < 20; ++i) {
        const qsizetype at = offset + i;
        if (at < 0 || at >= bytes.size() || bytes.at(at) == '\0') break;
        model.append(QChar::fromLatin1(bytes.at(at)));
    }
    return model;
}

bool FileModelAccepted(const QString& model)
{
    return model.size() >= 7 && model.mid(6) == QLatin1String("B");
}

void ApplyModelBandwidthCode(const QString& model, int& code)
{
    // Read as the instrument's own software reads a number: leading digits, else 0.
    const int digits = int(Val(model.mid(3, 2)));
    if (digits == 6)
        code = 2;
    else if (digits == 10)
        code = 3;
    else if (digits == 20)
        code = 4;
}
