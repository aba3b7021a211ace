#!/usr/bin/env bash
# Renders selvane's main window (menus, toolbar, both panes, status bar) under a
# virtual X server and saves it as a PNG, with a fresh settings store.
#   tools/screenshot.sh OUT.png [english|chinese] [BUILD_DIR]
set -euo pipefail
cd "$(dirname "$0")/.."
out="$(realpath -m "${1:?usage: tools/screenshot.sh OUT.png [english|chinese] [BUILD_DIR]}")"
language="${2:-english}"
build="${3:-build}"
program="$build/src/selvane"
[ -x "$program" ] || { echo "no program at $program; build it first" >&2; exit 1; }
command -v xvfb-run >/dev/null || { echo "xvfb-run is missing (apt-get install xvfb xauth)" >&2; exit 1; }

config="$(mktemp -d)"
trap 'rm -rf "$config"' EXIT
mkdir -p "$config/Selvane"
# A window of 1000 by 700 pixels (the store keeps twips, 15 to a pixel).
{
    echo "[Selvane_Language_KV7200B]"
    echo "Language=$([ "$language" = chinese ] && echo 0 || echo 1)"
    echo "[Settings_KV7200B]"
    echo "MainLeft=300"; echo "MainTop=300"; echo "MainWidth=15000"; echo "MainHeight=10500"
} >"$config/Selvane/Selvane.ini"

XDG_CONFIG_HOME="$config" SELVANE_VISA=builtin SELVANE_VISA_RESOURCES="" \
    xvfb-run -a -s "-screen 0 1280x800x24" "$program" --screenshot "$out"
