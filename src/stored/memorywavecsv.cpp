#include "stored/memorywavecsv.h"

#include "stored/wfmfile.h"

#include <QSaveFile>
#include <algorithm>
#include <charconv>
#include <cmath>

void AppendCsvNumber(QByteArray& out, double value)
{
    if (!std::isfinite(value)) {
        out += "???.?";
        return;
    }
    const bool large = value >= 1;
    char buf[40];
    const auto res = std::to_chars(buf, buf + sizeof buf, std::fabs(value), std::chars_format::scientific);
    // Shortest text "d.ddde+XX": its digits and exponent, rounded half away from zero to three digits.
    char digits[4] = {'0', '0', '0', '0'};
    int n = 0, exponent = 0;
    for (const char* p = buf; p < res.ptr; ++p) {
        if (*p == 'e') {
            std::from_chars(p + (p[1] == '+' ? 2 : 1), res.ptr, exponent);
            break;
        }
        if (*p != '.' && n < 4) digits[n++] = *p;
    }
    int mantissa = (digits[0] - '0') * 100 + (digits[1] - '0') * 10 + (digits[2] - '0');
    if (digits[3] >= '5') ++mantissa;
    if (mantissa >= 1000) {
        mantissa /= 10;
        ++exponent;
    }
    if (mantissa == 0) exponent = 0;
    if (value < 0 && mantissa != 0) out += '-';
    out += char('0' + mantissa / 100);
    out += '.';
    out += char('0' + mantissa / 10 % 10);
    out += char('0' + mantissa % 10);
    out += 'E';
    if (exponent < 0)
        out += '-';
    else if (large)
        out += '+';
    const int magnitude = std::abs(exponent);
    if (magnitude >= 100) out += char('0' + magnitude / 100);
    out += char('0' + magnitude / 10 % 10);
    out += char('0' + magnitude % 10);
}

bool MemoryWaveCsvAllowed(const MemoryWaveSlot& slot)
{
    return slot.ChanEnabled[0] || slot.ChanEnabled[1];
}

namespace {

struct CsvChannel {
    int n = 0;
    const std::vector<int16_t>* samples = nullptr;
    double position = 0; // code, cut to 16 bits
    double voltDiv = 0;
    double interval = 0;
    double start = 0;
    bool peak = false;

    double volts(qint64 i) const
    {
        const int code = i < qint64(samples->size()) ? (*samples)[size_t(i)] : 0;
        return ((100 - position) - (code - 25)) * voltDiv / 25.0;
    }
    double time(qint64 i, qint64 count) const
    {
        const double step = peak ? (i - count / 2.0) / 2 : i - count / 2.0;
        return step * interval + start;
    }
};

double cutTo16(double value)
{
    if (!std::isfinite(value)) return 0;
    return std::clamp(std::trunc(value), -32768.0, 32767.0);
}

std::vector<CsvChannel> channelsOn(const MemoryWaveSlot& slot)
{
    std::vector<CsvChannel> channels;
    const MemoryWaveSettings& loaded = slot.Loaded;
    for (int n = 0; n < 4; ++n) {
        if (!slot.ChanEnabled[size_t(n)]) continue;
        CsvChannel c;
        c.n = n;
        c.samples = &slot.Samples[size_t(n)];
        c.voltDiv = loaded.ChanVoltDiv[size_t(n)];
        c.position = cutTo16(double(loaded.ChanOffset[size_t(n)]) / c.voltDiv * 25);
        const MemoryTimeBase base = slot.timeBaseOf(n);
        const float rate = base == MemoryTimeBase::A   ? loaded.SampleRateA
                           : base == MemoryTimeBase::B ? loaded.SampleRateB
                                                       : loaded.SampleRate;
        c.interval = 1 / double(rate);
        c.start = base == MemoryTimeBase::A   ? loaded.StartTimeA
                  : base == MemoryTimeBase::B ? loaded.StartTimeB
                                              : loaded.StartTime;
        c.peak = slot.ChanPeakState[size_t(n)];
        channels.push_back(c);
    }
    return channels;
}

void alternationHeader(QByteArray& out, const std::vector<CsvChannel>& channels)
{
    for (const CsvChannel& c : channels)
        out += c.n == 3 ? "CH4,CH4" : QByteArray("CH") + char('1' + c.n) + ",CH" + char('1' + c.n) + ",";
    out += "\r\n";
    for (const CsvChannel& c : channels)
        out += c.n == 3 ? "Second[S],Voltage[V]" : "Second[S],Voltage[V],";
    out += "\r\n";
}

void singleHeader(QByteArray& out, const std::vector<CsvChannel>& channels)
{
    out += "X";
    for (const CsvChannel& c : channels)
        out += QByteArray(",CH") + char('1' + c.n);
    out += "\r\nSecond[S]";
    for (size_t k = 0; k < channels.size(); ++k)
        out += ",Voltage";
    out += "\r\n";
}

} // namespace

QByteArray MemoryWaveCsv(const MemoryWaveSlot& slot, const CsvRowHook& afterRow)
{
    const std::vector<CsvChannel> channels = channelsOn(slot);
    // No channel holds more samples than the reader's buffer.
    const qint64 count = slot.IsAlternation ? slot.SampleCountA : slot.SampleCount;
    const qint64 rows = std::clamp<qint64>(count, 0, WfmBufferSize);
    QByteArray out;
    out.reserve(qsizetype(rows) * qsizetype(11 + 20 * channels.size()) + 200);
    if (slot.IsAlternation)
        alternationHeader(out, channels);
    else
        singleHeader(out, channels);
    const bool singlePeak = !channels.empty() && slot.ChanPeakState[0];
    for (qint64 i = 0; i < rows; ++i) {
        if (slot.IsAlternation) {
            for (const CsvChannel& c : channels) {
                if (!c.peak || i % 2 == 0) AppendCsvNumber(out, c.time(i, count));
                out += ',';
                AppendCsvNumber(out, c.volts(i));
                out += ',';
            }
        } else {
            if (channels.empty() || !singlePeak || i % 2 == 0) {
                CsvChannel timing = channels.empty() ? CsvChannel{} : channels.front();
                timing.peak = singlePeak;
                AppendCsvNumber(out, timing.time(i, count));
            }
            for (const CsvChannel& c : channels) {
                out += ',';
                AppendCsvNumber(out, c.volts(i));
            }
        }
        out += "\r\n";
        if (afterRow) afterRow(i, rows);
    }
    return out;
}

QString WriteMemoryWaveCsv(const MemoryWaveSlot& slot, const QString& path, const CsvRowHook& afterRow)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return file.errorString();
    file.write(MemoryWaveCsv(slot, afterRow));
    if (!file.commit()) return file.errorString();
    return {};
}
