#pragma once
// The VISA transport's way to the instrument: the default resource manager,
// finding the instrument's resources and opening the one in use.

// The find pattern of UsbOpen: every USB, TCPIP or GPIB instrument resource.
inline constexpr char InstrumentFindPattern[] = "(USB|TCPIP|GPIB)?*INSTR";
// The default resource manager into VisaDefaultRM, and its close (which closes
// every session opened from it).
void OpenVisaRM();
void CloseVisaRM();

// Finds the resources, lets the user choose when there are several, opens
// ResourceName into VisaSession. Sets DevicePresent false, with a box unless the
// user cancelled, when nothing could be opened.
void UsbOpen();
