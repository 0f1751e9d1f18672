#!/bin/sh
# run.sh LYTDLG GRAMMAR: types, the grammar, every request to the server, and the panel in a browser.
set -eu
LYTDLG=$(realpath "$1")
export LYTDLG
grammar=$(realpath "$2")
cd "$(dirname "$0")/.."
# No package has a script of its own to run.
npm ci --ignore-scripts --no-audit --no-fund
npm run check
npm run build
cp "$grammar" out
npm test
