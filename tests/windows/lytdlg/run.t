A dialog is opened, worked and ended: states, the order of the acts, endings.

  $ . "$HERE/setup.sh"

  $ lytdlg run samples/dialogs/lytInSym.dlg --input 'S1:area(2,m2)'
  dialog "Properties of a value"
    -            GroupBox     enabled  shown  text "Value"
    NameLabel    Text         enabled  shown  text "&Name:"
    Name         TextBox      enabled  shown  "area"
    DigitsLabel  Text         enabled  shown  text "&Decimal places:"
    Digits       TextBox      enabled  shown  "2"
    UnitLabel    Text         enabled  shown  text "&Unit:"
    Unit         TextBox      enabled  shown  "m2"
    MissingLabel Text         enabled  shown  text "&Text when missing:"
    Missing      TextBox      enabled  shown  ""
    Mark         TextBox      enabled  hidden "S1"
    Advice       Text         enabled  hidden text "Name as in the data."
    Ok           OKButton     enabled  shown  text "O&K"
    Cancel       CancelButton enabled  shown  text "&Cancel"
  open

  $ lytdlg run samples/dialogs/lytInSym.dlg --input 'S1:area(2,m2)' --set Name=length --ok
  dialog "Properties of a value"
    -            GroupBox     enabled  shown  text "Value"
    NameLabel    Text         enabled  shown  text "&Name:"
    Name         TextBox      enabled  shown  "length"
    DigitsLabel  Text         enabled  shown  text "&Decimal places:"
    Digits       TextBox      enabled  shown  "2"
    UnitLabel    Text         enabled  shown  text "&Unit:"
    Unit         TextBox      enabled  shown  "m2"
    MissingLabel Text         enabled  shown  text "&Text when missing:"
    Missing      TextBox      enabled  shown  ""
    Mark         TextBox      enabled  hidden "S1"
    Advice       Text         enabled  hidden text "Name as in the data."
    Ok           OKButton     enabled  shown  text "O&K"
    Cancel       CancelButton enabled  shown  text "&Cancel"
  confirmed
  result = "S1:length(2,m2)"

  $ lytdlg run samples/dialogs/lytInSym.dlg --set Name=area --set Digits= --ok
  dialog "Properties of a value"
    -            GroupBox     enabled  shown  text "Value"
    NameLabel    Text         enabled  shown  text "&Name:"
    Name         TextBox      enabled  shown  "area"
    DigitsLabel  Text         enabled  shown  text "&Decimal places:"
    Digits       TextBox      enabled  shown  ""
    UnitLabel    Text         enabled  shown  text "&Unit:"
    Unit         TextBox      disabled shown  ""
    MissingLabel Text         enabled  shown  text "&Text when missing:"
    Missing      TextBox      enabled  shown  ""
    Mark         TextBox      enabled  hidden ""
    Advice       Text         enabled  hidden text "Name as in the data."
    Ok           OKButton     enabled  shown  text "O&K"
    Cancel       CancelButton enabled  shown  text "&Cancel"
  message = "Please enter the decimal places, 0 to 9."
  refused
  [1]

  $ lytdlg run samples/dialogs/lytInSym.dlg --cancel
  dialog "Properties of a value"
    -            GroupBox     enabled  shown  text "Value"
    NameLabel    Text         enabled  shown  text "&Name:"
    Name         TextBox      enabled  shown  ""
    DigitsLabel  Text         enabled  shown  text "&Decimal places:"
    Digits       TextBox      enabled  shown  "2"
    UnitLabel    Text         enabled  shown  text "&Unit:"
    Unit         TextBox      enabled  shown  ""
    MissingLabel Text         enabled  shown  text "&Text when missing:"
    Missing      TextBox      enabled  shown  ""
    Mark         TextBox      enabled  hidden ""
    Advice       Text         enabled  shown  text "Name as in the data."
    Ok           OKButton     enabled  shown  text "O&K"
    Cancel       CancelButton enabled  shown  text "&Cancel"
  cancelled

  $ lytdlg run samples/dialogs/lytInSym.dlg --set Digits= --set Digits=3 --set Unit=m --set Name=length --ok
  dialog "Properties of a value"
    -            GroupBox     enabled  shown  text "Value"
    NameLabel    Text         enabled  shown  text "&Name:"
    Name         TextBox      enabled  shown  "length"
    DigitsLabel  Text         enabled  shown  text "&Decimal places:"
    Digits       TextBox      enabled  shown  "3"
    UnitLabel    Text         enabled  shown  text "&Unit:"
    Unit         TextBox      enabled  shown  "m"
    MissingLabel Text         enabled  shown  text "&Text when missing:"
    Missing      TextBox      enabled  shown  ""
    Mark         TextBox      enabled  hidden ""
    Advice       Text         enabled  hidden text "Name as in the data."
    Ok           OKButton     enabled  shown  text "O&K"
    Cancel       CancelButton enabled  shown  text "&Cancel"
  confirmed
  result = "S1:length(3,m)"

  $ cat >acts.script <<'END'
  > # What a user does; case files have the same words.
  > set Name = length
  > set Digits = "1"
  > 
  > ok
  > END
  $ lytdlg run samples/dialogs/lytInSym.dlg --script acts.script
  dialog "Properties of a value"
    -            GroupBox     enabled  shown  text "Value"
    NameLabel    Text         enabled  shown  text "&Name:"
    Name         TextBox      enabled  shown  "length"
    DigitsLabel  Text         enabled  shown  text "&Decimal places:"
    Digits       TextBox      enabled  shown  "1"
    UnitLabel    Text         enabled  shown  text "&Unit:"
    Unit         TextBox      enabled  shown  ""
    MissingLabel Text         enabled  shown  text "&Text when missing:"
    Missing      TextBox      enabled  shown  ""
    Mark         TextBox      enabled  hidden ""
    Advice       Text         enabled  hidden text "Name as in the data."
    Ok           OKButton     enabled  shown  text "O&K"
    Cancel       CancelButton enabled  shown  text "&Cancel"
  confirmed
  result = "S1:length(1)"

  $ lytdlg run samples/dialogs/lytWzPhr.dlg --language German --set Form=long --ok
  dialog "Neuer Textbaustein"
    -            GroupBox     enabled  shown  text "Textbaustein"
    HeadingLabel Text         enabled  shown  text "Übers&chrift:"
    Heading      TextBox      disabled shown  ""
    FormLabel    Text         enabled  shown  text "&Form:"
    Form         OptionGroup  enabled  shown  "long"
    Short        OptionButton enabled  shown  "short"
    Long         OptionButton enabled  shown  "long" chosen
    PlaceLabel   Text         enabled  shown  text "O&rt:"
    Place        ComboBox     enabled  shown  "" of "" ("(offen)"), "north wall" ("Nordwand"), "south wall" ("Südwand")
    RemarkLabel  Text         enabled  shown  text "&Bemerkung:"
    Remark       TextBox      enabled  shown  ""
    Ok           OKButton     enabled  shown  text "&OK"
    Cancel       CancelButton enabled  shown  text "&Abbrechen"
  message = "Bitte angeben, wo es ist."
  refused
  [1]

  $ lytdlg run samples/dialogs/lytRpGrp.dlg --input '(F;R;roofing;Office;;;PC;;4.2;Damp)' --press EditFinding --set Wording=Mould --ok --ok --items Trade=samples/cases/trades.items --items AllRooms=samples/cases/rooms.items --items Parts=samples/cases/parts.items
  dialog "Findings of an inspection"
    -              GroupBox     enabled  shown  text "Content"
    HeadingLabel   Text         enabled  shown  text "Headin&g:"
    Heading        TextBox      enabled  shown  "F"
    OrderLabel     Text         enabled  shown  text "Order &by:"
    Order          DropListBox  enabled  shown  "R" of "R" ("Room"), "T" ("Trade"), "S" ("Severity")
    TradeLabel     Text         enabled  shown  text "&Trade:"
    Trade          DropListBox  enabled  shown  "roofing" of "all" ("(all trades)"), "roofing" ("Roofing"), "masonry" ("Masonry"), "heating" ("Heating")
    StandardLabel  Text         enabled  shown  text "Stan&dard:"
    Standard       TextBox      enabled  shown  ""
    InspectorLabel Text         enabled  shown  text "&Inspector:"
    Inspector      ComboBox     enabled  shown  "Office" of "" ("(not named)"), "Team North", "Team South", "Office" ("Outside office"), "Office"
    -              GroupBox     enabled  shown  text "Options"
    Pictures       CheckBox     enabled  shown  "P"
    Costs          CheckBox     enabled  shown  "C"
    RateLabel      Text         enabled  shown  text "Hourl&y rate:"
    Rate           TextBox      enabled  shown  "60"
    ChapterLabel   Text         enabled  shown  text "C&hapter:"
    Chapter        TextBox      enabled  shown  "4.2"
    Pick           PushButton   enabled  shown  text "Cata&logue..."
    -              GroupBox     enabled  shown  text "R&ooms"
    AllRoomsLabel  Text         enabled  hidden text "R&ooms"
    AllRooms       ListBox      enabled  shown  "101 Hall" of "101 Hall", "102 Kitchen", "201 Bedroom", "301 Attic"
    AddRoom        PushButton   enabled  shown  text "&Add"
    DropRoom       PushButton   disabled shown  text "Re&move"
    RoomsLabel     Text         enabled  hidden text "Chosen rooms"
    Rooms          ListBox      enabled  shown  nothing chosen, no items
    -              GroupBox     enabled  shown  text "&Parts of the building"
    PartsLabel     Text         enabled  hidden text "&Parts of the building"
    Parts          CheckListBox enabled  shown  "stairs" of [x] "roof" ("Roof"), [x] "walls" ("Walls"), [x] "stairs" ("Stairs")
    ShowAll        CheckBox     enabled  shown  "no"
    -              GroupBox     enabled  shown  text "&Findings"
    FindingsLabel  Text         enabled  hidden text "&Findings"
    Findings       ListBox      enabled  shown  "Mould; medium" of "Mould; medium"
    NewFinding     PushButton   enabled  shown  text "&New..."
    EditFinding    PushButton   enabled  shown  text "&Edit..."
    DropFinding    PushButton   enabled  shown  text "Remo&ve"
    Advice         Text         enabled  shown  text "A double click opens a finding."
    Refresh        PushButton   enabled  shown  text "&Refresh"
    Ok             OKButton     enabled  shown  text "O&K"
    Cancel         CancelButton enabled  shown  text "&Cancel"
    Marks          TextBox      enabled  hidden ""
  opened finding.dlg
  confirmed finding.dlg with "Mould; medium"
  confirmed
  result = "(F;R;roofing;Office;;Xroof|Xwalls|Xstairs;PC60;;4.2;Mould; medium)/1REPT"

  $ lytdlg run samples/dialogs/lytRpGrp.dlg --press NewFinding --set Wording=Mould
  dialog "Findings of an inspection"
    -              GroupBox     enabled  shown  text "Content"
    HeadingLabel   Text         enabled  shown  text "Headin&g:"
    Heading        TextBox      enabled  shown  ""
    OrderLabel     Text         enabled  shown  text "Order &by:"
    Order          DropListBox  enabled  shown  "R" of "R" ("Room"), "T" ("Trade"), "S" ("Severity")
    TradeLabel     Text         enabled  shown  text "&Trade:"
    Trade          DropListBox  enabled  shown  "all" of "all" ("(all trades)"), "roofing" ("Roofing"), "masonry" ("Masonry"), "carpentry" ("Carpentry"), "plumbing" ("Plumbing"), "heating" ("Heating"), "electrical" ("Electrical")
    StandardLabel  Text         enabled  shown  text "Stan&dard:"
    Standard       TextBox      enabled  shown  ""
    InspectorLabel Text         enabled  shown  text "&Inspector:"
    Inspector      ComboBox     enabled  shown  "" of "" ("(not named)"), "Team North", "Team South", "Office" ("Outside office")
    -              GroupBox     enabled  shown  text "Options"
    Pictures       CheckBox     enabled  shown  "P"
    Costs          CheckBox     enabled  shown  "-"
    RateLabel      Text         enabled  hidden text "Hourl&y rate:"
    Rate           TextBox      enabled  hidden "60"
    ChapterLabel   Text         enabled  shown  text "C&hapter:"
    Chapter        TextBox      enabled  shown  ""
    Pick           PushButton   enabled  shown  text "Cata&logue..."
    -              GroupBox     enabled  shown  text "R&ooms"
    AllRoomsLabel  Text         enabled  hidden text "R&ooms"
    AllRooms       ListBox      enabled  shown  "001 Cellar" of "001 Cellar", "002 Boiler room", "101 Hall", "102 Kitchen", "103 Living room", "104 Bath", "201 Bedroom", "202 Study", "301 Attic"
    AddRoom        PushButton   enabled  shown  text "&Add"
    DropRoom       PushButton   disabled shown  text "Re&move"
    RoomsLabel     Text         enabled  hidden text "Chosen rooms"
    Rooms          ListBox      enabled  shown  nothing chosen, no items
    -              GroupBox     enabled  shown  text "&Parts of the building"
    PartsLabel     Text         enabled  hidden text "&Parts of the building"
    Parts          CheckListBox enabled  shown  "cellar" of [x] "roof" ("Roof"), [x] "walls" ("Walls"), [x] "windows" ("Windows"), [x] "doors" ("Doors"), [x] "floors" ("Floors"), [x] "stairs" ("Stairs"), [x] "cellar" ("Cellar")
    ShowAll        CheckBox     enabled  shown  "no"
    -              GroupBox     enabled  shown  text "&Findings"
    FindingsLabel  Text         enabled  hidden text "&Findings"
    Findings       ListBox      enabled  shown  nothing chosen, no items
    NewFinding     PushButton   enabled  shown  text "&New..."
    EditFinding    PushButton   disabled shown  text "&Edit..."
    DropFinding    PushButton   disabled shown  text "Remo&ve"
    Advice         Text         enabled  shown  text "A double click opens a finding."
    Refresh        PushButton   enabled  shown  text "&Refresh"
    Ok             OKButton     enabled  shown  text "O&K"
    Cancel         CancelButton enabled  shown  text "&Cancel"
    Marks          TextBox      enabled  hidden ""
  dialog "A finding"
    -             GroupBox     enabled  shown  text "Finding"
    TypicalLabel  Text         enabled  shown  text "&Typical finding:"
    Typical       ListBox      enabled  shown  "" of "" ("(own wording)"), "cracks" ("Cracks"), "damp" ("Damp"), "rot" ("Rot"), "leak" ("Leak"), "wiring" ("Open wiring")
    Advice        Text         enabled  shown  text "A double click takes it and confirms."
    WordingLabel  Text         enabled  shown  text "&Wording:"
    Wording       TextBox      enabled  shown  "Mould"
    SeverityLabel Text         enabled  shown  text "S&everity:"
    Severity      OptionGroup  enabled  shown  "medium"
    Slight        OptionButton enabled  shown  "slight"
    Medium        OptionButton enabled  shown  "medium" chosen
    Severe        OptionButton enabled  shown  "severe"
    PlaceLabel    Text         enabled  shown  text "&Place:"
    Place         ComboBox     enabled  shown  "" of "" ("(open)"), "north wall" ("North wall"), "south wall" ("South wall"), "ceiling" ("Ceiling")
    Hint          PushButton   enabled  shown  text "&Hide hint"
    Ok            OKButton     enabled  shown  text "O&K"
    Cancel        CancelButton enabled  shown  text "&Cancel"
  opened finding.dlg
  open

  $ lytdlg run samples/dialogs/finding.dlg --trace --items Wording=samples/cases/wording.items --set Typical=rot --ok | sed 's/^>/act:/'
  dialog "A finding"
    -             GroupBox     enabled  shown  text "Finding"
    TypicalLabel  Text         enabled  shown  text "&Typical finding:"
    Typical       ListBox      enabled  shown  "rot" of "" ("(own wording)"), "cracks" ("Cracks"), "damp" ("Damp"), "rot" ("Rot"), "leak" ("Leak"), "wiring" ("Open wiring")
    Advice        Text         enabled  shown  text "A double click takes it and confirms."
    WordingLabel  Text         enabled  shown  text "&Wording:"
    Wording       TextBox      enabled  shown  "Rotten wood"
    SeverityLabel Text         enabled  shown  text "S&everity:"
    Severity      OptionGroup  enabled  shown  "medium"
    Slight        OptionButton enabled  shown  "slight"
    Medium        OptionButton enabled  shown  "medium" chosen
    Severe        OptionButton enabled  shown  "severe"
    PlaceLabel    Text         enabled  shown  text "&Place:"
    Place         ComboBox     enabled  shown  "" of "" ("(open)"), "north wall" ("North wall"), "south wall" ("South wall"), "ceiling" ("Ceiling")
    Hint          PushButton   enabled  shown  text "&Hide hint"
    Ok            OKButton     enabled  shown  text "O&K"
    Cancel        CancelButton enabled  shown  text "&Cancel"
  scan of ""
    line 60 Start: cut "" to the end of the text, rest "", the end
      line 60 Wording is handed an empty text
  rules
    line 51 Wording/FILL: Typical has not changed; nothing to do
    line 52 Place/ACTIVE: Wording holds nothing; Place is disabled
  act: set Typical = "rot"
  rules
    line 51 Wording/FILL: Typical has changed: it is "rot"; Wording is filled
      Wording asks its library
  output line 71: yes
    rules once more, inside this
      line 51 Wording/FILL: left out, since it is in progress
      line 52 Place/ACTIVE: Wording holds something; Place is enabled
    rules once more, inside this
      line 51 Wording/FILL: left out, since it is in progress
      line 52 Place/ACTIVE: Wording holds something; Place is enabled
    line 52 Place/ACTIVE: Wording holds something; Place is enabled
  act: ok
  rules
    line 51 Wording/FILL: Typical has not changed; nothing to do
    line 52 Place/ACTIVE: Wording holds something; Place is enabled
  output line 67: yes
  confirmed
  result = "Rotten wood; medium"

  $ lytdlg run samples/dialogs/lytInSym.dlg --items Trade=samples/cases/trades.items --cancel
  dialog "Properties of a value"
    -            GroupBox     enabled  shown  text "Value"
    NameLabel    Text         enabled  shown  text "&Name:"
    Name         TextBox      enabled  shown  ""
    DigitsLabel  Text         enabled  shown  text "&Decimal places:"
    Digits       TextBox      enabled  shown  "2"
    UnitLabel    Text         enabled  shown  text "&Unit:"
    Unit         TextBox      enabled  shown  ""
    MissingLabel Text         enabled  shown  text "&Text when missing:"
    Missing      TextBox      enabled  shown  ""
    Mark         TextBox      enabled  hidden ""
    Advice       Text         enabled  shown  text "Name as in the data."
    Ok           OKButton     enabled  shown  text "O&K"
    Cancel       CancelButton enabled  shown  text "&Cancel"
  nothing asked for the items of Trade
  cancelled

  $ lytdlg run samples/dialogs/lytInSym.dlg --press Ok
  dialog "Properties of a value"
    -            GroupBox     enabled  shown  text "Value"
    NameLabel    Text         enabled  shown  text "&Name:"
    Name         TextBox      enabled  shown  ""
    DigitsLabel  Text         enabled  shown  text "&Decimal places:"
    Digits       TextBox      enabled  shown  "2"
    UnitLabel    Text         enabled  shown  text "&Unit:"
    Unit         TextBox      enabled  shown  ""
    MissingLabel Text         enabled  shown  text "&Text when missing:"
    Missing      TextBox      enabled  shown  ""
    Mark         TextBox      enabled  hidden ""
    Advice       Text         enabled  shown  text "Name as in the data."
    Ok           OKButton     enabled  shown  text "O&K"
    Cancel       CancelButton enabled  shown  text "&Cancel"
  message = "Please enter the name of the value."
  refused
  [1]

  $ lytdlg run samples/dialogs/lytInPhr.dlg --define SHORT --input 'P1{x}[a]'
  dialog "Properties of a phrase"
    -           GroupBox     enabled  shown  text "Phrase"
    KeyLabel    Text         enabled  shown  text "K&ey:"
    Key         TextBox      enabled  shown  "x"
    RemarkLabel Text         enabled  shown  text "&Remark:"
    Remark      TextBox      enabled  shown  ""
    -           GroupBox     enabled  shown  text "Texts to insert"
    FirstLabel  Text         enabled  shown  text "&First:"
    First       TextBox      enabled  shown  "a"
    Mark        TextBox      enabled  hidden "P1"
    Ok          OKButton     enabled  shown  text "O&K"
    Cancel      CancelButton enabled  shown  text "&Cancel"
  open

  $ lytdlg run dialogs/broken.dlg --ok
  message = "Line '4' of the description has the wrong form. Correct it."
  not opened
  error 212 in line 7 = "Line '4' of the description has the wrong form. Correct it."
  [1]

  $ lytdlg run samples/dialogs/lytRpGrp.dlg --press Pick --cancel --ok
  dialog "Findings of an inspection"
    -              GroupBox     enabled  shown  text "Content"
    HeadingLabel   Text         enabled  shown  text "Headin&g:"
    Heading        TextBox      enabled  shown  ""
    OrderLabel     Text         enabled  shown  text "Order &by:"
    Order          DropListBox  enabled  shown  "R" of "R" ("Room"), "T" ("Trade"), "S" ("Severity")
    TradeLabel     Text         enabled  shown  text "&Trade:"
    Trade          DropListBox  enabled  shown  "all" of "all" ("(all trades)"), "roofing" ("Roofing"), "masonry" ("Masonry"), "carpentry" ("Carpentry"), "plumbing" ("Plumbing"), "heating" ("Heating"), "electrical" ("Electrical")
    StandardLabel  Text         enabled  shown  text "Stan&dard:"
    Standard       TextBox      enabled  shown  ""
    InspectorLabel Text         enabled  shown  text "&Inspector:"
    Inspector      ComboBox     enabled  shown  "" of "" ("(not named)"), "Team North", "Team South", "Office" ("Outside office")
    -              GroupBox     enabled  shown  text "Options"
    Pictures       CheckBox     enabled  shown  "P"
    Costs          CheckBox     enabled  shown  "-"
    RateLabel      Text         enabled  hidden text "Hourl&y rate:"
    Rate           TextBox      enabled  hidden "60"
    ChapterLabel   Text         enabled  shown  text "C&hapter:"
    Chapter        TextBox      enabled  shown  ""
    Pick           PushButton   enabled  shown  text "Cata&logue..."
    -              GroupBox     enabled  shown  text "R&ooms"
    AllRoomsLabel  Text         enabled  hidden text "R&ooms"
    AllRooms       ListBox      enabled  shown  "001 Cellar" of "001 Cellar", "002 Boiler room", "101 Hall", "102 Kitchen", "103 Living room", "104 Bath", "201 Bedroom", "202 Study", "301 Attic"
    AddRoom        PushButton   enabled  shown  text "&Add"
    DropRoom       PushButton   disabled shown  text "Re&move"
    RoomsLabel     Text         enabled  hidden text "Chosen rooms"
    Rooms          ListBox      enabled  shown  nothing chosen, no items
    -              GroupBox     enabled  shown  text "&Parts of the building"
    PartsLabel     Text         enabled  hidden text "&Parts of the building"
    Parts          CheckListBox enabled  shown  "cellar" of [x] "roof" ("Roof"), [x] "walls" ("Walls"), [x] "windows" ("Windows"), [x] "doors" ("Doors"), [x] "floors" ("Floors"), [x] "stairs" ("Stairs"), [x] "cellar" ("Cellar")
    ShowAll        CheckBox     enabled  shown  "no"
    -              GroupBox     enabled  shown  text "&Findings"
    FindingsLabel  Text         enabled  hidden text "&Findings"
    Findings       ListBox      enabled  shown  nothing chosen, no items
    NewFinding     PushButton   enabled  shown  text "&New..."
    EditFinding    PushButton   disabled shown  text "&Edit..."
    DropFinding    PushButton   disabled shown  text "Remo&ve"
    Advice         Text         enabled  shown  text "A double click opens a finding."
    Refresh        PushButton   enabled  shown  text "&Refresh"
    Ok             OKButton     enabled  shown  text "O&K"
    Cancel         CancelButton enabled  shown  text "&Cancel"
    Marks          TextBox      enabled  hidden ""
  message = "Please enter a heading for the findings."
  refused
  [1]

A script works the window as one for lytcall does, too.

  $ cat >window.script <<'END'
  > type "Name:" "length"
  > key alt+d
  > enter "3"
  > append Unit = m2
  > set #9 = none
  > expect Name = "x"
  > END
  $ lytdlg run samples/dialogs/lytInSym.dlg --script window.script
  lytdlg: window.script:6:1: error: `expect` looks at the windows of a call, which only lytcall makes; write acts alone, such as `set` and `press`
  `lytdlg --help` lists commands and options.
  [2]
  $ sed -i '/^expect/d' window.script
  $ lytdlg run samples/dialogs/lytInSym.dlg --script window.script --ok | tail -n 2
  confirmed
  result = "S1:length(3,m2)=\"none\""
  $ printf '%s\n' 'select "Trade:" "Masonry"' 'check #14' 'press ok' >window.script
  $ lytdlg run samples/dialogs/lytRpGrp.dlg --script window.script | grep -e '^  Trade ' -e '^  Costs' -e '^[^ ]'
  dialog "Findings of an inspection"
    Trade          DropListBox  enabled  shown  "masonry" of "all" ("(all trades)"), "roofing" ("Roofing"), "masonry" ("Masonry"), "carpentry" ("Carpentry"), "plumbing" ("Plumbing"), "heating" ("Heating"), "electrical" ("Electrical")
    Costs          CheckBox     enabled  shown  "C"
  message = "Please enter a heading for the findings."
  refused
  $ printf '%s\n' 'select "Unit:" "m"' >window.script
  $ lytdlg run samples/dialogs/lytInSym.dlg --script window.script
  lytdlg: window.script:1:1: error: "Unit:" has no item "m"; the step `items` lists what it has
  [1]

Names of files with letters beyond ASCII.

  $ mkdir Größe
  $ cp samples/dialogs/lytInSym.dlg Größe/é.dlg

  $ lytdlg run Größe/é.dlg --input 'S1:area(2,m2)' --set Name=length --ok
  dialog "no value present"
    -            GroupBox     enabled  shown  text "no value present"
    NameLabel    Text         enabled  shown  text "no value present"
    Name         TextBox      enabled  shown  "length"
    DigitsLabel  Text         enabled  shown  text "no value present"
    Digits       TextBox      enabled  shown  "2"
    UnitLabel    Text         enabled  shown  text "no value present"
    Unit         TextBox      enabled  shown  "m2"
    MissingLabel Text         enabled  shown  text "no value present"
    Missing      TextBox      enabled  shown  ""
    Mark         TextBox      enabled  hidden "S1"
    Advice       Text         enabled  hidden text "no value present"
    Ok           OKButton     enabled  shown  text "no value present"
    Cancel       CancelButton enabled  shown  text "no value present"
  confirmed
  result = "S1:length(2,m2)"

  $ lytdlg check Größe/é.dlg
  1 description judged: 0 errors, 0 warnings, 0 notes

  $ lytdlg fmt --check Größe/é.dlg

An item is chosen by its value or by what it shows.

  $ lytdlg run samples/dialogs/lytRpGrp.dlg --language English --set 'Order=Trade' | grep ' Order '
    Order          DropListBox  enabled  shown  "T" of "R" ("Room"), "T" ("Trade"), "S" ("Severity")
  $ lytdlg run samples/dialogs/lytRpGrp.dlg --language English --set Order=S | grep ' Order '
    Order          DropListBox  enabled  shown  "S" of "R" ("Room"), "T" ("Trade"), "S" ("Severity")
