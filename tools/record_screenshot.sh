#!/usr/bin/env bash
# A picture of a record window mid-play: the simulator writes a record file with
# a second block, the program opens it in a new data sheet and starts replaying,
# under a virtual X server with a fresh settings store.
#   tools/record_screenshot.sh OUT.png [BUILD_DIR]
set -euo pipefail
cd "$(dirname "$0")/.."
out="$(realpath -m "${1:?usage: tools/record_screenshot.sh OUT.png [BUILD_DIR]}")"
build="${2:-build}"
source tools/shotsetup.sh
shot_require "$build/tools/selvane-sheetshot" "$build/sim/kv7200b-sim"

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
"$build/sim/kv7200b-sim" write-rcd "$work/record.rcd" --frames 200 --second-block
# Opened from its own folder, so the window's title names the file, not a temporary path.
program="$(realpath "$build/tools/selvane-sheetshot")"
cd "$work"
XDG_CONFIG_HOME="$work" xvfb-run -a -s "-screen 0 1280x800x24" "$program" "$out" record record.rcd
