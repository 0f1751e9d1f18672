#!/bin/sh
# run.sh LYTDLG SYNTAX: a session in Neovim, without a screen, with that program and the grammar made for Vim.
set -eu
program=$(realpath "$1")
syntax=$(realpath "$2")
here=$(cd "$(dirname "$0")" && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp -r "$here/.." "$folder/plugin"
mkdir "$folder/plugin/syntax"
cp "$syntax" "$folder/plugin/syntax"
cp -r "$here/../../../samples/dialogs" "$folder/dialogs"
cd "$folder/dialogs"
# Neither the user's settings nor a language server's log have a place here.
HOME=$folder XDG_CONFIG_HOME=$folder XDG_DATA_HOME=$folder XDG_STATE_HOME=$folder XDG_CACHE_HOME=$folder \
    timeout $((60 * ${LYT_PATIENCE:-1})) nvim --headless -n -u NONE --cmd "set runtimepath^=$folder/plugin" \
    --cmd "let g:lytdlg_program = '$program'" -S "$here/journey.lua"
