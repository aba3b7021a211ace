#pragma once
// Writer and reader behind one vocabulary, so a section lists its fields once
// (a template over SheetPut or SheetGet) and writing and reading cannot drift
// apart. A section adds what is special to it by deriving.

#include "sheet/sheetcodec.h"

#include <QString>
#include <cstdint>

struct SheetPut {
    SheetWriter& out;
    void text(const QString& v) { out.text(v); }
    void flag(bool v) { out.flag(v); }
    void int32(int32_t v) { out.integer(v); }
    void int16(int16_t v) { out.integer(v); }
    void int8(int8_t v) { out.integer(v); }
    void byte(uint8_t v) { out.integer(v); }
    void single(float v) { out.single(v); }
    void real(double v) { out.real(v); }
    // A single kept in a double's place.
    void widened(float v) { out.real(double(v)); }
};

struct SheetGet {
    SheetReader& in;
    void text(QString& v) { v = in.text(); }
    void flag(bool& v) { v = in.flag(); }
    void int32(int32_t& v) { v = in.int32(); }
    void int16(int16_t& v) { v = in.int16(); }
    void int8(int8_t& v) { v = static_cast<int8_t>(in.integer()); }
    void byte(uint8_t& v) { v = static_cast<uint8_t>(in.integer()); }
    void single(float& v) { v = in.single(); }
    void real(double& v) { v = in.real(); }
    void widened(float& v) { v = static_cast<float>(in.real()); }
};
