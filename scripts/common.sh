# Shared by run.sh and test.sh: install what is missing, configure, build.
# Sourced, not run.

SELVANE_PACKAGES=(g++ cmake ninja-build pkg-config qt6-base-dev qt6-serialport-dev qt6-svg-dev libgl-dev
                  libgtest-dev libgmock-dev libbenchmark-dev fonts-noto-cjk xvfb xauth
                  python3 python3-pyvisa python3-pyvisa-py ccache)

selvane_install() {
    local missing=()
    for p in "${SELVANE_PACKAGES[@]}"; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    local sudo=""
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Need root or sudo to install: ${missing[*]}" >&2; return 1; }
        sudo="sudo"
    fi
    $sudo env DEBIAN_FRONTEND=noninteractive apt-get update -qq || return 1
    $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" || return 1
}

selvane_build() {
    local dir="${1:-build}"
    shift || true
    # ccache keyed on paths relative to the checkout, so clones and worktrees share hits.
    local launcher=()
    if command -v ccache >/dev/null; then
        export CCACHE_BASEDIR="$PWD" CCACHE_NOHASHDIR=1
        launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_C_COMPILER_LAUNCHER=ccache)
    fi
    cmake -S . -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "${launcher[@]}" "$@" || return 1
    cmake --build "$dir" -j "$(nproc)" || return 1
}
