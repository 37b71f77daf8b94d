#!/usr/bin/env bash
# Runs all benchmarks and prints their tables, and last the promised figures in one. Usage: run.sh BIN_FOLDER
set -euo pipefail
bin=$(cd "$1" && pwd)
here=$(cd "$(dirname "$0")" && pwd)
all=$(mktemp)
trap 'rm -f "$all"' EXIT

# What is at work besides, while no benchmark is: wall times of a machine that is not quiet are too long.
tell_load() {
  { head -n 1 /proc/stat; sleep 2; head -n 1 /proc/stat; } | awk -v when="$1" -v cores="$(nproc)" '
    { total = 0; for (i = 2; i <= 9; ++i) total += $i; idle = $5 + $6 }
    NR == 1 { before = total; rested = idle }
    END {
      busy = cores * (1 - (idle - rested) / (total - before))
      printf "%s %s: other programs take %.1f of %d processors\n", busy < 0.2 ? "quiet" : "not quiet", when, busy, cores
    }'
}

# A benchmark that ends with an error does not keep the others from being run.
measure() {
  echo "== $1"
  shift
  "$@" || { echo "ended with status $?"; failed=1; }
}

run_all() {
  local program
  tell_load "at the beginning"
  for program in "$bin"/bench_*; do
    [ -x "$program" ] || continue
    measure "$(basename "$program")" "$program"
  done
  [ ! -w /dev/shm ] || measure "bench_store in memory" env TMPDIR=/dev/shm "$bin/bench_store"
  measure "starting" python3 "$here/bench_start.py" "$bin"
  measure "driving a browser" python3 "$here/bench_driving.py" "$bin" 10
  measure "fetching a series of files" python3 "$here/bench_transfer.py" "$bin"
  measure "the Manual run" python3 "$here/bench_manual.py" "$bin"
  tell_load "at the end"
  return "${failed:-0}"
}

status=0
run_all | tee "$all" || status=$?
echo "== what is promised"
python3 "$here/summary.py" "$all"
exit "$status"
