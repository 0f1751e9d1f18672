#!/bin/sh
# compare-rules.sh LYTDLG PAGE: PAGE lists the rules as lytdlg prints them. With LYT_UPDATE set it writes the page.
set -u
if [ -n "${LYT_UPDATE:-}" ]; then
    "$1" check --rules --format markdown >"$2"
else
    "$1" check --rules --format markdown | diff -u "$2" - || exit 1
fi
