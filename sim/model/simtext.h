#pragma once
// Number texts of the instrument's replies and the numbers its commands carry.

#include <QByteArray>
#include <QString>
#include <optional>

// The instrument's scientific notation: "1.000e+00", ended by a line feed.
QByteArray sciReply(double value);
// A text reply: the words and a line feed.
QByteArray textReply(const QByteArray& text);
// "1" or "0" and a line feed.
QByteArray flagReply(bool on);

// A number as commands carry it: plain ("0.5", "-2"), in exponent form
// ("500.0e-6", "2.000E0"), or with a multiplier and unit as the editor
// upper-cases them ("100MV", "1.00KV", "1US", "0.40div"). M is milli.
std::optional<double> parseNumber(const QByteArray& text);
// "ON"/"1" true, "OFF"/"0" false.
std::optional<bool> parseFlag(const QByteArray& upperText);

// Three significant digits and a multiplier: "500us", "1.00V", "-20.0mV".
QString engineeringText(double value, const QString& unit);
