#!/bin/sh
# run-everywhere.sh BUILD: unpacks the test that travels and starts it in fresh prefixes: as each version of Windows that Wine can
# pretend to be, without a display, and with one. Build the target selftest-files first.
set -u
build=$(realpath "$1")
here=$(cd "$(dirname "$0")" && pwd)
folder=$(mktemp -d) || exit 2
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 2
"$here/../../scripts/make-selftest" "$build" "$folder/lyt64-selftest.zip" && cmake -E tar xf lyt64-selftest.zip || exit 2
bad=0

# try VERSION MODE: MODE is null without a display, x11 with one.
try() {
    prefix=$build/selftest-wine-$1-$2
    rm -rf "$prefix"
    "$here/../support/wine-prefix.sh" "$prefix" "$2" || return 1
    run() { LYT_WINEPREFIX=$prefix WINE_LIMIT=1200 "$build/wine-run.sh" "$@"; }
    run reg.exe add 'HKCU\Software\Wine' /v Version /d "$1" /f >told
    run lyt64-selftest/lyt64-selftest.exe >told
    result=$?
    "$here/../support/wine-stop.sh" "$prefix"
    echo "== as $1, $2: $(tail -n 1 told)"
    [ $result = 0 ] || "$here/../../scripts/read-selftest" lyt64-selftest/lyt64-selftest.txt
    return $result
}

if [ "${2:-}" = x11 ]; then
    try win10 x11
    exit
fi
for version in win7 win8 win81 win10 win11; do
    try $version null || bad=1
done
xvfb-run -a -s '-screen 0 1280x1024x24' "$here/run-everywhere.sh" "$build" x11 || bad=1
exit $bad
