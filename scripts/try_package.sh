#!/usr/bin/env bash
# Installs a package on a system made for that with nothing else on it, plays there as an ordinary
# user, and removes the package again. Tells what it sees, and ends with an error at the first thing
# that is not as it should be. Needs root and the archive from which this system installs.
#
#   scripts/try_package.sh PACKAGE.deb [SYSTEM.tar]
#
# SYSTEM.tar keeps the bare system for the next time.
set -euo pipefail
root=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/..
# shellcheck source=scripts/packages.sh
. "$root/scripts/packages.sh"

fail() {
    echo "NOT SO: $1" >&2
    exit 1
}

# What this mounts goes with it, and so does what it starts.
if [[ ${1:-} != --inside ]]; then
    [[ -f ${1:-} ]] || fail "scripts/try_package.sh PACKAGE.deb [SYSTEM.tar]"
    need_packages "${packages_try[@]}"
    system=$(mktemp -d /var/tmp/trameli-try.XXXXXX)
    trap 'rm -rf --one-file-system "$system"' EXIT
    xvfb-run -a -s '-screen 0 1024x768x24' \
        unshare --mount --pid --fork --kill-child --mount-proc \
        "$0" --inside "$1" "$system" "${2:-$system.tar}"
    [[ -n ${2:-} ]] || rm -f "$system.tar"
    exit
fi
package=$2 system=$3 bare=$4
player=/home/player
heard=$player/heard.raw

in_system() {
    chroot "$system" env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive "$@"
}
# Sounds go into a file: there is no device in there.
as_player() {
    chroot --userspec=player:player "$system" env -i HOME=$player USER=player PATH=/usr/bin:/bin \
        LANG=en_GB.UTF-8 LC_CTYPE=C.UTF-8 DISPLAY="$DISPLAY" XAUTHORITY=$player/.Xauthority \
        SDL_AUDIODRIVER=disk SDL_DISKAUDIOFILE=$heard "$@"
}
files_of_system() {
    find "$system" -xdev \( -path "$system$player" -o -path "$system/tmp" -o \
        -path "$system/var/lib/dpkg" -o -path "$system/var/lib/apt" -o -path "$system/var/cache" -o \
        -path "$system/var/log" \) -prune -o -printf '%P %s %C@\n' | sort
}
# eventually COMMAND...: waits until it succeeds, for a minute at the most.
eventually() {
    local -i try
    for ((try = 0; try < 600; ++try)); do
        ! "$@" >/dev/null 2>&1 || return 0
        sleep 0.1
    done
    return 1
}
keys() { xdotool key --delay 60 "$@"; }
game_is_open() { xdotool search --onlyvisible --class '^trameli$'; }
viewer_shows() { xdotool search --onlyvisible --name "$1"; }
# Noise in the file of what was heard: bytes that are not silence.
is_loud() { [[ $(tr -d '\0' <"$system$heard" | wc -c) -gt $1 ]]; }
is_printed() { compgen -G "$system$player/Documents/Trameli *.pdf"; }
has_ended() { ! kill -0 "$game"; }

make_system() {
    local codename
    codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
    [[ -f $bare ]] || mmdebstrap --quiet --variant=apt "$codename" "$bare"
    tar -x -C "$system" -f "$bare"
    # The system will not be there tomorrow: nothing has to be safe on the disk.
    echo force-unsafe-io >"$system/etc/dpkg/dpkg.cfg.d/try"
    mount -t proc proc "$system/proc"
    mount --rbind /dev "$system/dev"
    mkdir -p "$system/tmp/.X11-unix"
    mount --bind /tmp/.X11-unix "$system/tmp/.X11-unix"
    in_system useradd --create-home --shell /bin/sh player
    cp "$package" "$system/tmp/trameli.deb"
    in_system apt-get -q update >/dev/null
}

make_system
in_system apt-get -q -y install /tmp/trameli.deb >"$system/tmp/log" 2>&1 || {
    tail "$system/tmp/log" >&2
    fail "it is installed"
}
echo "installed, with $(grep -c '^Setting up' "$system/tmp/log") packages"
files_of_system >"$system/tmp/before"
install -m 600 -o "$(in_system id -u player)" -g "$(in_system id -g player)" \
    "$XAUTHORITY" "$system$player/.Xauthority"
openbox >/dev/null 2>&1 &

[[ $(as_player trameli --version) == "trameli $(dpkg-deb -f "$package" Version)" ]] ||
    fail "its version"
as_player trameli 2>/dev/null &
game=$!
eventually game_is_open || fail "it opens"
echo "it opens"
# A window that has just come does not listen to switches; how fast it comes depends on the machine.
sleep 5
keys space
sleep 5
keys alt+h m
eventually viewer_shows 'trameli\.english\.pdf' || fail "the manual opens, in the user's language"
echo "the manual opens, in the user's language"
keys q
sleep 2
keys Left Left Left Tab space
sleep 5
# One of these is a wall, since a maze has two ways out at most.
keys Left Right Up Down Left Right Up Down
eventually is_loud 1000 || fail "a wall is heard"
echo "a wall is heard"

keys alt+t
sleep 1
keys r
eventually is_printed || fail "a maze is printed"
eventually viewer_shows 'Trameli .*\.pdf' || fail "and shown"
echo "a maze is printed and shown"
keys q
sleep 2

keys alt+b
sleep 3
keys Tab Tab space
eventually has_ended || fail "it ends"
[[ -n $(find "$system$player/.local/share/trameli" -name '*.ini') ]] || fail "settings are kept"
files_of_system | diff "$system/tmp/before" - || fail "nothing but the home folder has changed"
echo "it ends; settings are kept, and nothing else has changed"

in_system apt-get -q -y purge trameli >"$system/tmp/log" 2>&1 || fail "it is removed"
left=$(find "$system" -mindepth 1 -xdev \( -path "$system$player" -o -path "$system/tmp" -o \
    -path "$system/proc" -o -path "$system/dev" \) -prune -o -iname '*trameli*' -print)
[[ -z $left ]] || fail "nothing is left: $left"
[[ -d $system$player/.local/share/trameli ]] || fail "settings stay"
echo "removed: settings stay, and nothing else"
