#!/usr/bin/env bash
# Runs COMMAND on a virtual X display with a window manager, without which no window gets the focus there.
# The command's status is this script's; one that hangs is ended after two minutes.
# Usage: on-x-display.sh COMMAND [ARGUMENT...]
set -euo pipefail

if [ "${ON_X_DISPLAY:-}" != yes ]; then
    ON_X_DISPLAY=yes exec xvfb-run -a -s "-screen 0 1280x1024x24" "$0" "$@"
fi

openbox --sm-disable &
manager=$!
trap 'kill "$manager" 2>/dev/null && wait "$manager" || true' EXIT
sleep 1 # until the window manager has taken the display over
QT_QPA_PLATFORM=xcb timeout --kill-after=10 120 "$@"
