#!/usr/bin/env bash
# Installs what is missing, builds the game, and starts it. Arguments go to the game.
#
#   TRAMELI_GEOMETRY       size of the virtual display, if one is needed (1366x768)
#   TRAMELI_SKIP_PACKAGES  if set, nothing is checked and nothing is installed
set -euo pipefail
cd -P -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")"
# shellcheck source=scripts/packages.sh
. scripts/packages.sh
# shellcheck source=scripts/build.sh
. scripts/build.sh
# shellcheck source=scripts/display.sh
. scripts/display.sh

game=build/release/src/trameli
packages=("${packages_build[@]}" "${packages_run[@]}")
display=$(kind_of_display)
# What begins with two dashes opens no window.
[[ ${1:-} != --* ]] || display=chosen
case $display in
    wayland) packages+=("${packages_wayland[@]}") ;;
    none) packages+=("${packages_display[@]}") ;;
esac

need_packages "${packages[@]}"
# Without its manual the game can be played all the same.
build_preset release trameli documents || build_preset release trameli

# Without any locale the toolkit complains about the encoding of file names at each start.
if [[ -z ${LC_ALL:-}${LC_CTYPE:-}${LANG:-} ]]; then
    export LC_CTYPE=C.UTF-8
fi
if [[ $display == none ]]; then
    run_on_virtual_display "$game" "$@"
else
    exec "$game" "$@"
fi
