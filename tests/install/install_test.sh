#!/bin/sh
# Installs the build into a temporary prefix, checks that every piece lands
# where a desktop looks for it, and runs the installed command line the way a
# user without a desktop session would (no XDG_RUNTIME_DIR): help and nothing on stderr.
set -eu
cmake=$1
build=$2
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
"$cmake" --install "$build" --prefix "$prefix" >"$prefix/install.log"
for file in bin/selvane bin/selvane-cli bin/kv7200b-sim share/applications/selvane.desktop \
    lib/udev/rules.d/60-selvane-usbtmc.rules share/selvane/help/KV7200help.html \
    share/selvane/help/KV7200help_Chinese.html share/selvane/help/manual/style.css \
    share/selvane/help/manual/zh/connecting.html share/selvane/help/manual/images/en/wave.png \
    share/bash-completion/completions/selvane-cli \
    share/man/man1/selvane-cli.1.gz share/icons/hicolor/scalable/apps/selvane.svg; do
    [ -e "$prefix/$file" ] || { echo "not installed: $file"; exit 1; }
done
cd "$prefix"
env -u XDG_RUNTIME_DIR -u QT_QPA_PLATFORM bin/selvane-cli --help >help.txt 2>errors.txt
grep -q '^  scpi ' help.txt || { echo "the installed help lists no scpi:"; cat help.txt; exit 1; }
[ ! -s errors.txt ] || { echo "stderr of --help:"; cat errors.txt; exit 1; }
bin/selvane-cli scpi --help | grep -q '^Exit status:' || { echo "scpi --help names no exit status"; exit 1; }
