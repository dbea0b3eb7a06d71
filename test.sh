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

# One more at a time than processors: some tests mostly wait.
run_tests() {
    ctest --preset "$1" -j "$(($(nproc) + 1))" "${pick[@]}"
}

echo "== check" >&2
build_preset check
# Most of these wait for windows and sounds, so they go on beside the next build. They are a group
# of their own, which a build that fails takes with it.
set -m
run_tests check >build/check/tests.log 2>&1 &
checked=$!
set +m
trap 'kill -- "-$checked" 2>/dev/null || true' EXIT
build_preset asan
code=0
wait "$checked" || code=$?
trap - EXIT
cat build/check/tests.log
((code == 0)) || exit "$code"
# The first failure ends the script, so that the summary at the end is the one that matters.
echo "== asan" >&2
run_tests asan
