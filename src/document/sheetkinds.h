#pragma once
// The five kinds of child window a data sheet holds: their labels, the size of
// their slot tables and how many windows of each one sheet may have.

#include <QString>
#include <array>

enum class SheetKind : int { Measure, Data, Wave, MemoryWave, Record };
inline constexpr int SheetKindCount = 5;
inline constexpr std::array<SheetKind, SheetKindCount> AllSheetKinds{
    SheetKind::Measure, SheetKind::Data, SheetKind::Wave, SheetKind::MemoryWave, SheetKind::Record};

inline constexpr int KindIndex(SheetKind kind)
{
    return static_cast<int>(kind);
}

// The kind's label in a language ("Wave", "波形"); new windows are named after it.
QString KindLabel(SheetKind kind, int language);
// Elements in the kind's slot table; the last ones are never filled.
int KindTableSize(SheetKind kind);
// The most windows of the kind one sheet holds.
int KindWindowLimit(SheetKind kind);
// The class name of the kind's window.
QString KindWindowName(SheetKind kind);
