Every dialog worked from the keyboard alone.

  $ . "$HERE/setup.sh"

  $ cat >keyboard-symbol.steps <<'END'
  > # Worked from the keyboard alone. An empty name is refused, and the message says so; the next one is taken.
  > window "Properties of a value"
  > expect "Name:" focused
  > key delete
  > key return
  > message "Please enter the name of the value."
  > key return
  > expect "Name:" focused
  > enter "volume"
  > key tab
  > expect "Decimal places:" focused
  > enter "1"
  > key alt+u
  > expect "Unit:" focused
  > enter "m³"
  > key tab
  > expect "Text when missing:" focused
  > key delete
  > key tab
  > expect ok focused
  > key tab
  > expect cancel focused
  > key tab
  > expect "Name:" focused
  > key return
  > END
  $ lytcall symbol --script keyboard-symbol.steps
  key = "S1:area(2,kWh/(m2a))=\"n. a.\""
  window = "Properties of a value"
  message = "Please enter the name of the value."
  result = 1 (changed)
  text = "S1:volume(1,m³)"

  $ cat >keyboard-phrase.steps <<'END'
  > # Worked from the keyboard alone: another phrase empties its texts, and each text opens the next one.
  > window "Properties of a phrase"
  > expect "Key:" focused
  > enter "roof.slates"
  > expect "First:" ""
  > expect "Second:" disabled
  > key alt+f
  > expect "First:" focused
  > enter "two"
  > key tab
  > expect "Second:" focused
  > enter "south"
  > key alt+t
  > expect "Third:" focused
  > enter "lichen"
  > key alt+r
  > expect "Remark:" focused
  > key end
  > enter ", 5"
  > key return
  > END
  $ lytcall phrase --script keyboard-phrase.steps
  key = "P1{roof.tiles}see plan 4[three|north]"
  window = "Properties of a phrase"
  result = 1 (changed)
  text = "P1{roof.slates}see plan 4, 5[two|south|lichen]"

  $ cat >keyboard-condition.steps <<'END'
  > # Worked from the keyboard alone: a limit that makes no sense is refused, and the message is answered by Return.
  > window "Properties of a conditional group"
  > expect "Field:" focused
  > key alt+l
  > expect "Limit:" focused
  > enter "0"
  > key return
  > message
  > key return
  > expect "Field:" focused
  > key alt+l
  > enter "35"
  > key alt+o
  > expect "Comparison:" focused
  > key up
  > expect "Comparison:" "is below"
  > key alt+r
  > enter "large rooms only"
  > key tab
  > expect ok focused
  > key return
  > END
  $ lytcall group --kind 0 --script keyboard-condition.steps
  kind = 0
  key = "F-001BNG(area>=20)"
  window = "Properties of a conditional group"
  message = "An area or a volume is never below zero. Please choose another limit."
  result = 1 (changed)
  first = "F-001BNG(area<35)"
  second = "1CONDBNG;large rooms only"

  $ cat >keyboard-findings.steps <<'END'
  > # The complete form worked from the keyboard alone.
  > window "Findings of an inspection"
  > expect "Heading:" focused
  > enter "Defects"
  > key tab
  > expect "Order by:" focused
  > key down
  > expect "Order by:" "Trade"
  > key alt+t
  > expect "Trade:" focused
  > key f4
  > key down
  > key return
  > read "Trade:"
  > key alt+d
  > expect "Standard:" focused
  > key alt+i
  > expect "Inspector:" focused
  > enter "M. Weber"
  > # Marks, by their letter and by the space key.
  > key alt+u
  > expect "With pictures" focused
  > expect "With pictures" unchecked
  > key tab
  > expect "With costs" focused
  > key space
  > expect "Hourly rate:" hidden
  > key alt+w
  > expect "Hourly rate:" visible
  > key alt+y
  > expect "Hourly rate:" focused
  > enter "80"
  > # The catalogue, by its button.
  > key alt+l
  > window "Catalogue of the inspection"
  > key escape
  > window "Findings of an inspection"
  > # Rooms: Return in the list adds, and so does the button; the other removes.
  > key alt+o
  > expect list1 focused
  > key home
  > key down
  > read list1
  > key return
  > items list2
  > key down
  > key tab
  > key space
  > items list2
  > key tab 2
  > expect list2 focused
  > key home
  > key alt+m
  > items list2
  > # Parts: the space key sets and takes marks, the switch lists all of them.
  > key alt+p
  > expect list3 focused
  > key home
  > key space
  > items list3
  > key alt+s
  > expect "Show all parts" checked
  > # Findings: Return opens the chosen one in a separate dialog; a severe one needs a place.
  > key alt+f
  > expect list4 focused
  > key home
  > key down
  > key return
  > window "A finding"
  > expect "Typical finding:" focused
  > key return
  > message
  > key return
  > expect "Severe" checked
  > key alt+p
  > expect "Place:" focused
  > enter "cellar stairs"
  > key alt+h
  > expect text2 hidden
  > key alt+h
  > expect text2 visible
  > key alt+e
  > key up
  > expect "Medium" checked
  > expect "Medium" focused
  > key down
  > expect "Severe" checked
  > key tab
  > expect "Place:" focused
  > key return
  > window "Findings of an inspection"
  > items list4
  > key alt+v
  > items list4
  > key alt+n
  > window "A finding"
  > key escape
  > window "Findings of an inspection"
  > key alt+g
  > expect "Heading:" focused
  > key return
  > END
  $ lytcall group --script keyboard-findings.steps
  kind = 1
  key = "F-002REPfindings(Findings;R;roofing;Team North;101 Hall|102 Kitchen;Xroof|Xcellar;PC75;DIN 18338;;Cracks in the plaster; medium; north wall|Damp patch; severe)"
  window = "Findings of an inspection"
  read "Trade:" = "Masonry"
  window = "Catalogue of the inspection"
  window = "Findings of an inspection"
  read list = "002 Boiler room"
  items list2 = 3
    item = "101 Hall"
    item = "102 Kitchen"
    item = "002 Boiler room"
  items list2 = 4
    item = "101 Hall"
    item = "102 Kitchen"
    item = "002 Boiler room"
    item = "101 Hall"
  items list2 = 3
    item = "102 Kitchen"
    item = "002 Boiler room"
    item = "101 Hall"
  items list3 = 2
    item = "[ ] Roof"
    item = "[x] Cellar"
  window = "A finding"
  message = "Please say where it is."
  window = "Findings of an inspection"
  items list4 = 2
    item = "Cracks in the plaster; medium; north wall"
    item = "Damp patch; severe; cellar stairs"
  items list4 = 1
    item = "Cracks in the plaster; medium; north wall"
  window = "A finding"
  window = "Findings of an inspection"
  result = 1 (changed)
  first = "F-002REPfindings(Defects;T;masonry;M. Weber;102 Kitchen|002 Boiler room|101 Hall;Xroof|Xwalls|Xwindows|Xdoors|Xfloors|Xstairs|Xcellar;-C80;DIN 18330;;Cracks in the plaster; medium; north wall)"
  second = "1REPTREP"

  $ cat >keyboard-tree.steps <<'END'
  > # The catalogue worked from the keyboard alone: a heading is no symbol, and is refused.
  > window "Catalogue of the inspection"
  > expect ok focused
  > key tab
  > expect cancel focused
  > key tab
  > expect tree focused
  > key home
  > read tree
  > key return
  > message
  > key return
  > expect tree focused
  > key right
  > key right
  > key right
  > key right
  > key right
  > key right
  > key right
  > key down
  > read tree
  > key return
  > END
  $ lytcall tree S --script keyboard-tree.steps
  request = "S"
  window = "Catalogue of the inspection"
  read tree = "Site"
  message = "Please choose an entry of the right kind in the tree."
  read tree = "Site/Access/Paths/Paving/Material"
  result = 1 (confirmed)
  choice = "site.access.path.paving.material"

  $ cat >keyboard-wizard-group.steps <<'END'
  > # The wizard worked from the keyboard alone, as far as a group: its label, its values, their marks and their order.
  > window "Catalogue of the inspection"
  > key tab 2
  > expect tree focused
  > key home
  > key right 5
  > read tree
  > key return
  > window "New group"
  > expect "Label:" focused
  > enter "Paved ways"
  > key alt+o
  > expect "Label:" disabled
  > key alt+o
  > expect "Label:" enabled
  > key alt+v
  > expect list focused
  > key home
  > key space
  > key down
  > key alt+u
  > items list
  > key alt+r
  > items list
  > key alt+a
  > items list
  > key alt+v
  > key home
  > key alt+d
  > items list
  > key tab 3
  > expect ok focused
  > key return
  > END
  $ lytcall wizard --script keyboard-wizard-group.steps
  window = "Catalogue of the inspection"
  read tree = "Site/Access/Paths/Paving"
  window = "New group"
  items list = 4
    item = "[x] Material"
    item = "[ ] Area, sq m"
    item = "[x] Slip resistance"
    item = "[x] Condition"
  items list = 3
    item = "[ ] Area, sq m"
    item = "[x] Slip resistance"
    item = "[x] Condition"
  items list = 4
    item = "[x] Area, sq m"
    item = "[x] Material"
    item = "[x] Slip resistance"
    item = "[x] Condition"
  items list = 4
    item = "[x] Material"
    item = "[x] Area, sq m"
    item = "[x] Slip resistance"
    item = "[x] Condition"
  result = 1 (a text of a group, more to come)
  text = "G1:site.access.path.paving(Paved ways)/LIST{"
  result = 1 (a text of a group, more to come)
  text = "Xsite.access.path.paving.material|"
  result = 1 (a text of a group, more to come)
  text = "Xsite.access.path.paving.area|"
  result = 1 (a text of a group, more to come)
  text = "Xsite.access.path.paving.slip|"
  result = 0 (the end)
  text = "Xsite.access.path.paving.state"

  $ cat >keyboard-wizard-phrase.steps <<'END'
  > # The wizard worked from the keyboard alone, as far as a phrase: an arrow key chooses the form, and the place opens.
  > window "Catalogue of the inspection"
  > key tab 2
  > key end
  > read tree
  > key return
  > window "New phrase"
  > expect "Short" focused
  > expect "Short" checked
  > key down
  > expect "With place" checked
  > key return
  > message
  > key return
  > key alt+p
  > expect "Place:" focused
  > key down
  > read "Place:"
  > key alt+r
  > expect "Remark:" focused
  > enter "after the rain"
  > key return
  > END
  $ lytcall wizard --script keyboard-wizard-phrase.steps
  window = "Catalogue of the inspection"
  read tree = "Energy/Shell"
  window = "New phrase"
  message = "Please say where it is."
  read "Place:" = "North wall"
  result = 3 (a phrase)
  text = "P1{Shell}after the rain[long|north wall]"

  $ cat >keyboard-wizard-symbol.steps <<'END'
  > # The wizard worked from the keyboard alone, as far as a value: a list that drops down, and a mark.
  > window "Catalogue of the inspection"
  > key tab 2
  > key home
  > key right 7
  > read tree
  > key return
  > window "New value"
  > expect "Decimal places:" focused
  > key f4
  > key down
  > key return
  > read "Decimal places:"
  > key alt+u
  > expect "Use label when missing" checked
  > key space
  > expect "Use label when missing" unchecked
  > key space
  > key tab
  > expect ok focused
  > key return
  > END
  $ lytcall wizard --script keyboard-wizard-symbol.steps
  window = "Catalogue of the inspection"
  read tree = "Site/Access/Paths/Paving/Area   sq m"
  window = "New value"
  read "Decimal places:" = "three"
  result = 2 (a symbol)
  text = "S1:site.access.path.paving.area(3)=\"Area##sq m\""
