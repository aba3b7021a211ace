#pragma once
// The open dialogs of the instrument's own files, in the language in force.

#include "platform/platform.h"

FileDialogRequest MemoryWaveDialogRequest(int language);
FileDialogRequest RecordDialogRequest(int language);
