#!/usr/bin/env bash
# Runs a command in a Wayland session of its own, on the X server that is there, and returns its
# exit code; 77 where weston is not installed. Through that server xdotool types at the session.
#
#     on_display.sh none in_weston.sh COMMAND...
set -euo pipefail
here=$(realpath -- "$(dirname -- "${BASH_SOURCE[0]}")")
# shellcheck source-path=SCRIPTDIR source=../../scripts/display.sh
source "$here/../../scripts/display.sh"

if ! command -v weston >/dev/null; then
    echo "weston is not installed." >&2
    exit 77
fi
settings=$XDG_RUNTIME_DIR/weston.ini
cat >"$settings" <<'END'
[shell]
locking=false
animation=none
startup-animation=none
[keyboard]
repeat-rate=200
repeat-delay=100
END
export WAYLAND_DISPLAY=session QT_QPA_PLATFORM=wayland
on_its_own weston --config="$settings" --backend=x11-backend.so --use-pixman --idle-time=0 \
    --width=1366 --height=768 --socket="$WAYLAND_DISPLAY" --log="$XDG_RUNTIME_DIR/weston.log" 2>/dev/null &
compositor=$!
trap 'kill "$compositor" 2>/dev/null || true' EXIT
tries=500
until wayland_answers; do
    if ! kill -0 "$compositor" 2>/dev/null || ((tries-- <= 0)); then
        cat "$XDG_RUNTIME_DIR/weston.log" >&2
        exit 1
    fi
    sleep 0.02
done
# The server's keys go where its pointer is.
xdotool mousemove 683 700
"$@"
