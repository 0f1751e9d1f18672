#!/bin/sh
# run-unwritten.sh LYTDLG LYTCALL SOURCE: carries out every command of both programs where nothing can be printed, on a full
# disk and with the output closed. Each must say so and end with another code than 0.
set -u
lytdlg=$1
lytcall=$2
source=$3
folder=$(mktemp -d) || exit 2
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 2
cp -r "$source/samples" .
printf 'S1:area(2,m2)\n' >inputs.txt
export LYT_UNSEEN=1
dialog=samples/dialogs/lytInSym.dlg
bad=0

# refused WORDS...: the standard input is a description.
refused() {
    if [ "$output" = closed ]; then
        "$@" <input.dlg >&- 2>told
    else
        "$@" <input.dlg >"$output" 2>told
    fi
    code=$?
    [ $code = 0 ] || ! grep -q 'could not be written whole' told || return
    echo "$(basename "$1") $2 with the output $output ends with $code:"
    cat told
    bad=1
}

sed 's/  */ /' samples/dialogs/finding.dlg >input.dlg
for output in /dev/full closed; do
    refused "$lytdlg" help
    refused "$lytdlg" --version
    refused "$lytdlg" check $dialog
    refused "$lytdlg" check $dialog --format json
    refused "$lytdlg" check --rules
    refused "$lytdlg" run $dialog --ok
    refused "$lytdlg" scan $dialog --input x
    refused "$lytdlg" compose $dialog --input x
    refused "$lytdlg" roundtrip $dialog --inputs inputs.txt
    refused "$lytdlg" why $dialog Name
    refused "$lytdlg" test samples/cases
    refused "$lytdlg" fmt -
    refused "$lytdlg" texts samples/dialogs
    refused "$lytdlg" new "$(basename "$output")" -o samples/dialogs
    refused "$lytdlg" preview $dialog
    refused "$lytdlg" graph $dialog
    refused "$lytdlg" doctor samples
    refused "$lytcall" help
    refused "$lytcall" --version
    refused "$lytcall" doc
    refused "$lytcall" text Buttons 001
    refused "$lytcall" symbol --script "$source/samples/scripts/symbol.steps"
done
exit $bad
