#!/usr/bin/env bash
# Installs what is missing, builds the benchmarks, runs them all, and prints how the project's
# code compares with its yardsticks. An argument picks benchmarks by a regular expression.
set -euo pipefail
cd -P -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")"
# shellcheck source=scripts/packages.sh
. scripts/packages.sh
# shellcheck source=scripts/build.sh
. scripts/build.sh

need_packages "${packages_build[@]}" "${packages_run[@]}" "${packages_bench[@]}"
build_preset bench
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}

# Several short runs of each, mixed, and the median of them: a moment in which the machine was busy
# then spoils neither side of a pair.
results=()
for program in build/bench/bench/*_bench; do
    [[ -f $program && -x $program ]] || continue
    echo "Running ${program##*/}" >&2
    "$program" --benchmark_filter="${1:-.}" --benchmark_min_time=0.05 \
        --benchmark_repetitions=7 --benchmark_enable_random_interleaving=true \
        --benchmark_out="$program.csv" --benchmark_out_format=csv >"$program.log" 2>&1 || {
        cat "$program.log" >&2
        exit 1
    }
    results+=("$program.csv")
done
if [[ ${#results[@]} -eq 0 ]]; then
    echo "There are no programs named *_bench in build/bench/bench." >&2
    exit 1
fi
LC_ALL=C awk -f bench/table.awk bench/aims.txt "${results[@]}"

# What is not measured inside one process brings its own script.
if [[ $# -eq 0 ]]; then
    for script in bench/*.sh; do
        [[ -x $script ]] || continue
        echo
        "$script"
    done
fi
