# shellcheck shell=bash
# shellcheck disable=SC2034  # the lists are for the scripts that source this
# What the scripts need from the system, and how it gets there. Sourced, not run.
#
# Each group is listed here and nowhere else. The names are Debian's (12 and later).

# Compiler, build tools, and the headers of the toolkit, of the X server's protocol, of the system's
# fonts, of the sound mixer and of the print service.
packages_build=(g++ cmake ninja-build qt6-base-dev qt6-svg-dev libxcb1-dev libxcb-xkb-dev
    libfontconfig-dev libsdl2-mixer-dev libcups2-dev)
# What the game loads while it runs: window plugins, the toolkit's own texts, the mixer, instruments
# for its music, the way to the print service, and the fonts that stand in for Comic Sans MS and
# Arial.
packages_run=(qt6-qpa-plugins qt6-translations-l10n libqt6svg6 libsdl2-mixer-2.0-0
    libcups2 timgm6mb-soundfont fonts-comic-neue fonts-liberation)
# Only for a session that has Wayland and no X11.
packages_wayland=(qt6-wayland)
# Only where there is no display: a virtual one with its password, and a window manager.
packages_display=(tigervnc-standalone-server tigervnc-tools openbox)
# The tests bring their own X servers, with and without a window manager, and look at that display.
# They also bring their own Wayland session and print service, and look at its pages, and a sound
# server to be killed. Screens come and go below the toolkit, by its private headers. What screen
# readers are told is listened to.
packages_test=(libgtest-dev xvfb xdotool x11-xserver-utils "${packages_display[@]}" weston
    "${packages_wayland[@]}" cups ghostscript poppler-utils pulseaudio pulseaudio-utils
    qt6-base-private-dev at-spi2-core dbus gir1.2-atspi-2.0 python3-gi)
# Fuzzers are made by another compiler.
packages_fuzz=(clang)
# The package: what makes it and what looks it through. What is needed to build the game inside it
# stands in debian/control once more, because Debian's tools read nothing else.
packages_package=(dpkg-dev debhelper lintian desktop-file-utils appstream reuse)
# Trying it on a bare system.
packages_try=(mmdebstrap xvfb xauth openbox xdotool imagemagick)
# The start of the game is measured in a real window; an hour is played by the tests' hands.
packages_bench=(libbenchmark-dev libgtest-dev xvfb openbox dbus)

# Sets `missing` to those of the named packages that are not installed.
find_missing() {
    local installed name
    # One call for all of them: this is on the way of every start. It fails when it does not know
    # one of the names, and lists the others all the same.
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null || true)
    missing=()
    for name in "$@"; do
        case $'\n'"$installed"$'\n' in
            *$'\n'"installed $name"$'\n'*) ;;
            *) missing+=("$name") ;;
        esac
    done
}

tell_needs() {
    cat >&2 <<END
$1

Needed are a C++20 compiler, CMake 3.25 or later, Ninja, Qt 6.4 or later with Widgets, Svg and
its X11 or Wayland plugin and its translations, libxcb, Fontconfig, CUPS 2.3 or later (its library), and SDL2_mixer 2.6 or later with
FluidSynth; the fonts Comic Neue and Liberation Sans (or Comic Sans MS and Arial); for the music a General MIDI
soundfont; without a display also TigerVNC's X server with vncpasswd and the window manager openbox; for tests
and benchmarks both of these, GoogleTest, Google Benchmark, Xvfb, xdotool and Weston, the whole of CUPS with its filters,
Ghostscript and Poppler's tools, the AT-SPI bus and Python's access to it.

Missing, by Debian's names:
  ${*:2}

If all of it is here already, run the script again with TRAMELI_SKIP_PACKAGES=1.
END
}

# Installs what is missing of the named packages. With nothing missing it asks for nothing: no
# network, no root.
need_packages() {
    [[ -z ${TRAMELI_SKIP_PACKAGES:-} ]] || return 0
    local missing=() as_root=()
    if command -v dpkg-query >/dev/null; then
        find_missing "$@"
    else
        missing=("$@")
    fi
    [[ ${#missing[@]} -gt 0 ]] || return 0

    if ! command -v apt-get >/dev/null; then
        tell_needs "This system has no apt-get, so nothing was installed." "${missing[@]}"
        return 1
    fi
    if [[ $(id -u) -ne 0 ]]; then
        if ! command -v sudo >/dev/null; then
            tell_needs "Packages are missing, and neither root nor sudo is at hand." "${missing[@]}"
            return 1
        fi
        as_root=(sudo)
    fi

    echo "Installing: ${missing[*]}" >&2
    # The variable goes through env: sudo would drop it. A fresh machine is often busy with its own
    # updates, so wait for those.
    as_root+=(env DEBIAN_FRONTEND=noninteractive apt-get -q
        -o DPkg::Lock::Timeout=300)
    # A list that cannot be renewed may still be good enough to install from.
    "${as_root[@]}" update >&2 || echo "The package lists could not be renewed." >&2
    "${as_root[@]}" install -y --no-install-recommends "${missing[@]}" >&2
}
