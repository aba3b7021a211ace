#pragma once
// The VISA calls the link makes, behind an interface so that tests can put a
// resource manager of their own in place of the library. The default forwards
// to the VISA layer of visa/visa.h.

#include "visa/visa.h"

#include <memory>

class VisaLibrary {
  public:
    virtual ~VisaLibrary() = default;

    virtual ViStatus openDefaultRM(ViSession* manager) = 0;
    virtual ViStatus findRsrc(ViSession manager, const char* expression, ViFindList* list, ViUInt32* count,
                              char description[VI_FIND_BUFLEN]) = 0;
    virtual ViStatus findNext(ViFindList list, char description[VI_FIND_BUFLEN]) = 0;
    virtual ViStatus open(ViSession manager, const char* name, ViAccessMode mode, ViUInt32 timeout,
                          ViSession* session) = 0;
    virtual ViStatus close(ViObject object) = 0;
    virtual ViStatus read(ViSession session, ViByte* buffer, ViUInt32 size, ViUInt32* count) = 0;
    virtual ViStatus write(ViSession session, const ViByte* buffer, ViUInt32 size, ViUInt32* count) = 0;
    virtual ViStatus clear(ViSession session) = 0;
    virtual ViStatus setAttribute(ViObject object, ViAttr attribute, ViAttrState value) = 0;
    virtual ViStatus getAttribute(ViObject object, ViAttr attribute, void* value) = 0;
};

// The library in use; the VISA layer's own calls unless another was installed.
VisaLibrary& Visa();
// Installs the library used from now on and returns the previous one; a null
// argument puts the VISA layer's calls back.
std::unique_ptr<VisaLibrary> InstallVisaLibrary(std::unique_ptr<VisaLibrary> library);
