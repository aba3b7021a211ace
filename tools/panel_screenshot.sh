#!/usr/bin/env bash
# Pictures of the virtual panel with the live screen of a simulated instrument,
# before and after two presses of CH1's volts key, and of the virtual keyboard,
# connected over HiSLIP under a virtual X server with a fresh settings store:
# OUT-english-{live,volts,keyboard}.png and the same for chinese.
#   tools/panel_screenshot.sh OUT.png [BUILD_DIR]
set -euo pipefail
cd "$(dirname "$0")/.."
out="$(realpath -m "${1:?usage: tools/panel_screenshot.sh OUT.png [BUILD_DIR]}")"
build="${2:-build}"
source tools/shotsetup.sh
shot_require "$build/tools/selvane-panelshot" "$build/sim/kv7200b-sim"

source tools/simstart.sh

for language in english chinese; do
    rm -rf "$work/config"
    XDG_CONFIG_HOME="$work/config" SELVANE_VISA=builtin \
        SELVANE_VISA_RESOURCES="TCPIP0::127.0.0.1::hislip0,${port}::INSTR" \
        xvfb-run -a -s "-screen 0 1280x800x24" "$build/tools/selvane-panelshot" "${out%.png}-$language.png" "$language"
done
