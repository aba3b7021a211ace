#pragma once
// The mode texts a reading stores in its record, as the drawing tests them.

#include <QString>

inline bool IsAlternation(const QString& triggerMode)
{
    return triggerMode == QLatin1String("ALTERNATION");
}

// A display text of math or FFT ("ON" or "OFF").
inline bool IsDisplayOn(const QString& displayText)
{
    return displayText == QLatin1String("ON");
}
