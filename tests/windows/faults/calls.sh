#!/bin/sh
# calls.sh FOLDER TRANSCRIPTS...: makes of each call of lytcall in the transcripts a line of FOLDER/calls: a name and the words
# of the command line, divided by tabs. Nothing is called; files that the transcripts make for it are left in FOLDER.
set -u
calls=$1/calls
folder=$1
shift
rm -rf "$folder"
mkdir -p "$folder" || exit
for transcript in "$@"; do
    # shellcheck disable=SC2034  # for the commands
    HERE=$(dirname "$transcript")
    area=$(basename "$transcript" .t)
    (
        mkdir "$folder/$area" && cd "$folder/$area" || exit
        sed -n 's/^  [$>] //p' "$transcript" >commands
        # In place of the one that the transcript's setup makes.
        sed -i '/setup.sh/a lytcall() { note "$@"; }' commands
        note() {
            number=$((${number:-0} + 1))
            printf '%s-%s' "$area" "$number"
            for word in "$@"; do
                [ ! -e "$word" ] || word=$PWD/$word
                printf '\t%s' "$word"
            done
            printf '\n'
        } >>"$calls"
        . ./commands >/dev/null 2>&1
    )
done
