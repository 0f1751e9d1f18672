#!/bin/sh
# compare.sh EXPECTED PROGRAM...: runs the program and compares its output, line by line, with the file.
expected=$1
shift
actual=$(mktemp) || exit 97
trap 'rm -f "$actual"' EXIT
"$@" >"$actual" || exit 1
diff -U5 "$expected" "$actual"
