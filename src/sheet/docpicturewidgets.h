#pragma once
// The small pictures beside the choices of the New and Open document dialogs,
// drawn here so they look the same on every desktop theme.

#include <QPixmap>

// The picture of choice 1 to 7 (data sheet, controller, wave, measure, wave
// data, record, memory wave); any other number gives an empty frame.
QPixmap DocChoicePicture(int choice);
