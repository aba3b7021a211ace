#!/usr/bin/env bash
# Pictures of the controller pane after a download from a simulated instrument,
# every group expanded, connected over HiSLIP under a virtual X server with a
# fresh settings store: OUT-english.png and OUT-chinese.png. With "editor" the
# value editor's list, number and fine adjust dialogs are saved beside them.
#   tools/ctrl_screenshot.sh OUT.png [BUILD_DIR] [editor]
set -euo pipefail
cd "$(dirname "$0")/.."
out="$(realpath -m "${1:?usage: tools/ctrl_screenshot.sh OUT.png [BUILD_DIR]}")"
build="${2:-build}"
source tools/shotsetup.sh
shot_require "$build/tools/selvane-ctrlshot" "$build/sim/kv7200b-sim"

source tools/simstart.sh

for language in english chinese; do
    rm -rf "$work/config"
    XDG_CONFIG_HOME="$work/config" SELVANE_VISA=builtin \
        SELVANE_VISA_RESOURCES="TCPIP0::127.0.0.1::hislip0,${port}::INSTR" \
        xvfb-run -a -s "-screen 0 1280x800x24" "$build/tools/selvane-ctrlshot" "${out%.png}-$language.png" "$language" ${3:-}
done
