// Feeds arbitrary bytes as a data sheet file behind a good signature, then
// saves the sheet again and reads that back: nothing may crash or read past an
// array, whatever the counts and flags promise.
#include "sheet/sheetfile.h"
#include "state/programstate.h"

#include <QByteArray>
#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    ResetProgramState();
    QByteArray content = '"' + SheetSignature().toUtf8() + "\"\r\n";
    content.append(reinterpret_cast<const char*>(data), qsizetype(size));
    if (ReadSheetContent(content) != SheetLoadResult::Loaded) return 0;
    const QByteArray saved = SheetFileContent();
    ReadSheetContent(saved);
    // A file this version wrote comes back as it was.
    if (SheetFileContent() != saved) __builtin_trap();
    return 0;
}
