# The deployment of docs/deployment.md, laid out on drive C: of the test prefix; sourced by the scripts beside it, which are
# called with a PAGE and a BUILD. The script continues in $folder, which it removes in the end.
page=$1
build=$2
here=$(cd "$(dirname "$0")" && pwd)
folder=$(mktemp -d) || exit 2
cd "$folder" || exit 2
bad=0
. "$here/rows.sh"
drive=$("$build/wine-run.sh" --prefix)/drive_c
samples=$here/../../../samples
deployment_page=$here/../../../docs/deployment.md

# unix PATH: where a path of drive C: is.
unix() { printf '%s\n' "$1" | sed "s,^C:,$drive,"'; s,\\,/,g; s,/Windows,/windows,; s,/System32,/system32,'; }

# copies_of NAME: where files of that name, which may hold *, come from.
copies_of() {
    find "$build/bin" "$build/bin/which-copy" "$samples/init" "$samples/dialogs" "$samples/dialogs/lang" -maxdepth 1 \
        -name "$1" | grep . || echo "no file is called $1" >&2
}

# lay_out: each file of the table in its folder, and nothing else.
lay_out() {
    rm -rf "$drive/Inspection"
    mkdir -p "$drive/Inspection/documents"
    (page=$deployment_page && table "| file | folder") | while read -r row; do
        folder=$(unix "$(code 2)")
        mkdir -p "$folder"
        cell 1 | grep -o '`[^`]*`' | tr -d '`' | while read -r name; do
            copies_of "$name" | xargs -r cp -p -t "$folder"
        done
    done
}

# lytcall WORDS...: a call in the folder of the documents, with the partner libraries in PATH.
search_path='C:\Inspection\partners'
lytcall() {
    (cd "$drive/Inspection/documents" && WINEPATH=$search_path "$build/wine-run.sh" 'C:\Inspection\tools\lytcall.exe' \
        --library 'C:\Inspection\lyt64\lyt64.dll' --dialogs 'C:\Inspection\dialogs' --init 'C:\Inspection\init' \
        --document 'C:\Inspection\documents\cellar.doc' "$@")
}

# report FILE WORDS...: saves the report, in the folder of this test.
report() {
    file=$PWD/$1
    shift
    lytcall report 'C:\Inspection\dialogs' --out 'C:\Inspection\documents\report.txt' "$@" >told || { cat told; bad=1; }
    mv "$drive/Inspection/documents/report.txt" "$file"
}

complain() { printf '%s\n' "$1"; bad=1; }

# pattern LINE: a regular expression for a line of the page, where ... means anything, and blanks at its end for none.
pattern() { printf '%s\n' "$1" | sed 's/[][\.*^$]/\\&/g; s/…/.*/g; s/ *$/ */'; }

# expect_told NUMBER N: bad.txt differs from good.txt by the line that the cell of the row has in backquotes; where it says
# "nothing", in nothing. Lines that differ from run to run do not count.
expect_told() {
    diff good.txt bad.txt | grep '^[<>]' | grep -v -e '^. Memory in use:' -e '^. Free ' >differing
    sign='>'
    case $(cell "$2") in
    nothing) ! grep . differing || complain "row $1: the report tells of it"; return ;;
    *' is not listed') sign='<' ;;
    esac
    grep -q -e "^$sign *$(pattern "$(code "$2")")\$" differing ||
        { cat differing; complain "row $1: the report does not tell of it"; }
}
