#!/usr/bin/env bash
# Starts the window; without a display harvests the demo from the command line and prints what was stored.
# Usage: run.sh BIN_FOLDER
set -euo pipefail
bin=$(cd "$1" && pwd)
here=$(cd "$(dirname "$0")/.." && pwd)
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$bin/trawlex"
fi
echo "No display: harvesting the demo from the command line."
exec python3 "$here/demo/harvest.py" --bin "$bin" --show
