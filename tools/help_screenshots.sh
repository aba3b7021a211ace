#!/usr/bin/env bash
# Makes every picture of the manuals (help/manual/images/en and .../zh) with our
# screenshot tools, each language with its own captions, against the simulator
# where a window reads from the instrument; then turns them into palette PNGs.
#   tools/help_screenshots.sh [BUILD_DIR]
# With --viewer it takes the help viewer open on each manual instead, as
# PREFIX-en.png and PREFIX-zh.png, and on a chapter, PREFIX-en-chapter.png and
# PREFIX-zh-chapter.png:
#   tools/help_screenshots.sh --viewer PREFIX [BUILD_DIR]
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/shotsetup.sh
tmp="$(mktemp -d)"
trap 'rm -rf "$tmp"' EXIT

# dialogshot OUTDIR LANGUAGE [help HELP_FOLDER], with a fresh settings store.
dialogshot() {
    local config="$tmp/config-$2"
    rm -rf "$config"
    XDG_CONFIG_HOME="$config" SELVANE_VISA=builtin SELVANE_VISA_RESOURCES="" \
        xvfb-run -a -s "-screen 0 1280x800x24" "$build/tools/selvane-dialogshot" "$@"
}

if [ "${1:-}" = --viewer ]; then
    prefix="$(realpath -m "${2:?usage: tools/help_screenshots.sh --viewer PREFIX [BUILD_DIR]}")"
    build="${3:-build}"
    shot_require "$build/tools/selvane-dialogshot"
    for language in english chinese; do
        mkdir -p "$tmp/$language"
        dialogshot "$tmp/$language" "$language" help "$PWD/help"
        short="$([ "$language" = chinese ] && echo zh || echo en)"
        cp "$tmp/$language/help.png" "$prefix-$short.png"
        cp "$tmp/$language/help-chapter.png" "$prefix-$short-chapter.png"
    done
    exit 0
fi

build="${1:-build}"
shot_require "$build/src/selvane" "$build/tools/selvane-sheetshot" "$build/tools/selvane-ctrlshot" \
    "$build/tools/selvane-panelshot" "$build/tools/selvane-dialogshot" "$build/sim/kv7200b-sim"

# The controller and panel scripts take both languages in one run.
tools/ctrl_screenshot.sh "$tmp/controller.png" "$build" editor
tools/panel_screenshot.sh "$tmp/panel.png" "$build"

for language in english chinese; do
    short="$([ "$language" = chinese ] && echo zh || echo en)"
    dir="help/manual/images/$short"
    mkdir -p "$dir"
    tools/screenshot.sh "$dir/main.png" "$language" "$build"
    export SHEETSHOT_LANGUAGE="$language"
    tools/wave_screenshot.sh "$dir/wave.png" "$build"
    tools/measure_screenshot.sh "$dir/measure.png" "$build" # and measure-limits.png
    tools/memory_screenshot.sh "$dir/memory.png" "$build"
    tools/record_screenshot.sh "$dir/record.png" "$build"
    dialogshot "$PWD/$dir" "$language"
    cp "$tmp/controller-$language.png" "$dir/controller.png"
    for editor in list number adjust; do
        cp "$tmp/controller-$language-$editor.png" "$dir/editor-$editor.png"
    done
    cp "$tmp/panel-$language-live.png" "$dir/panel.png"
    cp "$tmp/panel-$language-keyboard.png" "$dir/keyboard.png"
done
"$build/tools/selvane-dialogshot" --palette help/manual/images/*/*.png
du -ch help/manual/images/*/*.png | tail -1
