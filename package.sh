#!/usr/bin/env bash
# Makes build/package/trameli_VERSION_ARCHITECTURE.deb and has it looked through.
#
#   ./package.sh          makes the package
#   ./package.sh --twice  makes it a second time, from nothing and in another folder, and compares
#
#   DEB_BUILD_OPTIONS      as for any Debian package, for instance parallel=1
#   TRAMELI_SKIP_PACKAGES  if set, nothing is checked and nothing is installed
set -euo pipefail
cd -P -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")"
# shellcheck source=scripts/packages.sh
. scripts/packages.sh
# shellcheck source=scripts/metadata.sh
. scripts/metadata.sh

need_packages "${packages_build[@]}" "${packages_run[@]}" "${packages_package[@]}"
check_metadata

version=$(dpkg-parsechangelog -S Version)
package=trameli_${version}_$(dpkg --print-architecture).deb
# Files must not be readable or writable otherwise because of who builds.
umask 022
# Nor may the bytes depend on what else the builder compiles.
unset CPPFLAGS CFLAGS CXXFLAGS LDFLAGS
export LC_ALL=C.UTF-8 TZ=UTC
export DEB_BUILD_OPTIONS=${DEB_BUILD_OPTIONS:-parallel=$(nproc)}
DEB_BUILD_OPTIONS+=' noautodbgsym'

# The sources without what was built or is hidden from Git, all of one date.
copy_sources() {
    local -a names=(.)
    if git rev-parse --git-dir >/dev/null 2>&1; then
        readarray -d '' names < <(git ls-files -z --cached --others --exclude-standard --deduplicate)
    fi
    mkdir -p "$1"
    tar -c --exclude=./build --exclude=./.git --mtime="@$(dpkg-parsechangelog -S Timestamp)" \
        -- "${names[@]}" | tar -x -C "$1"
}

# make_package FOLDER NAME: in a subfolder of that name, since the name must not show in the result.
make_package() {
    local folder=$1 sources=$1/$2
    rm -rf "$folder"
    mkdir -p "$folder"
    cp -a "$taken" "$sources"
    (cd "$sources" && dpkg-buildpackage --build=binary --no-sign --unsigned-changes) \
        >"$folder/log" 2>&1 || {
        tail -n 40 "$folder/log" | cut -c 1-200 >&2
        echo "The package could not be built; $folder/log tells all." >&2
        return 1
    }
    rm -rf "$sources"
}

# debhelper gives the build a home of its own, which would begin with an empty cache.
if command -v ccache >/dev/null; then
    CCACHE_DIR=${CCACHE_DIR:-$(ccache --get-config cache_dir)}
    export CCACHE_DIR
fi
# Taken once: somebody may go on working while the package is made.
taken=build/package-sources
trap 'rm -rf "$taken"' EXIT
rm -rf "$taken"
copy_sources "$taken"
echo "Building $package" >&2
make_package build/package "trameli-$version"
lintian --allow-root --pedantic --display-info --display-experimental \
    --fail-on error,warning,info,pedantic,experimental "build/package/$package" >&2
if [[ ${1:-} == --twice ]]; then
    echo "Building it again" >&2
    CCACHE_DISABLE=1 make_package build/package-again elsewhere
    cmp "build/package/$package" "build/package-again/$package"
fi
echo "build/package/$package"
