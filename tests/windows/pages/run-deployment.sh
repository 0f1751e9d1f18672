#!/bin/sh
# run-deployment.sh PAGE BUILD: lays out the deployment of docs/deployment.md on drive C: of the test prefix and looks at it:
# the page's commands succeed; partner libraries are found in the folders of the page's table, in that order; the log has the names that the page says;
# and each row of its last table takes a piece away and compares what lytcall prints to deployment.expected, and what the
# report says to the row. With LYT_UPDATE set it writes that file.
set -u
. "$(dirname "$0")/deployment.sh"
library=LytRes64.dll
trap 'rm -rf "$folder" "$drive/Inspection" "$drive/windows/$library" "$drive/windows/system32/$library"' EXIT

# Copies of one library everywhere: each is taken when those before it are gone, and the one beside lyt64.dll never.
lay_out
table "| | folder | in the example |" | while read -r row; do code 3; done >folders
[ "$(wc -l <folders)" = 5 ] || complain "the page tells of other folders"
for place in 'C:\Inspection\lyt64' $(cat folders); do
    cp "$build/bin/which-copy/$library" "$(unix "$place")"
done
while read -r place; do
    report seen.txt
    grep -qix "LYT Resolve Version            : $(pattern "$place\\$library")" seen.txt ||
        { complain "not the copy in $place was found:"; grep "Resolve Version" seen.txt; }
    rm "$(unix "$place")/$library"
done <folders
report seen.txt
grep -qix "LYT Resolve Version            : *" seen.txt || complain "a copy in none of the folders was found"

# The commands as the page has them.
lay_out
grep '^    C:.*lytcall' "$page" >commands
[ "$(wc -l <commands)" = 2 ] || complain "the page has other commands"
while read -r command words; do
    # shellcheck disable=SC2086  # a list of words
    (cd "$drive/Inspection/documents" && WINEPATH=$search_path "$build/wine-run.sh" "$command.exe" $words) >told ||
        { cat told; complain "no success: $command $words"; }
done <commands

# The log, with the level that asks for one.
lay_out
sed -i 's/^level=0/level=1/' "$drive/Inspection/init/lyt.ini"
table "| document | log |" >logs
[ -s logs ] || complain "the page has no documents with their logs"
while read -r row; do
    mkdir -p "$(unix "$(code 1 | sed 's/\\[^\\]*$//')")"
    lytcall log "The inspection begins." --document "$(code 1)" >told || cat told
    grep -q "The inspection begins." "$(unix "$(code 2)")" || complain "no log $(code 2)"
    rm -f "$(unix "$(code 2)")"
done <logs
lytcall log "The inspection begins." --document 'C:\Inspection\nowhere\cellar.doc' >told &&
    complain "a log that cannot be written is no failure"

# A library that is damaged is like one that is missing.
lay_out
echo "no library" >"$(unix 'C:\Inspection\partners\lytsrc.dll')"
printf '%s\n' window "items tree" "press cancel" >"$drive/Inspection/documents/steps"
lytcall tree S --script steps >told
grep -q "^items tree = 0" told || { cat told; complain "a damaged catalogue is not empty"; }

# A resolution that does not fit: a message, an empty window that Esc closes, and a catalogue all the same.
on_144() { LYT_WINEPREFIX=$build/wine-144 "$build/wine-run.sh" "$build/bin/lytcall.exe" "$@" --script steps; }
quoted=$(tr '\n' ' ' <"$page" | sed 's/.*On any other, the message "\([^"]*\)".*/\1/')
printf '%s\n' "message \"$quoted\"" answer 'window "Dialog"' show 'key escape' >steps
on_144 symbol >told
grep -q '^result = 0' told && ! grep -q '^#' told || { cat told; complain "a resolution that does not fit looks otherwise"; }
printf '%s\n' window "items tree" "press cancel" >steps
on_144 tree S >told
grep -q '^items tree = [1-9]' told || { cat told; complain "no catalogue opens on another resolution"; }

# take_away NUMBER: what the second cell of the row names is gone: a file, a folder, or a line of a file.
take_away() {
    piece=$(code 1)
    case $piece in
    'C:'*)
        [ -e "$(unix "$piece")" ] || complain "row $1: there is no $piece"
        rm -rf "$(unix "$piece")"
        ;;
    *)
        file=$(find "$drive/Inspection" -name "$(cell 1 | sed 's/.*` in `\(.*\)`.*/\1/')")
        grep -qxF -- "$piece" "$file" || complain "row $1: no file has the line $piece"
        grep -vxF -- "$piece" "$file" >left
        cp left "$file"
        ;;
    esac
}

lay_out
report good.txt
grep -v '^#' "$here/deployment.cases" >cases
while IFS='|' read -r number words steps; do
    row=$(row "$number")
    [ -n "$row" ] || { complain "the page has no row $number"; continue; }
    lay_out
    take_away "$number"
    printf '%s\n' "$steps" | sed 's, / ,\n,g' >"$drive/Inspection/documents/steps"
    # shellcheck disable=SC2086  # a list of words
    lytcall $words ${steps:+--script steps} >output 2>&1
    echo "exit = $?" >>output
    picture=$drive/Inspection/documents/picture.bmp
    [ ! -f "$picture" ] || identify -format 'picture = %w x %h\n' "$picture" >>output
    { echo "== $number"; cat output; } >>actual
    expect_quoted "$number" 2 output
    report bad.txt
    expect_told "$number" 3
done <cases
expect_rows cases
compare_or_update "$here/deployment.expected"
exit $bad
