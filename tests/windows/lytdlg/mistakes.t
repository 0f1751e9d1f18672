Mistakes in a command line.

  $ . "$HERE/setup.sh"

  $ lytdlg run samples/dialogs/lytInSym.dlg --set Nam=x
  lytdlg: the dialog has no control "Nam"; did you mean "Name"?
  `lytdlg --help` lists commands and options.
  [2]

  $ lytdlg run samples/dialogs/finding.dlg --set Severity=high
  lytdlg: Severity does not offer "high"; use one of: "slight", "medium", "severe"
  `lytdlg --help` lists commands and options.
  [2]

  $ echo high >items.txt
  $ lytdlg run samples/dialogs/finding.dlg --items Severty=items.txt
  lytdlg: no dialog has a control "Severty" that items could go to; did you mean "Severity"?
  `lytdlg --help` lists commands and options.
  [2]

  $ lytdlg check - --fix <samples/dialogs/finding.dlg
  lytdlg: the standard input cannot be mended where it is; name the file, or add --dry-run to see what would change
  `lytdlg --help` lists commands and options.
  [2]

  $ lytdlg check samples/dialogs --as other.dlg
  lytdlg: --as names what the standard input holds; write - as well
  `lytdlg --help` lists commands and options.
  [2]

  $ lytdlg check samples/dialogs --dry-run
  lytdlg: --dry-run shows what --fix would change; write --fix as well
  `lytdlg --help` lists commands and options.
  [2]

  $ lytdlg check samples/dialogs --level notes
  lytdlg: there is no level "notes"; did you mean "note"?
  `lytdlg --help` lists commands and options.
  [2]

  $ lytdlg check - --watch <samples/dialogs/finding.dlg
  lytdlg: the standard input cannot be watched; name files or their folder
  `lytdlg --help` lists commands and options.
  [2]

  $ lytdlg run samples/dialogs/lytRpGrp.dlg --set Costs=yes
  lytdlg: Costs does not offer "yes"; use one of: "-", "C"
  `lytdlg --help` lists commands and options.
  [2]

  $ lytdlg run samples/dialogs/lytInSym.dlg --press Name
  lytdlg: Name is a TextBox and not a button
  `lytdlg --help` lists commands and options.
  [2]

  $ lytdlg run samples/dialogs/lytInSym.dlg --set Digits= --set Unit=m
  lytdlg: Unit is disabled, so no user can reach it; `lytdlg why` gives the reason
  [1]

  $ lytdlg run dialogs/elsewhere.dlg --set Field=abc
  lytdlg: Field does not get the focus: Kinds has it, where the keys would land; --trace shows the rules that run on the way
  [1]

  $ lytdlg run dialogs/elsewhere.dlg --set Mark=1
  lytdlg: Mark does not get the focus: Kinds has it, where the keys would land; --trace shows the rules that run on the way
  [1]

  $ lytdlg run samples/dialogs/lytInSym.dlg --cancel --ok
  lytdlg: the dialog is closed; take what follows away, or do it before
  [1]

  $ lytdlg run samples/dialogs/lytInSym.dlg --set Name
  lytdlg: option --set needs NAME=VALUE after it and not "Name"
  `lytdlg --help` lists commands and options.
  [2]

  $ cat >faulty.script <<'END'
  > set Name = length
  > pres Ok
  > END
  $ lytdlg run samples/dialogs/lytInSym.dlg --script faulty.script
  lytdlg: faulty.script:2:1: error: there is no act "pres"; did you mean "press"?
  `lytdlg --help` lists commands and options.
  [2]

  $ lytdlg run samples/dialogs/nowhere.dlg
  lytdlg: there is no dialog "samples/dialogs/nowhere.dlg"; name a .dlg file with its folder
  `lytdlg --help` lists commands and options.
  [2]

  $ lytdlg run samples/dialogs/lytInSym.dlg --language French
  lytdlg: there is no lang/French.nls beside the dialog; use one of: English, German
  `lytdlg --help` lists commands and options.
  [2]

  $ lytdlg scan samples/dialogs/lytInSym.dlg --part Parent
  lytdlg: the dialog has no input part "Parent"; did you mean "parent"?
  `lytdlg --help` lists commands and options.
  [2]

  $ lytdlg compose samples/dialogs/lytRpGrp.dlg --group norm
  lytdlg: the dialog has no output group "norm"; use one of: parent, trades, rooms, standard, parts, PickOut, FindingNewOut, FindingEditOut
  `lytdlg --help` lists commands and options.
  [2]

  $ lytdlg compose samples/dialogs/lytInSym.dlg --input 'S1:area(2,m2)' --ok
  lytdlg: no described dialog is left to look at; leave the last --ok, --cancel or --press out
  [1]

  $ lytdlg why samples/dialogs/lytInSym.dlg Unti
  lytdlg: the dialog has no control "Unti"; did you mean "Unit"?
  `lytdlg --help` lists commands and options.
  [2]

  $ lytdlg run samples/dialogs/lytInSym.dlg --items Trade
  lytdlg: option --items needs LIST=FILE after it and not "Trade"
  `lytdlg --help` lists commands and options.
  [2]

  $ lytdlg test nowhere
  lytdlg: there is no file or folder "nowhere"; name case files or their folder
  `lytdlg --help` lists commands and options.
  [2]
