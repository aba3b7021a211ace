#!/usr/bin/env bash
# Installs what is missing, builds into build/, and starts the program.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/common.sh
selvane_install
selvane_build build
exec build/src/selvane "$@"
