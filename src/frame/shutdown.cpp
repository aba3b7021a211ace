#include "frame/shutdown.h"

#include "link/linkcommands.h"
#include "link/linkstate.h"
#include "link/visalibrary.h"
#include "link/visaopen.h"

void ReleaseInstrumentAndVisa()
{
    if (Connected) {
        WriteCmd(QStringLiteral(":KEY:LOCK DISABLE"));
        Visa().clear(VisaSession);
        Visa().close(VisaSession);
    }
    CloseVisaRM();
}
