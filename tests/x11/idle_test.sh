#!/usr/bin/env bash
# Walks the game by keyboard alone, from the splash to a maze, and sees it do nothing at all on the
# way whenever nobody does anything. Run on a display of its own: on_display.sh.
#
#     idle_test.sh GAME
set -euo pipefail
game=$1

# Sound would go to whoever sits there, and keep the game busy for some seconds.
export SDL_AUDIODRIVER=dummy

deadline=$((SECONDS + 90))
fail() {
    echo "$1" >&2
    exit 1
}
in_time() {
    ((SECONDS < deadline)) || fail "$1"
    kill -0 "$process" 2>/dev/null || fail "The game ended by itself."
    sleep 0.1
}

"$game" &
process=$!
trap 'kill "$process" 2>/dev/null || true' EXIT

# The window that the game shows, once it shows one and it is not the window `$1`.
new_window() {
    local windows
    while true; do
        windows=$(xdotool search --onlyvisible --pid "$process" --class trameli 2>/dev/null || true)
        if [[ -n $windows && $windows != *$'\n'* && $windows != "$1" ]]; then
            echo "$windows"
            return
        fi
        in_time "No new window came after '$1', but '$windows'."
    done
}

# Processor time in clock ticks, and how often any thread of the game woke up.
activity() {
    local line ticks wakes
    line=$(<"/proc/$process/stat")
    # The name in the second field may hold blanks.
    read -ra fields <<<"${line##*) }"
    ticks=$((fields[11] + fields[12]))
    wakes=$(cat "/proc/$process/task/"*/status 2>/dev/null |
        awk '/^voluntary_ctxt_switches/ { n += $2 } END { print n }')
    echo "$ticks ticks, $wakes wakes"
}

# Three seconds without a tick must come, whatever the start of the window still has to do. It
# counts from anew whenever the game stirs, so that a timer left running is seen however little it
# does.
await_idle() {
    local before now='' start=$SECONDS quiet=0
    before=$(activity)
    while ((quiet < 30)); do
        in_time "The game is never idle in $1: $before, $now."
        now=$(activity)
        if [[ $now == "$before" ]]; then
            quiet=$((quiet + 1))
        else
            quiet=0
            before=$now
        fi
    done
    echo "$1: idle after $((SECONDS - start - 3)) s with $now"
}

splash=$(new_window '')
await_idle splash
xdotool key space
menu=$(new_window "$splash")
await_idle menu
# From the chosen level to the start it is one stroke.
xdotool key Tab key space
new_window "$menu" >/dev/null
await_idle maze
