Each way to be hidden, disabled or empty.

  $ . "$HERE/setup.sh"

  $ lytdlg why dialogs/why.dlg Kind --input K:x
  Kind is shown and enabled; its value is "K".
  The scan came to it in line 42 (statement Start): it takes "K".

  $ lytdlg why dialogs/why.dlg Secret
  Secret is hidden and enabled; it is empty.
  It is hidden by HIDDEN in line 23, and no rule changes that.
  No statement of the input part parent fills it.

  $ lytdlg why dialogs/why.dlg Fixed
  Fixed is shown and disabled; it is empty.
  It is disabled by DISPLAYONLY in line 24, and no rule changes that.
  No statement of the input part parent fills it.

  $ lytdlg why dialogs/why.dlg Later --input K:q
  Later is shown and disabled; it is empty.
  It is disabled by the rule in line 37: Twice is "q", which is not in (x, y).
  It begins disabled by INACTIVE in line 25.
  The statement First in line 44 would fill it, but a condition before the fill did not hold for its piece.

  $ lytdlg why dialogs/why.dlg Later --input K:x
  Later is shown and enabled; it is empty.
  It is enabled by the rule in line 37: Twice is "x", which is in (x, y); Kind holds something.
  It begins disabled by INACTIVE in line 25.
  The statement First in line 44 would fill it, but a condition before the fill did not hold for its piece.

  $ lytdlg why dialogs/why.dlg Later --input K:x --set Kind=L
  Later is shown and enabled; it is empty.
  It is enabled by the rule in line 37: Twice is "x", which is in (x, y); Kind holds something.
  It begins disabled by INACTIVE in line 25.
  The statement First in line 44 would fill it, but a condition before the fill did not hold for its piece.
  It was emptied by the rule in line 38: Kind has changed: it is "L".

  $ lytdlg why dialogs/why.dlg Round
  Round is hidden and enabled; its value is "round".
  It is hidden by INVISIBLE of its group Form in line 33, and no rule changes that.

  $ lytdlg why dialogs/why.dlg Nobody --press Toggle
  Nobody is shown and disabled; it is empty.
  It is disabled by the button Toggle in line 34.
  No statement of the input part parent fills it.

  $ lytdlg why dialogs/why.dlg Never --input K:x
  Never is shown and enabled; it is empty.
  The statement Whole in line 43 would fill it, but the scan did not come there. It went through Start, First and ended with the text.

  $ lytdlg why dialogs/why.dlg Looked --input K:x
  Looked is shown and enabled; it is empty.
  The statement First in line 44 would fill it, but a condition before the fill did not hold for its piece.
  Nothing has asked the library nowhere of line 30: fill it by an input statement, a rule or a button.

  $ lytdlg why dialogs/why.dlg Twice --input 'K:x;y;z'
  Twice is shown and enabled; its value is "y".
  The scan came to it in line 44 (statement First): it takes "x".
  The scan came to it in line 45 (statement Second): it takes "y".

  $ lytdlg why samples/dialogs/lytRpGrp.dlg Findings --press NewFinding --set Wording=Mould --ok
  opened finding.dlg
  confirmed finding.dlg with "Mould; medium"
  Findings is shown and enabled; its value is "Mould; medium".
  The scan came to it in line 152 (statement Start): it takes the item "Mould; medium".

  $ lytdlg why dialogs/why.dlg Short --input 'K:2;'
  Short is shown and enabled; nothing is chosen in it.
  The scan came to it in line 44 (statement First): it cannot be given "2", one of its last two items.

  $ lytdlg why dialogs/why.dlg Rooms
  Rooms is shown and enabled; nothing is chosen in it.
  No statement of the input part parent fills it.
  Nothing has asked the library nowhere of line 29: fill it by an input statement, a rule or a button.

  $ lytdlg why dialogs/why.dlg Rooms --press Fetch
  Rooms is shown and enabled; nothing is chosen in it.
  No statement of the input part parent fills it.
  It has asked the library nowhere of line 29: there is no library "nowhere".

  $ lytdlg why samples/dialogs/lytInSym.dlg Advice
  Advice is shown and enabled.
  It is shown by the rule in line 35: Name is empty, which is in (NULL).
  It begins hidden by INVISIBLE in line 30.

  $ lytdlg why dialogs/broken.dlg Kind
  not opened
  error 212 in line 7 = "Line '4' of the description has the wrong form. Correct it."
  [1]

A text that an input puts into a combo box beside its items is lost. Every command gives the value that the library has.

  $ sed 's/Inspector(ADD), Inspector/Inspector/' samples/dialogs/lytRpGrp.dlg >samples/dialogs/lost.dlg
  $ cat >lost.case <<'END'
  > dialog: samples/dialogs/lost.dlg
  > case: an own name
  > input: (F;R;roofing;Z. Zorn;;;--;;;)
  > expect Inspector = "Z. Zorn"
  > END

  $ lytdlg check samples/dialogs/lost.dlg | sed -n 1,4p
  samples/dialogs/lost.dlg:135:40: warning scan-combo: a text that is no item of "Inspector" shows in its field, and is lost
          Inspector: (";", Rooms, ")", End = Inspector  ; any name is an item by then
                                             ^~~~~~~~~
      hint: write Inspector(ADD), Inspector, or make it a DropListBox

  $ lytdlg run samples/dialogs/lost.dlg --input '(F;R;roofing;Z. Zorn;;;--;;;)' | grep 'Inspector '
    Inspector      ComboBox     enabled  shown  "" of "" ("(not named)"), "Team North", "Team South", "Office" ("Outside office"); the field shows "Z. Zorn", which is no item and gets lost

  $ lytdlg why samples/dialogs/lost.dlg Inspector --input '(F;R;roofing;Z. Zorn;;;--;;;)'
  Inspector is shown and enabled; its value is "".
  The scan came to it in line 135 (statement Inspector): it takes "Z. Zorn".
  Now the field shows "Z. Zorn", which is no item and gets lost.

  $ lytdlg scan samples/dialogs/lost.dlg --input '(F;R;roofing;Z. Zorn;;;--;;;)' | grep Inspector
  line 135 Inspector: Inspector takes "Z. Zorn", but its value is ""

  $ lytdlg preview samples/dialogs/lost.dlg --input '(F;R;roofing;Z. Zorn;;;--;;;)' -o lost.svg
  lytdlg: samples/dialogs/lost.dlg: Inspector has the value ""; the field shows "Z. Zorn", which is no item and gets lost

  $ lytdlg test lost.case
  lost.case:4: an own name
      expected: expect Inspector = "Z. Zorn"
      got:      expect Inspector = ""
  0 passed, 1 failed
  [1]
