#!/usr/bin/env bash
# Runs each fuzz target of a build for a bounded time on its corpus; fails on any finding.
#   tests/fuzz/run.sh BUILD_DIR SECONDS_PER_TARGET [PARALLEL_TARGETS]
# Seeds are read from tests/fuzz/corpus/<target>; what a run adds goes to
# BUILD_DIR/corpus/<target> (kept for the next run, never committed), a crashing input to
# BUILD_DIR/findings/, each target's log to BUILD_DIR/logs/.
set -euo pipefail
build=$(cd "$1" && pwd)
seconds=$2
parallel=${3:-1}
here=$(cd "$(dirname "$0")" && pwd)
# Debian's cairo keeps some font-cache blocks out of reach (see lsan.supp); leak checks
# between inputs would list the suppressed caches each time.
export LSAN_OPTIONS=${LSAN_OPTIONS:-print_suppressions=0:suppressions=$here/lsan.supp}

if [ "${ZEBFUZZ_ONE:-}" ]; then
  name=$ZEBFUZZ_ONE
  mkdir -p "$build/corpus/$name" "$build/findings" "$build/logs" "$here/corpus/$name"
  log="$build/logs/$name.log"
  if "$build/bin/$name" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
      -print_final_stats=1 -artifact_prefix="$build/findings/$name-" \
      "$build/corpus/$name" "$here/corpus/$name" >"$log" 2>&1; then
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    rate=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log")
    printf '%-16s %10s executions %7s/s  no finding\n' "$name" "$runs" "$rate"
  else
    tail -n 60 "$log" >&2
    echo "$name: a finding; the input is in $build/findings/ (log: $log)" >&2
    exit 1
  fi
  exit 0
fi

targets=$(cd "$here" && ls ./*.cpp | sed 's|^\./||; s|\.cpp$||')
echo "fuzzing each target for ${seconds}s, $parallel at a time"
mkdir -p "$build/logs"
printf '%s\n' $targets |
  xargs -P "$parallel" -I{} env ZEBFUZZ_ONE={} bash "$0" "$build" "$seconds" |
  tee "$build/logs/summary.txt"
total=$(awk '{ sum += $2 } END { print sum }' "$build/logs/summary.txt")
echo "fuzzing: $total executions in all"
