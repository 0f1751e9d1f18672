# The samples, the scripts that are given more than once, and lytcall as a command; sourced by the transcripts.
cp -r "$HERE/../../../samples" .
mkdir demo-out
script() { printf '%s\n' "$@"; }
script window 'press ok' >ok.steps
script window 'press cancel' >cancel.steps
script window show 'press ok' >show-ok.steps
script window show 'press cancel' >show-cancel.steps
script window 'read tree' 'press ok' >tree-ok.steps
script message answer >message.steps

# Where the program's samples are differs from machine to machine.
lytcall() {
    "$LYT_RUN" "$LYT_BIN/lytcall$LYT_SUFFIX" --document inspection.doc "$@" >told 2>&1
    code=$?
    sed -E 's,(Z:|/)[A-Za-z0-9_.\\/-]*samples,SAMPLES,g' told
    return $code
}
