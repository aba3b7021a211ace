"""pyvisa on our VISA library against pyvisa-py, same simulator, same script.

usage: /usr/bin/python3 bench/pyvisa_backends.py build/sim/kv7200b-sim build/src/libselvanevisa.so [N]

Starts kv7200b-sim on free ports, then for each library and transport times N
round trips of "*IDN?" and of the 600-byte screen block, and prints the mean
time per round trip. pyvisa-py has no HiSLIP before 0.6; those rows say so.
"""
import subprocess
import sys
import time

import pyvisa

sim_path, library = sys.argv[1], sys.argv[2]
count = int(sys.argv[3]) if len(sys.argv) > 3 else 500
free = ["--socket-port", "0", "--vxi11-port", "0", "--portmapper-port", "0", "--hislip-port", "0", "--pty", "off"]
sim = subprocess.Popen([sim_path] + free, stdout=subprocess.PIPE, text=True)
ports = {}
for line in sim.stdout:
    words = line.split()
    if words == ["ready"]:
        break
    ports[words[0]] = words[-1]

names = {
    "SOCKET": "TCPIP0::127.0.0.1::%s::SOCKET" % ports["socket"],
    "HiSLIP": "TCPIP0::127.0.0.1::hislip0,%s::INSTR" % ports["hislip"],
}


def per_call_us(action):
    action()
    start = time.perf_counter()
    for _ in range(count):
        action()
    return (time.perf_counter() - start) / count * 1e6


try:
    print("%-22s %-7s %12s %16s" % ("library", "link", "*IDN? us", "600-byte block us"))
    for label, backend in (("ours (libselvanevisa)", library), ("pyvisa-py", "@py")):
        rm = pyvisa.ResourceManager(backend)
        for link, name in names.items():
            try:
                inst = rm.open_resource(name, read_termination="\n", write_termination="\n", timeout=5000)
            except Exception as error:  # pyvisa-py without HiSLIP
                print("%-22s %-7s %12s %16s  (%s)" % (label, link, "n/a", "n/a", type(error).__name__))
                continue
            idn = per_call_us(lambda: inst.query("*IDN?"))
            block = per_call_us(
                lambda: inst.query_binary_values(":WAVEFORM:SCREENDATA? CHANNEL1", datatype="B", container=bytes))
            print("%-22s %-7s %12.1f %16.1f" % (label, link, idn, block))
            inst.close()
        rm.close()
finally:
    sim.terminate()
    sim.wait()
