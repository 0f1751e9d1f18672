#!/bin/sh
# wine-prefix.sh DIR [null|x11|screen] [DPI]: makes a Wine prefix unless DIR holds one, and keeps its server running for
# ten minutes. `null` needs no display; the others need DISPLAY: `x11` serves for pictures, `screen` for somebody who works
# the windows. DPI is 96 unless given. Prefixes beside each other are copies of the first, which takes ten times as long.
set -e
dir=$1
mode=${2:-null}
dpi=${3:-96}
new=$(dirname "$dir")/wine-new
export WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" WINEARCH=win64
[ "$mode" != null ] || unset DISPLAY

# Wine's background processes inherit the output; ctest would wait for them.
quiet() { "$@" >/dev/null 2>&1 </dev/null; }
# limited SECONDS COMMAND...: the seconds are ten times what the command takes on an idle machine.
limited() {
    limit=$(($1 * ${LYT_PATIENCE:-1}))
    shift
    # In the process group of the script, so that what ends the one ends the other.
    quiet timeout --foreground "$limit" "$@" && return
    echo "wine-prefix.sh: \"$*\" failed, or ended after $limit s, the limit; set LYT_PATIENCE to a larger factor" >&2
    return 1
}
set_value() { limited 30 /usr/lib/wine/wine64 reg add "$@" /f; }

if [ ! -d "$new" ]; then
    made=$new.$$
    mkdir -p "$made"
    export WINEPREFIX="$made"
    trap 'quiet wineserver -k; rm -rf "$made"; exit 130' INT TERM
    limited 180 env -u DISPLAY wineboot -i
    # A crash ends the program with an error code at once; the usual debugger can hang on its own dialog.
    set_value 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\AeDebug' /v Debugger /t REG_SZ /d false
    set_value 'HKLM\Software\Microsoft\Windows NT\CurrentVersion\AeDebug' /v Auto /t REG_SZ /d 1
    set_value 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0
    set_value 'HKCU\Software\Wine\Drivers' /v Graphics /t REG_SZ /d null
    set_value 'HKCU\Software\Wine\X11 Driver' /v Managed /t REG_SZ /d N
    set_value 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d 96
    # The server writes the registry when it ends.
    quiet wineserver -k || true
    limited 60 wineserver -w || true
    # Debian's build does not find its own fonts: without them no Tahoma and no MS Sans Serif.
    cp /usr/share/wine/fonts/*.ttf /usr/share/wine/fonts/*.fon "$made/drive_c/windows/Fonts/"
    # Another prefix may have been made meanwhile.
    mv -T "$made" "$new" 2>/dev/null || rm -rf "$made"
    trap - INT TERM
fi

if [ ! -f "$dir/.ready-$mode" ]; then
    rm -rf "$dir"
    cp -a "$new" "$dir"
    touch "$dir/.ready-$mode"
fi
export WINEPREFIX="$dir"
# A run that was broken off leaves what its tests laid into the registry. A server that runs has others at work, and so may one
# that wine-run.sh is about to start.
exec 9>>"$dir/.in-use"
if flock -n 9 && quiet timeout 1 wineserver -w; then
    cp "$new"/*.reg "$dir"
    driver=x11
    [ "$mode" != null ] || driver=null
    # Without a window manager each closed dialog would wait two seconds for one; with one, it gives windows the keyboard.
    managed=N
    [ "$mode" != screen ] || managed=Y
    sed -i -e "s/^\"Graphics\"=.*/\"Graphics\"=\"$driver\"/" -e "s/^\"Managed\"=.*/\"Managed\"=\"$managed\"/" \
        -e "s/^\"LogPixels\"=.*/\"LogPixels\"=dword:$(printf %08x "$dpi")/" "$dir/user.reg"
fi
quiet wineserver -p600 9>&- || true
