#!/bin/sh
# run-selftest.sh BUILD CMAKE GROUPS...: packs the test that travels, unpacks it and starts it for these groups. Nothing differs,
# no name of the user or the machine is in what is left, and what is made to differ is found and read.
set -u
build=$1
cmake=$2
shift 2
here=$(cd "$(dirname "$0")" && pwd)
scripts=$here/../../scripts
folder=$(mktemp -d) || exit 2
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 2
bad=0
complain() { echo "$1"; bad=1; }

"$scripts/make-selftest" "$build" "$folder/lyt64-selftest.zip" || exit 1
"$cmake" -E tar xf lyt64-selftest.zip || exit 1
cmp lyt64-selftest/files/lyt64.dll "$build/bin/lyt64.dll" || bad=1
selftest() { "$build/wine-run.sh" lyt64-selftest/lyt64-selftest.exe "$@" >told; }

selftest "$@" || complain "the test failed"
tail -n 1 told | grep -q '^[1-9][0-9]* passed, 0 failed$' || { cat told; complain "something differs"; }
result=lyt64-selftest/lyt64-selftest.txt
"$scripts/read-selftest" $result >listed || { cat listed; complain "what was left is read otherwise"; }
"$build/wine-run.sh" cmd.exe /c 'set' >environment
for name in USERNAME COMPUTERNAME; do
    value=$(sed -n "s/^$name=//p" environment)
    grep -iw -e "$value" $result && complain "$name is in what was left"
done

# A line that does not come out, and a program that is missing.
sed -i 's/^  = focus 11$/  = focus 12/' lyt64-selftest/files/cases.txt
rm lyt64-selftest/files/lytdlg.exe
selftest questions doctor && complain "what differs is not found"
"$scripts/read-selftest" $result >listed && complain "what differs is not read"
for line in '    -= focus 12' '    += focus 11' 'doctor: the files of this test'; do
    grep -qxF -e "$line" listed || { cat listed; complain "not read: $line"; }
done
exit $bad
