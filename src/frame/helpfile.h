#pragma once
// Opens the help pages of a language in the desktop's viewer.

// A file that can't be read or handed to a viewer shows the failure's own
// description in a box. Returns whether a viewer took the file.
bool OpenHelpFile(int language);
