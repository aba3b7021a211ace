#!/usr/bin/env bash
# A picture of what the program shows with a simulated instrument: a data sheet
# with two wave windows (SHEETSHOT_MODE=analysis: a measure and a data window),
# connected over HiSLIP and refreshed, under a virtual X server, with a fresh
# settings store.
#   tools/wave_screenshot.sh OUT.png [BUILD_DIR]
set -euo pipefail
cd "$(dirname "$0")/.."
out="$(realpath -m "${1:?usage: tools/wave_screenshot.sh OUT.png [BUILD_DIR]}")"
build="${2:-build}"
for p in "$build/tools/selvane-sheetshot" "$build/sim/kv7200b-sim"; do
    [ -x "$p" ] || { echo "no program at $p; build first" >&2; exit 1; }
done
command -v xvfb-run >/dev/null || { echo "xvfb-run is missing (apt-get install xvfb xauth)" >&2; exit 1; }

work="$(mktemp -d)"
sim_pid=""
cleanup() {
    [ -n "$sim_pid" ] && kill "$sim_pid" 2>/dev/null && wait "$sim_pid" 2>/dev/null
    rm -rf "$work"
}
trap cleanup EXIT

"$build/sim/kv7200b-sim" --hislip-port 0 --socket-port off --vxi11-port off --portmapper-port off --pty off \
    >"$work/sim.out" &
sim_pid=$!
for _ in $(seq 100); do
    grep -qx ready "$work/sim.out" && break
    sleep 0.1
done
grep -qx ready "$work/sim.out" || { echo "kv7200b-sim did not start" >&2; exit 1; }
port="$(awk '$1 == "hislip" { print $3 }' "$work/sim.out")"

XDG_CONFIG_HOME="$work" SELVANE_VISA=builtin SELVANE_VISA_RESOURCES="TCPIP0::127.0.0.1::hislip0,${port}::INSTR" \
    xvfb-run -a -s "-screen 0 1280x800x24" "$build/tools/selvane-sheetshot" "$out" "${SHEETSHOT_MODE:-wave}"
