#!/bin/sh
# run-page.sh PAGE BUILD_FOLDER: does what a page of the documents tells its reader to do, in a separate folder with
# copies of the samples and headers, and the import libraries. The tools of a native build are called by their names. With
# LYT_UPDATE set it writes what was printed into the page.
#
# A block of text, settings or code is saved under the file name in backquotes in the line above it; one that begins with a section's
# header takes the place of that section. Below the words "This is" and the name of a sample, a block must be that file. A
# block of sh is entered at a shell, and a block of output is what it must print.
set -u
page=$1
here=$(cd "$(dirname "$0")" && pwd)
PATH=$2/bin:$PATH
folder=$(mktemp -d) || exit 2
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 2
mkdir build seen && ln -s "$2" build/windows && ln -s "$2/src/exports" lib && cp -r "$here/../../../samples" "$here/../../../include" . || exit 2

# The page as a shell script: commands as they are, files and output as here-documents.
awk -v q="'" '
    !inside && /^```/ {
        inside = 1
        kind = substr($0, 4)
        body = ""
        next
    }
    inside && /^```$/ {
        inside = 0
        if (kind == "sh") {
            printf "{\n%s} >actual 2>&1\n", body
            commands++
        } else if (kind == "output") {
            outputs++
            printf "cat >expected <<%send of block%s\n%send of block\ncompare %d %d\n", q, q, body, outputs, NR
        } else if (file ~ /^samples/) {
            printf "cat >block <<%send of block%s\n%send of block\ndiff -u \"%s\" block || exit 1\n", q, q, body, file
        } else if (file != "") {
            printf "mkdir -p \"$(dirname %s)\"\ncat >block <<%send of block%s\n%send of block\nput_block %s\n", file, q, q, body, file
        } else {
            printf "line %d: no line above this block names a file\n", NR > "/dev/stderr"
            exit 1
        }
        next
    }
    inside { body = body $0 "\n"; next }
    # The last file name before a block is its file.
    /`mine\/[^`]*`/ {
        file = $0
        sub(/.*`mine\//, "mine/", file)
        sub(/`.*/, "", file)
    }
    /This is `samples\/[^`]*`/ {
        file = $0
        sub(/.*This is `/, "", file)
        sub(/`.*/, "", file)
    }
    END { if (commands == 0 || outputs == 0) { print "the page has nothing to run" > "/dev/stderr"; exit 1 } }
' "$page" >steps || exit 1

# put_block FILE: saves the block, or puts it in place of the section that its first line heads.
put_block() {
    case $(head -n 1 block) in
    '$VERSION'*) cp block "$1" ;;
    '$'*)
        awk '
            NR == FNR { if (FNR == 1) header = $1; block = block $0 "\n"; next }
            /^\$/ {
                inside = index($1, header) == 1
                if (inside) { printf "%s", block; found = 1 }
            }
            !inside { print }
            END { exit !found }
        ' block "$1" >whole && mv whole "$1" || { echo "$1 has no section to put this in place of:"; cat block; exit 1; }
        ;;
    *) cp block "$1" ;;
    esac
}

# compare NUMBER LINE: what was printed is what the block of output ending in this line says.
compare() {
    cp actual "seen/$1"
    [ -n "${LYT_UPDATE:-}" ] || diff -u expected actual || { echo "^^^ line $2 of the page"; exit 1; }
}

. ./steps
[ -n "${LYT_UPDATE:-}" ] || exit 0

awk '
    !inside && /^```output$/ {
        print
        file = "seen/" ++outputs
        while ((getline line < file) > 0) print line
        close(file)
        inside = 1
    }
    inside && /^```$/ { inside = 0 }
    !inside { print }
' "$page" >updated && cp updated "$page"
