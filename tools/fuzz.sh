#!/usr/bin/env bash
# Runs every fuzz target for FUZZ_SECONDS (60 when unset), JOBS of them at a time (one for each core when unset), and prints
# a line for each. What a target has learnt stays in the build folder for its next run. Ends with status 1 when one found
# something; the input that did it, and what the target said, stand beside the corpus.
#   tools/fuzz.sh build/fuzz [target...]
set -euo pipefail

build=$(realpath "$1")
shift
export work="$build/corpus" seconds="${FUZZ_SECONDS:-60}" TIMEFORMAT=%U
export ASAN_OPTIONS="malloc_context_size=4:quarantine_size_mb=16"  # the plain versions allocate without end
mkdir -p "$work"

if [ $# -gt 0 ]; then targets=("${@/#/$build/bin/}"); else targets=("$build"/bin/fuzz_*); fi

fuzz_one() {
  local name status=0
  name=$(basename "$1")
  mkdir -p "$work/$name"
  { time "$1" -max_total_time="$seconds" -max_len=512 -timeout=120 -print_final_stats=1 -artifact_prefix="$work/$name-" \
      "$work/$name" >"$work/$name.log" 2>&1; } 2>"$work/$name.time" || status=$?
  printf '%-24s %10s inputs in %8s s of processor time  %s\n' "$name" \
    "$(sed -n 's/^stat::number_of_executed_units: *//p' "$work/$name.log")" "$(cat "$work/$name.time")" \
    "$([ $status -eq 0 ] && echo 'found nothing' || echo "FAILED, see $work/$name.log")"
  return $status
}
export -f fuzz_one

printf '%s\0' "${targets[@]}" | xargs -0 -n 1 -P "${JOBS:-$(nproc)}" bash -c 'fuzz_one "$1"' _ || exit 1
