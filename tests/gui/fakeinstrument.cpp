#include "fakeinstrument.h"

#include <algorithm>
#include <cstring>

ViStatus FakeInstrument::openDefaultRM(ViSession* manager)
{
    *manager = managerId;
    return VI_SUCCESS;
}

void FakeInstrument::describe(int index, char description[VI_FIND_BUFLEN]) const
{
    const QByteArray name = resources.value(index).toLatin1().left(VI_FIND_BUFLEN - 1);
    std::memcpy(description, name.constData(), static_cast<size_t>(name.size()) + 1);
}

ViStatus FakeInstrument::findRsrc(ViSession, const char* expression, ViFindList* list, ViUInt32* count,
                                  char description[VI_FIND_BUFLEN])
{
    patterns.append(QString::fromLatin1(expression));
    *count = static_cast<ViUInt32>(resources.size());
    *list = listId;
    nextFound_ = 1;
    describe(0, description);
    return resources.isEmpty() ? VI_ERROR_RSRC_NFOUND : VI_SUCCESS;
}

ViStatus FakeInstrument::findNext(ViFindList, char description[VI_FIND_BUFLEN])
{
    describe(nextFound_, description);
    return nextFound_++ < resources.size() ? VI_SUCCESS : VI_ERROR_RSRC_NFOUND;
}

ViStatus FakeInstrument::open(ViSession, const char* name, ViAccessMode, ViUInt32, ViSession* session)
{
    *session = sessionId;
    return resources.contains(QString::fromLatin1(name)) ? VI_SUCCESS : VI_ERROR_RSRC_NFOUND;
}

ViStatus FakeInstrument::close(ViObject object)
{
    sessionCloses += object == sessionId;
    managerCloses += object == managerId;
    return VI_SUCCESS;
}

ViStatus FakeInstrument::read(ViSession, ViByte* buffer, ViUInt32 size, ViUInt32* count)
{
    const auto n = std::min<qsizetype>(size, reply_.size());
    std::memcpy(buffer, reply_.constData(), static_cast<size_t>(n));
    reply_.remove(0, n);
    *count = static_cast<ViUInt32>(n);
    return VI_SUCCESS;
}

ViStatus FakeInstrument::write(ViSession, const ViByte* buffer, ViUInt32 size, ViUInt32* count)
{
    const QString command = QString::fromLatin1(reinterpret_cast<const char*>(buffer), size).trimmed();
    written.append(command);
    if (command == QStringLiteral("*IDN?"))
        reply_ = identity.toLatin1() + '\n';
    else if (command.endsWith(QLatin1Char('?')))
        reply_ = "0\n";
    *count = size;
    return VI_SUCCESS;
}

ViStatus FakeInstrument::clear(ViSession)
{
    ++clears;
    return VI_SUCCESS;
}

ViStatus FakeInstrument::setAttribute(ViObject, ViAttr, ViAttrState)
{
    return VI_SUCCESS;
}

ViStatus FakeInstrument::getAttribute(ViObject, ViAttr, void*)
{
    return VI_SUCCESS;
}

ScopedFakeInstrument::ScopedFakeInstrument()
{
    auto fake = std::make_unique<FakeInstrument>();
    fake_ = fake.get();
    previous_ = InstallVisaLibrary(std::move(fake));
}

ScopedFakeInstrument::~ScopedFakeInstrument()
{
    InstallVisaLibrary(std::move(previous_));
}
