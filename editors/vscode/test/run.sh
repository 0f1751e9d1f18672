#!/bin/sh
# run.sh LYTDLG GRAMMAR: types, the grammar, every request to the server, the extension, and the panel in a browser.
set -eu
LYTDLG=$(realpath "$1")
export LYTDLG
"$(dirname "$0")/../build.sh" "$2"
cd "$(dirname "$0")/.."
npm test
