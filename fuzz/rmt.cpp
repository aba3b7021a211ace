// Feeds arbitrary bytes as a control file, and as the instrument's pattern
// reply: neither may crash or hang, whatever a file or the instrument holds.
#include "controller/ctrlfile.h"
#include "controller/pattern.h"

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryFile>
#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    // A valid header first, so the fuzzer reaches the items.
    static const QByteArray header = '"' + CtrlFileHeader().toUtf8() + "\"\r\n";
    QTemporaryFile file;
    if (!file.open()) return 0;
    file.write(header + bytes);
    file.close();
    ReadCtrlFile(file.fileName());
    ParsePatternString(QString::fromLatin1(bytes));
    return 0;
}
