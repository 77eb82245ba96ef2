#!/usr/bin/env bash
# Makes an archive and a Debian package of a Release build.
# usage: package.sh BUILD_DIR OUTPUT_DIR
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(dirname "$here")
build=$(realpath "$1")
mkdir -p "$2"
output=$(realpath "$2")
id=com.orvenel.Talivane

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
# Later commits make later packages, so that one installs over the other.
revision=${TALIVANE_REVISION:-$(git -C "$root" rev-list --count HEAD 2>/dev/null || echo 1)}
architecture=$(dpkg --print-architecture)

stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT

# What both hold: the program, the reference tables, and the empty record files in a folder of their own, where
# no unpacking and no upgrade can put them over a user's records.
shipped=$stage/shipped
cmake --install "$build" --prefix "$shipped" >/dev/null
[ -n "${TALIVANE_KEEP_SYMBOLS:-}" ] || strip "$shipped/talivane"
mkdir "$shipped/empty"
for record in Floors Locations Profiles Rooms; do
    mv "$shipped/$record.xml" "$shipped/empty/"
done

launcher() { # launcher SHIPPED OWN: the two folders as the shell is to read them
    sed -e "s|@SHIPPED@|$1|" -e "s|@OWN@|$2|" "$here/talivane.sh"
}

# What the program links, by the names of the Debian packages that hold it.
mkdir -p "$stage/debian"
printf 'Source: talivane\n\nPackage: talivane\nArchitecture: any\n' >"$stage/debian/control"
# The pictures' plugin is loaded by name and linked by nobody.
depends="$(cd "$stage" && dpkg-shlibdeps -O "$shipped/talivane" 2>/dev/null | sed -n 's/^shlibs:Depends=//p'), libqt6svg6"

# The archive runs where it is unpacked.
folder=$stage/talivane-$version
cp -r "$shipped" "$folder"
launcher '$here' '$here' >"$folder/talivane.sh"
chmod 755 "$folder/talivane.sh"
sed -e "s|@VERSION@|$version|" \
    -e "s|@DEPENDS@|libqt6widgets6 libqt6printsupport6 libqt6svg6 libpugixml1v5 fonts-liberation|" \
    "$here/README.txt" >"$folder/README.txt"
archive=$output/talivane-$version-$revision-linux-$architecture.tar.gz
tar --directory "$stage" --sort=name --owner=0 --group=0 --numeric-owner -czf "$archive" "talivane-$version"

# The package: one copy for all, from which the launcher makes each user their own.
deb=$stage/deb
mkdir -p "$deb"/{DEBIAN,usr/bin,usr/lib,usr/share/{applications,metainfo,doc/talivane,icons/hicolor/scalable/apps}}
cp -r "$shipped" "$deb/usr/lib/talivane"
mv "$deb/usr/lib/talivane/licences" "$deb/usr/share/doc/talivane/licences"
launcher /usr/lib/talivane '"${TALIVANE_HOME:-${XDG_DATA_HOME:-$HOME/.local/share}/talivane}"' >"$deb/usr/bin/talivane"
chmod 755 "$deb/usr/bin/talivane"
cp "$here/$id.desktop" "$deb/usr/share/applications/"
cp "$here/$id.metainfo.xml" "$deb/usr/share/metainfo/"
cp "$root/src/ui/pictures/talivane.svg" "$deb/usr/share/icons/hicolor/scalable/apps/$id.svg"
"$build/tools/icons/talivane_icons" "$root/src/ui/pictures/talivane.svg" "$id" "$deb/usr/share/icons/hicolor"
sed -n 's/^    CACHE STRING.*//; s/^set(TALIVANE_RIGHTS "\(.*\)"$/\1/p' "$root/cmake/VersionRecord.cmake" \
    >"$deb/usr/share/doc/talivane/copyright"
find "$deb/usr" -type d -exec chmod 755 {} +
find "$deb/usr" -type f ! -perm /111 -exec chmod 644 {} +
cat >"$deb/DEBIAN/control" <<CONTROL
Package: talivane
Version: $version-$revision
Architecture: $architecture
Maintainer: Orvenel <support@talivane.example>
Installed-Size: $(du -sk "$deb/usr" | cut -f1)
Depends: $depends
Recommends: fonts-liberation
Suggests: fonts-noto-cjk | fonts-wqy-zenhei
Section: misc
Priority: optional
Homepage: https://www.talivane.example/
Description: feng shui advice for one household
 You enter the people of a household and their home: floors, rooms on a plan, the
 direction of North. Talivane answers where to sleep, cook, work and decorate, and
 when and where to move or renovate, as reports with compass charts.
 .
 Each user has a folder of their own with the program beside their records.
CONTROL
package=$output/talivane_$version-${revision}_$architecture.deb
dpkg-deb --root-owner-group --build "$deb" "$package" >/dev/null

printf '%s\n' "$archive" "$package"
