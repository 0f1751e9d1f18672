#!/bin/sh
# run-upgrade.sh PAGE BUILD: enters the blocks of docs/deployment.md that install, upgrade, go back and remove, in their order, while
# a program has the library open that is replaced. What is in use stays until that program ends.
set -u
. "$(dirname "$0")/deployment.sh"
trap 'touch go1 go2 go3 go4; wait; rm -rf "$folder" "$drive/Inspection" "$drive/package"*' EXIT
lyt64=$drive/Inspection/lyt64

# A word processor: has a library open until the file "go" is there, and calls it then.
cat >host.c <<'END'
#include <stdio.h>
#include <windows.h>
int main(int count, char** words)
{
    const HMODULE library = LoadLibraryA(words[1]);
    int(__stdcall * path)(char*, int) = (void*)GetProcAddress(library, "lytGetInitializationPath");
    void(__stdcall * start)(const char*, const char*, const char*) = (void*)GetProcAddress(library, "lytInitialiseEnvironment");
    char text[MAX_PATH] = "";
    CloseHandle(CreateFileA(words[2], GENERIC_WRITE, 0, NULL, CREATE_ALWAYS, 0, NULL));
    for (int tries = 0; tries < 600 && GetFileAttributesA(words[3]) == INVALID_FILE_ATTRIBUTES; ++tries)
        Sleep(100);
    start("doc", "dialogs", "init");
    printf("%d %s\n", path(text, sizeof text), text);
    return count != 4;
}
END
x86_64-w64-mingw32-gcc -s -o host.exe host.c || exit 2
# open_host NAME LIBRARY; end_host NAME: its call must have been answered.
open_host() {
    "$build/wine-run.sh" ./host.exe "$2" "open$1" "go$1" >"told$1" 2>&1 &
    tries=0
    until [ -f "open$1" ] || [ $tries = 300 ]; do sleep 0.1; tries=$((tries + 1)); done
}
end_host() {
    touch "go$1"
    tries=0
    until grep -q '^1 init' "told$1" || [ $tries = 300 ]; do sleep 0.1; tries=$((tries + 1)); done
    grep -q '^1 init' "told$1" || { cat "told$1"; complain "the library of host $1 does not answer"; }
}

# block NUMBER PACKAGE: enters that block of the page in the folder of a package.
block() {
    awk -v wanted="$1" '/^```bat$/ { inside = ++number == wanted; next } /^```$/ { inside = 0 } inside' "$page" >block.cmd
    [ -s block.cmd ] || complain "the page has no block $1"
    cp block.cmd "$drive/$2/block.cmd"
    (cd "$drive/$2" && "$build/wine-run.sh" cmd.exe /c block.cmd) >entered 2>&1
}
[ "$(grep -c '^```bat$' "$page")" = 6 ] || complain "the page has other blocks"

# A package, and the next version of it.
for name in package package-next; do
    mkdir "$drive/$name" || exit 2
    cp "$build"/bin/lyt64.dll "$build"/bin/lytcall.exe "$build"/bin/lytdlg.exe "$drive/$name"
done
python3 - "$drive/package-next/lyt64.dll" <<'END'
import pathlib, sys
file = pathlib.Path(sys.argv[1])
start = b"\xBD\x04\xEF\xFE\0\0\x01\0"
record = file.read_bytes().index(start) + len(start)
minor = file.read_bytes()[record] + 1
file.write_bytes(file.read_bytes()[:record] + bytes([minor, 0]) + file.read_bytes()[record + 2:])
END
for name in package package-next; do (cd "$drive/$name" && sha256sum -- *.dll *.exe >SHA256SUMS); done
old=$drive/package/lyt64.dll
next=$drive/package-next/lyt64.dll
cmp -s "$old" "$next" && complain "both versions are the same"
doctor() { "$build/wine-run.sh" 'C:\Inspection\tools\lytcall.exe' doctor 'C:\Inspection' --dialogs 'C:\Inspection' >judged 2>&1; }

block 1 package
cmp "$old" "$lyt64/lyt64.dll" || { cat entered; complain "the library is not installed"; }
doctor
grep -q '^good  *loading' judged || { cat judged; complain "what was installed cannot be loaded"; }
grep -q -e 'is not the file' -e 'another version' judged && { cat judged; complain "the wrong files were installed"; }

open_host 1 'C:\Inspection\lyt64\lyt64.dll'
printf 'copy /y lyt64.dll C:\\Inspection\\lyt64\r\ndel C:\\Inspection\\lyt64\\lyt64.dll\r\n' >"$drive/package-next/by-force.cmd"
(cd "$drive/package-next" && "$build/wine-run.sh" cmd.exe /c by-force.cmd) >entered 2>&1
cmp -s "$old" "$lyt64/lyt64.dll" || complain "a library in use can be replaced, so the page is wrong"
block 3 package-next
cmp "$next" "$lyt64/lyt64.dll" && cmp "$old" "$lyt64/lyt64-1.0.0.old" || { cat entered; complain "no upgrade while the library is in use"; }
open_host 2 'C:\Inspection\lyt64\lyt64.dll'
block 4 package-next
[ -f "$lyt64/lyt64-1.0.0.old" ] || complain "a library in use was deleted"
doctor
grep -q 'is of another version than these tools' judged || { cat judged; complain "another version than that of the tools is not noticed"; }
end_host 1

block 5 package
cmp "$old" "$lyt64/lyt64.dll" && cmp "$next" "$lyt64/lyt64-1.1.0.old" || { cat entered; complain "no way back while the library is in use"; }
doctor
grep -q 'is not the file that' judged || { cat judged; complain "sums of another version are not noticed"; }
end_host 2

block 6 package-next
open_host 3 'C:\Inspection\lyt64\lyt64.dll'
open_host 4 'C:\Inspection\lyt64\1.1.0\lyt64.dll'
end_host 3
end_host 4
block 4 package
[ ! -f "$lyt64/lyt64-1.1.0.old" ] || complain "an old library stays when it is not in use"

block 2 package
[ ! -e "$drive/Inspection" ] || complain "something stays when all is removed"
exit $bad
