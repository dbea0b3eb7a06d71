# shellcheck shell=bash
# Finds out whether there is a display, and makes one where there is none or another one is wanted.
# Sourced.

window_manager_settings=$(realpath -- "$(dirname -- "${BASH_SOURCE[0]}")/openbox.xml")

# Whether something answers behind $DISPLAY. The variable alone says little: it outlives its
# server in a detached terminal.
x11_answers() {
    local name=${DISPLAY:-} host number
    [[ $name =~ ^(unix|.*/unix)?:([0-9]+)(\.[0-9]+)?$ ]] && {
        unix_socket_answers "/tmp/.X11-unix/X${BASH_REMATCH[2]}"
        return
    }
    [[ $name =~ ^(.+):([0-9]+)(\.[0-9]+)?$ ]] || return 1
    host=${BASH_REMATCH[1]} number=${BASH_REMATCH[2]}
    timeout 3 bash -c "exec 3<>/dev/tcp/\$0/$((6000 + number))" "$host" 2>/dev/null
}

# The shell cannot open such a socket itself, but Debian's smallest system has a Perl that can.
# Servers listen under the path, or under the same name in the abstract space, or both.
unix_socket_answers() {
    if ! perl -MIO::Socket::UNIX -e1 2>/dev/null; then
        [[ -S $1 ]]
        return
    fi
    perl -MIO::Socket::UNIX -e '
        exit !grep { IO::Socket::UNIX->new(Peer => $_) } $ARGV[0], "\0$ARGV[0]"' "$1"
}

wayland_answers() {
    local name=${WAYLAND_DISPLAY:-}
    [[ -n $name ]] || return 1
    [[ $name == /* ]] || name=${XDG_RUNTIME_DIR:-/nowhere}/$name
    unix_socket_answers "$name"
}

# x11, wayland or none; "chosen" where the caller has told the toolkit to do without either.
kind_of_display() {
    case ${QT_QPA_PLATFORM:-} in
        '' | xcb* | wayland*) ;;
        *)
            echo chosen
            return
            ;;
    esac
    if x11_answers; then
        echo x11
    elif wayland_answers; then
        echo wayland
    else
        echo none
    fi
}

# Waits until a file is there or a process is gone; at most half a minute.
wait_for_file() {
    local file=$1 process=$2 tries=1500
    until [[ -s $file ]]; do
        kill -0 "$process" 2>/dev/null && ((tries-- > 0)) || return 1
        sleep 0.02
    done
}

# Ctrl-C at the terminal is for this script, which then ends things in order. Should the script be
# killed outright, the system ends them.
on_its_own() {
    exec setpriv --pdeathsig TERM setsid "$@"
}

# As long as the protocol allows, and without letters that look alike.
random_password() {
    head -c 128 /dev/urandom | base64 -w 0 | tr -dc 'a-km-np-z2-9' | cut -c 1-8
}

# Each attempt lets the server itself find out whether the number and its port are free, so that two
# starts at the same moment cannot take the same one.
start_viewed_server() {
    local port password
    password=$(random_password)
    vncpasswd -f <<<"$password" >"$room/password"
    for number in {1..50}; do
        port=$((5900 + number))
        # Nobody from outside can connect: the viewers' port is on the loopback address and the X
        # protocol has no port at all. From inside every user of this machine can, so viewers need
        # the password and programs the cookie.
        # A viewer must not change the size either; the game lays itself out for one size.
        on_its_own Xvnc ":$number" -rfbport "$port" -localhost -nolisten tcp -auth "$XAUTHORITY" \
            -SecurityTypes VncAuth -PasswordFile "$room/password" -geometry "$geometry" -depth 24 -AlwaysShared -AcceptSetDesktopSize=0 \
            -desktop Trameli -displayfd 3 3>"$room/number" >"$room/server.log" 2>&1 &
        server=$!
        if wait_for_file "$room/number" "$server"; then
            cat >&2 <<END
There is no display here, so a virtual one of $geometry was started.
A VNC viewer on this machine connects to localhost:$port. The password of this run is $password
END
            return
        fi
        kill "$server" 2>/dev/null || true
    done
    server=''
    tail -n 3 "$room/server.log" >&2
    echo "The virtual display could not be started." >&2
    return 1
}

# The game starts when the window manager is ready, so that its first window is placed by it.
start_window_manager() {
    on_its_own openbox --config-file "$window_manager_settings" \
        --startup "sh -c 'echo ready >\"\$TRAMELI_ROOM/manager\"'" \
        >"$room/manager.log" 2>&1 &
    manager=$!
    wait_for_file "$room/manager" "$manager" && return
    cat "$room/manager.log" >&2
    echo "The window manager could not be started." >&2
    return 1
}

# May be interrupted by itself at its first line, never later. It does not `wait`: inside a handler
# the shell can wait for ever for a process whose end it has already seen.
stop_display() {
    trap '' HUP INT TERM
    local process tries=100
    # The game first: it must not see its display go.
    for process in $player $manager $server; do
        kill "$process" 2>/dev/null || true
    done
    # Whoever starts the game again at once should find the same display number free.
    while [[ -n $server && -e /tmp/.X11-unix/X$number ]] && ((tries-- > 0)); do
        sleep 0.02
    done
    player='' manager='' server=''
    rm -rf -- "$room"
}

# Runs a command on a display of its own, which ends with it, and returns its exit code. `$1` sets
# `server` and `number`, and may keep files in `$room`; `$2` is openbox or none. The server is to be
# given the file $XAUTHORITY.
run_on_own_display() {
    local start_server=$1 window_manager=$2
    shift 2
    server='' manager='' player=''
    room=$(mktemp -d)
    # Each on its own, as an exit inside a handler would cut short the one for EXIT.
    trap stop_display EXIT
    trap 'stop_display; exit 129' HUP
    trap 'stop_display; exit 130' INT
    trap 'stop_display; exit 143' TERM

    # A cookie for whatever number the server finds.
    export XAUTHORITY=$room/cookie
    {
        printf '\xff\xff\0\0\0\0\0\x12MIT-MAGIC-COOKIE-1\0\x10'
        head -c 16 /dev/urandom
    } >"$XAUTHORITY"
    "$start_server"
    export DISPLAY=":$number" QT_QPA_PLATFORM=xcb TRAMELI_ROOM=$room
    unset WAYLAND_DISPLAY
    [[ $window_manager == none ]] || start_window_manager
    unset TRAMELI_ROOM
    # Not in the foreground: the shell would answer a signal only after the command's end.
    "$@" &
    player=$!
    wait "$player"
}

run_on_virtual_display() {
    geometry=${TRAMELI_GEOMETRY:-1366x768}
    if [[ ! $geometry =~ ^[1-9][0-9]*x[1-9][0-9]*$ ]]; then
        echo "TRAMELI_GEOMETRY is a width and a height like 1366x768, not '$geometry'." >&2
        return 1
    fi
    run_on_own_display start_viewed_server openbox "$@"
}
