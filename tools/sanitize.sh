#!/usr/bin/env bash
# Builds the program and every test with AddressSanitizer and
# UndefinedBehaviorSanitizer into build-sanitize/, runs every test, and exits
# non-zero on any failure or sanitizer report.
#   tools/sanitize.sh [ctest arguments, e.g. -R Link]
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/common.sh
dir=build-sanitize
flags="-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer"
selvane_build "$dir" -DCMAKE_BUILD_TYPE=Debug -DSELVANE_BUILD_BENCH=OFF \
    -DCMAKE_CXX_FLAGS="$flags -O1" -DCMAKE_EXE_LINKER_FLAGS="$flags" \
    -DCMAKE_SHARED_LINKER_FLAGS="$flags"

export QT_QPA_PLATFORM=offscreen
# Qt's own one-time allocations are not ours to report; any other leak,
# overflow or undefined behaviour aborts the test that hit it.
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1:detect_stack_use_after_return=0:strict_string_checks=1"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
export LSAN_OPTIONS="suppressions=$PWD/tools/lsan.supp:print_suppressions=0"
log="$dir/sanitize.log"
cd "$dir"
status=0
# The Python test loads our instrumented library into an uninstrumented
# interpreter, which the address sanitizer's runtime refuses.
ctest --output-on-failure --timeout 600 -j 2 -E Pyvisa "$@" >"../$log" 2>&1 || status=$?
tail -n 40 "../$log"
if grep -Eq 'ERROR: (Address|Leak)Sanitizer|runtime error:' "../$log"; then
    echo "sanitizer reports in $log" >&2
    status=1
fi
exit "$status"
