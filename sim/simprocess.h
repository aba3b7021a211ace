#pragma once
// Runs kv7200b-sim as a child process for tests and benchmarks: every
// transport on a free loopback port unless the options say otherwise, waits
// for "ready", and keeps the endpoints it announced. The process is killed
// when the object goes.

#include <QHash>
#include <QProcess>
#include <QString>
#include <QStringList>

class SimProcess {
  public:
    // program: the path of the kv7200b-sim executable.
    explicit SimProcess(QString program);
    ~SimProcess();
    SimProcess(const SimProcess&) = delete;
    SimProcess& operator=(const SimProcess&) = delete;

    // Options come after the free-port defaults, so they win ("--socket-port off").
    bool start(const QStringList& options = {}, int timeoutMs = 10000);
    void stop();

    // "socket", "vxi11", "portmapper" or "hislip"; 0 when not served.
    quint16 port(const QString& transport) const { return ports_.value(transport); }
    QString ptyPath() const { return ptyPath_; }
    QString errorString() const { return error_; }
    QProcess& process() { return process_; }

    static QStringList freePortOptions();

  private:
    bool readAnnouncements(int timeoutMs);
    void takeLine(const QByteArray& line);

    QString program_;
    QProcess process_;
    QHash<QString, quint16> ports_;
    QString ptyPath_;
    QString error_;
    bool ready_ = false;
};
