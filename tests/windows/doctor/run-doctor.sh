#!/bin/sh
# run-doctor.sh WINE_RUN BIN CASES EXPECTED: makes a deployment of the package's files for each of the CASES, breaks it as
# the case says, and compares the findings of `lytcall doctor` to the file EXPECTED. Of the case "good" all lines count.
# With LYT_UPDATE set it writes that file instead.
set -u
wine_run=$1
bin=$2
cases=$3
expected=$4
here=$(cd "$(dirname "$0")" && pwd)
folder=$(mktemp -d) || exit 2
# shellcheck disable=SC2034  # for the cases
key='HKLM\SOFTWARE\Microsoft\Windows\CurrentVersion\App Paths\Winword.exe'
trap 'rm -rf "$folder"' EXIT

winpath() { echo "Z:$PWD/$1" | tr / '\\'; }
# shellcheck disable=SC2034  # for the cases
initKey='HKCR\LYTDOCUMENT\shell\open\IniPath'
# register KEY TEXT [CREATED]: enters the default value of a key until the case is done. CREATED is the first key on the
# way to it that was not there before.
register() {
    registered=${3-$1}
    trap '"$wine_run" reg.exe delete "$registered" /f >"$folder/registry"' EXIT
    "$wine_run" reg.exe add "$1" /ve /d "$2" /f >"$folder/registry"
}
# lock FILE: another program has the file open for itself until the case is done.
lock() {
    cat >lock.c <<'END'
#include <windows.h>
int main(int count, char** words)
{
    const HANDLE file = count > 1 ? CreateFileA(words[1], GENERIC_READ, 0, NULL, OPEN_EXISTING, 0, NULL) : NULL;
    CloseHandle(CreateFileA("locked", GENERIC_WRITE, 0, NULL, CREATE_ALWAYS, 0, NULL));
    for (int tries = 0; tries < 600 && GetFileAttributesA("locked") != INVALID_FILE_ATTRIBUTES; ++tries)
        Sleep(100);
    return file == NULL;
}
END
    x86_64-w64-mingw32-gcc -s -o lock.exe lock.c
    "$wine_run" ./lock.exe "$1" &
    until [ -f locked ]; do sleep 0.1; done
    trap 'rm locked; wait' EXIT
}
# Says that a file is for the older processors.
patch_machine() {
    header=$(od -An -tu4 -j60 -N4 "$1" | tr -d ' ')
    printf '\114\001' | dd of="$1" bs=1 seek=$((header + 4)) conv=notrunc status=none
}
# catalogue FLAGS [ENTRY] [LINKAGE]: a catalogue in C++ in place of the one that is there, whose entry point does that.
catalogue() {
    linkage=${3-'extern "C"'}
    cat >catalogue.cpp <<END
#include <windows.h>
$linkage __declspec(dllexport) int lytTreeStart(const char* selection) { if (!selection) throw 1; return 0; }
$linkage __declspec(dllexport) int lytTreeNext(void*) { return 0; }
BOOL WINAPI DllMain(HINSTANCE, DWORD, void*) { ${2-} return TRUE; }
END
    # shellcheck disable=SC2086 # a list of flags
    x86_64-w64-mingw32-g++ -shared -s $1 -o lytsrc.dll catalogue.cpp && rm catalogue.cpp
}
# Only what changes the verdict, each with its way out.
findings() { awk 'BEGIN { chosen = 1 } /^[a-z]/ { chosen = !/^(good|note) / } chosen'; }

grep -v '^#' "$cases" >"$folder/cases"
while IFS='|' read -r name breach words; do
    name=${name% }
    [ "$name" = good ] && choose="cat" || choose="findings"
    mkdir "$folder/deployed" && cd "$folder/deployed" || exit 2
    cp "$bin"/lytcall.exe "$bin"/lytdlg.exe "$bin"/lyt64.dll "$bin"/lytsrc.dll "$bin"/lytdata.dll .
    mkdir samples && cp -r "$here/../../../samples/dialogs" "$here/../../../samples/init" samples
    # Trials of the large dialogs take longer than all else; one deployment with them shows it.
    [ "$name" = good ] || (cd samples/dialogs && rm finding.dlg && cp lytCdGrp.dlg lytRpGrp.dlg)
    echo "== $name"
    (
        eval "$breach"
        # shellcheck disable=SC2086 # the words of the case
        "$wine_run" ./lytcall.exe doctor . $words >"$folder/output" 2>&1
        echo "exit = $?" >>"$folder/output"
    )
    cd "$folder" && rm -rf deployed
    $choose <"$folder/output"
done <"$folder/cases" | tr -d '\r' |
    # The library is another one after each change.
    sed -E 's/version [0-9.]+, SHA-256 [0-9a-f]{64}/version N, SHA-256 SUM/' >"$folder/told"
# The folder is another one each time; JSON doubles its backslashes.
HERE=Z:$(echo "$folder/deployed" | tr / '\\') awk '
function without(here, place) {
    while ((place = index($0, here)) > 0)
        $0 = substr($0, 1, place - 1) "HERE" substr($0, place + length(here))
}
{
    here = ENVIRON["HERE"]
    without(here)
    gsub(/\\/, "&&", here)
    without(here)
    print
}' "$folder/told" >"$folder/actual"

if [ -n "${LYT_UPDATE:-}" ]; then
    cp "$folder/actual" "$expected"
else
    diff -u "$expected" "$folder/actual"
fi
