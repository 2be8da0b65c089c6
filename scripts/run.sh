#!/bin/sh
# Starts the editor from the given folder. Without a display it runs under a virtual one with a sample picture open, and
# saves a screenshot.
set -eu
bin=$1
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then exec "$bin/velara-studio"; fi

shot=$(cd "$bin/.." && pwd)/velara-studio.png
echo "No display here: the editor runs under Xvfb with a sample picture open; its screen goes to $shot"
# The harness of the end-to-end tests: a scratch copy, a window manager, keys. It cleans up after itself.
. "$(dirname "$0")/../tests/e2e/lib.sh"
start
xdotool windowsize --sync "$(frame)" 1100 800 windowmove "$(frame)" 60 40
open_file "$folder/Images/Velara.bmp"
import -window root "$shot"
running || fail "the editor ended early"
quit
