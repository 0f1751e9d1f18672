#!/bin/sh
# compare.sh EXPECTED PROGRAM...: runs the program and compares its output, line by line, with the file. With LYT_UPDATE set
# it writes the file instead.
expected=$1
shift
actual=$(mktemp) || exit 97
trap 'rm -f "$actual"' EXIT
"$@" >"$actual" || { cat "$actual"; exit 1; }
if [ -n "${LYT_UPDATE:-}" ]; then
    cp "$actual" "$expected"
else
    diff -U5 "$expected" "$actual"
fi
