#include "link/resourcechooser.h"

#include "link/linkstate.h"

namespace {

bool takePreselected(const QStringList& rows)
{
    if (!rows.isEmpty()) ResourceName = rows.at(PreselectedResourceRow(rows));
    return true;
}

ResourceChooser& installed()
{
    static ResourceChooser chooser = takePreselected;
    return chooser;
}

} // namespace

ResourceChooser InstallResourceChooser(ResourceChooser chooser)
{
    if (!chooser) chooser = takePreselected;
    installed().swap(chooser);
    return chooser;
}

bool ChooseResource(const QStringList& rows)
{
    return installed()(rows);
}

int PreselectedResourceRow(const QStringList& rows)
{
    const int listed = ResourceName.isEmpty() ? -1 : int(rows.indexOf(ResourceName));
    return listed < 0 ? 0 : listed;
}
