#!/usr/bin/env bash
# Tries both packages as a user meets them: in a bare Debian 12 they are installed or unpacked, started, a person
# is saved, a newer build comes over them, and the person is still there. Needs root, debootstrap and a mirror.
# usage: try_packages.sh BUILD_DIR WORK_DIR
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
build=$(realpath "$1")
mkdir -p "$2"
work=$(realpath "$2")
root=$work/root
package=$here/../../packaging/package.sh

fail() {
    printf 'FAILED: %s\n' "$*" >&2
    exit 1
}
said() { printf 'ok: %s\n' "$*"; }

unmount() {
    local folder
    for folder in proc dev; do
        mountpoint -q "$root/$folder" && umount -l "$root/$folder"
    done
    return 0
}
trap unmount EXIT

# The older build differs from the newer one in the program's bytes and in a reference table.
rm -rf "$work/older" "$work/newer"
TALIVANE_REVISION=1 TALIVANE_KEEP_SYMBOLS=1 "$package" "$build" "$work/older" >/dev/null
TALIVANE_REVISION=2 "$package" "$build" "$work/newer" >/dev/null

if [ ! -e "$root/usr/bin/xdotool" ]; then
    rm -rf "$root"
    debootstrap --variant=minbase bookworm "$root" >/dev/null
    chroot "$root" apt-get install -y -qq --no-install-recommends xvfb xdotool >/dev/null 2>&1
    chroot "$root" useradd --create-home reader
fi
unmount
mount -t proc proc "$root/proc"
mount --rbind /dev "$root/dev"
rm -rf "$root/packages" "$root/home/reader"/.[!.]* "$root/home/reader"/*
rm -rf "$root/packages"
mkdir "$root/packages"
cp -r "$work/older" "$work/newer" "$root/packages/"
cp "$here/save_a_person.sh" "$root/packages/"
chmod -R a+rX "$root/packages"

inside() { chroot "$root" "$@"; }
as_reader() { inside su reader -c "cd && $*"; }

holds() { # holds FILE NAME...: the people in a record file, in order
    local file=$root/$1
    shift
    local expected=$* found
    found=$(grep -o 'PROFILENAME="[^"]*"' "$file" | sed 's/.*="//; s/"$//' | paste -sd' ')
    [ "$found" = "$expected" ] || fail "$file holds '$found', not '$expected'"
}

# The Debian package.
inside apt-get remove -y -qq talivane >/dev/null 2>&1 || true
inside sh -c 'apt-get install -y -qq --no-install-recommends /packages/older/*.deb' >/dev/null 2>&1
said "the package installs into a bare system with all that it needs"
records=home/reader/.local/share/talivane
as_reader sh /packages/save_a_person.sh talivane Ann
holds "$records/Profiles.xml" Ann
said "a person is saved"
before=$(sha256sum <"$root/$records/talivane")
inside sh -c 'apt-get install -y -qq --no-install-recommends /packages/newer/*.deb' >/dev/null 2>&1
as_reader sh /packages/save_a_person.sh talivane Ben new
holds "$records/Profiles.xml" Ann Ben
[ "$(sha256sum <"$root/$records/talivane")" != "$before" ] || fail "the user's copy was not renewed"
said "after an upgrade the person is still there, and the program is the newer one"
inside apt-get remove -y -qq talivane >/dev/null 2>&1
holds "$records/Profiles.xml" Ann Ben
said "removing the package leaves the records"

# The archive, over the libraries that the package brought.
as_reader tar xzf /packages/older/*.tar.gz
folder=$(basename "$(ls -d "$root"/home/reader/talivane-*)")
as_reader sh /packages/save_a_person.sh "./$folder/talivane.sh" Cleo
holds "home/reader/$folder/Profiles.xml" Cleo
as_reader tar xzf /packages/newer/*.tar.gz
as_reader sh /packages/save_a_person.sh "./$folder/talivane.sh" Dan new
holds "home/reader/$folder/Profiles.xml" Cleo Dan
said "the archive runs where it is unpacked, and unpacking a newer one over it keeps the person"
