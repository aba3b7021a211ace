#pragma once
// Failing text comparisons print as text.

#include <QString>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* os)
{
    *os << '"' << text.toStdString() << '"';
}
