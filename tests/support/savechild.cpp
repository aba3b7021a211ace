// The child of the kill-during-save test: fills a large data sheet, control
// file or memory wave CSV in two versions, saves each once as ref-a and ref-b
// through the program's own routine, says "ready", then saves the two in turn
// over the target until it is killed.
//   selvane-savechild kvs|rmt|csv DIR TARGET
#include "analysis/datarecord.h"
#include "controller/ctrlfile.h"
#include "controller/ctrlstate.h"
#include "document/sheetstate.h"
#include "platform/cliplatform.h"
#include "sheet/sheetfile.h"
#include "state/programstate.h"
#include "stored/memorywavecsv.h"
#include "stored/memorywaveslot.h"
#include "stored/recordslot.h"

#include <QDir>
#include <QGuiApplication>
#include <cstdio>
#include <functional>

namespace {

// About 20 MB of sheet: two records and one memory wave.
void fillSheet(int version)
{
    SheetOpen = true;
    DataSheetName = version ? QStringLiteral("B") : QStringLiteral("A");
    for (QStringList& names : SheetSlotNames)
        names.clear();
    for (int i = 0; i < 2; ++i) {
        RecordSlot& record = RecordSlots[std::size_t(i)];
        record.HasFile = true;
        record.LastFrame = 1000;
        record.Samples.assign(1000 * 1024, int16_t(100 + version));
        SheetSlotNames[std::size_t(KindIndex(SheetKind::Record))] << QStringLiteral("R%1").arg(i);
    }
    MemoryWaveSlot& memory = MemoryWaveSlots[0];
    memory.HasData = true;
    memory.ChanEnabled = {true, true, false, false};
    memory.SampleCount = 524288;
    for (auto* samples : {&memory.Samples[0], &memory.Samples[1]})
        samples->assign(524289, int16_t(150 + version));
    SheetSlotNames[std::size_t(KindIndex(SheetKind::MemoryWave))] << QStringLiteral("M0");
}

// A control file is short by nature; one long value makes it about 8 MB.
void fillCtrl(int version)
{
    CtrlData.ChProbe[1] = QString(8 << 20, version ? u'b' : u'a');
}

MemoryWaveSlot csvSlot(int version)
{
    MemoryWaveSlot slot;
    slot.HasData = true;
    slot.ModeYT = true;
    slot.ChanEnabled = {true, true, false, false};
    slot.ChanVoltDiv = {1, 1, 1, 1};
    slot.SampleRate = 1e6f;
    slot.SampleCount = 524288;
    for (int n = 0; n < 2; ++n)
        slot.Samples[std::size_t(n)].assign(524289, int16_t(150 + version));
    return slot;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    installPlatform(std::make_unique<CliPlatform>());
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) return 2;
    const QString kind = arguments[1];
    const QDir dir(arguments[2]);
    ResetProgramState();

    std::function<bool(int, const QString&)> save;
    if (kind == "kvs") {
        save = [](int version, const QString& path) {
            fillSheet(version);
            return SaveSheet(path);
        };
    } else if (kind == "rmt") {
        save = [](int version, const QString& path) {
            fillCtrl(version);
            return WriteCtrlFile(path);
        };
    } else if (kind == "csv") {
        const MemoryWaveSlot slots[] = {csvSlot(0), csvSlot(1)};
        save = [slots](int version, const QString& path) {
            return WriteMemoryWaveCsv(slots[version], path).isEmpty();
        };
    } else {
        return 2;
    }
    if (!save(0, dir.filePath("ref-a")) || !save(1, dir.filePath("ref-b")) ||
        !save(0, dir.filePath(arguments[3])))
        return 1;
    std::printf("ready\n");
    std::fflush(stdout);
    for (int version = 1;; version ^= 1)
        if (!save(version, dir.filePath(arguments[3]))) return 1;
}
