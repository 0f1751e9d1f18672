#!/bin/sh
# run-lytdlg.sh RUNNER LYTDLG EXPECTED WORDS...: carries a command line out in a folder of its own, which holds the samples
# and the files of data/, and compares what it prints, with its exit code and the files that it changed, to the file
# EXPECTED. With LYT_UPDATE set it writes that file instead.
set -u
runner=$1
lytdlg=$2
expected=$3
shift 3
here=$(cd "$(dirname "$0")" && pwd)

folder=$(mktemp -d) || exit 2
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 2
cp -r "$here/data/." .
cp -r "$here/../../../samples" samples
cp -r samples/dialogs/lang dialogs/lang
# Letters of the library's code page, and one that it lacks.
mkdir Größe
cp samples/dialogs/lytInSym.dlg Größe/é.dlg
cp samples/dialogs/lytInSym.dlg Größe/Д.dlg

{
    "$runner" "$lytdlg" "$@" 2>&1
    echo "exit = $?"
    for file in *.case; do
        cmp -s "$file" "$here/data/$file" || { echo "== $file"; cat "$file"; }
    done
} >"$folder.actual"
trap 'rm -rf "$folder" "$folder.actual"' EXIT

if [ -n "${LYT_UPDATE:-}" ]; then
    cp "$folder.actual" "$expected"
else
    diff -u "$expected" "$folder.actual"
fi
