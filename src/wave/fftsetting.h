#pragma once
// The FFT dialog's logic: which wave records it can target, what a target
// allows, and the placeholder spectrum it stores. Real spectra come only from
// the instrument; the placeholder merely marks the record the user chose.

#include <QString>
#include <QStringList>
#include <array>
#include <optional>

inline constexpr int FftPlaceholderCount = 1024;

// What the dialog stores beside the record's FFT array; nothing reads it back.
struct FftPlaceholder {
    bool Placeholder = false;
    QString WindowText; // the FFT window chosen, "Hanning" ...
    int Count = 0;
    bool FullScreen = false; // OptScreen(0)
};
extern std::array<FftPlaceholder, 18> FftPlaceholders;

inline const QString NoTargetText = QStringLiteral("None");

const QStringList& FftWindowNames();
// The spectrum's scale names: the Vrms measure's name in the language, then "dBVrms".
QStringList FftScaleNames(int language);

// The titles of the open sheet's wave records, in slot order; "None" when there is none.
QStringList FftTargetTitles();

struct FftTarget {
    int slot = -1; // -1: no target
    bool okEnabled = false;
    // Sources the record's last channel allows; empty: the list stays as it is.
    std::optional<QStringList> sources;
    // Last channel 4 disables the source list; any other target leaves it as it is.
    bool disablesSource = false;
};

// The target a title names: "None" or a record without data can't be taken.
FftTarget ChooseFftTarget(const QString& title);

// Stores the placeholder spectrum (values 0 to 254) and the choices in the slot.
void StoreFftPlaceholder(int slot, const QString& windowText, bool fullScreen);

void ResetFftPlaceholders();
