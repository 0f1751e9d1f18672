The catalogue and the wizard.

  $ . "$HERE/setup.sh"

  $ lytcall tree Gsite.access.gate --script tree-ok.steps
  request = "Gsite.access.gate"
  window = "Catalogue of the inspection"
  read tree = "Site/Access/Gates"
  result = 1 (confirmed)
  choice = "site.access.gate"

  $ cat >tree-para.steps <<'END'
  > window
  > items tree
  > focus tree
  > key down
  > key down
  > read tree
  > press cancel
  > END
  $ lytcall tree P --para --script tree-para.steps
  request = "P"
  window = "Catalogue of the inspection"
  items tree = 3
    item = "General"
    item = "Defects"
    item = "Advice"
  read tree = "Advice"
  result = 0 (not confirmed)
  choice = ""
  [1]

  $ cat >tree-refused.steps <<'END'
  > # A heading is no symbol; a double click on a symbol confirms it.
  > window
  > resize 500 600
  > select tree "Site/Ground"
  > press ok
  > message
  > answer
  > expand tree "Structure/Foundations/Strip foundations"
  > expand tree "Structure/Foundations/Strip foundations/Damp course"
  > doubleclick tree "Structure/Foundations/Strip foundations/Damp course/Material"
  > END
  $ lytcall tree S --script tree-refused.steps
  request = "S"
  window = "Catalogue of the inspection"
  message = "Please choose an entry of the right kind in the tree."
  result = 1 (confirmed)
  choice = "structure.base.strip.seal.material"

  $ lytcall tree W --script cancel.steps
  request = "W"
  window = "Catalogue of the inspection"
  result = 0 (not confirmed)
  choice = ""
  [1]

  $ lytcall child site.access.path.kerb Ssite.access --script tree-ok.steps
  request = "Ssite.access"
  window = "Catalogue of the inspection"
  read tree = "Site/Access/Paths/Paving/Area   sq m"
  result = 1 (confirmed)
  choice = "site.access.path.paving.area"
  key = "site.access.path.kerb"
  started = 1
  text = "Length   m"
  path = "site.access.path.kerb.length\\Length##m"
  text = "Condition"
  path = "site.access.path.kerb.state\\Condition"

  $ lytcall find site.ground.soil
  result = 1 (found)
  key = "site.ground.soil.survey.load"

  $ lytcall find cellar
  result = 0 (not found)
  key = ""
  [1]

  $ cat >wizard-symbol.steps <<'END'
  > window
  > expand tree "Site/Access/Paths"
  > expand tree "Site/Access/Paths/Paving"
  > select tree "Site/Access/Paths/Paving/Slip resistance"
  > press ok
  > window "New value"
  > show
  > select "Decimal places:" "three"
  > check "Use label when missing"
  > press ok
  > END
  $ lytcall wizard --script wizard-symbol.steps
  window = "Catalogue of the inspection"
  window = "New value"
  #1 group "Value"
  #2 text "Key:"
  #3 edit "site.access.path.paving.slip" disabled
  #4 text "Label:"
  #5 edit "Slip resistance" disabled
  #6 text "Decimal places:"
  #7 combo "two" "two" focused
  #8 check "Use label when missing" "unchecked"
  #9 button "OK"
  #10 button "Cancel"
  result = 2 (a symbol)
  text = "S1:site.access.path.paving.slip(3)=\"Slip resistance\""

  $ cat >wizard-group.steps <<'END'
  > # Every button of a new group once: the first value cannot go up, the last not down, and one that was taken out comes back.
  > window
  > expand tree "Site/Access/Paths"
  > select tree "Site/Access/Paths/Paving"
  > press ok
  > window "New group"
  > press "Lock"
  > expect "Label:" disabled
  > press "Unlock"
  > expect "Label:" enabled
  > select list "Area, sq m"
  > press "Up"
  > message
  > answer
  > press "Down"
  > items list
  > select list "Condition"
  > press "Down"
  > message
  > answer
  > press "Remove"
  > items list
  > press "All values"
  > items list
  > press cancel
  > END
  $ lytcall wizard --script wizard-group.steps
  window = "Catalogue of the inspection"
  window = "New group"
  message = "The first item cannot be moved up. Choose another."
  items list = 4
    item = "[x] Material"
    item = "[x] Area, sq m"
    item = "[x] Slip resistance"
    item = "[x] Condition"
  message = "The last item cannot be moved down. Choose another."
  items list = 3
    item = "[x] Material"
    item = "[x] Area, sq m"
    item = "[x] Slip resistance"
  items list = 4
    item = "[x] Area, sq m"
    item = "[x] Material"
    item = "[x] Slip resistance"
    item = "[x] Condition"
  result = 0 (the end)
  text = ""
  [1]

  $ cat >wizard-phrase.steps <<'END'
  > window
  > select tree "Roof"
  > press ok
  > window "New phrase"
  > check "With place"
  > press ok
  > message
  > answer
  > select "Place:" "South wall"
  > type "Remark:" "after the rain"
  > press ok
  > END
  $ lytcall wizard --script wizard-phrase.steps
  window = "Catalogue of the inspection"
  window = "New phrase"
  message = "Please say where it is."
  result = 3 (a phrase)
  text = "P1{Roof}after the rain[long|south wall]"

  $ lytcall wizard --script cancel.steps
  window = "Catalogue of the inspection"
  result = 0 (the end)
  text = ""
  [1]
