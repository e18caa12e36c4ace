#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

# Makes the Debian packages from a clean copy of the sources and has them looked at by Debian's validators; says one line each.
# Usage: scripts/package.sh [--twice] [--version VERSION]
#   --twice            builds them once more, elsewhere and otherwise, and fails where a byte is another
#   --version VERSION  in place of the one in debian/changelog, to have packages to upgrade from; looks at nothing
# The packages lie in build/packages/, or in build/packages-VERSION/, with the source package, the log of the build and a list of
# all sources with their licences (SPDX).

# Its checks are functions that are called by a name put together:
# shellcheck disable=SC2317

source "$(dirname "$0")/common.sh"

usage="usage: scripts/package.sh [--twice] [--version VERSION]"
twice=no
version=
while (($#)); do
    case "$1" in
    --twice) twice=yes ;;
    --version)
        version=${2-}
        [[ $version =~ ^[0-9][0-9a-z.~+]*$ ]] || fail "$usage"
        shift
        ;;
    *) fail "unknown argument \"$1\"; $usage" ;;
    esac
    shift
done
place=$PWD/build/packages${version:+-$version}

# build COPY [WRAPPER...]: copies the sources there and builds the packages beside the copy.
build() {
    local copy=$1
    shift
    mkdir -p "$copy"
    listed_files | tar -cf - -T - | tar -xf - -C "$copy"
    [[ -z $version ]] || sed -i "1s/(.*)/($version)/" "$copy/debian/changelog"
    # A compiler that is called by another program would not be found in the log.
    reuse --root "$copy" spdx --output "$copy.spdx" || return
    (cd "$copy" && env -u CMAKE_CXX_COMPILER_LAUNCHER DEB_BUILD_OPTIONS="parallel=$(nproc) noautodbgsym" \
        "$@" dpkg-buildpackage -us -uc)
}

# Another folder, other permissions and times of files, another language and time zone.
build_otherwise() (
    umask 0077
    build "$1" env LC_ALL=C TZ=Asia/Kathmandu
)

check_lintian() {
    lintian --allow-root --fail-on error,warning --display-level '>=warning' "$place"/*.changes
}

# Whether a library copies anything whose size the compiler knew, and so could have checked, its file does not tell; that each
# of its sources was compiled with the checks, the log does (check_flags). Debian 12 asks for no protection of the control flow.
check_hardening() {
    local file is_library status=0
    while read -r file; do
        [[ $file == *.so ]] && is_library=(--nofortify) || is_library=()
        hardening-check --quiet --nocfprotection "${is_library[@]}" "$file" || status=1
    done < <(find "$unpacked" -type f \( -perm -100 -o -name '*.so' \) -exec sh -c 'head -c 4 "$1" | grep -q ELF' _ {} \; -print)
    return "$status"
}

check_desktop_entry() {
    desktop-file-validate "$unpacked"/usr/share/applications/*.desktop
}

check_metainfo() {
    appstreamcli validate --no-net --explain "$unpacked"/usr/share/metainfo/*.xml
}

# The flags of Debian for each file that was compiled.
check_flags() {
    blhc --all "$place/build.log"
}

# The packages unpacked, as if installed below a folder.
check_program() {
    VELLUMCONNECT_ROOT=$unpacked debian/tests/operators-links
}

scripts/packages.sh package
rm -rf "$place"
mkdir -p "$place"
logged "$place/build.log" build "$place/sources" || fail "the packages cannot be built, see above"
rm -rf "$place/sources"
mv "$place/sources.spdx" "$place/vellumconnect.spdx"
(cd "$place" && say "Made in ${place#"$PWD/"}: $(echo *.deb)")
[[ -z $version ]] || exit 0

unpacked=$place/unpacked
for package in "$place"/*.deb; do
    dpkg-deb -x "$package" "$unpacked"
done
status=0
for check in lintian hardening desktop_entry metainfo flags program; do
    if logged "$place/$check.log" "check_$check"; then
        say "packages: $check: ok"
    else
        say "packages: $check: FAILED, see above"
        status=1
    fi
done

if [[ $twice == yes ]]; then
    again=$place/again
    logged "$again.log" build_otherwise "$again/somewhere/else" || fail "the packages cannot be built elsewhere, see above"
    same=yes
    for package in "$place"/*.deb; do
        cmp "$package" "$again/somewhere/$(basename "$package")" || same=no
    done
    [[ $same == yes ]] || fail "not the same bytes twice; \"diffoscope\" shows where the files differ"
    say "packages: the same bytes twice: ok"
fi
exit "$status"
