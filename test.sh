#!/usr/bin/env bash
# Installs what is missing, builds into build/, and runs every test.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/common.sh
selvane_install
tools/layercheck.sh
selvane_build build -DSELVANE_WERROR=ON
export QT_QPA_PLATFORM=offscreen
cd build
ctest --output-on-failure --timeout 300 -j 2
