#!/bin/sh
# Starts Talivane in a folder of the user's own.
#
# The program keeps its records beside itself, so each user has a copy of program and reference tables. They
# are renewed whenever the shipped ones differ; the records are made once, empty, and are the user's from then
# on. Every file is written beside its place and moved there, so that a copy that is cut short is never used.
set -eu

here=$(cd "$(dirname "$0")" && pwd)
shipped=@SHIPPED@
own=@OWN@

renew() {
    cmp -s "$1" "$2" && return 0
    cp "$1" "$2.new"
    mv -f "$2.new" "$2"
}

mkdir -p "$own"
for file in "$shipped"/talivane "$shipped"/*.xml; do
    renew "$file" "$own/$(basename "$file")"
done
for record in "$shipped"/empty/*.xml; do
    [ -e "$own/$(basename "$record")" ] || renew "$record" "$own/$(basename "$record")"
done
exec "$own/talivane" "$@"
