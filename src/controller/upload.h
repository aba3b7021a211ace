#pragma once
// Upload: the whole of CtrlData to the instrument, one command at a time, with
// the pauses the instrument needs after a change of mode and of time base.

// The transfer itself (operation 22's work). A value that does not parse is sent
// as 0 and the transfer goes on; it always runs to its end.
bool UploadTransfer();
// Registers UploadTransfer as the reading frame's upload operation.
void InstallUploadOperation();
// The steps before an upload the user asked for: the first two inverts and the
// spare before the time format OFF. The unsaved flag is left as it is.
void BeforeUpload();

// The pauses on top of each command's own 100 ms, in ms.
inline constexpr int UploadFormatPauseMs = 5000;
inline constexpr int UploadScalePauseMs = 1000;
inline constexpr int UploadChannelPauseMs = 100;
