#!/usr/bin/env bash
# Mistreats the game for hours, and prints what that came to. Arguments pick trials by name; --small
# does as little of each as the tests do. Ends with code 1 if anything went wrong.
set -euo pipefail
cd -P -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")"
# shellcheck source=scripts/packages.sh
. scripts/packages.sh
# shellcheck source=scripts/build.sh
. scripts/build.sh

# Its name, how much of it is little and how much is much, and what does it. The fuzzers count
# inputs, each of the two wild players seconds by the game's own clock; the folder's three cases are
# done once.
trials=(
    'kills        50     1000 kills'
    'starts        5       20 losses'
    'folder        1        1 losses'
    'screens      10      500 losses'
    'display       1       20 losses'
    'sound         1       20 losses'
    'wild         60     1800 wild'
    'file_utente 1000 10000000 fuzz'
    'file_lingua 1000 10000000 fuzz'
    'suoni       1000 10000000 fuzz'
    'immagini    1000 10000000 fuzz'
)

size=much
picked=()
for argument; do
    case $argument in
        --small) size=little ;;
        --*)
            echo "Usage: ./soak.sh [--small] [TRIAL...]" >&2
            exit 2
            ;;
        *) picked+=("$argument") ;;
    esac
done

need_packages "${packages_build[@]}" "${packages_run[@]}" "${packages_test[@]}" "${packages_fuzz[@]}"
tests=build/asan/tests
export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS=detect_stack_use_after_return=1:strict_string_checks=1
export UBSAN_OPTIONS=print_stacktrace=1

# Each is given the trial's name and the number.
do_kills() {
    build_preset asan platform_tests
    TRAMELI_KILLS=$2 "$tests/platform/platform_tests" --gtest_filter='*WhenKilled'
}
do_wild() {
    build_preset asan wild_tests
    TRAMELI_WILD_SECONDS=$2 "$tests/game/wild_tests"
}
do_losses() {
    build_preset asan trameli
    tests/x11/on_display.sh none tests/x11/losses_test.sh build/asan/src/trameli "$1" "$2"
}
# What was found worth keeping is kept, so that the next run goes on from there.
do_fuzz() {
    local corpus=build/soak/$1
    build_preset fuzz "$1_fuzz"
    mkdir -p "$corpus"
    case $1 in
        file_utente) cp tests/fuzz/semi/utente.ini "$corpus" ;;
        file_lingua) cp tests/fuzz/semi/lingua.lng "$corpus" ;;
        suoni) cp assets/suoni/{muovi.wav,coppa.mid} "$corpus" ;;
    esac
    # Leaks are looked for at the end; after each input it would take most of the time.
    "build/fuzz/tests/fuzz/$1_fuzz" -runs="$2" -max_len=2048 -detect_leaks=0 -rss_limit_mb=4096 \
        -artifact_prefix="build/soak/$1-" -print_final_stats=1 "$corpus" 2>&1
}

is_picked() {
    ((${#picked[@]} == 0)) || [[ " ${picked[*]} " == *" $1 "* ]]
}
failed=()
mkdir -p build/soak
for trial in "${trials[@]}"; do
    read -r name number much kind <<<"$trial"
    is_picked "$name" || continue
    [[ $size == little ]] || number=$much
    log=build/soak/$name.log
    code=0
    begin=$SECONDS
    ("do_$kind" "$name" "$number") >"$log" 2>&1 || code=$?
    case $code in
        0) said=$(sed -n 's/^soak: //p; s/^stat::number_of_executed_units: */inputs: /p; s/^stat::average_exec_per_sec: */a second: /p' "$log" | paste -sd ';' | sed 's/;/; /g') ;;
        77) said="skipped: something that it needs is missing here" ;;
        *)
            said="FAILED with code $code, see $log"
            failed+=("$name")
            ;;
    esac
    printf '%-12s %5d s  %s\n' "$name" "$((SECONDS - begin))" "$said"
done
if ((${#failed[@]} > 0)); then
    echo "Failed: ${failed[*]}"
    exit 1
fi
echo "Nothing failed."
