#!/usr/bin/env bash
# Fails when a source under src/ has no header of its name, so that a reader who
# presses "go to source" on a declaration lands in the file named like its
# header. A header that gathers several (valuetext.h, serialtransport.h,
# editor.h) includes one header per source. Allowed without one: the parts of
# one window class (frmMainMenus.cpp beside frmMain.h) and the files below.
#   tools/headercheck.sh [SRC_DIR]
set -euo pipefail
src="${1:-$(dirname "$0")/../src}"

exceptions=(
    "app/main.cpp"                # the program's main()
    "cli/main.cpp"                # the command line's main() and its table
    "cli/cmd*.cpp"                # one subcommand each, all declared in cli/subcommands.h
    "visa/*backend.cpp"           # one transport each, all opened through visa/backend.h
    "visa/session?*.cpp"          # parts of the Session class (visa/session.h)
    "visa/visafrontend.cpp"       # the standard VISA calls, declared in visa/visa.h
    "visa/export/visaexports.cpp" # the same calls exported from the shared library
    "visa/builtinvisa.cpp"        # our own table of those calls, behind visa/visaapi.h
)

allowed() {
    local rel="$1" pattern
    for pattern in "${exceptions[@]}"; do
        # shellcheck disable=SC2053 # the pattern is a glob on purpose
        [[ "$rel" == $pattern ]] && return 0
    done
    return 1
}

# frmName<Part>.cpp beside frmName.h holds more members of that window class.
windowPart() {
    local file="$1" name header
    name="$(basename "$file" .cpp)"
    [[ "$name" == frm* ]] || return 1
    for header in "$(dirname "$file")"/frm*.h; do
        [[ "$name" == "$(basename "$header" .h)"?* ]] && return 0
    done
    return 1
}

bad=0
while IFS= read -r -d '' file; do
    rel="${file#"$src"/}"
    [ -f "${file%.cpp}.h" ] && continue
    allowed "$rel" && continue
    windowPart "$file" && continue
    echo "headercheck: $rel has no header of its name" >&2
    bad=1
done < <(find "$src" -type f -name '*.cpp' -print0 | sort -z)

[ "$bad" -eq 0 ] && echo "headercheck: every source has a header of its name"
exit "$bad"
