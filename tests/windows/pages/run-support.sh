#!/bin/sh
# run-support.sh PAGE BUILD: lays out the deployment of docs/deployment.md and a registry in order, and looks at the report of
# this workstation: it has the lines that the page promises of a good one; each row of the page's table is a trouble that is
# made, whose line then is in the report; and the commands of the page do what it says.
set -u
. "$(dirname "$0")/deployment.sh"
set=$drive/Inspection

# registry: enters what comes in; value KEY NAME DATA: one value, @ for that without a name; without KEY: takes a key away.
registry() {
    { echo REGEDIT4 && cat; } >entered.reg
    "$build/wine-run.sh" regedit /S entered.reg
}
value() { printf '[%s]\n%s="%s"\n' "$1" "$2" "$(printf '%s' "$3" | sed 's,\\,\\\\,g')" | registry; }
without() { printf '[-%s]\n' "$1" | registry; }

# older FILE FOLDER: a copy of that file of the deployment, in a separate folder.
older() { mkdir -p "$set/older" && cp "$set/$2/$1" "$set/older"; }

trap 'grep "^.-" "$here/support.reg" | registry; rm -rf "$folder" "$drive/Inspection"' EXIT

# in_order: everything as it should be.
in_order() {
    lay_out
    mkdir -p "$set/templates" "$set/shared" "$set/startup"
    touch -d 2020-01-01 "$set/templates/lytInspection.dotm"
    grep -v REGEDIT4 "$here/support.reg" | registry
    search_path='C:\Inspection\partners'
}

# expect_lines KIND FILE: the lines of the page's block of that kind are in the file, in this order.
expect_lines() {
    awk -v start="\`\`\`$1" '$0 == "```" { inside = 0 } inside { print } $0 == start { inside = 1 }' "$page" >block
    [ -s block ] || complain "the page has no block of $1"
    cp "$2" rest
    while IFS= read -r line; do
        place=$(grep -n -i -m 1 -e "^$(pattern "$line")\$" rest | cut -d: -f1)
        [ -n "$place" ] || { complain "not there, or in another place: $line"; continue; }
        sed -i "1,${place}d" rest
    done <block
}

in_order
report good.txt
expect_lines text good.txt

grep -v '^#' "$here/support.cases" >cases
while IFS='|' read -r number arrangement; do
    row=$(row "$number")
    [ -n "$row" ] || { complain "the page has no row $number"; continue; }
    in_order
    eval "$arrangement"
    report bad.txt
    expect_told "$number" 1
    [ "$number" != 4 ] || cp bad.txt compared.txt
done <cases
expect_rows cases
cp good.txt "$set/documents/good.txt"
cp compared.txt "$set/documents/bad.txt"
lytcall report --diff good.txt bad.txt >differing
expect_lines output differing

# The commands as the page has them; two reports of one workstation do not differ.
in_order
report good.txt
cp good.txt "$set/documents/good.txt"
grep '^    lytcall' "$page" | sed 's/^ *lytcall //' >commands
[ "$(wc -l <commands)" = 3 ] || complain "the page has other commands"
set -f
while read -r words; do
    # shellcheck disable=SC2086  # a list of words
    (cd "$set/documents" && WINEPATH=$search_path "$build/wine-run.sh" 'C:\Inspection\tools\lytcall.exe' $words) >told ||
        [ "$words" = "report --diff good.txt bad.txt" ] || { cat told; complain "no success: $words"; }
done <commands
sed '/^Lines that differ/,$d' told | grep '^  ' | grep -v -e 'C:\\users' -e 'NAME:' && complain "two reports differ"
grep -q '"blocks"' "$set/documents/bad.json" || complain "no report in JSON"
grep -q '^USERNAME:USER' "$set/documents/bad.txt" || complain "the user's name is in the report"
exit $bad
