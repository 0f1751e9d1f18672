#!/bin/sh
# run-case.sh RUNNER LYTCALL EXPECTED WORDS...: makes one call by lytcall in a folder of its own, and compares what it
# prints, with its exit code as the last line, to the file EXPECTED. With LYT_UPDATE set it writes that file instead.
# A word @NAME stands for what the file NAME beside this script holds; such a text may be empty or hold a semicolon.
set -u
runner=$1
lytcall=$2
expected=$3
shift 3
here=$(dirname "$0")
for word in "$@"; do
    shift
    case $word in
    @*) word=$(cat "$here/${word#@}") ;;
    esac
    set -- "$@" "$word"
done

folder=$(mktemp -d) || exit 2
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 2
mkdir demo-out

{
    "$runner" "$lytcall" --document inspection.doc "$@" 2>&1
    echo "exit = $?"
    # Date and time of a log follow the machine.
    [ ! -f inspection.log ] || sed -e 's/Date .*/Date .../' inspection.log | tr -d '\r'
} >actual
# Where the samples lie differs from machine to machine.
sed -i -E 's,(Z:|/)[A-Za-z0-9_.\\/-]*samples,SAMPLES,g' actual

# A picture that a script saves is a bitmap.
for picture in demo-out/*; do
    [ ! -f "$picture" ] || [ "$(head -c 2 "$picture")" = BM ] || { echo "$picture is no bitmap"; exit 1; }
done

if [ -n "${LYT_UPDATE:-}" ]; then
    cp actual "$expected"
else
    diff -u "$expected" actual
fi
