#pragma once
// The delimited form of the data sheet file: one value per line ending in
// CR LF, text in double quotes, flags as #TRUE# and #FALSE#, numbers in
// decimal with a point and the fewest digits that keep the value.

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <cstdint>
#include <vector>

class SheetWriter {
  public:
    void text(const QString& value);
    void flag(bool value);
    void integer(int64_t value);
    void single(float value);
    void real(double value);

    const QByteArray& bytes() const { return out; }

  private:
    void line(const QByteArray& value);
    QByteArray out;
};

// Reads values in the order they were written. Past the last line every value
// reads empty: "", false, 0.
class SheetReader {
  public:
    explicit SheetReader(const QByteArray& content);

    QString text();
    bool flag();
    int64_t integer();
    int16_t int16() { return static_cast<int16_t>(integer()); }
    int32_t int32() { return static_cast<int32_t>(integer()); }
    float single();
    double real();

    bool atEnd() const { return next >= data.size(); }
    // Whether the next value is a text: a run of numbers ends before it.
    bool nextIsText() const { return !atEnd() && data.at(next) == '"'; }

  private:
    // The next line without its CR LF; empty past the end.
    QByteArrayView take();
    QByteArray data;
    qsizetype next = 0;
};
