#!/usr/bin/env bash
# Times the start of selvane up to the first paint of its main window (splash,
# settings, panes and all) under a virtual X server, with a fresh settings store.
#   tools/startup_time.sh [BUILD_DIR] [RUNS]
# Prints each run's time as measured inside the program (from main() to the first
# paint) and from outside (launch to exit), then the medians.
set -euo pipefail
cd "$(dirname "$0")/.."
build="${1:-build}"
runs="${2:-7}"
program="$build/src/selvane"
[ -x "$program" ] || { echo "no program at $program; build it first" >&2; exit 1; }
command -v xvfb-run >/dev/null || { echo "xvfb-run is missing (apt-get install xvfb xauth)" >&2; exit 1; }

config="$(mktemp -d)"
trap 'rm -rf "$config"' EXIT

# One X server for all runs, so only the program's own start is timed.
XDG_CONFIG_HOME="$config" SELVANE_VISA=builtin SELVANE_VISA_RESOURCES="" \
    xvfb-run -a -s "-screen 0 1280x800x24" bash -c '
    program="$1"; runs="$2"
    "$program" --quit-when-shown >/dev/null 2>&1 || true   # warm the file cache
    inside=(); outside=()
    for i in $(seq "$runs"); do
        start=$(date +%s%N)
        line=$("$program" --quit-when-shown 2>/dev/null | grep "main window shown")
        end=$(date +%s%N)
        ms=$(echo "$line" | awk "{ print \$5 }")
        wall=$(( (end - start) / 1000000 ))
        echo "run $i: shown after ${ms} ms (inside), ${wall} ms launch to exit"
        inside+=("$ms"); outside+=("$wall")
    done
    median() { printf "%s\n" "$@" | sort -n | awk "{ a[NR] = \$1 } END { print a[int((NR + 1) / 2)] }"; }
    echo "median: $(median "${inside[@]}") ms to the main window shown; $(median "${outside[@]}") ms launch to exit"
' _ "$program" "$runs"
