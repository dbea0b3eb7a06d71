#!/usr/bin/env bash
# Runs a command on an X server of its own, which ends with it, and returns its exit code; 77 where
# server or window manager are not installed.
#
#     on_display.sh none|openbox COMMAND...
set -euo pipefail
here=$(realpath -- "$(dirname -- "${BASH_SOURCE[0]}")")
# shellcheck source-path=SCRIPTDIR source=../../scripts/display.sh
source "$here/../../scripts/display.sh"

for tool in Xvfb xdotool ${1/none/}; do
    if ! command -v "$tool" >/dev/null; then
        echo "$tool is not installed." >&2
        exit 77
    fi
done

# Under the sanitizers, what libraries do is not the test's business: the one for the keyboard's
# layout copies out of texts without an end.
export ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}strict_string_checks=0
export LSAN_OPTIONS=suppressions=$here/lsan.supp:print_suppressions=0

start_test_server() {
    # The settings of whoever runs it stay out, and the desktop.
    export HOME=$room XDG_CACHE_HOME=$room/cache XDG_CONFIG_HOME=$room/config
    export XDG_DATA_HOME=$room/data XDG_RUNTIME_DIR=$room
    unset SESSION_MANAGER
    # Nor its bus, and none that the toolkit would have a program start: a process that forks under
    # the sanitizers can be left waiting for itself.
    export DBUS_SESSION_BUS_ADDRESS=disabled:
    # The server finds a free number itself, so that any number of these can run at once. Keys
    # repeat soon, and faster than the toolkit always keeps up with.
    on_its_own Xvfb -displayfd 3 -auth "$XAUTHORITY" -nolisten tcp -noreset -screen 0 1366x768x24 -ar1 100 -ar2 5 \
        3>"$room/number" 2>/dev/null &
    server=$!
    wait_for_file "$room/number" "$server"
    number=$(<"$room/number")
}

run_on_own_display start_test_server "$@"
