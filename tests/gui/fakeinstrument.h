#pragma once
// A VISA library with one scripted instrument behind it: it lists the resources a
// test gives, answers the identity and math queries, and records every command.

#include "link/visalibrary.h"

#include <QByteArray>
#include <QStringList>

class FakeInstrument : public VisaLibrary {
  public:
    QStringList resources; // what a find of any pattern lists
    QString identity = QStringLiteral("Korva Technologies,KV7204B,SN0001,00.03.05.00.00");
    QStringList written;  // every write, without its line feed
    QStringList patterns; // every find pattern asked for
    int clears = 0;
    int sessionCloses = 0;
    int managerCloses = 0;

    ViStatus openDefaultRM(ViSession* manager) override;
    ViStatus findRsrc(ViSession manager, const char* expression, ViFindList* list, ViUInt32* count,
                      char description[VI_FIND_BUFLEN]) override;
    ViStatus findNext(ViFindList list, char description[VI_FIND_BUFLEN]) override;
    ViStatus open(ViSession manager, const char* name, ViAccessMode mode, ViUInt32 timeout,
                  ViSession* session) override;
    ViStatus close(ViObject object) override;
    ViStatus read(ViSession session, ViByte* buffer, ViUInt32 size, ViUInt32* count) override;
    ViStatus write(ViSession session, const ViByte* buffer, ViUInt32 size, ViUInt32* count) override;
    ViStatus clear(ViSession session) override;
    ViStatus setAttribute(ViObject object, ViAttr attribute, ViAttrState value) override;
    ViStatus getAttribute(ViObject object, ViAttr attribute, void* value) override;

    static constexpr ViSession managerId = 1;
    static constexpr ViSession sessionId = 2;
    static constexpr ViFindList listId = 3;

  private:
    void describe(int index, char description[VI_FIND_BUFLEN]) const;
    int nextFound_ = 0;
    QByteArray reply_;
};

// Installs a FakeInstrument for the lifetime of the object.
class ScopedFakeInstrument {
  public:
    ScopedFakeInstrument();
    ~ScopedFakeInstrument();
    FakeInstrument* operator->() const { return fake_; }

  private:
    FakeInstrument* fake_;
    std::unique_ptr<VisaLibrary> previous_;
};
