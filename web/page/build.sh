#!/bin/sh
# build.sh ENGINE [PAGE]: makes the page, with the engine of the folder ENGINE inside; else it is out/workbench.html here.
set -eu
engine=$(realpath "$1")
page=$(realpath -m "${2:-$(dirname "$0")/out/workbench.html}")
cd "$(dirname "$0")"
./packages.sh
npm run --silent check
node build.mjs "$engine" "$page"
