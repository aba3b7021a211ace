#!/usr/bin/env bash
# Builds the Debian package from build/ (configured and built as ./run.sh does)
# and lists what it holds. Usage: tools/package.sh [BUILD_DIR]
set -euo pipefail
cd "$(dirname "$0")/.."
build="${1:-build}"
[ -f "$build/CPackConfig.cmake" ] || { echo "no CPack configuration in $build: build first" >&2; exit 1; }
cmake --build "$build"
(cd "$build" && cpack -G DEB)
deb=$(ls -t "$build"/selvane_*.deb | head -1)
echo "== $deb"
dpkg-deb -f "$deb" Package Version Architecture Depends Recommends
dpkg-deb -c "$deb"
