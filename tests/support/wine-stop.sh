#!/bin/sh
# wine-stop.sh DIR: ends the Wine server of one prefix, and with it every program that is left there. Not while wine-run.sh runs
# one for somebody else: such a program would end without a word.
exec 9>>"$1/.in-use"
flock -w 10 9 || { echo "wine-stop.sh: somebody else is at work in $1"; exit 0; }
WINEPREFIX="$1" wineserver -k 9>&- >/dev/null 2>&1 </dev/null || true
