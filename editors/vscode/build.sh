#!/bin/sh
# build.sh GRAMMAR: checks the types and makes `out`, in the folder that the script is in.
set -eu
grammar=$(realpath "$1")
cd "$(dirname "$0")"
# No package has a script of its own to run.
npm ci --ignore-scripts --no-audit --no-fund
npm run check
npm run build
cp "$grammar" out
