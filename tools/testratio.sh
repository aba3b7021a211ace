#!/usr/bin/env bash
# Prints the code lines of src+sim, of tests, and their ratio. A code line is
# a non-blank line of a .cpp/.h/.py file that is not only a comment: `//`
# lines, `/* ... */` blocks and Python `#` lines are left out. Data files
# beside the tests (expected pictures, replies) are not code and not counted.
#   tools/testratio.sh [REPO_DIR]
set -euo pipefail
root="${1:-$(dirname "$0")/..}"

codelines() {
    find "$@" -type f \( -name '*.cpp' -o -name '*.h' -o -name '*.py' \) -print0 |
        xargs -0 -r awk '
            FNR == 1 { block = 0; py = (FILENAME ~ /\.py$/) }
            {
                line = $0
                if (py) {
                    if (line ~ /^[[:space:]]*(#.*)?$/) next
                    n++; next
                }
                if (block) {
                    if (line !~ /\*\//) next
                    sub(/^.*\*\//, "", line); block = 0
                }
                # Drop whole /* ... */ comments inside the line, then an opening one.
                while (match(line, /\/\*.*\*\//)) line = substr(line, 1, RSTART - 1) substr(line, RSTART + RLENGTH)
                if (match(line, /\/\*/)) { line = substr(line, 1, RSTART - 1); block = 1 }
                if (line ~ /^[[:space:]]*(\/\/.*)?$/) next
                n++
            }
            END { print n + 0 }'
}

code=$(codelines "$root/src" "$root/sim")
tests=$(codelines "$root/tests")
echo "src+sim code lines: $code"
echo "tests code lines:   $tests"
awk -v t="$tests" -v c="$code" 'BEGIN { printf "ratio tests/code:   %.3f\n", t / c }'
