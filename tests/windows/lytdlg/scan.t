Texts are taken apart and composed.

  $ . "$HERE/setup.sh"

  $ lytdlg scan samples/dialogs/lytInSym.dlg --input 'S1:area(2,m2)'
  line 45 Start: Mark takes "S1"
  line 45 Start: Name takes "S1"
  line 52 Name: Name takes "area"
  line 54 Digits: Digits takes "2"
  line 57 Unit: Unit takes "m2"
  the scan ended at the end of the text

  $ lytdlg scan samples/dialogs/lytInSym.dlg --input 'S1:area(2,m2)' --trace
  scan of "S1:area(2,m2)"
    line 45 Start: cut "S1" at ":", rest "area(2,m2)", on to Known
      line 45 Mark takes "S1"
      line 45 Name takes "S1"
    line 46 Known: Mark is "S1", which is in (S1); on to Name
    line 52 Name: cut "area" at "(", rest "2,m2)", on to Digits
      line 52 Name takes "area"
    line 54 Digits: cut "2" by its length, rest ",m2)", on to Comma
      line 54 Digits takes "2"
    line 55 Comma: cut "" at ",", rest "m2)", on to Unit
    line 57 Unit: cut "m2" at ")", rest "", on to Equals
      line 57 Unit takes "m2"
    line 58 Equals: cut "" to the end of the text, rest "", the end
  rules
    line 34 Unit/ACTIVE: Digits holds something; Unit is enabled
    line 35 Advice/VISIBLE: Name is "area", which is not in (NULL); Advice is hidden
  line 45 Start: Mark takes "S1"
  line 45 Start: Name takes "S1"
  line 52 Name: Name takes "area"
  line 54 Digits: Digits takes "2"
  line 57 Unit: Unit takes "m2"
  the scan ended at the end of the text

  $ lytdlg scan samples/dialogs/lytRpGrp.dlg --part FindingNew --input 'a finding'
  line 152 Start: Findings takes the item "a finding"
  the scan ended at End

  $ lytdlg scan dialogs/broken.dlg --part Other
  not opened
  error 212 in line 7 = "Line '4' of the description has the wrong form. Correct it."
  [1]

  $ lytdlg scan dialogs/why.dlg --input 'K:a|b|c'
  line 42 Start: Kind takes "K"
  line 44 First: Twice takes "a|b|c"
  line 44 First: Short has no value "a|b|c", and nothing is chosen in it
  the scan ended at the end of the text

A piece that a control does not take is no success.

  $ cat >pieces.dlg <<'END'
  > $VERSION 1
  > $LAYOUT Pieces
  > Begin Dialog Box 400, 200, "Title", .Main
  >     OptionGroup .Severity
  >     OptionButton 16, 12, 80, 12, "Slight", .Slight
  >     OptionButton 116, 12, 80, 12, "Severe", .Severe
  >     DropListBox 16, 40, 100, 80, .Unit
  >     ComboBox 216, 40, 100, 80, .Inspector
  >     CheckListBox 16, 80, 100, 80, .Parts
  >     CheckBox 216, 80, 100, 12, "Pictures", .Pictures
  >     ListBox 216, 100, 100, 60, .Rooms
  >     OKButton 16, 170, 112, 22, .Ok
  > End Dialog
  > $VALUES
  >     Slight = slight
  >     Severe = severe
  >     Unit: Metre = m
  >     Inspector: Team = Team
  >     Pictures: ON = P
  >     Pictures: OFF = -
  >     Pictures = P
  >     Rooms: Hall = hall
  >     Rooms: Bath = bath
  >     Rooms: Attic = attic
  > $DEPENDANCES
  > $EVALUATION, x
  > $INPUT, parent
  >     Start: (";", Unit = Severity
  >     Unit: (";", Inspector = Unit
  >     Inspector: (";", Parts = Inspector
  >     Parts: (";", Pictures = Parts(ADD)
  >     Pictures: (";", Rooms = Pictures
  >     Rooms: (99, End = Rooms
  > $OUTPUT, parent
  >     ("%s;%s", Severity, Unit)
  > $END
  > END
  $ lytdlg scan pieces.dlg --input 'severe;m;Team;roof;-;hall'
  line 28 Start: Severity takes "severe"
  line 29 Unit: Unit takes "m"
  line 30 Inspector: Inspector takes "Team"
  line 31 Parts: Parts is a check list, and does not take the item "roof"
  line 32 Pictures: Pictures takes "-"
  line 33 Rooms: Rooms takes "hall"
  the scan ended at End
  $ lytdlg scan pieces.dlg --input ' severe;km;Zorn;roof;x;attic'
  line 28 Start: Severity has no value " severe", and its value is ""
  line 29 Unit: Unit has no value "km", and its value is "m"
  line 30 Inspector: Inspector takes "Zorn", but its value is "Team"
  line 31 Parts: Parts is a check list, and does not take the item "roof"
  line 32 Pictures: Pictures has no value "x"
  line 33 Rooms: Rooms cannot be given "attic", one of its last two items, and nothing is chosen in it
  the scan ended at End
  $ lytdlg why pieces.dlg Severity --input ' severe;km;Zorn;roof;x;attic'
  Severity is shown and enabled; it is empty.
  The scan came to it in line 28 (statement Start): it has no value " severe".

  $ lytdlg compose samples/dialogs/lytInSym.dlg --input 'S1:area(2,m2)' --set Missing=none
  result = "S1:area(2,m2)=\"none\""
  by the rule in line 69

  $ lytdlg compose samples/dialogs/lytInSym.dlg --input S1:area --trace
  scan of "S1:area"
    line 45 Start: cut "S1" at ":", rest "area", on to Known
      line 45 Mark takes "S1"
      line 45 Name takes "S1"
    line 46 Known: Mark is "S1", which is in (S1); on to Name
    line 52 Name: cut "area" to the end of the text, rest "", the end
      line 52 Name takes "area"
  rules
    line 34 Unit/ACTIVE: Digits holds nothing; Unit is disabled
    line 35 Advice/VISIBLE: Name is "area", which is not in (NULL); Advice is hidden
  output line 64: yes
  result = "S1:area"
  by the rule in line 64

  $ lytdlg compose samples/dialogs/lytRpGrp.dlg --group standard --set Trade=heating
  result = "norm/heating"
  by the rule in line 167

  $ lytdlg compose samples/dialogs/finding.dlg --group wording
  no rule of the output group "wording" holds
  line 71: Typical is empty, which is not in (cracks, damp, rot, leak, wiring)
  [1]

  $ cat >inputs.txt <<'END'
  > # Placeholders of older reports.
  > S1:area(2,m2)
  > height
  > S1:demand(1,kWh/(m2a))="none"
  > S1:x()
  > END
  $ lytdlg roundtrip dialogs/broken.dlg --inputs inputs.txt
  line 2: "S1:area(2,m2)" the dialog does not open: "Line '4' of the description has the wrong form. Correct it."
  line 3: "height" the dialog does not open: "Line '4' of the description has the wrong form. Correct it."
  line 4: "S1:demand(1,kWh/(m2a))=\"none\"" the dialog does not open: "Line '4' of the description has the wrong form. Correct it."
  line 5: "S1:x()" the dialog does not open: "Line '4' of the description has the wrong form. Correct it."
  0 of 4 inputs come back as they are
  [1]

  $ lytdlg roundtrip samples/dialogs/lytInSym.dlg --inputs inputs.txt
  line 3: "height" comes back as "S1:height"
  line 5: "S1:x()" comes back as "S1:x())"
  2 of 4 inputs come back as they are
  [1]
