#!/usr/bin/env bash
# Fails when a file under src/ includes a folder above its own in the layer
# order below (lowest first). Folders on one line are side by side: they may
# include each other's logic, but the window files (frm*) of one are never
# included by another's.
#   tools/layercheck.sh [SRC_DIR]
set -euo pipefail
src="${1:-$(dirname "$0")/../src}"

layers=(
    "visa"
    "platform"
    "text"
    "link"
    "settings"
    "acquire"
    "document"
    "wave analysis controller stored panel"
    "sheet"
    "frame"
    "state"
    "app cli"
)

declare -A rank
for i in "${!layers[@]}"; do
    for folder in ${layers[$i]}; do rank[$folder]=$i; done
done

bad=0
while IFS= read -r -d '' file; do
    rel="${file#"$src"/}"
    own="${rel%%/*}"
    [ -n "${rank[$own]+x}" ] || { echo "layercheck: $rel: folder '$own' has no layer" >&2; bad=1; continue; }
    while IFS= read -r line; do
        target="$(sed -E 's/^[[:space:]]*#[[:space:]]*include[[:space:]]+"([^"]+)".*/\1/' <<<"$line")"
        folder="${target%%/*}"
        [ "$folder" = "$target" ] && continue # same-folder include without a folder
        [ "$folder" = "$own" ] && continue
        [ -n "${rank[$folder]+x}" ] || continue # not one of ours
        if [ "${rank[$folder]}" -gt "${rank[$own]}" ]; then
            echo "layercheck: $rel includes $target (${folder} is above ${own})" >&2
            bad=1
        elif [ "${rank[$folder]}" -eq "${rank[$own]}" ] && [[ "${target##*/}" == frm* ]] && [[ "${rel##*/}" != frm* ]]; then
            echo "layercheck: $rel includes the window $target" >&2
            bad=1
        fi
    done < <(grep -E '^[[:space:]]*#[[:space:]]*include[[:space:]]+"' "$file" || true)
done < <(find "$src" -type f \( -name '*.cpp' -o -name '*.h' \) -print0)

[ "$bad" -eq 0 ] && echo "layercheck: every include runs downward"
exit "$bad"
