#pragma once
// One row of a formatter table: a routine of text, its input and the text it must give.

#include <QString>
#include <ostream>

// Failures show texts as text, not as arrays of UTF-16 units.
inline void PrintTo(const QString& text, std::ostream* os)
{
    *os << '"' << text.toStdString() << '"';
}

struct TextCase {
    const char* routine;
    QString (*format)(const QString&);
    const char* input;
    const char* expected;
};

inline void PrintTo(const TextCase& c, std::ostream* os)
{
    *os << c.routine << "(\"" << c.input << "\") -> \"" << c.expected << "\"";
}
