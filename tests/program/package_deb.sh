#!/bin/bash
# Builds the Debian package with CPack, unpacks it into a scratch root with dpkg -x and
# checks its control fields and its files. The package stays in SCRATCH/out for lintian.
# Usage: package_deb.sh CPACK BUILD_DIR SOURCE_DIR VERSION SCRATCH
set -u
cpack=$1 build=$2 source=$3 version=$4 scratch=$5
id=org.orv.admin_env

rm -rf "$scratch"
mkdir -p "$scratch/out" "$scratch/root"
if ! "$cpack" -G DEB --config "$build/CPackConfig.cmake" -B "$scratch/out" >"$scratch/cpack.log" 2>&1; then
    cat "$scratch/cpack.log"
    echo "FAIL: cpack -G DEB"
    exit 1
fi
deb="$scratch/out/orv-admin-env_${version}_$(dpkg --print-architecture).deb"
if [ ! -f "$deb" ]; then
    echo "FAIL: no $deb; cpack made: $(ls "$scratch/out")"
    exit 1
fi
dpkg -x "$deb" "$scratch/root"
root=$scratch/root

passed=0 failures=0
check() { # check DESCRIPTION COMMAND...
    if "${@:2}"; then
        passed=$((passed + 1))
    else
        echo "FAIL: $1"
        failures=$((failures + 1))
    fi
}
field() { dpkg-deb -f "$deb" "$1"; }
has_dependency() { # FIELD PACKAGE: PACKAGE is one of the field's alternatives
    field "$1" | tr ',|' '\n\n' | sed 's/(.*//; s/ //g' | grep -qx "$2"
}
png_size() { # prints WIDTHxHEIGHT from the PNG header
    od -An -tu1 -j16 -N8 "$1" | awk '{print $3 * 256 + $4 "x" $7 * 256 + $8}'
}
is_file() { [ -f "$root/$1" ]; }

# Control fields.
check "Package is orv-admin-env" test "$(field Package)" = orv-admin-env
check "Version is $version" test "$(field Version)" = "$version"
check "Architecture is this machine's" test "$(field Architecture)" = "$(dpkg --print-architecture)"
check "Maintainer has an address" grep -qE '^[^<]+ <[^@>]+@[^>]+>$' <<<"$(field Maintainer)"
check "Section is utils" test "$(field Section)" = utils
check "Priority is optional" test "$(field Priority)" = optional
check "Homepage is the project's" test "$(field Homepage)" = https://orv.example.org/admin-env
check "Description has a synopsis" test -n "$(field Description | head -n 1)"
for library in libc6 libqt5core5a libqt5gui5 libqt5widgets5 libqt5network5 libqt5svg5; do
    check "Depends on $library" has_dependency Depends $library
done
check "Recommends breeze-icon-theme" has_dependency Recommends breeze-icon-theme

# Files.
check "the program is executable" test -x "$root/usr/bin/orv-admin-env"
check "the backups program is executable" test -x "$root/usr/bin/orv-admin-env-backups"
check "the desktop entry" is_file usr/share/applications/$id.desktop
check "the AppStream metadata" is_file usr/share/metainfo/$id.metainfo.xml
check "the scalable icon" is_file usr/share/icons/hicolor/scalable/apps/$id.svg
for size in 16 22 24 32 48 64 128 256; do
    png=$root/usr/share/icons/hicolor/${size}x$size/apps/$id.png
    check "a ${size}x$size icon of that size" test "$(png_size "$png" 2>/dev/null)" = "${size}x$size"
done
check "the desktop entry names the icon" grep -qx "Icon=$id" "$root/usr/share/applications/$id.desktop"
check "the desktop entry starts the program" \
    grep -qx "Exec=orv-admin-env" "$root/usr/share/applications/$id.desktop"
check "the copyright file" is_file usr/share/doc/orv-admin-env/copyright
check "the change log is compressed" gzip -t "$root/usr/share/doc/orv-admin-env/changelog.gz"
zcat "$root/usr/share/doc/orv-admin-env/changelog.gz" >"$scratch/changelog"
check "the change log's latest entry is $version" \
    test "$(dpkg-parsechangelog -l "$scratch/changelog" -S Version)" = "$version"
for page in "$source"/docs/*.1; do
    name=$(basename "$page")
    check "the manual page $name is compressed" gzip -t "$root/usr/share/man/man1/$name.gz"
done
check "the backups program has its manual page" \
    gzip -t "$root/usr/share/man/man1/orv-admin-env-backups.1.gz"
check "the command-line program is executable" test -x "$root/usr/bin/orv-admin-env-cli"
check "the command-line program has its manual page" \
    gzip -t "$root/usr/share/man/man1/orv-admin-env-cli.1.gz"
strays=$(cd "$root" && find . -type f | sed 's|^\./||' |
    grep -vE '^usr/bin/[^/]+$|^usr/share/(applications|metainfo|man/man1)/[^/]+$' |
    grep -vE '^usr/share/icons/hicolor/[^/]+/apps/[^/]+$|^usr/share/doc/orv-admin-env/[^/]+$')
check "no files outside the usual places (found: $strays)" test -z "$strays"

# The installed tree as software centres see it: metadata, desktop entry and icon.
if command -v appstreamcli >/dev/null; then
    appstreamcli validate-tree --pedantic --no-net "$root" >"$scratch/appstream.log" 2>&1
    check "appstreamcli validate-tree: $(cat "$scratch/appstream.log")" \
        grep -q "Validation was successful\.$" "$scratch/appstream.log"
fi

echo "$passed passed, $failures failed"
[ $failures -eq 0 ]
