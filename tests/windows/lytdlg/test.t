Cases are carried out: differences, what is not understood, and bringing up to date.

  $ . "$HERE/setup.sh"

Every sample dialog, in one call.

  $ lytdlg test samples/cases >told || cat told

A dialog with a statement of every form.

  $ lytdlg test dialogs/everyForm.case >told || cat told
  $ lytdlg compose dialogs/everyForm.dlg --group second --input 'hello;2'
  result = "<2>\t \"word\""
  by the rule in line 37

The samples are without a flaw, and their texts are there, fit and underline a letter each.

  $ lytdlg check samples/dialogs | tail -n 1
  8 descriptions judged: 0 errors, 0 warnings, 1 note
  $ lytdlg texts samples/dialogs | tail -n 1
  161 texts, 0 missing

  $ cat >differing.case <<'END'
  > # Expectations that are not met, to be reported and brought up to date.
  > dialog: samples/dialogs/lytInSym.dlg
  > case: values and states
  > input: S1:area(2,m2)
  > expect Name = "volume"        # the comment stays
  >   expect Unit disabled
  > expect Digits = 2
  > expect title = "Values"
  > ok
  > expect result = "S1:volume"
  > case: messages
  > input: S1:area
  > ok
  > ok
  > expect message "Nothing of the kind."
  > expect refused
  > cancel
  > expect message "Never shown."
  > expect confirmed
  > case: an act that cannot be carried out
  > set Unit = m2
  > set Digits = ""
  > set Unit = m3
  > case: a name that is not there
  > expect Nmae = ""
  > case: all is well
  > expect Name = ""
  > END
  $ lytdlg test differing.case
  differing.case:5: values and states
      expected: expect Name = "volume"
      got:      expect Name = "area"
  differing.case:6: values and states
      expected: expect Unit disabled
      got:      expect Unit enabled
  differing.case:8: values and states
      expected: expect title = "Values"
      got:      expect title = "Properties of a value"
  differing.case:10: values and states
      expected: expect result = "S1:volume"
      got:      expect result = "S1:area(2,m2)"
  differing.case:13: messages
      expected: nothing more
      got:      expect message "Please enter the decimal places, 0 to 9."
  differing.case:15: messages
      expected: expect message "Nothing of the kind."
      got:      expect message "Please enter the decimal places, 0 to 9."
  differing.case:18: messages
      expected: expect message "Never shown."
      got:      nothing
  differing.case:19: messages
      expected: expect confirmed
      got:      expect cancelled
  differing.case:23: an act that cannot be carried out
      cannot continue: differing.case:23:1: error: Unit is disabled, so no user can reach it; `lytdlg why` gives the reason
  differing.case:25: a name that is not there
      cannot continue: differing.case:25:8: error: the dialog has no control "Nmae"; did you mean "Name"?
  1 passed, 4 failed
  [1]

  $ cp differing.case before
  $ lytdlg test --update differing.case >told
  [1]
  $ tail -n 2 told
  differing.case: brought up to date
  1 passed, 2 failed, 2 brought up to date
  $ diff -u before differing.case | tail -n +3
  @@ -2,21 +2,21 @@
   dialog: samples/dialogs/lytInSym.dlg
   case: values and states
   input: S1:area(2,m2)
  -expect Name = "volume"        # the comment stays
  -  expect Unit disabled
  +expect Name = "area"        # the comment stays
  +  expect Unit enabled
   expect Digits = 2
  -expect title = "Values"
  +expect title = "Properties of a value"
   ok
  -expect result = "S1:volume"
  +expect result = "S1:area(2,m2)"
   case: messages
   input: S1:area
   ok
  +expect message "Please enter the decimal places, 0 to 9."
   ok
  -expect message "Nothing of the kind."
  +expect message "Please enter the decimal places, 0 to 9."
   expect refused
   cancel
  -expect message "Never shown."
  -expect confirmed
  +expect cancelled
   case: an act that cannot be carried out
   set Unit = m2
   set Digits = ""

Line ends stay as they are.

  $ sed 's/$/\r/' >short.case <<'END'
  > dialog: samples/dialogs/lytInSym.dlg
  > case: line ends stay
  > input: S1:area(2)
  > expect Name = ?
  > ok
  > expect result = ? # a comment is part of a text without quotes
  > expect confirmed # and continues after any other
  > END
  $ lytdlg test --update short.case
  short.case:4: line ends stay
      expected: expect Name = "?"
      got:      expect Name = "area"
  short.case:6: line ends stay
      expected: expect result = "? # a comment is part of a text without quotes"
      got:      expect result = "S1:area(2)"
  short.case: brought up to date
  0 passed, 0 failed, 1 brought up to date
  $ tr '\r' '~' <short.case
  dialog: samples/dialogs/lytInSym.dlg~
  case: line ends stay~
  input: S1:area(2)~
  expect Name = "area"~
  ok~
  expect result = "S1:area(2)" # a comment is part of a text without quotes~
  expect confirmed # and continues after any other~

  $ cat >refused.case <<'END'
  > dialog: dialogs/broken.dlg
  > case: a description that is refused
  > expect message "Line '4' of the description has the wrong form. Correct it."
  > expect not opened
  > expect error 212
  > case: the same, with the lines of a define
  > define: EXTRA
  > expect error 213
  > expect open
  > END
  $ lytdlg test refused.case
  refused.case:8: the same, with the lines of a define
      expected: expect error 213
      got:      expect error 212
  refused.case:9: the same, with the lines of a define
      expected: expect open
      got:      expect not opened
  refused.case:9: the same, with the lines of a define
      expected: nothing more
      got:      expect message "Line '5' of the description has the wrong form. Correct it."
  1 passed, 1 failed
  [1]

  $ mkdir mistakes
  $ cat >mistakes/dialog.case <<'END'
  > input: S1:area
  > END
  $ cat >mistakes/quote.case <<'END'
  > dialog: samples/dialogs/lytInSym.dlg
  > expect Name = "open
  > END
  $ cat >mistakes/sign.case <<'END'
  > dialog: samples/dialogs/lytInSym.dlg
  > set Name volume
  > END
  $ cat >mistakes/state.case <<'END'
  > dialog: samples/dialogs/lytInSym.dlg
  > expect Unit disbled
  > END
  $ cat >mistakes/word.case <<'END'
  > dialog: samples/dialogs/lytInSym.dlg
  >   inptu: S1:area
  > END
  $ lytdlg test mistakes
  mistakes/dialog.case:1:1: error: the case names no dialog; write dialog: FILE.dlg
  mistakes/quote.case:2:15: error: the text has no closing quote; end it with a '"'
  mistakes/sign.case:2:10: error: a '=' is missing; write: set NAME = VALUE
  mistakes/state.case:2:13: error: there is no state "disbled"; did you mean "disabled"?
  mistakes/word.case:2:3: error: there is no word "inptu"; did you mean "input"?
  0 passed, 0 failed, 5 files not understood
  [2]
