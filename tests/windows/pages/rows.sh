# Rows of a table in a page; sourced by the scripts beside it, with $page set. A cell is divided from the next by " | ".

# row NUMBER: the row that begins with that number, without it.
row() { sed -n "s/^| $1 | /| /p" "$page"; }

# cell N: of the row in $row; code N: its first text in backquotes; quotes N: its texts in quotes, one a line.
cell() { printf '%s\n' "$row" | awk -F ' [|] ' -v n="$1" '{ sub(/^[|] /, "", $n); sub(/ [|]$/, "", $n); print $n }'; }
code() { cell "$1" | sed -n 's/^[^`]*`\([^`]*\)`.*/\1/p'; }
quotes() { cell "$1" | sed 's/`[^`]*`//g' | grep -o '"[^"]*"' | tr -d '"'; }

# table HEADER: the rows of the table whose header begins so.
table() {
    awk -v header="$1" '
        !/^[|]/ { inside = 0; next }
        inside && !/^[|]-/ { print }
        index($0, header) == 1 { inside = 1 }
    ' "$page"
}

# expect_quoted NUMBER N FILE: what that cell has in quotes is in the file, which holds what lytcall printed.
expect_quoted() {
    sed 's/\\\\/\\/g' "$3" >printed
    quotes "$2" | while read -r text; do
        grep -qF -- "$text" printed || printf 'row %s: "%s" is not what comes out\n' "$1" "$text"
    done >complaints
    [ ! -s complaints ] || { cat complaints; bad=1; }
}

# expect_rows FILE: the page has as many numbered rows as the file has cases.
expect_rows() {
    [ "$(grep -c '^| [0-9]* | ' "$page")" = "$(wc -l <"$1")" ] || { echo "the page has other rows than the cases"; bad=1; }
}

# compare_or_update EXPECTED: the file `actual` is that file, or with LYT_UPDATE set becomes it.
compare_or_update() {
    if [ -n "${LYT_UPDATE:-}" ]; then
        cp actual "$1"
    else
        diff -u "$1" actual || bad=1
    fi
}
