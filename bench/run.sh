#!/usr/bin/env bash
# Runs all benchmarks and prints their tables. Usage: run.sh BIN_FOLDER
set -euo pipefail
bin=$(cd "$1" && pwd)
here=$(cd "$(dirname "$0")" && pwd)
for program in "$bin"/bench_*; do
  [ -x "$program" ] || continue
  echo "== $(basename "$program")"
  "$program"
done
echo "== starting"
python3 "$here/bench_start.py" "$bin"
echo "== driving a browser"
python3 "$here/bench_driving.py" "$bin"
echo "== fetching a series of files"
python3 "$here/bench_transfer.py" "$bin"
echo "== the Manual run"
python3 "$here/bench_manual.py" "$bin"
