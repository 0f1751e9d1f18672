#!/bin/sh
# packages.sh: installs what the page is made of and made by, from the npm registry, unless it is there.
set -eu
cd "$(dirname "$0")"
cmp -s package-lock.json node_modules/.made-for && exit
# No package needs to run a script of its makers.
npm ci --ignore-scripts --no-audit --no-fund
cp package-lock.json node_modules/.made-for
