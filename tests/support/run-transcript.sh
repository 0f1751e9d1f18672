#!/bin/sh
# run-transcript.sh TRANSCRIPT: enters the commands of a transcript at a shell, in an empty folder, and compares what they
# print. With LYT_UPDATE set it writes what they print into the transcript.
#
# A line that begins with two blanks is a command after `$`, more of it after `>`, and else what comes out; all others are
# remarks. HERE is the transcript's folder.
set -u
HERE=$(cd "$(dirname "$1")" && pwd)
export HERE
folder=$(mktemp -d) || exit 2
trap 'rm -rf "$folder"' EXIT
# A copy, since the new text is left beside it.
copy=$folder/$(basename "$1")
cp "$1" "$copy"
cram3 --preserve-env "$copy" && exit
[ -n "${LYT_UPDATE:-}" ] || exit 1
# Letters beyond ASCII are written as they are.
python3 - "$copy.err" >"$1" <<'SCRIPT'
import codecs, sys
for line in open(sys.argv[1], "rb"):
    escaped = line.removesuffix(b" (esc)\n")
    sys.stdout.buffer.write(line if escaped == line else codecs.escape_decode(escaped)[0] + b"\n")
SCRIPT
