#!/usr/bin/env bash
# Compares the start of the game with the start of an empty window: time to the first complete
# window, memory then, and processor time while nothing happens. Runs on the display that is there,
# else on a virtual one with a window manager.
set -euo pipefail
# As on every desktop there is a bus for the session. Without one the toolkit would look for a program
# that starts it, the empty window while it waits for its frame, the game before.
if [[ -z ${DBUS_SESSION_BUS_ADDRESS:-} ]]; then
    exec dbus-run-session -- "${BASH_SOURCE[0]}" "$@"
fi
cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.."

probe=build/bench/probes/startup_probe
rounds=${STARTUP_ROUNDS:-31}
idle=${STARTUP_IDLE:-10}
scratch=$(mktemp -d)
server=
cleanup() {
    [[ -z $server ]] || kill "$server" 2>/dev/null || true
    rm -rf "$scratch"
}
trap cleanup EXIT
export XDG_DATA_HOME=$scratch/data

if [[ -z ${DISPLAY:-} ]]; then
    exec {number}>"$scratch/display"
    Xvfb -displayfd "$number" -screen 0 1366x768x24 -nolisten tcp 2>/dev/null &
    server=$!
    while [[ ! -s $scratch/display ]]; do sleep 0.1; done
    export DISPLAY=:$(<"$scratch/display")
    openbox >/dev/null 2>&1 &
    sleep 1
fi
export QT_QPA_PLATFORM=xcb

# One of each in turn, so that a busy moment of the machine spoils neither side.
for ((i = 0; i <= rounds; i++)); do
    for what in empty game; do
        line=$(PROBE_START=$(date +%s%N) "$probe" "$what" 2>/dev/null)
        # The first of each only warms the disk.
        ((i == 0)) || echo "$line" >>"$scratch/$what"
    done
done

median() { # median FILE COLUMN
    cut -d' ' -f"$2" "$scratch/$1" | sort -n | sed -n "$(((rounds + 1) / 2))p"
}
row() { # row WHAT BASELINE OURS UNIT AIM
    awk -v what="$1" -v base="$2" -v ours="$3" -v unit="$4" -v aim="$5" 'BEGIN {
        printf "%-28s %10.0f %s %10.0f %s %8.2f  %s %s\n", what, base, unit, ours, unit,
            ours / base, "<= " aim, ours / base <= aim ? "ok" : "MISSED" }'
}

row "start to first window" "$(median empty 1)" "$(median game 1)" ms 1.5
row "memory at first window" "$(median empty 2)" "$(median game 2)" kB 2
ticks=$("$probe" game "$idle" 2>/dev/null | cut -d' ' -f3)
printf '%-28s %d clock ticks in %d s  %s\n' "processor time when idle" "$ticks" "$idle" \
    "$([[ $ticks -eq 0 ]] && echo ok || echo MISSED)"
