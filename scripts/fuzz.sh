#!/usr/bin/env bash
# Fuzzes every reader for a while: builds the fuzz targets and runs each for
# its share of MINUTES, starting from its seed corpus in fuzz/corpus.
#
#   bash scripts/fuzz.sh MINUTES
#
# The inputs found are kept in build-fuzz/fuzz-work/<target>/corpus (outside
# git) and a later run goes on from them; a crash, a sanitizer report, a
# broken promise or a hang is saved in build-fuzz/fuzz-work/<target>/findings
# and listed at the end with the command that replays it. The exit status is
# 1 when anything was found.
set -euo pipefail
cd "$(dirname "$0")/.."

if [[ $# -ne 1 || ! $1 =~ ^[0-9]+([.][0-9]+)?$ ]]; then
  echo "usage: bash scripts/fuzz.sh MINUTES" >&2
  exit 2
fi
minutes=$1
build=${OSTRALINE_FUZZ_BUILD:-build-fuzz}
jobs=${OSTRALINE_FUZZ_JOBS:-1}
work=$build/fuzz-work

targets=()
for source in fuzz/fuzz_*.cpp; do
  name=$(basename "$source" .cpp)
  targets+=("$name")
done

cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
  -DOSTRALINE_SANITIZE=ON -DOSTRALINE_FUZZ=ON -DOSTRALINE_DESKTOP=OFF -DOSTRALINE_TESTS=OFF >/dev/null
cmake --build "$build" -j"$jobs" --target "${targets[@]}"

# The input files are written for every run: in memory where there is a
# memory file system, so that no run waits on the disk.
scratch=$(mktemp -d -p "$([[ -d /dev/shm && -w /dev/shm ]] && echo /dev/shm || echo "${TMPDIR:-/tmp}")" \
  ostraline-fuzz.XXXXXX)
trap 'rm -rf "$scratch"' EXIT

share=$(awk -v m="$minutes" -v n="${#targets[@]}" 'BEGIN { s = int(m * 60 / n); print s < 1 ? 1 : s }')
echo "fuzzing ${#targets[@]} targets for ${share} s each"

export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1}
summary=()
found=()
for name in "${targets[@]}"; do
  corpus=$work/$name/corpus
  findings=$work/$name/findings
  mkdir -p "$corpus" "$findings"
  log=$work/$name/last-run.log
  : >"$log"
  marker=$scratch/$name.start
  touch "$marker"
  deadline=$((SECONDS + share))
  runs=0
  failures=0
  # libFuzzer stops at the first finding; the share goes on in a new process,
  # up to five findings. A process runs five minutes at most: the proxy
  # import keeps each record given by position open until the process ends,
  # and a longer run would use up the file descriptors.
  while ((SECONDS < deadline && failures < 5)); do
    span=$((deadline - SECONDS < 300 ? deadline - SECONDS : 300))
    # A time of 0 would tell libFuzzer to run for ever.
    ((span > 0)) || break
    status=0
    TMPDIR=$scratch "$build/fuzz/$name" -max_total_time="$span" -timeout=10 \
      -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$findings/" \
      "$corpus" "fuzz/corpus/${name#fuzz_}" >"$scratch/run.log" 2>&1 || status=$?
    cat "$scratch/run.log" >>"$log"
    runs=$((runs + $(awk '/^stat::number_of_executed_units/ { n = $2 } END { print n + 0 }' \
      "$scratch/run.log")))
    ((status == 0)) || failures=$((failures + 1))
  done
  artifacts=$(find "$findings" -type f -newer "$marker" | sort)
  summary+=("$(printf '%-26s %8d runs %6d/s  corpus %5d' "$name" "$runs" "$((runs / share))" \
    "$(find "$corpus" -type f | wc -l)")")
  for artifact in $artifacts; do found+=("$build/fuzz/$name $artifact"); done
done

echo
printf '%s\n' "${summary[@]}"
if ((${#found[@]} == 0)); then
  echo "nothing found; the logs are in $work/<target>/last-run.log"
  exit 0
fi
echo
echo "found ${#found[@]} input(s); replay each from the repository's root with:"
printf '  %s\n' "${found[@]}"
exit 1
