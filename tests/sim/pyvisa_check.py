#!/usr/bin/env python3
"""Talks to a running kv7200b-sim through an independent VISA client
(pyvisa with the pure-Python backend): asks *IDN? and reads one waveform
block, over a raw socket and, when asked, over VXI-11 (which always goes
through the portmapper on port 111).

Exit status: 0 when every check passed, 77 when pyvisa is missing, 1 on a
failed check."""

import argparse
import sys

try:
    import pyvisa
except ImportError:
    print("pyvisa is not installed")
    sys.exit(77)


def check(rm, resource, idn, **options):
    inst = rm.open_resource(resource, **options)
    inst.timeout = 5000
    try:
        got = inst.query("*IDN?").strip()
        if got != idn:
            raise AssertionError(f"{resource}: *IDN? gave {got!r}, not {idn!r}")
        block = inst.query_binary_values(":WAVEFORM:SCREENDATA? CHANNEL1", datatype="B",
                                         container=bytes, header_fmt="ieee", expect_termination=True)
        if not block:
            raise AssertionError(f"{resource}: empty waveform block")
        print(f"{resource}: {got}; block of {len(block)} bytes")
    finally:
        inst.close()


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--socket-port", type=int, required=True)
    parser.add_argument("--idn", required=True)
    parser.add_argument("--instr", action="store_true", help="also check TCPIP0::127.0.0.1::inst0::INSTR")
    args = parser.parse_args()

    rm = pyvisa.ResourceManager("@py")
    try:
        check(rm, f"TCPIP0::127.0.0.1::{args.socket_port}::SOCKET", args.idn,
              read_termination="\n", write_termination="\n")
        if args.instr:
            check(rm, "TCPIP0::127.0.0.1::inst0::INSTR", args.idn)
    except Exception as error:  # any failure of the client is a failed check
        print(f"FAILED: {error!r}")
        return 1
    finally:
        rm.close()
    return 0


if __name__ == "__main__":
    sys.exit(main())
