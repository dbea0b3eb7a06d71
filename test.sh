#!/usr/bin/env bash
# Installs what is missing, builds with warnings as errors, and runs all tests: those of the program
# itself on the optimised build, all others under the sanitizers. An argument picks tests by name, as
# CTest's -R does.
set -euo pipefail
cd -P -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")"
# shellcheck source=scripts/packages.sh
. scripts/packages.sh
# shellcheck source=scripts/build.sh
. scripts/build.sh
# shellcheck source=scripts/metadata.sh
. scripts/metadata.sh

pick=()
if [[ $# -gt 0 ]]; then
    # They may be in one of the two presets alone.
    pick=(-R "$1" --no-tests=ignore)
fi

need_packages "${packages_build[@]}" "${packages_run[@]}" "${packages_test[@]}"
check_metadata
# The first failure ends the script, so that the summary at the end is the one that matters.
for preset in check asan; do
    echo "== $preset" >&2
    build_preset "$preset"
    # One more than processors: some tests mostly wait.
    ctest --preset "$preset" -j "$(($(nproc) + 1))" "${pick[@]}"
done
