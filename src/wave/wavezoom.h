#pragma once
// The zoom of a wave picture as the user types and reads it: a percentage text.

#include <QString>
#include <QStringList>
#include <optional>

// The largest zoom a window takes. Higher factors would ask for a picture of
// hundreds of megabytes; a typed zoom above it is held there, as one below the
// floor is held at MinZoom.
inline constexpr double MaxViewZoom = 10.0;

// The entries of the zoom list.
const QStringList& ZoomChoices();

// The zoom of a text such as "150%": the number before the "%" over 100.
// Empty when the text doesn't end in "%" or the rest is no number.
std::optional<double> ParseZoomText(const QString& text);

// The zoom held between the floor and MaxViewZoom.
double LimitZoom(double zoom);

// The zoom as a whole percentage, "150%".
QString ZoomText(double zoom);
