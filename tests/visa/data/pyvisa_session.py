"""A user's pyvisa script on our VISA library: one query and one block read.

usage: pyvisa_session.py LIBRARY RESOURCE
"""
import sys

import pyvisa

library, resource = sys.argv[1:3]
rm = pyvisa.ResourceManager(library)
inst = rm.open_resource(resource, read_termination="\n", write_termination="\n")
idn = inst.query("*IDN?")
codes = inst.query_binary_values(":WAVEFORM:SCREENDATA? CHANNEL1", datatype="B", container=bytes)
inst.close()
rm.close()
print(idn, len(codes))
