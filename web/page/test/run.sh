#!/bin/sh
# run.sh ENGINE [LYTDLG]: builds the page with the engine of that folder, and works it in a browser without a screen. With the
# native program, what the page shows is compared with what that says.
set -eu
engine=$(realpath "$1")
LYTDLG=$(realpath "${2:-/dev/null}")
export LYTDLG
cd "$(dirname "$0")/.."
./build.sh "$engine"
# One browser at a time.
node --test --test-reporter=tap --test-concurrency=1 test/*.test.mjs
