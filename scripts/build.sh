# shellcheck shell=bash
# Configuring and building by preset. Sourced, not run, with the root as the current folder.

# A build folder is good as long as it was made for this very place and these presets; everything
# else the build tool notices itself. Asking CMake again each time would cost half a second.
is_configured() {
    local folder=build/$1
    [[ -f $folder/build.ninja && ! CMakePresets.json -nt $folder/build.ninja ]] &&
        grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$folder/CMakeCache.txt"
}

# build_preset PRESET [target...]: quiet unless there is something to do.
build_preset() {
    local preset=$1
    shift
    if ! is_configured "$preset"; then
        # From scratch, or what an older preset or another place left in the cache would stay.
        cmake --fresh --preset "$preset" >&2
    fi
    # Silent where nothing changed, as on most starts.
    if [[ $(ninja -C "build/$preset" -n "$@") != *'ninja: no work to do.' ]]; then
        ninja -C "build/$preset" "$@" >&2
    fi
}
