#!/usr/bin/env bash
# A picture of a data sheet with a measure window (limits set: Pass and Fail
# rows) and a data window beside it, read from the simulator.
#   tools/measure_screenshot.sh OUT.png [BUILD_DIR]
SHEETSHOT_MODE=analysis exec "$(dirname "$0")/wave_screenshot.sh" "$@"
