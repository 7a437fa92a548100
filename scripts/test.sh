#!/usr/bin/env bash
# Installs what is missing, builds every test with AddressSanitizer and
# UndefinedBehaviorSanitizer (and the fuzz targets with libFuzzer), and runs them all.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
build=${OSTRALINE_TEST_BUILD:-build-test}
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
  -DOSTRALINE_SANITIZE=ON -DOSTRALINE_FUZZ=ON -DOSTRALINE_DESKTOP=ON -DOSTRALINE_BENCH=ON
cmake --build "$build" -j"$(nproc)"
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:abort_on_error=1}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
export QT_QPA_PLATFORM=offscreen
ctest --test-dir "$build" --output-on-failure -j"$(nproc)"
