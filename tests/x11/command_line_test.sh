#!/usr/bin/env bash
# What the game answers on a terminal: to options, and where no display can be opened.
#
#     command_line_test.sh GAME
set -euo pipefail
game=$1
failed=0

# expect CODE OUT ERR [VARIABLE=VALUE...] GAME [ARGUMENT...]: both outputs by patterns, one line each.
expect() {
    local code=$1 out=$2 err=$3 got=0
    shift 3
    timeout 20 env "$@" >"$HOME/out" 2>"$HOME/err" || got=$?
    # shellcheck disable=SC2053
    [[ $got == "$code" && $(<"$HOME/out") == $out && $(<"$HOME/err") == $err ]] &&
        (($(wc -l <"$HOME/err") <= 1)) && return
    echo "$*: code $got"
    cat "$HOME/out" "$HOME/err"
    failed=1
} >&2

expect 0 'Usage: trameli*--help *--version *' '' "$game" --help
expect 0 'trameli [0-9]*.[0-9]*.[0-9]*' '' "$game" --version --unheard-of
expect 2 '' "*option '--unheard-of';*" "$game" -platform offscreen --unheard-of
expect 2 '' "*option '--a?b';*" "$game" $'--a\nb'
expect 2 '' "*'-display' needs a value;*" "$game" -display
expect 2 '' "*'--help' takes no value;*" "$game" --help=all
expect 2 '' "*word 'maze';*" "$game" maze
unset WAYLAND_DISPLAY
expect 2 '' "*neither DISPLAY nor *" -u DISPLAY -u QT_QPA_PLATFORM "$game"
expect 2 '' "*no display*DISPLAY is ':nowhere'*" "$game" -display :nowhere
expect 2 '' "*no display*" QT_QPA_PLATFORM=nothing "$game"
# The server's own library has something to say about that, too.
expect 2 '' '*no display*' XAUTHORITY=/dev/null "$game"

# A book of mazes needs no display.
book() { expect 0 '' '*' -u DISPLAY "$game" --quaderno "$HOME/$1.pdf" --livello 12 --numero 13 "${@:2}"; }
book one --seme 5 --soluzioni
book again --seme 5 --soluzioni
book other --seme 6
cmp "$HOME/one.pdf" "$HOME/again.pdf" || failed=1
[[ $(pdfinfo "$HOME/one.pdf") == *"Pages: "*15$'\n'* ]] || failed=1
[[ $(pdfinfo "$HOME/other.pdf") == *"Pages: "*13$'\n'* ]] || failed=1
[[ $(pdftotext "$HOME/one.pdf" -) != $(pdftotext "$HOME/other.pdf" -) ]] || failed=1
for wrong in '--livello 17' '--livello 1 --numero 0' '--livello 1 --seme x' '--numero 2'; do
    # shellcheck disable=SC2086
    expect 2 '' "*needs a *" "$game" --quaderno "$HOME/wrong.pdf" $wrong
done
expect 2 '' "*'--quaderno' needs a file*" "$game" --livello 1
expect 1 '' '*cannot be written' "$game" --quaderno /dev/null/wrong.pdf --livello 1
[[ ! -e $HOME/wrong.pdf ]] || failed=1
exit "$failed"
