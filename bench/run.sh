#!/usr/bin/env bash
# Runs all benchmarks and prints their tables, and last the promised figures in one. Usage: run.sh BIN_FOLDER
set -euo pipefail
bin=$(cd "$1" && pwd)
here=$(cd "$(dirname "$0")" && pwd)
all=$(mktemp)
trap 'rm -f "$all"' EXIT

# A benchmark that ends with an error does not keep the others from being run.
measure() {
  echo "== $1"
  shift
  "$@" || { echo "ended with status $?"; failed=1; }
}

run_all() {
  local program
  for program in "$bin"/bench_*; do
    [ -x "$program" ] || continue
    measure "$(basename "$program")" "$program"
  done
  measure "starting" python3 "$here/bench_start.py" "$bin"
  measure "driving a browser" python3 "$here/bench_driving.py" "$bin" 10
  measure "fetching a series of files" python3 "$here/bench_transfer.py" "$bin"
  measure "the Manual run" python3 "$here/bench_manual.py" "$bin"
  return "${failed:-0}"
}

status=0
run_all | tee "$all" || status=$?
echo "== what is promised"
python3 "$here/summary.py" "$all"
exit "$status"
