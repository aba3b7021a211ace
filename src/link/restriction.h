#pragma once
// Why a setting can't be changed now, or why the instrument was refused.

#include <QString>

enum RestrictionCode : int {
    RestrictionNone = 0, // no particular reason: "can't be used"
    RestrictionTrigger = 1,
    RestrictionHorizontal = 2,
    RestrictionFirmware = 3,
};

// 0 Chinese, any other language English; an unknown number gives the general text.
QString RestrictionMessage(int number, int language);
