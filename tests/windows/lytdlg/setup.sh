# The samples and the dialogs of this folder, and lytdlg as a command; sourced by the transcripts.
cp -r "$HERE/dialogs" "$HERE/../../../samples" .
cp -r samples/dialogs/lang dialogs
lytdlg() { "$LYT_RUN" "$LYT_BIN/lytdlg$LYT_SUFFIX" "$@"; }
