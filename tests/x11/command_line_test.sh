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
expect 2 '' "*no display*-platform is 'nosuch'" "$game" -platform nosuch
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
for wrong in '--livello 17' '--livello 1 --numero 0' '--livello 1 --seme -1' '--numero 2' \
    '--livello 1 --utente ../x'; do
    # shellcheck disable=SC2086
    expect 2 '' "*needs a *" "$game" --quaderno "$HOME/wrong.pdf" $wrong
done
expect 2 '' "*'--quaderno' needs a file*" "$game" --livello 1
expect 2 '' "*no player 'Nobody'" "$game" --quaderno "$HOME/wrong.pdf" --livello 1 --utente Nobody
expect 1 '' '*a?b.pdf* cannot be written' "$game" --quaderno $'/dev/null/a\nb.pdf' --livello 1
mkfifo "$HOME/pipe"
expect 1 '' '*cannot be written' "$game" --quaderno "$HOME/pipe" --livello 1
# shellcheck disable=SC2016
expect 1 '' '*cannot be written' bash -c 'ulimit -c 0 -f 8; exec "$@"' - \
    "$game" --quaderno "$HOME/wrong.pdf" --livello 16 --numero 20
[[ -p $HOME/pipe && -z $(find "$HOME" -name '*wrong*') ]] || failed=1

# Of a link the file behind it is made, and what a player sees on a dark window is seen on paper too:
# walls in black, symbol and trace in a shade of their own.
users=$XDG_DATA_HOME/trameli/ImpostazioniProgrammiOvalia/trameli
mkdir -p "$users"
white=16777215
printf '%s\r\n' 3 False True True $white $white 0 $white 0 255 1 True False False 0 4 >"$users/Änna.ini"
ln -s target.pdf "$HOME/link.pdf"
book link --soluzioni --utente änna -platform xcb
shade() { pdftoppm -gray -r 40 -f "$1" -l "$1" "$HOME/target.pdf" | LC_ALL=C tr -dc "$2" | wc -c; }
(($(shade 1 '\0') > 500 && $(shade 1 '\217') > 20 && $(shade 14 '\217') > 100)) || failed=1
exit "$failed"
