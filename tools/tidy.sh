#!/usr/bin/env bash
# Static analysis of the sources. With TIDY_BASE set, only of what has changed since that revision.
# Usage: tidy.sh BUILD_FOLDER
set -euo pipefail
build=$1
cd "$(dirname "$0")/.."
if [ -n "${TIDY_BASE:-}" ]; then
  mapfile -t files < <(git diff --name-only --diff-filter=d "$TIDY_BASE" -- 'src/*.cpp')
else
  mapfile -t files < <(git ls-files 'src/*.cpp')
fi
[ ${#files[@]} -eq 0 ] && exit 0
# The precompiled headers are g++'s; clang reads the plain ones.
database=$(mktemp -d)
trap 'rm -rf "$database"' EXIT
python3 - "$build/compile_commands.json" "$database/compile_commands.json" <<'PY'
import json, re, sys
commands = json.load(open(sys.argv[1]))
for entry in commands:
    entry["command"] = re.sub(r"-include \S+cmake_pch\.hxx", "", entry["command"]).replace("-Winvalid-pch", "")
    entry["command"] = re.sub(r"^\S*ccache ", "", entry["command"])
json.dump(commands, open(sys.argv[2], "w"))
PY
# How many warnings stand in headers that are not ours is of no interest, and hides the findings in a log.
printf '%s\n' "${files[@]}" | xargs -P "$(nproc)" -n 4 clang-tidy --quiet -p "$database" 2> >(grep -v ' warnings generated\.$' >&2)
