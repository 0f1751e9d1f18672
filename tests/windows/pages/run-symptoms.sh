#!/bin/sh
# run-symptoms.sh WINE_RUN LYTCALL PAGE EXPECTED: puts each wrong line of PAGE in place of the right one in a copy of the
# dialog beside this script, and compares what lytcall prints to the file EXPECTED. With LYT_UPDATE set it writes that file.
#
# A row of the page is | number | symptom | `wrong line` ... | `right line` ... |. A mistake that begins with "no" leaves the
# right line out, and one that begins otherwise changes no line. What a symptom has in quotes must be printed.
set -u
wine_run=$1
lytcall=$2
page=$3
expected=$4
here=$(cd "$(dirname "$0")" && pwd)
folder=$(mktemp -d) || exit 2
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 2
bad=0
. "$here/rows.sh"

# spoil RIGHT WRONG: one file of the copy holds the right line, and then the wrong one. Files are in code page 1252; a
# mistake that is in the encoding puts the line as the page has it.
spoil() {
    for file in lyt.ini dialogs/lytInSym.dlg dialogs/lang/English.nls; do
        old=$1 new=$2 awk '
            { line = $0; sub(/^ +/, "", line) }
            line == ENVIRON["old"] { if (ENVIRON["new"] != "") print ENVIRON["new"]; found = 1; next }
            { print }
            END { exit !found }
        ' "$file" >spoilt && cp spoilt "$file" && return
    done
    echo "row $number: no file has the line $1"
    bad=1
}

ansi() { printf '%s' "$1" | iconv -f UTF-8 -t CP1252; }

run() {
    # shellcheck disable=SC2086  # a list of words
    "$wine_run" "$lytcall" symbol "$key" --dialogs dialogs --init . --script steps $words >output
    echo "exit = $?" >>output
}

grep -v '^#' "$here/symptoms.cases" >cases
while IFS='|' read -r number which key steps words; do
    row=$(row "$number")
    mistake=$(cell 2)
    right=$(code 3)
    [ -n "$mistake" ] || { echo "the page has no row $number"; bad=1; continue; }
    printf '%s\n' "$steps" | sed 's, / ,\n,g' >steps
    cp -r "$here/symptoms/." .
    if [ "$which" = both ]; then
        echo "== $number, right"
        run
        cat output
    fi >>actual
    wrong=$(code 2)
    case $mistake in
    '`'*'UTF-8') spoil "$(ansi "$right")" "$wrong" ;;
    '`'*) spoil "$(ansi "$right")" "$(ansi "$wrong")" ;;
    'no '*) spoil "$(ansi "$right")" "" ;;
    esac
    run
    { echo "== $number, wrong"; cat output; } >>actual
    expect_quoted "$number" 1 output
done <cases
expect_rows cases
compare_or_update "$expected"
exit $bad
