#pragma once
// The pattern trigger's code: five inputs (CH1 to CH4 and the external one),
// each don't care, high, low, rising or falling, with at most one edge. The
// instrument answers the pattern in words ("EXT", "NONE", "POSITIVE") and takes
// it in numbers; these routines hold both forms.

#include <QString>
#include <array>

enum PatternCodeNumber : int16_t { CodeX = 0, CodeHigh = 1, CodeLow = 2, CodeUp = 3, CodeDown = 4 };
using PatternCodes = std::array<int16_t, 5>;

// "H", "L", "Up", "Dn", anything else "X".
QString GetCodeString(int code);
// The wire text of codes: value, mask, external flag[, edge input, direction].
QString PatternWireText(const PatternCodes& codes, bool extIsDiv5);
// The same from CtrlData's PatternEdge and PatternExtIsDiv5.
QString BuildPatternString();
// Input 4's code, "5" when the external input is EXT/5, then inputs 3 to 0.
QString BuildPatternDispString();
// The tree's text of a code: H, L, X in the language's words, edges as "Rising"/"Falling".
QString PatternCodeText(int code, int language);
// A reply into PatternEdge, PatternExtIsDiv5 and PatternCode; empty changes nothing.
void ParsePatternString(const QString& reply);
// The six rows of PatternCode from PatternEdge and PatternExtIsDiv5.
void FillPatternCodes();
// Sends and returns the command for an edit of PatternCode row changedRow (0 to 3 channels, 4 EXT,
// 5 EXT/5); a new edge clears every other edge row first.
QString BuildPatternCommand(int changedRow);
// Sends the level of input (0 to 4) from its division text; other inputs do nothing.
void SendPatternLevel(int input, const QString& levelDivText);
