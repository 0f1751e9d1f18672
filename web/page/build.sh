#!/bin/sh
# build.sh ENGINE [PAGE]: makes the page, with the engine of the folder ENGINE inside; else it is out/workbench.html here.
set -eu
engine=$(realpath "$1")
page=$(realpath -m "${2:-$(dirname "$0")/out/workbench.html}")
cd "$(dirname "$0")"
# No package has a script of its own to run.
cmp -s package-lock.json node_modules/.made-for || { npm ci --ignore-scripts --no-audit --no-fund && cp package-lock.json node_modules/.made-for; }
npm run --silent check
node build.mjs "$engine" "$page"
