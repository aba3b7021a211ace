#!/usr/bin/env bash
# Installs what is missing, builds into build/, and runs every test.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/common.sh
selvane_install
tools/layercheck.sh
tools/headercheck.sh
selvane_build build -DSELVANE_WERROR=ON
export QT_QPA_PLATFORM=offscreen
cd build
ctest --output-on-failure --timeout 300 -j 2
# Each test program once more as a whole, in one process: a test that leaves
# program state behind fails the tests after it here, where ctest's one process
# per test would hide it.
find tests -maxdepth 1 -type f -name 'test_*' -perm -u+x | sort |
    xargs -P 2 -I {} sh -c '{} --gtest_brief=1 >{}.whole.log 2>&1 || { cat {}.whole.log; echo "{} failed when run whole"; exit 1; }'
