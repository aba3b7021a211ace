// A save never destroys the file it replaces: a writer killed while its new
// file is open leaves the old one whole and nothing half-written under the
// name, and a save to a place that can't be written says the system's reason
// and keeps the old file.
#include "analysis/exportfile.h"
#include "controller/ctrlfile.h"
#include "controller/ctrlstate.h"
#include "document/sheetstate.h"
#include "platform/testplatform.h"
#include "sheet/sheetfile.h"
#include "state/programstate.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <sys/fsuid.h>
#include <unistd.h>

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

// True once the process holds a file open in dir other than the ones named:
// the new file of a save under way.
bool writingIn(qint64 pid, const QString& dir, const QStringList& others)
{
    const QDir fds(QStringLiteral("/proc/%1/fd").arg(pid));
    for (const QString& fd : fds.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
        char target[4096];
        const ssize_t size =
            ::readlink(QFile::encodeName(fds.filePath(fd)).constData(), target, sizeof target);
        const QString name = QFile::decodeName(QByteArray(target, size > 0 ? int(size) : 0));
        if (name.startsWith(dir + '/') && !others.contains(name.mid(dir.size() + 1))) return true;
    }
    return false;
}

class KilledSave : public ::testing::TestWithParam<const char*> {};

TEST_P(KilledSave, LeavesTheOldFileWhole)
{
    const QString kind = QString::fromLatin1(GetParam());
    const QString name = "target." + kind;
    const QTemporaryDir dir;
    const QString path = QDir(dir.path()).canonicalPath();
    const QStringList whole{"ref-a", "ref-b", name};
    // Each round kills the writer at a later save, always with its new file open.
    for (int round = 0; round < 3; ++round) {
        QProcess child;
        child.start(SELVANE_SAVECHILD_PATH, {kind, path, name});
        ASSERT_TRUE(child.waitForReadyRead(60000)) << child.readAllStandardError().toStdString();
        ASSERT_EQ(child.readLine().trimmed(), "ready");
        const auto writing = [&] { return writingIn(child.processId(), path, whole); };
        for (int save = 0;; ++save) {
            const QDeadlineTimer deadline(20000);
            while (!writing() && !deadline.hasExpired()) {
            }
            ASSERT_FALSE(deadline.hasExpired()) << "no save seen";
            if (save == round) break;
            while (writing()) {
            }
        }
        child.kill();
        EXPECT_TRUE(child.waitForFinished(5000));

        const QByteArray kept = contentOf(QDir(path).filePath(name));
        EXPECT_TRUE(kept == contentOf(path + "/ref-a") || kept == contentOf(path + "/ref-b"))
            << kind.toStdString() << " round " << round << ": " << kept.size() << " bytes";
        EXPECT_GT(kept.size(), 4 << 20);
        EXPECT_EQ(QDir(path).entryList(QDir::Files | QDir::Hidden, QDir::Name),
                  QStringList({"ref-a", "ref-b", name}))
            << "no partial file is left behind";
    }
}

INSTANTIATE_TEST_SUITE_P(Child, KilledSave, ::testing::Values("kvs", "rmt", "csv"),
                         [](const auto& info) { return std::string(info.param); });

// The routines that save and tell the user themselves.
struct Saver {
    const char* name;
    std::function<bool(const QString&)> save;
};

const Saver Savers[] = {
    {"Sheet", [](const QString& path) { return SaveSheet(path); }},
    {"ControlFile", [](const QString& path) { return WriteCtrlFile(path); }},
    {"TableExport", [](const QString& path) { return SaveExportFile(path, QStringLiteral("CH1\r\n")); }},
};

// The file system's permission checks made as an ordinary user, for this thread.
struct NotRoot {
    NotRoot() : was(setfsuid(geteuid() == 0 ? 65534 : geteuid())) {}
    ~NotRoot() { setfsuid(uid_t(was)); }
    int was;
};

class UnwritablePlace : public ::testing::TestWithParam<int> {
  protected:
    UnwritablePlace() { ResetProgramState(); }
    ~UnwritablePlace() override { ResetProgramState(); }
    ScopedTestPlatform platform;
};

TEST_P(UnwritablePlace, ShowsTheSystemsReasonAndKeepsTheOldFile)
{
    const Saver& saver = Savers[GetParam()];
    const QTemporaryDir dir;
    QFile(dir.path())
        .setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther |
                        QFile::ExeOther);
    const QString old = dir.filePath("locked/old.file");
    QDir(dir.path()).mkdir("locked");
    QFile file(old);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("the old file\n");
    file.close();
    QFile(dir.filePath("locked"))
        .setPermissions(QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);

    const struct {
        QString path;
        int error;
    } places[] = {{old, EACCES},
                  // A file where a folder should be: the system finds no such folder.
                  {dir.filePath("plain.file/inside"), ENOENT}};
    for (const auto& place : places) {
        platform->clearRecords();
        if (place.error == EACCES) {
            const NotRoot user;
            EXPECT_FALSE(saver.save(place.path)) << place.path.toStdString();
        } else {
            EXPECT_FALSE(saver.save(place.path)) << place.path.toStdString();
        }
        ASSERT_EQ(platform->boxes.size(), 1) << place.path.toStdString();
        EXPECT_TRUE(platform->boxes.front().text.contains(QString::fromLocal8Bit(std::strerror(place.error))))
            << platform->boxes.front().text.toStdString();
        EXPECT_EQ(contentOf(old), "the old file\n");
    }
}

INSTANTIATE_TEST_SUITE_P(Saves, UnwritablePlace, ::testing::Range(0, int(std::size(Savers))),
                         [](const auto& info) { return std::string(Savers[info.param].name); });

} // namespace
