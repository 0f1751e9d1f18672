#!/bin/sh
# run-commands.sh PAGE BUILD: enters the commands that stand alone on PAGE, each a line after four blanks, in their order. They
# find the deployment of docs/deployment.md, a folder C:\mine with the samples, and two reports. None may be refused.
set -u
. "$(dirname "$0")/deployment.sh"
mine=$drive/mine
trap 'rm -rf "$folder" "$drive/Inspection" "$mine"' EXIT
lay_out
rm -rf "$mine"
cp -r "$samples/dialogs" "$mine" && cp "$samples/init/lyt.ini" "$mine" || exit 2
run() { program=$1; shift; "$build/wine-run.sh" "$build/bin/$program.exe" "$@" >told 2>&1; }

run lytcall report 'C:\Inspection' --out good.txt && cp good.txt bad.txt || { cat told; complain "no report is saved"; }
run lytdlg --version
version=$(cut -d ' ' -f 2 told)
echo 'press cancel' >steps
# A line may end in words about it.
sed -n 's/^    \(lyt[a-z]* .*\)/\1/p' "$page" | sed "s/   *[^ ].*//; s/ --against [0-9.]*/ --against $version/; "'s,\\,\\\\,g' >commands
[ -s commands ] || complain "the page has no commands"
while IFS= read -r command; do
    # 1 is that of a dialog that is cancelled, and of a deployment with something to mend.
    most=1
    case $command in
    'lytcall symbol'* | 'lytcall group'* | 'lytcall tree'*) command="$command --script steps" ;;
    *--against*) most=0 ;;
    esac
    eval "run $command"
    code=$?
    [ $code -le $most ] && ! grep -q '^lyt[a-z]*: ' told || { cat told; complain "ended with $code: $command"; }
    file=$(echo "$command" | sed -n 's/.* --\(out\|shot\) \([^ ]*\).*/\2/p')
    [ -z "$file" ] || [ -s "$file" ] || complain "no $file: $command"
done <commands
exit $bad
