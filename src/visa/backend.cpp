#include "visa/backend.h"

#include "visa/resourcename.h"

namespace selvane::visa {

std::unique_ptr<Backend> openBackend(const ResourceName& name, const SessionSettings& settings,
                                     ViStatus& status)
{
    switch (name.interface) {
    case Interface::Tcpip:
        if (name.protocol == TcpipProtocol::Socket) return openSocketBackend(name, settings, status);
        if (name.protocol == TcpipProtocol::Hislip) return openHislipBackend(name, settings, status);
        return openVxi11Backend(name, settings, status);
    case Interface::Usb: return openUsbtmcBackend(name, settings, status);
    case Interface::Asrl: return openSerialBackend(name, settings, status);
    case Interface::Gpib: break; // no GPIB board driver in this layer
    }
    status = VI_ERROR_RSRC_NFOUND;
    return nullptr;
}

} // namespace selvane::visa
