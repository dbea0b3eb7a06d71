#!/usr/bin/env bash
# Installs a package on a system made for that with nothing else on it, plays there as an ordinary
# user, and removes the package again. Tells what it sees, and ends with an error at the first thing
# that is not as it should be. Needs root and the archive from which this system installs.
#
#   scripts/try_package.sh PACKAGE.deb [SYSTEM.tar [PICTURES]]
#
# SYSTEM.tar keeps the bare system for the next time; the folder PICTURES gets what was on the
# screen.
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
    [[ -f ${1:-} ]] || fail "scripts/try_package.sh PACKAGE.deb [SYSTEM.tar [PICTURES]]"
    need_packages "${packages_try[@]}"
    system=$(mktemp -d /var/tmp/trameli-try.XXXXXX)
    trap 'rm -rf --one-file-system "$system"' EXIT
    xvfb-run -a -s '-screen 0 1024x768x24' \
        unshare --mount --pid --fork --kill-child --mount-proc \
        "$0" --inside "$1" "$system" "${2:-$system.tar}" "${3:-}"
    [[ -n ${2:-} ]] || rm -f "$system.tar"
    exit
fi
package=$2 system=$3 bare=$4 pictures=$5
player=/home/player
heard=$player/heard.raw
data=$player/first
locale=en_GB.UTF-8
# The last one stays in force.
languages=(deutsch:de_DE español:es_ES français:fr_FR italiano:it_IT português:pt_PT english:en_GB)

in_system() {
    chroot "$system" env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
        DEBIAN_FRONTEND=noninteractive "$@"
}
# Sounds go into a file: there is no device in there.
as_player() {
    chroot --userspec=player:player "$system" env -i HOME=$player USER=player PATH=/usr/bin:/bin \
        LANG="$locale" DISPLAY="$DISPLAY" XAUTHORITY=$player/.Xauthority \
        XDG_DATA_HOME="$data" SDL_AUDIODRIVER=disk SDL_DISKAUDIOFILE=$heard "$@"
}
apt() {
    in_system apt-get -q -y "$@" >"$system/tmp/log" 2>&1 || {
        tail "$system/tmp/log" >&2
        fail "apt-get $*"
    }
}
# files_of_system FORMAT: all but what the player, the package manager, its caches and the print
# service's jobs write.
files_of_system() {
    find "$system" -mindepth 1 -xdev \( -path "$system$player" -o -path "$system/tmp" -o \
        -path "$system/proc" -o -path "$system/dev" -o -path "$system/var/lib/dpkg" -o \
        -path "$system/var/lib/apt" -o -path "$system/var/cache" -o -path "$system/var/log" -o \
        -path "$system/var/spool/cups" \) \
        -prune -o -printf "$1\n" | LC_ALL=C sort
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
windows_of_game() { xdotool search --onlyvisible --class '^trameli$'; }
windows_named() { xdotool search --onlyvisible --name "$1"; }
# in_front WINDOWS...: one of those that the command lists has the keyboard.
in_front() { "$@" | grep -qxF "$(xdotool getactivewindow)"; }
# Each form has a window of its own, none with a title, and one at a time is to be seen.
another_form() { in_front windows_of_game && [[ $(xdotool getactivewindow) != "$form" ]]; }
menu_is_down() { [[ $(windows_of_game | wc -l) -eq 2 ]]; }
viewer_shows() { in_front windows_named "$1"; }
# Noise in the file of what was heard: bytes that are not silence.
noise() { tr -d '\0' <"$system$heard" | wc -c; }
is_loud() { [[ $(noise) -gt $1 ]]; }
is_printed() { compgen -G "$system$player/Documents/Trameli *.pdf"; }
is_on_paper() { grep -q '^%!PS' "$system/tmp/paper"; }
has_ended() { ! kill -0 "$game"; }
picture() { [[ -z $pictures ]] || import -window root "$pictures/$1.png"; }

make_system() {
    local codename
    codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
    [[ -f $bare ]] || mmdebstrap --quiet --variant=apt "$codename" "$bare"
    tar -x -C "$system" -f "$bare"
    # The system will not be there tomorrow: nothing has to be safe on the disk.
    echo force-unsafe-io >"$system/etc/dpkg/dpkg.cfg.d/try"
    # A service that a package brings would be one of this machine.
    printf '#!/bin/sh\nexit 101\n' >"$system/usr/sbin/policy-rc.d"
    chmod 755 "$system/usr/sbin/policy-rc.d"
    mount -t proc proc "$system/proc"
    mount --rbind /dev "$system/dev"
    mkdir -p "$system/tmp/.X11-unix"
    mount --bind /tmp/.X11-unix "$system/tmp/.X11-unix"
    in_system useradd --create-home --shell /bin/sh player
    install -m 600 -o "$(in_system id -u player)" -g "$(in_system id -g player)" \
        "$XAUTHORITY" "$system$player/.Xauthority"
    cp "$package" "$system/tmp/trameli.deb"
    apt update
    # Whoever speaks one of the languages has its locale. Without it, the programs that look for a
    # viewer stumble over names that are not ASCII.
    apt install locales
    for language in "${languages[@]}"; do
        in_system localedef -i "${language#*:}" -f UTF-8 "${language#*:}.UTF-8"
    done
}

# next_form NAME: waits for it. A window that has just come does not listen to switches.
next_form() {
    eventually another_form || fail "$1 opens"
    form=$(xdotool getactivewindow)
    sleep 2
}
open_menu() {
    form=
    as_player trameli 2>/dev/null &
    game=$!
    next_form "the splash"
    keys space
    next_form "the menu"
}
open_level_1() {
    keys Left Left Left Tab space
    next_form "the maze"
}
print_maze() {
    keys alt+t
    eventually menu_is_down || fail "the maze has a menu"
    keys r
}
# see_file TITLE PICTURE: the viewer shows it, and goes again.
see_file() {
    eventually viewer_shows "$1" || fail "$1 is shown"
    sleep 2
    picture "$2"
    keys q
    eventually in_front windows_of_game || fail "$1 is closed"
}
end_game() {
    keys alt+F4
    eventually has_ended || fail "it ends"
}
# Along the four sides of the empty box, and out wherever it is open.
solve_level_1() {
    local leg way=()
    local -i step
    for leg in Right:10 Up:7 Right:1 Down:7 Right:1 Left:10 Down:1 Up:7 Left:1; do
        for ((step = 0; step < ${leg#*:}; ++step)); do
            way+=("${leg%:*}")
        done
    done
    keys "${way[@]}"
}
# key_of CONTROL FILE: the letter that a language file underlines in a caption.
key_of() {
    local caption
    caption=$(grep -m 1 "^$1\.Caption=" "$2")
    caption=${caption#*=\"}
    caption=${caption#*&}
    echo "${caption:0:1}" | tr '[:upper:]' '[:lower:]'
}

check_commands() {
    local said status=0
    [[ $(as_player trameli --version) == "trameli $(dpkg-deb -f "$package" Version)" ]] ||
        fail "its version"
    [[ $(as_player trameli --help) == *--quaderno* ]] || fail "its help"
    as_player trameli --quaderno $player/book.pdf --livello 12 --numero 20 --soluzioni ||
        fail "a book of mazes"
    [[ $(head -c 5 "$system$player/book.pdf") == %PDF- ]] || fail "a book of mazes is a PDF file"
    said=$(as_player env -u DISPLAY trameli 2>&1) || status=$?
    [[ $status -eq 2 && $(wc -l <<<"$said") -eq 1 ]] || fail "one line without a display: $said"
    echo "it tells its version and its help, and makes a book of mazes"
}

# check_language NAME:LOCALE
check_language() {
    local name=${1%:*} title
    local file=$system/usr/share/trameli/lngtrameli/$name.lng
    locale=${1#*:}.UTF-8
    data=$player/$name
    # The manual in the language of the forms themselves has no word for it in its name. Letters
    # that are not ASCII come in other bytes in the title.
    title="trameli\\.${name//[^a-z]/.*}\\.pdf"
    [[ $name != italiano ]] || title='trameli\.pdf'
    open_menu
    picture "menu.$name"
    # The manual is the first entry, on offer as soon as the menu is open.
    keys "alt+$(key_of mnuInformazioni "$file")"
    eventually menu_is_down || fail "the menu with the manual opens ($name)"
    keys Return
    see_file "$title" "manual.$name"
    end_game
    echo "it opens in its own language, and so does the manual: $name"
}

make_system
openbox --config-file "$root/scripts/openbox.xml" >/dev/null 2>&1 &

# With no more than it depends on it can be played, and all of that can be taken away again.
files_of_system %P >"$system/tmp/bare"
apt install --no-install-recommends /tmp/trameli.deb
open_menu
open_level_1
solve_level_1
eventually is_loud 1000 || fail "a wall is heard without recommended packages"
end_game
apt purge --autoremove trameli
files_of_system %P | diff "$system/tmp/bare" - || fail "everything is removed"
echo "installed without recommended packages, played, and removed: nothing is left"

apt install /tmp/trameli.deb
echo "installed, with $(grep -c '^Setting up' "$system/tmp/log") packages"
files_of_system '%P %s %C@' >"$system/tmp/before"
as_player test ! -w /usr/share/trameli -a ! -w /usr/bin/trameli || fail "the program is not theirs"
check_commands
for language in "${languages[@]}"; do
    check_language "$language"
done

open_menu
open_level_1
print_maze
eventually is_printed || fail "a maze is printed"
see_file 'Trameli .*\.pdf' printed
echo "a maze is printed and shown"
# Five are to be solved. One that the walk does not get out of takes another walk.
for ((walk = 1; walk <= 10; ++walk)); do
    solve_level_1
    sleep 2
    ! another_form || break
    keys space
    sleep 2
done
eventually is_loud 1000 || fail "walls are heard"
next_form "the congratulations"
# More than what can be left of the sounds of the maze.
eventually is_loud $(($(noise) + 500000)) || fail "the music is heard"
picture congratulations
echo "walls are heard, and music"
end_game
[[ -n $(find "$system$data/trameli" -name '*.ini') ]] || fail "settings are kept"
files_of_system '%P %s %C@' | diff "$system/tmp/before" - || fail "the home folder alone has changed"
echo "it ends; settings are kept, and nothing else has changed"

# A print service with a queue into a file. The port would be this machine's.
apt install cups
printf 'FileDevice Yes\n' >>"$system/etc/cups/cups-files.conf"
sed -i 's/^Listen localhost.*//; s/^Port .*//; s/^Browsing.*/Browsing No/' "$system/etc/cups/cupsd.conf"
in_system cupsd
eventually in_system lpadmin -p Sala -E -v file:///tmp/paper -m drv:///sample.drv/generic.ppd ||
    fail "there is a queue"
in_system lpadmin -d Sala
# Another first start, since the level below is reached from that of a new player.
data=$player/paper
open_menu
open_level_1
print_maze
eventually is_on_paper || fail "a maze goes to the printer"
echo "a maze goes to the printer"
end_game

files_of_system %P >"$system/tmp/before"
in_system dpkg -L trameli | sed 's,^/,,' | LC_ALL=C sort >"$system/tmp/ours"
apt remove trameli
files_of_system %P >"$system/tmp/after"
other=$(
    export LC_ALL=C
    comm -23 "$system/tmp/before" "$system/tmp/after" | comm -23 - "$system/tmp/ours"
    comm -13 "$system/tmp/before" "$system/tmp/after"
)
[[ -z $other ]] || fail "nothing but its own files goes, and nothing comes: $other"
left=$(grep -i trameli "$system/tmp/after" || in_system dpkg-query -W trameli 2>/dev/null || true)
[[ -z $left ]] || fail "nothing is left: $left"
[[ -d $system$data/trameli ]] || fail "settings stay"
echo "removed: settings stay, and nothing else"
