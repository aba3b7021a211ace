#include "transport/ptyserver.h"

#include <QSocketNotifier>
#include <QtEndian>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace {
// A client that never reads can't make the simulator hoard replies without bound.
constexpr qsizetype MaxOutput = 16 << 20;

QString systemError(const char* what)
{
    return QString("%1: %2").arg(what, QString::fromLocal8Bit(std::strerror(errno)));
}

bool makeRaw(int fd)
{
    termios settings{};
    if (tcgetattr(fd, &settings) != 0) return false;
    cfmakeraw(&settings);
    return tcsetattr(fd, TCSANOW, &settings) == 0;
}
} // namespace

PtyServer::PtyServer(Faults& faults, QObject* parent) : QObject(parent), session_(faults, this)
{
    connect(&session_, &Session::replyReady, this, &PtyServer::send);
    connect(&session_, &Session::dropRequested, this, &PtyServer::close);
}

PtyServer::~PtyServer()
{
    close();
}

bool PtyServer::open(QString* error)
{
    master_ = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
    if (master_ < 0 || grantpt(master_) != 0 || unlockpt(master_) != 0) {
        *error = systemError("posix_openpt");
        return false;
    }
    slavePath_ = QString::fromLocal8Bit(ptsname(master_));
    slave_ = ::open(slavePath_.toLocal8Bit().constData(), O_RDWR | O_NOCTTY);
    if (slave_ < 0 || !makeRaw(slave_)) {
        *error = systemError("pseudo-terminal slave");
        return false;
    }
    readNotifier_ = new QSocketNotifier(master_, QSocketNotifier::Read, this);
    writeNotifier_ = new QSocketNotifier(master_, QSocketNotifier::Write, this);
    writeNotifier_->setEnabled(false);
    connect(readNotifier_, &QSocketNotifier::activated, this, &PtyServer::readMaster);
    connect(writeNotifier_, &QSocketNotifier::activated, this, &PtyServer::writePending);
    return true;
}

void PtyServer::readMaster()
{
    char buffer[4096];
    const ssize_t count = ::read(master_, buffer, sizeof buffer);
    if (count > 0)
        session_.receive(QByteArray(buffer, count));
    else if (count < 0 && errno != EAGAIN && errno != EINTR)
        readNotifier_->setEnabled(false);
}

void PtyServer::send(const QByteArray& reply)
{
    if (master_ < 0 || output_.size() > MaxOutput) return;
    output_ += serialForm(reply);
    writePending();
}

void PtyServer::writePending()
{
    const ssize_t count = ::write(master_, output_.constData(), size_t(output_.size()));
    if (count > 0) output_.remove(0, count);
    writeNotifier_->setEnabled(!output_.isEmpty());
}

// --drop-after: the master goes, so the client's end of the line hangs up.
void PtyServer::close()
{
    for (QSocketNotifier* notifier : {readNotifier_, writeNotifier_}) {
        if (notifier) {
            notifier->setEnabled(false);
            notifier->deleteLater(); // this may run inside the notifier's own signal
        }
    }
    readNotifier_ = writeNotifier_ = nullptr;
    for (int* fd : {&master_, &slave_}) {
        if (*fd >= 0) ::close(*fd);
        *fd = -1;
    }
    output_.clear();
}

QByteArray serialForm(const QByteArray& reply)
{
    const qsizetype headerSize = blockHeaderSize(reply);
    if (headerSize == 0) return reply;
    QByteArray data = reply.mid(headerSize);
    if (data.endsWith('\n')) data.chop(1);
    QByteArray length(4, '\0');
    qToLittleEndian(quint32(data.size()), length.data());
    return length + data;
}
