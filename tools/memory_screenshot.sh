#!/usr/bin/env bash
# A picture of a memory wave window: the simulator stores a waveform file with
# CH1 and CH2 on (its other channels switched off in the file), the program opens
# it in a new data sheet and shows both cursor pairs, under a virtual X server.
#   tools/memory_screenshot.sh OUT.png [BUILD_DIR] [write-wfm flags, e.g. --alternation]
set -euo pipefail
cd "$(dirname "$0")/.."
out="$(realpath -m "${1:?usage: tools/memory_screenshot.sh OUT.png [BUILD_DIR] [flags]}")"
build="${2:-build}"
shift $(( $# > 1 ? 2 : 1 ))
source tools/shotsetup.sh
shot_require "$build/tools/selvane-sheetshot" "$build/sim/kv7200b-sim"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
"$build/sim/kv7200b-sim" write-wfm "$work/stored.wfm" "$@"
# Enabled of CH3 and CH4 (offsets 68 + 24n + 14) to 0.
for at in 130 154; do printf '\0' | dd of="$work/stored.wfm" bs=1 seek=$at conv=notrunc status=none; done
# Opened from its own folder, so the window's title names the file, not a temporary path.
program="$(realpath "$build/tools/selvane-sheetshot")"
cd "$work"
XDG_CONFIG_HOME="$work" xvfb-run -a -s "-screen 0 1280x800x24" "$program" "$out" memory stored.wfm
