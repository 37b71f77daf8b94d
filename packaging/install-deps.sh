#!/usr/bin/env bash
# Installs the Debian packages that building, running and testing need, if they are missing. Says nothing otherwise.
set -euo pipefail

packages=(
  # building
  build-essential cmake ninja-build ccache pkg-config python3 git
  clang-format clang-tidy clang libclang-rt-14-dev
  # what the program stands on
  qt6-base-dev libqt6opengl6-dev qt6-webengine-dev qt6-svg-dev qt6-l10n-tools
  libsqlitecpp-dev libsqlite3-dev libcurl4-openssl-dev mdbtools-dev libxlsxwriter-dev
  # tests and benchmarks
  libgtest-dev libgmock-dev libbenchmark-dev python3-pyftpdlib
  # the browser that is driven, a display for the window, fonts, and eyes for the tests
  chromium xvfb xauth openbox xdotool xclip x11-utils imagemagick fonts-dejavu-core fonts-liberation sqlite3 groff-base
  xdg-utils desktop-file-utils
)

missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null | grep -q '^ii' || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || { echo "These packages are missing and need root to install: ${missing[*]}" >&2; exit 1; }
  as_root=(sudo)
fi
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -q
"${as_root[@]}" apt-get install -y -q --no-install-recommends "${missing[@]}"
