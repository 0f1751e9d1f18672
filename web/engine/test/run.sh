#!/bin/sh
# run.sh FOLDER LYTDLG [COUNT [SEED]]: whether the engine in the folder answers as the program does: over the samples, and after
# so many random acts and edits.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
LYT_ENGINE=$(cd "$1" && pwd) LYT_PROGRAM=$2 LYT_COUNT=${3:-1000} LYT_SEED=${4:-1} exec node --test --test-reporter=tap "$here/agreement.test.mjs"
