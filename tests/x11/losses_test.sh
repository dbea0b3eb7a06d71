#!/usr/bin/env bash
# Takes from the game what it stands on while it runs, so many times, and sees what becomes of it.
# Run on a display of its own: on_display.sh.
#
#     losses_test.sh GAME starts|folder|display|screens|sound NUMBER
set -euo pipefail
game=$1 trial=$2 number=$3
export SDL_AUDIODRIVER=dummy LANG=C.UTF-8
users=$XDG_DATA_HOME/trameli/ImpostazioniProgrammiOvalia/trameli

fail() {
    echo "$trial: $1" >&2
    exit 1
}
need() {
    command -v "$1" >/dev/null || exit 77
}
soon() {
    local tries=600
    until "$@" &>/dev/null; do
        ((tries-- > 0)) || return 1
        sleep 0.05
    done
}
windows() { xdotool search --onlyvisible --class trameli 2>/dev/null || true; }
has_ended() { ! kill -0 "$process"; }

# Level 13, thickness 1, with all sounds.
lay_out_user() {
    mkdir -p "$users"
    printf ' %s \r\n' 12 >"$users/_predefinito.ini"
    printf '%s\r\n' False True True ' 0 ' ' 49152 ' ' 12648447 ' ' 255 ' ' 8438015 ' ' 255 ' ' 1 ' \
        True True False ' 0 ' ' 4 ' >>"$users/_predefinito.ini"
}
thickness() { sed -n '11s/[^0-9]//gp' "$users/_predefinito.ini"; }

another_window() {
    local found
    found=$(windows)
    [[ -n $found && $found != *$'\n'* && $found != "$window" ]] && window=$found
}
# Presses keys until they have led to another window: some come too early.
go() {
    local tries=30 looks
    while ((tries-- > 0)); do
        [[ $# == 0 ]] || xdotool key "$@"
        for ((looks = 0; looks < 20; ++looks)); do
            if another_window; then
                sleep 0.5
                return
            fi
            sleep 0.1
        done
        kill -0 "$process" || fail "the game ended at '$*'"
    done
    fail "no window came after '$*'"
}
start_game() {
    window=''
    "$game" &
    process=$!
    go
}
start_maze() {
    start_game
    go space
    go Tab space
    sleep 0.5
}
# The window goes, and with it the game.
end_game() {
    local code=0
    xdotool windowclose "$window"
    soon has_ended || fail "it does not end"
    wait "$process" || code=$?
    ((code == 0)) || fail "it ended with code $code"
}

many_windows() { (($(windows | wc -l) == number)); }
no_messages() { (($(windows | wc -l) == 1)); }
try_starts() {
    local processes=() i message code
    for ((i = 0; i < number; ++i)); do
        "$game" &
        processes+=($!)
    done
    soon many_windows || fail "$(windows | wc -l) windows of $number starts"
    for message in $(windows); do
        [[ $(xdotool getwindowname "$message") != Error ]] || xdotool windowclose "$message"
    done
    soon no_messages || fail "$(windows | wc -l) of $number run"
    xdotool windowclose "$(windows)"
    for i in "${processes[@]}"; do
        code=0
        wait "$i" || code=$?
        ((code == 0)) || fail "one ended with code $code"
    done
    echo "soak: $number starts at once, one ran"
}

message_is_up() { (($(windows | wc -l) == 2)); }
try_folder() {
    local what before
    mkdir -p "$XDG_DATA_HOME"
    for what in full read-only gone; do
        mount -t tmpfs -o size=64k none "$XDG_DATA_HOME" || exit 77
        lay_out_user
        before=$(<"$users/_predefinito.ini")
        start_game
        go space
        case $what in
            full) cat /dev/zero >"$XDG_DATA_HOME/rest" 2>/dev/null || true ;;
            read-only) mount -o remount,ro "$XDG_DATA_HOME" ;;
            gone) umount -l "$XDG_DATA_HOME" ;;
        esac
        xdotool key Tab space
        if [[ $what != gone ]]; then
            soon message_is_up || fail "no message with a folder that is $what"
            xdotool key Return
        fi
        go
        xdotool key ctrl+l
        sleep 1
        end_game
        if [[ $what == gone ]]; then
            (($(thickness) == 2)) || fail "not saved in a new folder"
        else
            [[ $(<"$users/_predefinito.ini") == "$before" ]] || fail "not the old file: $what"
            umount "$XDG_DATA_HOME"
        fi
    done
    echo "soak: folder full, read-only, gone: the game went on, no file was torn"
}

# Servers other than the one that the test runs on; the last one is `$server`.
serve() {
    rm -f "$HOME/other"
    "$@" -noreset -auth "$XAUTHORITY" -displayfd 3 3>"$HOME/other" &>/dev/null &
    server=$!
    soon test -s "$HOME/other" || fail "no X server"
    DISPLAY=:$(<"$HOME/other")
}
try_display() {
    local round place code saved
    # The toolkit ends the process where it stands.
    export ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0
    for ((round = 0; round < number; ++round)); do
        for place in maze splash menu settings list print; do
            serve Xvfb -nolisten tcp -screen 0 1366x768x24
            lay_out_user
            case $place in
                maze | print) start_maze ;;
                *) start_game ;;
            esac
            case $place in
                maze) xdotool key ctrl+l sleep 0.5 ;;
                menu) go space ;;
                settings) go space && go alt+c ;;
                list) go space && xdotool key alt+i ;;
                print) xdotool key ctrl+s sleep 1 ;;
            esac
            kill -9 "$server"
            wait "$server" 2>/dev/null || true
            # Two servers that start at once can both take a number that a dead one has left.
            rm -f "/tmp/.X${DISPLAY#:}-lock" "/tmp/.X11-unix/X${DISPLAY#:}"
            soon has_ended || fail "it outlives its display in $place"
            code=0 saved=1
            [[ $place != maze ]] || saved=2
            wait "$process" || code=$?
            ((code == 1)) || fail "code $code in $place"
            (($(thickness) == saved)) || fail "settings lost in $place"
        done
    done
    echo "soak: $number times X servers went in 6 windows, nothing was lost"
}

is_as_wide_as_the_screen() {
    [[ $(xdotool getdisplaygeometry) == "$(xdotool getwindowgeometry --shell "$window" | sed -n 's/^WIDTH=//p') "* ]]
}
try_screens() {
    local modes=(640x480 800x600 1024x768 1280x1024 1366x768 1920x1080) keys=(Right Down ctrl+n ctrl+l ctrl+r) i
    need Xvnc && need xrandr && need openbox
    serve Xvnc -geometry 1366x768 -SecurityTypes None -rfbport "$((40000 + $$ % 20000))" -localhost
    openbox --config-file "${0%/*}/../../scripts/openbox.xml" --startup "touch $HOME/managed" &>/dev/null &
    soon test -e "$HOME/managed" || fail "no window manager"
    lay_out_user
    start_maze
    for ((i = 0; i < number; ++i)); do
        xrandr --output VNC-0 --mode "${modes[RANDOM % 6]}"
        xdotool key "${keys[RANDOM % 5]}" sleep 0.2
    done
    soon is_as_wide_as_the_screen || fail "the window has not the screen's size"
    end_game
    kill "$server"
    echo "soak: $number changes of the screen's size in a maze"
}

sounds() { [[ -n $(pactl list short sink-inputs) ]]; }
walk_until() {
    local tries=60
    until "$@" &>/dev/null; do
        ((tries-- > 0)) || return 1
        xdotool key Right Left Down Up sleep 0.3
    done
}
ticks() { awk '{ print $14 + $15 }' "/proc/$process/stat"; }
try_sound() {
    local i before
    need pulseaudio && need pactl
    export SDL_AUDIODRIVER=pulseaudio
    lay_out_user
    start_maze
    for ((i = 0; i < number; ++i)); do
        pulseaudio -n --daemonize=no --exit-idle-time=-1 -L module-null-sink -L module-native-protocol-unix &>/dev/null &
        server=$!
        soon pactl info || fail "no sound server"
        walk_until sounds || fail "silent in round $i"
        kill -9 "$server"
        wait "$server" || true
        xdotool key Right Left Down Up
    done
    sleep 8 # until it has given the device up
    before=$(ticks)
    sleep 3
    (($(ticks) <= before + 1)) || fail "busy without sounds"
    end_game
    echo "soak: $number times the sound server went, and each new one was heard"
}

if [[ $trial == folder && -z ${OWN_MOUNTS:-} ]]; then
    # Where nobody is disturbed by what is mounted.
    unshare -rm true 2>/dev/null || exit 77
    OWN_MOUNTS=1 exec unshare -rm "$0" "$@"
fi
trap 'kill $(jobs -p) 2>/dev/null || true' EXIT
"try_$trial"
