#!/usr/bin/env bash
# Installs the Debian package on a clean system of its own and runs it there: both programs, the demo's harvest with the
# browser that the package recommends, and the window on a virtual display. Then takes it off again.
# Needs root, debootstrap, xvfb, xdotool and a Debian mirror.
# Usage: check-package.sh PACKAGE.deb [FOLDER]    a folder that is named keeps the clean system for the next time
set -euo pipefail
package=$(realpath "$1")
demo=$(realpath "$(dirname "$0")/../demo")
. /etc/os-release

say() { printf '== %s\n' "$*"; }
clean=${2:-$(mktemp -d)}
running=()
at_end() {
  for process in "${running[@]}"; do kill "$process" 2>/dev/null && wait "$process" || true; done
  umount "$clean/dev/shm" "$clean/proc" 2>/dev/null || true
  [ $# -eq 0 ] || rm -rf --one-file-system "$clean"
}
if [ $# -gt 1 ]; then trap at_end EXIT; else trap 'at_end remove' EXIT; fi

if command -v lintian >/dev/null; then
  say "The package's own rules"   # there is no address yet to write to
  lintian --allow-root --fail-on error --suppress-tags bogus-mail-host "$package"
fi

if [ ! -e "$clean/usr/bin/apt-get" ]; then
  say "A clean $VERSION_CODENAME"
  debootstrap --variant=minbase "$VERSION_CODENAME" "$clean" >/dev/null
fi
mount -t proc proc "$clean/proc"
mount -t tmpfs tmpfs "$clean/dev/shm"
printf '#!/bin/sh\nexit 101\n' >"$clean/usr/sbin/policy-rc.d"   # no services
chmod +x "$clean/usr/sbin/policy-rc.d"
bare=(env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive)
inside() { "${bare[@]}" chroot "$clean" "$@"; }
apt() { inside apt-get -y -q --no-install-recommends "$@" >"$clean/apt.log" 2>&1 || { tail -n 20 "$clean/apt.log" >&2; exit 1; }; }

say "Installing"
cp "$package" "$clean/trawlex.deb"
apt update
apt install --reinstall /trawlex.deb
inside trawlex-harvest --help >/dev/null
say "The demo's harvest"
apt install chromium python3
rm -rf "$clean/demo"
cp -r "$demo" "$clean/demo"
inside python3 /demo/harvest.py --bin /usr/bin
say "The window"
exec {number}<> <(:)
Xvfb -displayfd "$number" -screen 0 1280x1000x24 -nolisten tcp -noreset 2>/dev/null &
running+=($!)
read -r -u "$number" display
"${bare[@]}" DISPLAY=":$display" QT_QPA_PLATFORM=xcb chroot "$clean" trawlex 2>/dev/null &
window=$!
running+=("$window")
DISPLAY=":$display" timeout 60 xdotool search --sync --onlyvisible --name '^Trawlex$' >/dev/null
sleep 2   # it lives on
kill -TERM "$window"
wait "$window"
say "Taking it off"
apt purge trawlex
left=$(inside sh -c 'ls -d /usr/bin/trawlex* /usr/libexec/trawlex /usr/share/doc/trawlex 2>/dev/null' || true)
[ -z "$left" ] || { echo "Left behind: $left" >&2; exit 1; }
say "Installs, runs and goes"
