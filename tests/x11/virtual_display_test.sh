#!/usr/bin/env bash
# The display that run.sh makes where there is none: other users of the machine have no way in, and
# whoever sees it can start nothing there.
set -euo pipefail
here=$(realpath -- "$(dirname -- "${BASH_SOURCE[0]}")")
# shellcheck source-path=SCRIPTDIR source=../../scripts/display.sh
source "$here/../../scripts/display.sh"

for tool in Xvnc vncpasswd openbox xdotool; do
    if ! command -v "$tool" >/dev/null; then
        echo "$tool is not installed." >&2
        exit 77
    fi
done

windows() {
    xdotool search --onlyvisible '' 2>/dev/null | wc -l
}

look_around() {
    local failed=0 before word
    if XAUTHORITY=/dev/null xdotool getmouselocation &>/dev/null; then
        echo "A program without the cookie was let in."
        failed=1
    fi
    exec {viewer}<>"/dev/tcp/127.0.0.1/$((5900 + ${DISPLAY#:}))"
    head -c 12 <&"$viewer" >/dev/null
    printf 'RFB 003.008\n' >&"$viewer"
    # One way in, and that is the second.
    if [[ $(head -c 2 <&"$viewer" | od -An -tu1) != *1*2 ]]; then
        echo "A viewer is not asked for a password."
        failed=1
    fi
    before=$(windows)
    for word in 'click 1' 'click 2' 'click 3' 'key super+e' 'key alt+space'; do
        # shellcheck disable=SC2086
        xdotool mousemove 300 300 $word
        if (($(windows) != before)); then
            echo "Something opened at $word."
            failed=1
        fi
    done
    return "$failed"
} >&2

if [[ ${1:-} == inside ]]; then
    look_around
else
    run_on_virtual_display "$0" inside
fi
