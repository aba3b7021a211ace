"""Drives kv7200b-sim through pyvisa on our VISA library, as a user's script would.

usage: pyvisa_session.py LIBRARY TRANSPORT RESOURCE [SILENT_RESOURCE]
TRANSPORT is socket, hislip, vxi11 or asrl. Prints one line per check; exits
non-zero on the first failure.
"""
import ctypes
import sys

import pyvisa
from pyvisa import constants, errors

library, transport, resource = sys.argv[1:4]
silent_resource = sys.argv[4] if len(sys.argv) > 4 else None
IDN = "Korva Technologies,KV7204B,KV7204T0007,00.03.03.SP1"
STATUS = constants.StatusCode


def check(condition, what):
    if not condition:
        raise AssertionError(what)
    print("ok", transport, what)


def expect_error(code, what, action):
    try:
        action()
    except errors.VisaIOError as error:
        check(error.error_code == code, "%s: %s" % (what, error.error_code))
        return
    raise AssertionError(what + ": no error")


rm = pyvisa.ResourceManager(library)
options = {"read_termination": "\n", "write_termination": "\n"}
if transport == "asrl":
    options["baud_rate"] = 115200
inst = rm.open_resource(resource, **options)
check(inst.query("*IDN?") == IDN, "query")

inst.timeout = 4321
check(inst.timeout == 4321, "timeout read back")
inst.timeout = 5000

if transport != "asrl":  # the instrument sends blocks over the network only
    codes = inst.query_binary_values(":WAVEFORM:SCREENDATA? CHANNEL1", datatype="B", container=bytes)
    check(len(codes) == 600, "screen block of %d bytes" % len(codes))

inst.write("*IDN?")
raw = inst.read_raw()
check(raw == (IDN + "\n").encode(), "read_raw keeps the terminator")

# Another write terminator, and reads that keep the line feed in the text.
inst.write_termination = "\r\n"
inst.read_termination = None
inst.write("*IDN?")
check(inst.read() == IDN + "\n", "custom terminations")
inst.read_termination = "\n"
inst.write_termination = "\n"

inst.clear()
check(inst.query("*IDN?") == IDN, "query after clear")

if transport in ("hislip", "vxi11"):
    check(0 <= inst.read_stb() <= 255, "read_stb")
else:
    expect_error(STATUS.error_nonsupported_operation, "read_stb without 488.2 strings", inst.read_stb)

key = inst.lock()
check(bool(key), "shared lock with key %s" % key)
inst.unlock()
inst.lock_excl()
other = rm.open_resource(resource, **options)
expect_error(STATUS.error_resource_locked, "another session is locked out", lambda: other.write("*IDN?"))
inst.unlock()
check(other.query("*IDN?") == IDN, "unlocked for the other session")
other.close()

if transport == "asrl":
    check(inst.baud_rate == 115200, "baud rate")
    inst.stop_bits = constants.StopBits.two
    inst.flow_control = constants.ControlFlow.rts_cts
    check((inst.stop_bits, inst.flow_control) == (constants.StopBits.two, constants.ControlFlow.rts_cts),
          "stop bits and flow control")
    inst.stop_bits = constants.StopBits.one
    inst.flow_control = constants.ControlFlow.none
    # A pseudo-terminal has no parity; the line refuses it and keeps what it had.
    expect_error(STATUS.error_io, "parity refused by the line", lambda: setattr(inst, "parity", constants.Parity.even))
    check(inst.parity == constants.Parity.none, "parity unchanged")
    check(inst.query("*IDN?") == IDN, "query after line changes")
    check(inst.end_input == constants.SerialTermination.termination_char, "end input")
else:
    check(inst.get_visa_attribute(constants.ResourceAttribute.tcpip_address) == "127.0.0.1", "TCPIP address")
if transport == "hislip":
    inst.set_visa_attribute(constants.ResourceAttribute.tcpip_hislip_max_message_kb, 64)
    # pyvisa 1.11 misspells this attribute's type and cannot read it; ask the library directly.
    kb = ctypes.c_uint32()
    inst.visalib.lib.viGetAttribute(inst.session, constants.VI_ATTR_TCPIP_HISLIP_MAX_MESSAGE_KB, ctypes.byref(kb))
    check(kb.value == 64, "message size")
    check(inst.query("*IDN?") == IDN, "query after renegotiating the message size")

inst.close()

if silent_resource:
    mute = rm.open_resource(silent_resource, **options)
    mute.timeout = 300
    expect_error(STATUS.error_timeout, "silent instrument times out", lambda: mute.query("*IDN?"))
    mute.close()

listed = rm.list_resources("TCPIP?*")
check("TCPIP0::192.0.2.7::inst0::INSTR" in listed, "configured resource listed: %s" % (listed,))
rm.close()
print("done", transport)
