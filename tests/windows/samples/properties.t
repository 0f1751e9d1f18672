Forms of a placeholder, and what comes back when nothing is changed.

  $ . "$HERE/setup.sh"

  $ lytcall symbol --script ok.steps
  key = "S1:area(2,kWh/(m2a))=\"n. a.\""
  window = "Properties of a value"
  result = 2 (unchanged)
  text = "S1:area(2,kWh/(m2a))=\"n. a.\""

  $ cat >symbol-new.steps <<'END'
  > # A new placeholder begins with two places, is refused without a name, and shows the advice until it has one.
  > window "Properties of a value"
  > expect "Decimal places:" "2"
  > expect text5 visible
  > press ok
  > message "Please enter the name of the value."
  > answer
  > expect "Name:" focused
  > type "Name:" "area"
  > expect text5 hidden
  > # Without places there is no unit, and an area is refused.
  > type "Decimal places:" ""
  > expect "Unit:" disabled
  > press ok
  > message "Please enter the decimal places, 0 to 9."
  > answer
  > expect "Decimal places:" focused
  > append focus "3"
  > expect "Unit:" enabled
  > key tab
  > append focus "m2"
  > # Return confirms.
  > key return
  > END
  $ lytcall symbol '' --script symbol-new.steps
  key = ""
  window = "Properties of a value"
  message = "Please enter the name of the value."
  message = "Please enter the decimal places, 0 to 9."
  result = 1 (changed)
  text = "S1:area(3,m2)"

  $ lytcall symbol height --script ok.steps
  key = "height"
  window = "Properties of a value"
  result = 1 (changed)
  text = "S1:height"

  $ lytcall symbol --script cancel.steps
  key = "S1:area(2,kWh/(m2a))=\"n. a.\""
  window = "Properties of a value"
  result = 0 (not confirmed)
  text = ""
  [1]

  $ lytcall symbol --size 5 --script ok.steps
  key = "S1:area(2,kWh/(m2a))=\"n. a.\""
  window = "Properties of a value"
  result = 1 (changed)
  text = ""

  $ lytcall phrase --script ok.steps
  key = "P1{roof.tiles}see plan 4[three|north]"
  window = "Properties of a phrase"
  result = 2 (unchanged)
  text = "P1{roof.tiles}see plan 4[three|north]"

  $ lytcall phrase 'P1{date}' --script show-ok.steps
  key = "P1{date}"
  window = "Properties of a phrase"
  #1 group "Phrase"
  #2 text "Key:"
  #3 edit "date" focused
  #4 text "Remark:"
  #5 edit ""
  #6 group "Texts to insert"
  #7 text "First:"
  #8 edit "today"
  #9 text "Second:"
  #10 edit "noon"
  #11 text "Third:"
  #12 edit ""
  #13 edit "P1" hidden
  #14 button "OK"
  #15 button "Cancel"
  result = 1 (changed)
  text = "P1{date}[today|noon]"

  $ lytcall phrase --define SHORT --script show-ok.steps
  key = "P1{roof.tiles}see plan 4[three|north]"
  window = "Properties of a phrase"
  #1 group "Phrase"
  #2 text "Key:"
  #3 edit "roof.tiles" focused
  #4 text "Remark:"
  #5 edit "see plan 4"
  #6 group "Texts to insert"
  #7 text "First:"
  #8 edit "three"
  #9 edit "P1" hidden
  #10 button "OK"
  #11 button "Cancel"
  result = 1 (changed)
  text = "P1{roof.tiles}see plan 4[three]"

  $ lytcall group --kind 0 --script ok.steps
  kind = 0
  key = "F-001BNG(area>=20)"
  window = "Properties of a conditional group"
  result = 2 (unchanged)
  first = "(area>=20)"
  second = "1COND   ;"

  $ lytcall group --kind 0 'F-001BNG()' --script ok.steps
  kind = 0
  key = "F-001BNG()"
  window = "Properties of a conditional group"
  result = 2 (unchanged)
  first = "()"
  second = "1SHOW   ;"

  $ lytcall group --kind 0 '(area<5)' --script ok.steps
  kind = 0
  key = "(area<5)"
  window = "Properties of a conditional group"
  result = 1 (changed)
  first = "(area<5)"
  second = "1COND   ;"

  $ lytcall group --script ok.steps
  kind = 1
  key = "F-002REPfindings(Findings;R;roofing;Team North;101 Hall|102 Kitchen;Xroof|Xcellar;PC75;DIN 18338;;Cracks in the plaster; medium; north wall|Damp patch; severe)"
  window = "Findings of an inspection"
  result = 2 (unchanged)
  first = "(Findings;R;roofing;Team North;101 Hall|102 Kitchen;Xroof|Xcellar;PC75;DIN 18338;;Cracks in the plaster; medium; north wall|Damp patch; severe)"
  second = "1REPT"

  $ lytcall group 'F-002REPx(Marks;S;;;;Xroof|-walls|Xcellar|-stairs;--;;RF;)' --script show-ok.steps
  kind = 1
  key = "F-002REPx(Marks;S;;;;Xroof|-walls|Xcellar|-stairs;--;;RF;)"
  window = "Findings of an inspection"
  #1 group "Content"
  #2 text "Heading:"
  #3 edit "Marks" focused
  #4 text "Order by:"
  #5 combo "Severity" "Severity"
  #6 text "Trade:"
  #7 combo "(all trades)" "(all trades)"
  #8 text "Standard:"
  #9 edit ""
  #10 text "Inspector:"
  #11 combo "(not named)" "(not named)"
  #12 group "Options"
  #13 check "With pictures" "unchecked"
  #14 check "With costs" "unchecked"
  #15 text "Hourly rate:" hidden
  #16 edit "60" hidden
  #17 text "Chapter:"
  #18 edit "RF"
  #19 button "Catalogue..."
  #20 group "Rooms"
  #21 text "Rooms" hidden
  #22 list "" "001 Cellar"
  #23 button "Add"
  #24 button "Remove" disabled
  #25 text "Chosen rooms" hidden
  #26 list "" ""
  #27 group "Parts of the building"
  #28 text "Parts of the building" hidden
  #29 list "" "Cellar"
  #30 check "Show all parts" "unchecked"
  #31 group "Findings"
  #32 text "Findings" hidden
  #33 list "" ""
  #34 button "New..."
  #35 button "Edit..." disabled
  #36 button "Remove" disabled
  #37 text "A double click opens a finding."
  #38 button "Refresh"
  #39 button "OK"
  #40 button "Cancel"
  #41 edit "Xroof|-walls|Xcellar|-stairs" hidden
  result = 1 (changed)
  first = "F-002REPx(Marks;S;all;;;Xroof|Xcellar;--;;RF;)"
  second = "1REPTREP"

  $ cat >findings-new.steps <<'END'
  > # An empty placeholder: the lists are filled all the same.
  > window "Findings of an inspection"
  > items "Trade:"
  > items list1
  > items list2
  > items list3
  > press ok
  > message "Please enter a heading for the findings."
  > answer
  > type "Heading:" "New"
  > select "Order by:" "Trade"
  > press ok
  > message "Ordered by trade, the findings need one. Please choose a trade."
  > answer
  > select "Trade:" "Masonry"
  > press ok
  > END
  $ lytcall group '' --script findings-new.steps
  kind = 1
  key = ""
  window = "Findings of an inspection"
  items "Trade:" = 7
    item = "(all trades)"
    item = "Roofing"
    item = "Masonry"
    item = "Carpentry"
    item = "Plumbing"
    item = "Heating"
    item = "Electrical"
  items list = 9
    item = "001 Cellar"
    item = "002 Boiler room"
    item = "101 Hall"
    item = "102 Kitchen"
    item = "103 Living room"
    item = "104 Bath"
    item = "201 Bedroom"
    item = "202 Study"
    item = "301 Attic"
  items list2 = 0
  items list3 = 7
    item = "[x] Roof"
    item = "[x] Walls"
    item = "[x] Windows"
    item = "[x] Doors"
    item = "[x] Floors"
    item = "[x] Stairs"
    item = "[x] Cellar"
  message = "Please enter a heading for the findings."
  message = "Ordered by trade, the findings need one. Please choose a trade."
  result = 1 (changed)
  first = "(New;T;masonry;;;Xroof|Xwalls|Xwindows|Xdoors|Xfloors|Xstairs|Xcellar;P-;DIN 18330;;)"
  second = "1REPT"

  $ cat >findings-buttons.steps <<'END'
  > # Every button of the form once.
  > window "Findings of an inspection"
  > press "Refresh"
  > # Rooms: Return in the list of all rooms presses the button that adds.
  > focus list1
  > key down
  > read list1
  > key return
  > items list2
  > doubleclick list1 "201 Bedroom"
  > items list2
  > select list2 "102 Kitchen"
  > press button3
  > items list2
  > # Parts: those that the placeholder does not name come back with all the others.
  > items list3
  > check "Show all parts"
  > items list3
  > # The chapter comes from the catalogue, and another order leaves it open.
  > press "Catalogue..."
  > window "Catalogue of the inspection"
  > expand tree "Site/Access/Gates"
  > select tree "Site/Access/Gates/Leaves"
  > press ok
  > window "Findings of an inspection"
  > expect "Chapter:" "site.access.gate.leaf"
  > select "Order by:" "Severity"
  > expect "Chapter:" ""
  > select "Order by:" "Room"
  > # Findings: a cancelled dialog changes nothing; without findings there is nothing to edit.
  > press "Edit..."
  > window "A finding"
  > press cancel
  > window "Findings of an inspection"
  > press "New..."
  > window "A finding"
  > expect "Medium" checked
  > press "Hide hint"
  > expect text2 hidden
  > press "Show hint"
  > expect text2 visible
  > expect "Place:" disabled
  > press ok
  > message
  > answer
  > # The first item means no typical finding: chosen again, it leaves the wording alone.
  > select list "Leak"
  > expect "Wording:" "Leaking pipe"
  > type "Wording:" "Leaking tap"
  > select list "(own wording)"
  > expect "Wording:" "Leaking tap"
  > # A double click on a typical finding brings its wording along and confirms.
  > doubleclick list "Leak"
  > window "Findings of an inspection"
  > items list4
  > press button6
  > press button6
  > press button6
  > items list4
  > expect "Edit..." disabled
  > press ok
  > END
  $ lytcall group --script findings-buttons.steps
  kind = 1
  key = "F-002REPfindings(Findings;R;roofing;Team North;101 Hall|102 Kitchen;Xroof|Xcellar;PC75;DIN 18338;;Cracks in the plaster; medium; north wall|Damp patch; severe)"
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
    item = "201 Bedroom"
  items list2 = 3
    item = "101 Hall"
    item = "002 Boiler room"
    item = "201 Bedroom"
  items list3 = 2
    item = "[x] Roof"
    item = "[x] Cellar"
  items list3 = 7
    item = "[x] Roof"
    item = "[x] Walls"
    item = "[x] Windows"
    item = "[x] Doors"
    item = "[x] Floors"
    item = "[x] Stairs"
    item = "[x] Cellar"
  window = "Catalogue of the inspection"
  window = "Findings of an inspection"
  window = "A finding"
  window = "Findings of an inspection"
  window = "A finding"
  message = "Please enter what was found."
  window = "Findings of an inspection"
  items list4 = 3
    item = "Cracks in the plaster; medium; north wall"
    item = "Damp patch; severe"
    item = "Leaking pipe; medium"
  items list4 = 0
  result = 1 (changed)
  first = "F-002REPfindings(Findings;R;roofing;Team North;101 Hall|002 Boiler room|201 Bedroom;Xroof|Xwalls|Xwindows|Xdoors|Xfloors|Xstairs|Xcellar;PC75;DIN 18338;;)"
  second = "1REPTREP"

  $ lytcall group --language German --script show-cancel.steps
  kind = 1
  key = "F-002REPfindings(Findings;R;roofing;Team North;101 Hall|102 Kitchen;Xroof|Xcellar;PC75;DIN 18338;;Cracks in the plaster; medium; north wall|Damp patch; severe)"
  window = "Befunde einer Begehung"
  #1 group "Inhalt"
  #2 text "Überschrift:"
  #3 edit "Findings" focused
  #4 text "Sortieren nach:"
  #5 combo "Raum" "Raum"
  #6 text "Gewerk:"
  #7 combo "Roofing" "Roofing"
  #8 text "Norm:"
  #9 edit "DIN 18338"
  #10 text "Prüfer:"
  #11 combo "Team Nord" "Team Nord"
  #12 group "Umfang"
  #13 check "Mit Bildern" "checked"
  #14 check "Mit Kosten" "checked"
  #15 text "Stundensatz:"
  #16 edit "75"
  #17 text "Kapitel:"
  #18 edit ""
  #19 button "Katalog..."
  #20 group "Räume"
  #21 text "Räume" hidden
  #22 list "" "001 Cellar"
  #23 button "Hinzufügen"
  #24 button "Entfernen"
  #25 text "Gewählte Räume" hidden
  #26 list "" "101 Hall"
  #27 group "Bauteile"
  #28 text "Bauteile" hidden
  #29 list "" "Cellar"
  #30 check "Alle Bauteile vorschlagen" "unchecked"
  #31 group "Befunde"
  #32 text "Befunde" hidden
  #33 list "" "Cracks in the plaster; medium; north wall"
  #34 button "Neu..."
  #35 button "Bearbeiten..."
  #36 button "Entfernen"
  #37 text "Ein Doppelklick öffnet den Befund."
  #38 button "Aktualisieren"
  #39 button "OK"
  #40 button "Abbrechen"
  #41 edit "Xroof|Xcellar" hidden
  result = 0 (not confirmed)
  first = ""
  second = ""
  [1]

  $ cat >group-short-buffer.steps <<'END'
  > # The text does not fit: a message says so after the dialog.
  > window
  > press ok
  > message
  > answer
  > END
  $ lytcall group --size 20 --script group-short-buffer.steps
  kind = 1
  key = "F-002REPfindings(Findings;R;roofing;Team North;101 Hall|102 Kitchen;Xroof|Xcellar;PC75;DIN 18338;;Cracks in the plaster; medium; north wall|Damp patch; severe)"
  window = "Findings of an inspection"
  message = "The text is longer than its '20' bytes of room. Shorten it."
  result = 0 (not confirmed)
  first = ""
  second = ""
  [1]

A script works the window as one for lytdlg does, too.

  $ script window 'set "Name:" = length' 'set edit2=3' 'expect "Unit:" = m2' 'expect text5 hidden' ok >set.steps
  $ lytcall symbol 'S1:area(2,m2)' --script set.steps
  key = "S1:area(2,m2)"
  window = "Properties of a value"
  result = 1 (changed)
  text = "S1:length(3,m2)"
  $ script window 'set "Trade:" = Masonry' 'set "With costs" = unchecked' 'unmark list3 = Cellar' 'mark list3 = Roof' \
  >   'items list3' 'read "With costs"' cancel >set.steps
  $ lytcall group --script set.steps
  kind = 1
  key = "F-002REPfindings(Findings;R;roofing;Team North;101 Hall|102 Kitchen;Xroof|Xcellar;PC75;DIN 18338;;Cracks in the plaster; medium; north wall|Damp patch; severe)"
  window = "Findings of an inspection"
  items list3 = 2
    item = "[x] Roof"
    item = "[ ] Cellar"
  read "With costs" = "unchecked"
  result = 0 (not confirmed)
  first = ""
  second = ""
  [1]
