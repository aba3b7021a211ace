#pragma once
// How UsbOpen lets the user pick one of several VISA resources. The windowed
// program installs DlgResource here; without it (command line, tests) the row
// the dialog would show first is taken, as if OK were pressed at once.

#include <QStringList>
#include <functional>

// Shows the rows; on OK sets ResourceName to the chosen text and returns true,
// on Cancel returns false and changes nothing.
using ResourceChooser = std::function<bool(const QStringList& rows)>;

// Installs the chooser used from now on and returns the previous one; an empty
// one puts the default back.
ResourceChooser InstallResourceChooser(ResourceChooser chooser);
bool ChooseResource(const QStringList& rows);

// The row a chooser shows first: ResourceName when it is listed, else row 0.
int PreselectedResourceRow(const QStringList& rows);
