#include "link/visalibrary.h"

namespace {

class LayerLibrary final : public VisaLibrary {
  public:
    ViStatus openDefaultRM(ViSession* manager) override { return viOpenDefaultRM(manager); }
    ViStatus findRsrc(ViSession manager, const char* expression, ViFindList* list, ViUInt32* count,
                      char description[VI_FIND_BUFLEN]) override
    {
        return viFindRsrc(manager, expression, list, count, description);
    }
    ViStatus findNext(ViFindList list, char description[VI_FIND_BUFLEN]) override
    {
        return viFindNext(list, description);
    }
    ViStatus open(ViSession manager, const char* name, ViAccessMode mode, ViUInt32 timeout,
                  ViSession* session) override
    {
        return viOpen(manager, name, mode, timeout, session);
    }
    ViStatus close(ViObject object) override { return viClose(object); }
    ViStatus read(ViSession session, ViByte* buffer, ViUInt32 size, ViUInt32* count) override
    {
        return viRead(session, buffer, size, count);
    }
    ViStatus write(ViSession session, const ViByte* buffer, ViUInt32 size, ViUInt32* count) override
    {
        return viWrite(session, buffer, size, count);
    }
    ViStatus clear(ViSession session) override { return viClear(session); }
    ViStatus setAttribute(ViObject object, ViAttr attribute, ViAttrState value) override
    {
        return viSetAttribute(object, attribute, value);
    }
    ViStatus getAttribute(ViObject object, ViAttr attribute, void* value) override
    {
        return viGetAttribute(object, attribute, value);
    }
};

std::unique_ptr<VisaLibrary>& installed()
{
    static std::unique_ptr<VisaLibrary> library = std::make_unique<LayerLibrary>();
    return library;
}

} // namespace

VisaLibrary& Visa()
{
    return *installed();
}

std::unique_ptr<VisaLibrary> InstallVisaLibrary(std::unique_ptr<VisaLibrary> library)
{
    if (!library) library = std::make_unique<LayerLibrary>();
    installed().swap(library);
    return library;
}
