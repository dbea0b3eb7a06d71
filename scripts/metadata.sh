# shellcheck shell=bash
# What desktops, software centres and packagers read about the game: is it in order? Sourced, not
# run, with the root as the current folder.

# Lists the versions that are told in several places.
told_versions() {
    sed -n 's/^## \([0-9][^ ]*\) - .*/CHANGELOG.md \1/p' CHANGELOG.md | head -n 1
    sed -n 's/^project(trameli VERSION \([^ ]*\) .*/CMakeLists.txt \1/p' CMakeLists.txt
    sed -n '1s/^trameli (\([^)]*\)).*/debian\/changelog \1/p' debian/changelog
    sed -n 's/.*<release version="\([^"]*\)".*/packaging\/org.example.trameli.metainfo.xml \1/p' \
        packaging/org.example.trameli.metainfo.xml | head -n 1
}

# Runs a checker if it is there, and is quiet unless that has something to say.
ask() {
    local said
    command -v "$1" >/dev/null || return 0
    # Some tell of small faults and end as if there were none.
    if ! said=$("$@" 2>&1) || grep -qE '^[EWIP]: |: (hint|warning): ' <<<"$said"; then
        printf '%s\n' "$said" >&2
        return 1
    fi
}

check_metadata() {
    local versions
    versions=$(told_versions)
    if [[ $(wc -l <<<"$versions") -ne 4 || $(sort -u -k 2,2 <<<"$versions" | wc -l) -ne 1 ]]; then
        printf 'These do not tell the same version:\n%s\n' "$versions" >&2
        return 1
    fi
    ask desktop-file-validate packaging/trameli.desktop
    ask appstreamcli validate --pedantic --no-net packaging/org.example.trameli.metainfo.xml
    ask reuse lint
}
