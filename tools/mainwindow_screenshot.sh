#!/usr/bin/env bash
# Pictures of the main window with the toolbar, the controller pane after a
# download and a data sheet holding one window of each kind (wave, measure and
# data refreshed; memory wave and record on files the simulator wrote),
# connected over HiSLIP under a virtual X server with a fresh settings store:
# OUT_PREFIX-en.png and OUT_PREFIX-zh.png.
#   tools/mainwindow_screenshot.sh OUT_PREFIX [BUILD_DIR]
set -euo pipefail
cd "$(dirname "$0")/.."
out="$(realpath -m "${1:?usage: tools/mainwindow_screenshot.sh OUT_PREFIX [BUILD_DIR]}")"
build="${2:-build}"
size="${MAINSHOT_SIZE:-1680x1150}"
source tools/shotsetup.sh
shot_require "$build/tools/selvane-mainshot" "$build/sim/kv7200b-sim"

source tools/simstart.sh

"$build/sim/kv7200b-sim" write-wfm "$work/stored.wfm"
"$build/sim/kv7200b-sim" write-rcd "$work/record.rcd" --frames 50
for language in en zh; do
    rm -rf "$work/config"
    XDG_CONFIG_HOME="$work/config" SELVANE_VISA=builtin \
        SELVANE_VISA_RESOURCES="TCPIP0::127.0.0.1::hislip0,${port}::INSTR" \
        xvfb-run -a -s "-screen 0 ${size}x24" "$build/tools/selvane-mainshot" "$out-$language.png" \
        "$([ $language = zh ] && echo chinese || echo english)" "$size" "$work/stored.wfm" "$work/record.rcd"
done
