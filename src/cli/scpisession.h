#pragma once
// One VISA session for the command line's own talk to an instrument (list,
// scpi): a line out, a reply in, a definite-length block read as such whatever
// bytes it holds. Through the link's VISA library, so SELVANE_VISA is honoured.

#include "visa/visa.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

// The resource manager for the life of the object.
class ScpiResourceManager {
  public:
    ScpiResourceManager();
    ~ScpiResourceManager();
    ScpiResourceManager(const ScpiResourceManager&) = delete;
    ScpiResourceManager& operator=(const ScpiResourceManager&) = delete;

    bool isOpen() const { return manager_ != VI_NULL; }
    ViSession handle() const { return manager_; }
    // Every resource the library finds, in its order.
    QStringList find(const char* pattern) const;

  private:
    ViSession manager_ = VI_NULL;
};

struct ScpiReply {
    bool answered = false;
    bool block = false; // a #<n><length> block: bytes holds its data only
    QByteArray bytes;   // the text without its line end, or the block's data
};

class ScpiSession {
  public:
    ScpiSession(const ScpiResourceManager& manager, const QString& resource, int timeoutMs, int baud);
    ~ScpiSession();
    ScpiSession(const ScpiSession&) = delete;
    ScpiSession& operator=(const ScpiSession&) = delete;

    bool isOpen() const { return session_ != VI_NULL; }
    ViStatus openStatus() const { return openStatus_; }
    // Sends the command with a line feed.
    bool send(const QByteArray& command);
    ScpiReply read();

  private:
    ViStatus readInto(QByteArray& into, ViUInt32 size);
    ViStatus readExactly(QByteArray& into, qint64 size);
    void endReadsAtLineFeed(bool on);

    ViSession session_ = VI_NULL;
    ViStatus openStatus_ = VI_SUCCESS;
    bool serial_ = false;
};

// A command that expects a reply: it holds a "?".
bool IsQuery(const QByteArray& command);
