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
source tools/shotsetup.sh
shot_require "$build/tools/selvane-sheetshot" "$build/sim/kv7200b-sim"

source tools/simstart.sh

XDG_CONFIG_HOME="$work" SELVANE_VISA=builtin SELVANE_VISA_RESOURCES="TCPIP0::127.0.0.1::hislip0,${port}::INSTR" \
    xvfb-run -a -s "-screen 0 1280x800x24" "$build/tools/selvane-sheetshot" "$out" "${SHEETSHOT_MODE:-wave}"
