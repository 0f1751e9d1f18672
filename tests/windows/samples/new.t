A new dialog of each name that the library opens: it is sound, and gives the placeholder back through the export.

  $ . "$HERE/setup.sh"
  $ lytdlg() { "$LYT_RUN" "$LYT_BIN/lytdlg$LYT_SUFFIX" "$@"; }
  $ mkdir mine
  $ for name in lytInSym lytInPhr lytCdGrp lytRpGrp lytWzGrp lytWzPhr lytWzSym; do lytdlg new $name -o mine >made || cat made; done
  $ lytdlg check mine
  7 descriptions judged: 0 errors, 0 warnings, 0 notes
  $ lytdlg test mine
  21 passed, 0 failed
  $ new() { lytcall "$@" --dialogs mine --init samples/init; }

The key comes back as it was.

  $ new symbol 'S1:area(2,kWh/(m2a))="n. a."' --script ok.steps
  key = "S1:area(2,kWh/(m2a))=\"n. a.\""
  window = "Properties of lytInSym"
  result = 2 (unchanged)
  text = "S1:area(2,kWh/(m2a))=\"n. a.\""
  $ new phrase 'P1{roof.tiles}see plan 4[three|north]' --script ok.steps
  key = "P1{roof.tiles}see plan 4[three|north]"
  window = "Properties of lytInPhr"
  result = 2 (unchanged)
  text = "P1{roof.tiles}see plan 4[three|north]"
  $ new group 'F-001REPlift(a=b)' --script ok.steps
  kind = 1
  key = "F-001REPlift(a=b)"
  window = "Properties of lytRpGrp"
  result = 2 (unchanged)
  first = "(a=b)"
  second = "1REPT"
  $ new group 'F-002REPheat(kWh/(m2a)=(1;2|3) "x")' --script ok.steps
  kind = 1
  key = "F-002REPheat(kWh/(m2a)=(1;2|3) \"x\")"
  window = "Properties of lytRpGrp"
  result = 2 (unchanged)
  first = "(kWh/(m2a)=(1;2|3) \"x\")"
  second = "1REPT"
  $ new group --kind 0 'F-001BNGarea(area>=20)' --script ok.steps
  kind = 0
  key = "F-001BNGarea(area>=20)"
  window = "Properties of lytCdGrp"
  result = 2 (unchanged)
  first = "(area>=20)"
  second = "1COND"

A change goes into the bracket alone, and the letters of the key into the second part.

  $ script window 'type "Value:" "c"' 'press ok' >change.steps
  $ new group 'F-001REPlift(a=b)' --script change.steps
  kind = 1
  key = "F-001REPlift(a=b)"
  window = "Properties of lytRpGrp"
  result = 1 (changed)
  first = "F-001REPlift(a=c)"
  second = "1REPTREP"
  $ new group --kind 0 'F-001BNGarea(area)' --script change.steps
  kind = 0
  key = "F-001BNGarea(area)"
  window = "Properties of lytCdGrp"
  result = 1 (changed)
  first = "F-001BNGarea(area=c)"
  second = "1CONDBNG"

What the wizard composes goes into the dialogs of the placeholder.

  $ script window 'expand tree "Site/Access/Paths"' 'select tree "Site/Access/Paths/Paving"' 'press ok' window 'press ok' >group.steps
  $ new wizard --script group.steps
  window = "Catalogue of the inspection"
  window = "Properties of lytWzGrp"
  result = 1 (a text of a group, more to come)
  text = "G1:site.access.path.paving(Paving)/LIST{"
  result = 0 (the end)
  text = "site.access.path.paving"
  $ script window 'expand tree "Site/Access/Paths"' 'expand tree "Site/Access/Paths/Paving"' \
  >   'select tree "Site/Access/Paths/Paving/Slip resistance"' 'press ok' window 'press ok' >symbol.steps
  $ new wizard --script symbol.steps
  window = "Catalogue of the inspection"
  window = "Properties of lytWzSym"
  result = 2 (a symbol)
  text = "S1:site.access.path.paving.slip=Slip resistance"
  $ new symbol 'S1:site.access.path.paving.slip=Slip resistance' --script ok.steps
  key = "S1:site.access.path.paving.slip=Slip resistance"
  window = "Properties of lytInSym"
  result = 2 (unchanged)
  text = "S1:site.access.path.paving.slip=Slip resistance"
  $ script window 'select tree "Roof"' 'press ok' window 'type "Value:" "c"' 'press ok' >phrase.steps
  $ new wizard --script phrase.steps
  window = "Catalogue of the inspection"
  window = "Properties of lytWzPhr"
  result = 3 (a phrase)
  text = "P1{Roof}=c"
  $ new phrase 'P1{Roof}=c' --script ok.steps
  key = "P1{Roof}=c"
  window = "Properties of lytInPhr"
  result = 2 (unchanged)
  text = "P1{Roof}=c"
