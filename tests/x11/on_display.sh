#!/usr/bin/env bash
# Runs a command on an X server of its own, which ends with it, and returns its exit code; 77 where
# server or window manager are not installed.
#
#     on_display.sh none|openbox COMMAND...
set -euo pipefail
manager=$1
shift
here=$(realpath -- "$(dirname -- "${BASH_SOURCE[0]}")")

for tool in Xvfb xdotool ${manager/none/}; do
    if ! command -v "$tool" >/dev/null; then
        echo "$tool is not installed." >&2
        exit 77
    fi
done

server='' manager_process='' command=''
room=$(mktemp -d)
# Does not `wait`: inside a handler the shell can wait for ever for a process whose end it has
# already seen.
stop() {
    trap '' HUP INT TERM
    local process tries
    # The program first: it must not see its display go.
    for process in $command $manager_process $server; do
        kill "$process" 2>/dev/null || true
        for ((tries = 0; tries < 300; tries++)); do
            kill -0 "$process" 2>/dev/null || break
            ((tries < 250)) || kill -KILL "$process" 2>/dev/null || true
            sleep 0.02
        done
    done
    rm -rf -- "$room"
}
trap stop EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

# Should this script be killed outright, the system ends what it started.
bound_to_us() {
    exec setpriv --pdeathsig TERM "$@"
}

# What is not the test's business stays out: the settings of whoever runs it, and the desktop.
export HOME=$room XDG_CACHE_HOME=$room/cache XDG_CONFIG_HOME=$room/config XDG_DATA_HOME=$room/data
export XDG_RUNTIME_DIR=$room QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY XAUTHORITY SESSION_MANAGER
# Under the sanitizers, what libraries do is not the test's business either: the one for the
# keyboard's layout copies out of texts without an end.
export ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}strict_string_checks=0
export LSAN_OPTIONS=suppressions=$here/lsan.supp:print_suppressions=0

# The server finds a free number itself, so that any number of these can run at once. Keys repeat
# soon, and faster than the toolkit always keeps up with. Both write only when they are ready.
exec {ready}< <(bound_to_us Xvfb -displayfd 1 -nolisten tcp -noreset -screen 0 1366x768x24 \
    -ar1 100 -ar2 5 2>/dev/null)
server=$!
if ! read -r -t 60 number <&"$ready"; then
    echo "The X server does not start." >&2
    exit 1
fi
export DISPLAY=:$number

if [[ $manager != none ]]; then
    exec {ready}< <(bound_to_us "$manager" --startup 'echo ready' 2>/dev/null)
    manager_process=$!
    if ! read -r -t 60 <&"$ready"; then
        echo "$manager does not start." >&2
        exit 1
    fi
fi

# Not in the foreground: the shell would answer a signal only after its end.
bound_to_us "$@" &
command=$!
wait "$command"
