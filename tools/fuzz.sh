#!/usr/bin/env bash
# Builds every libFuzzer target with clang into build-fuzz/ and runs each for
# SECONDS_PER_TARGET (default 60), starting from fuzz/corpus/<target>/.
# Prints executions and crashes per target; exits non-zero on any crash.
#   tools/fuzz.sh [SECONDS_PER_TARGET] [TARGET...]
set -uo pipefail
cd "$(dirname "$0")/.."
seconds="${1:-60}"
shift || true
dir=build-fuzz
launcher=()
if command -v ccache >/dev/null; then
    export CCACHE_BASEDIR="$PWD" CCACHE_NOHASHDIR=1
    launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
CXX=clang++ cmake -S . -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DSELVANE_FUZZ=ON \
    -DSELVANE_BUILD_TESTS=OFF -DSELVANE_BUILD_BENCH=OFF "${launcher[@]}" >/dev/null || exit 2

targets=("$@")
if [ ${#targets[@]} -eq 0 ]; then
    for src in fuzz/*.cpp; do targets+=("$(basename "$src" .cpp)"); done
fi
cmake --build "$dir" -j "$(nproc)" --target "${targets[@]/#/fuzz_}" || exit 2

export QT_QPA_PLATFORM=offscreen
failed=0
printf '%-16s %12s %8s\n' target executions crashes
for t in "${targets[@]}"; do
    work="$dir/run/$t"
    rm -rf "$work" && mkdir -p "$work/corpus" "$work/crashes"
    # The seeds are copied so that what the fuzzer finds stays out of the source tree.
    [ -d "fuzz/corpus/$t" ] && cp -r "fuzz/corpus/$t/." "$work/corpus/"
    "$dir/fuzz/fuzz_$t" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -max_len=65536 \
        -artifact_prefix="$work/crashes/" -print_final_stats=1 "$work/corpus" >"$work/log" 2>&1
    status=$?
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$work/log" | tail -n 1)
    crashes=$(find "$work/crashes" -type f | wc -l)
    printf '%-16s %12s %8s\n' "$t" "${runs:-?}" "$crashes"
    if [ "$status" -ne 0 ] || [ "$crashes" -ne 0 ]; then
        failed=1
        grep -m 3 -E 'ERROR|runtime error|SUMMARY' "$work/log"
        echo "  log: $work/log, inputs: $work/crashes/"
    fi
done
exit "$failed"
