#pragma once
// Opening the two windows of the virtual front panel, for the controller tree,
// the menus and the toolbar. Each is a single window: a second call brings the
// open one to the front.

class QWidget;
class frmV_Key;
class frmV_Panel;

frmV_Key* ShowVirtualKeyboard(QWidget* parent);
frmV_Panel* ShowVirtualPanel(QWidget* parent);
// Closes both if open: the frame does so before it lets the instrument go, so
// the screen loop asks nothing of a link being closed.
void CloseVirtualPanelWindows();
