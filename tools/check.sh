#!/usr/bin/env bash
# What a change must pass beside the tests: format, includes between folders, words, static analysis.
# Usage: check.sh BUILD_FOLDER
set -euo pipefail
build=$1
cd "$(dirname "$0")/.."
git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run -Werror
python3 tools/check_includes.py
python3 tools/check_names.py
python3 tools/check_words.py
tools/tidy.sh "$build"
