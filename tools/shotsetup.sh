# Sourced by the screenshot scripts (from the repository's root): checks that
# the programs a picture needs are built and that a virtual X server is there.
#   shot_require PROGRAM...
shot_require() {
    local p
    for p in "$@"; do
        [ -x "$p" ] || { echo "no program at $p; build first" >&2; exit 1; }
    done
    command -v xvfb-run >/dev/null || { echo "xvfb-run is missing (apt-get install xvfb xauth)" >&2; exit 1; }
}
