#include "frame/shutdown.h"

#include "link/linkcommands.h"
#include "link/linkstate.h"
#include "link/usbtransport.h"
#include "link/visalibrary.h"

void ReleaseInstrumentAndVisa()
{
    if (Connected) {
        WriteCmd(QStringLiteral(":KEY:LOCK DISABLE"));
        Visa().clear(VisaSession);
        Visa().close(VisaSession);
    }
    CloseVisaRM();
}
