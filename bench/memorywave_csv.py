#!/usr/bin/python3
"""Save to CSV of a memory wave, written with the standard csv module, to set
the speed of bench_memorywave's BM_CsvRows beside it and to check that both
write the same text. Reads the .wfm files that BM_CsvRows leaves in the
temporary folder (or those given) and compares with its .csv beside them.

    /usr/bin/python3 bench/memorywave_csv.py [FILE.wfm ...]
"""
import csv
import io
import math
import os
import struct
import sys
import tempfile
import time
from decimal import Decimal


def f32(value):
    return struct.unpack('<f', struct.pack('<f', value))[0]


def tick(b, at):
    (ps,) = struct.unpack_from('<q', b, at)
    low, high = ps & 0xffffffff, ps >> 32
    return low / 1e12 + high * 0.004294967296


def number(v):
    """Mask "0.00E+00" from 1 up, "0.00E-00" below, rounded half away from zero
    on the shortest decimal text of the value."""
    if not math.isfinite(v):
        return '???.?'
    _, digits, exp = Decimal(repr(abs(v))).as_tuple()
    exponent = len(digits) - 1 + exp
    d = (list(digits) + [0, 0, 0, 0])[:4]
    mantissa = d[0] * 100 + d[1] * 10 + d[2] + (1 if d[3] >= 5 else 0)
    if mantissa >= 1000:
        mantissa //= 10
        exponent += 1
    if mantissa == 0:
        exponent = 0
    sign = '-' if v < 0 and mantissa else ''
    esign = '-' if exponent < 0 else ('+' if v >= 1 else '')
    m = '%03d' % mantissa
    return '%s%s.%sE%s%02d' % (sign, m[0], m[1:], esign, abs(exponent))


def read(path):
    b = open(path, 'rb').read(2100001)
    alt = b[200] == 4
    (count_a,) = struct.unpack_from('<i', b, 60)
    peak_mode = struct.unpack_from('<i', b, 404)[0] == 2
    flags, src_a, src_b = b[402], b[202], b[232]
    odd = src_b == 1 or src_a == 2
    if not alt:
        peaks = [peak_mode and bool(flags & 1)] * 4
    else:
        p1, p4 = peak_mode and bool(flags & 2), peak_mode and bool(flags & 4)
        peaks = [p1, p4 if odd else p1, p1 if odd else p4, p4]
    bases = {'A': (f32(struct.unpack_from('<f', b, 180)[0]), tick(b, 192)),
             'B': (f32(struct.unpack_from('<f', b, 288)[0]), tick(b, 300))}
    channels = []
    for n in range(4):
        at = 68 + 24 * n
        scale, shift = struct.unpack_from('<ih', b, at)
        if b[at + 14] != 1:
            continue
        vdiv = f32(scale / 1e6)
        offset = f32((shift / 25.0) * (scale / 1e6))
        p = max(-32768.0, min(32767.0, math.trunc(offset / vdiv * 25)))
        if alt:
            start = 504 + n * count_a
            base = 'A' if n == 0 or (n == 1 and not odd) or (n == 2 and odd) else 'B'
        else:
            long_memory = b[52] != 0
            start = 420 + ((n // 2) * 0x4000 if long_memory else n * 0x2000)
            base = 'A'
        rate, t0 = bases[base]
        data = b[start:start + count_a]
        codes = list(data) + [0] * (count_a - len(data))
        channels.append((n, codes, p, vdiv, 1 / rate, t0, peaks[n]))
    return alt, count_a, channels


def rows(alt, count, channels):
    if alt:
        head = [x for n, *_ in channels for x in ('CH%d' % (n + 1),) * 2]
        second = ['Second[S]', 'Voltage[V]'] * len(channels)
        if not channels or channels[-1][0] != 3:
            head.append('')
            second.append('')
        yield head
        yield second
        for i in range(count):
            row = []
            for n, codes, p, vd, interval, t0, peak in channels:
                step = (i - count / 2.0) / 2 if peak else i - count / 2.0
                row.append('' if peak and i % 2 else number(step * interval + t0))
                row.append(number(((100 - p) - (codes[i] + 25 - 25)) * vd / 25.0))
            row.append('')
            yield row
    else:
        yield ['X'] + ['CH%d' % (c[0] + 1) for c in channels]
        yield ['Second[S]'] + ['Voltage'] * len(channels)
        _, _, _, _, interval, t0, _ = channels[0]
        peak = channels[0][6]  # outside ALTERNATION every channel shares the peak flag
        for i in range(count):
            step = (i - count / 2.0) / 2 if peak else i - count / 2.0
            row = ['' if peak and i % 2 else number(step * interval + t0)]
            row += [number(((100 - p) - (codes[i] + 25 - 25)) * vd / 25.0) for _, codes, p, vd, *_ in channels]
            yield row


def main():
    paths = sys.argv[1:] or [os.path.join(tempfile.gettempdir(), n + '.wfm')
                             for n in ('memorywave', 'memorywave_peak')]
    for path in paths:
        alt, count, channels = read(path)
        out = io.StringIO(newline='')
        began = time.perf_counter()
        csv.writer(out, lineterminator='\r\n').writerows(rows(alt, count, channels))
        seconds = time.perf_counter() - began
        text = out.getvalue().encode('latin-1')
        expected_path = os.path.splitext(path)[0] + '.csv'
        same = os.path.exists(expected_path) and open(expected_path, 'rb').read() == text
        print('%s: %d rows in %.3f s, %.0f rows/s, identical to %s: %s'
              % (os.path.basename(path), count, seconds, count / seconds, os.path.basename(expected_path),
                 'yes' if same else 'NO'))


if __name__ == '__main__':
    main()
