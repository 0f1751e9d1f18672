#!/bin/sh
# wine-stop.sh DIR: ends the Wine server of one prefix, and with it every program that still runs there.
WINEPREFIX="$1" wineserver -k >/dev/null 2>&1 </dev/null || true
