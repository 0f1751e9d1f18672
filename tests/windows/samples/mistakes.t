What lytcall itself says.

  $ . "$HERE/setup.sh"

  $ lytcall find
  lytcall: something is missing after "find"; write: lytcall find KEY
  `lytcall --help` lists commands and options.
  [2]

  $ lytcall symbol --script nowhere.steps
  key = "S1:area(2,kWh/(m2a))=\"n. a.\""
  lytcall: nowhere.steps:1:1: error: the script cannot be opened; check its name
  [2]

  $ lytcall symbol --script /dev/zero
  key = "S1:area(2,kWh/(m2a))=\"n. a.\""
  lytcall: /dev/zero:1:1: error: the script cannot be opened; check its name
  [2]

  $ cat >mistake.steps <<'END'
  > window
  > type "Name:" volume
  > END
  $ lytcall symbol --script mistake.steps
  key = "S1:area(2,kWh/(m2a))=\"n. a.\""
  lytcall: mistake.steps:2:14: error: the text volume has no quotes; write "volume"
  [2]

  $ cat >failure.steps <<'END'
  > window
  > press "Apply"
  > END
  $ lytcall symbol --limit 1 --script failure.steps
  key = "S1:area(2,kWh/(m2a))=\"n. a.\""
  window = "Properties of a value"
  lytcall: failure.steps:2:1: error: step `press`: the window "Properties of a value" has no control "Apply"; the step `show` lists what it has
  [1]

  $ cat >unfinished.steps <<'END'
  > window
  > read "Name:"
  > END
  $ lytcall symbol --limit 1 --script unfinished.steps
  key = "S1:area(2,kWh/(m2a))=\"n. a.\""
  window = "Properties of a value"
  read "Name:" = "area"
  lytcall: unfinished.steps:2:1: error: step `read`: after it the window "Properties of a value" is still open; end the script with a step that closes it
  [1]

  $ cat >left-over.steps <<'END'
  > window
  > press ok
  > closed
  > press ok
  > END
  $ lytcall symbol --limit 1 --script left-over.steps
  key = "S1:area(2,kWh/(m2a))=\"n. a.\""
  window = "Properties of a value"
  lytcall: left-over.steps:4:1: error: step `press`: the call came back before this step; look at what the steps before it did
  [1]

  $ cat >no-picture.steps <<'END'
  > window
  > shot "nowhere/picture.bmp"
  > END
  $ lytcall symbol --script no-picture.steps
  key = "S1:area(2,kWh/(m2a))=\"n. a.\""
  window = "Properties of a value"
  lytcall: no-picture.steps:2:1: error: step `shot`: the picture "nowhere/picture.bmp" cannot be saved; check its folder and name
  [1]

  $ lytcall symbol --limit 1
  key = "S1:area(2,kWh/(m2a))=\"n. a.\""
  lytcall: the window "Properties of a value" is open, and there is no screen to show it; give a script with --script, or under Wine set DISPLAY
  [1]

  $ lytcall doctor nowhere
  lytdlg: there is no folder nowhere; name the folders of the deployment
  `lytdlg --help` lists commands and options.
  [2]

  $ lytcall doc --library nowhere.dll
  lytcall: nowhere.dll cannot be loaded (error 126); name it with --library, as a 64-bit DLL
  [1]
