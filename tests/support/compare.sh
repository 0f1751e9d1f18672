#!/bin/sh
# compare.sh [--before TEXT] EXPECTED PROGRAM...: runs the program and compares its output, line by line, with the file, or
# with what is before the first line that begins with the text. With LYT_UPDATE set it writes the whole file instead.
before=
[ "$1" != --before ] || { before=$2; shift 2; }
expected=$1
shift
folder=$(mktemp -d) || exit 97
trap 'rm -rf "$folder"' EXIT
"$@" >"$folder/actual" || { cat "$folder/actual"; exit 1; }
if [ -n "$before" ]; then
    sed "/^$before/,\$d" "$expected" | diff -U5 - "$folder/actual"
elif [ -n "${LYT_UPDATE:-}" ]; then
    cp "$folder/actual" "$expected"
else
    diff -U5 "$expected" "$folder/actual"
fi
