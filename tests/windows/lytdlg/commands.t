Mistakes in the command lines of the other commands.

  $ . "$HERE/setup.sh"

  $ lytdlg check
  lytdlg: something is missing after "check"; write: lytdlg check PATH...
  `lytdlg --help` lists commands and options.
  [2]
  $ lytdlg check x --format jsn
  lytdlg: there is no format "jsn"; did you mean "json"?
  `lytdlg --help` lists commands and options.
  [2]
  $ lytdlg check --explain section-ordr
  lytdlg: there is no rule "section-ordr"; did you mean "section-order"?
  `lytdlg --help` lists commands and options.
  [2]
  $ lytdlg check missing.dlg
  lytdlg: there is no file or folder missing.dlg; name descriptions, their folder, or - for the standard input
  `lytdlg --help` lists commands and options.
  [2]
  $ sed 's/Severity: /Severty: /' samples/dialogs/finding.dlg >wrong.dlg
  $ lytdlg check - --format gcc --as samples/dialogs/finding.dlg <wrong.dlg
  samples/dialogs/finding.dlg:60:18: warning: no statement is called "BeforeSeverity", and so the run ends; did you mean "BeforeSeverty"? [scan-target]
  samples/dialogs/finding.dlg:61:24: warning: no statement is called "Severity", and so the run ends; did you mean "Severty"? [scan-target]
  [1]
  $ lytdlg check - --fix --dry-run --as samples/dialogs/finding.dlg <wrong.dlg
  --- samples/dialogs/finding.dlg
  +++ samples/dialogs/finding.dlg
  @@ -57,8 +57,8 @@
   
   $INPUT, parent
       ; There is a blank after each semicolon.
  -    Start: (";", BeforeSeverity = Wording
  -    BeforeSeverty: (1, Severity)
  +    Start: (";", BeforeSeverty = Wording
  +    BeforeSeverty: (1, Severty)
       Severty: (";", BeforePlace = Severity
       BeforePlace: (1, Place)
       Place: (255, End = Place(ADD), Place        ; any place is an item by then
  1 description judged: 0 errors, 0 warnings, 0 notes
  $ mkdir empty; lytdlg fmt empty
  lytdlg: the folder empty holds no description (*.dlg); name the one that does
  `lytdlg --help` lists commands and options.
  [2]
  $ lytdlg texts none
  lytdlg: there is no folder none; name the folder of the dialogs
  `lytdlg --help` lists commands and options.
  [2]
  $ lytdlg texts empty --format jso
  lytdlg: there is no format "jso"; did you mean "json"?
  `lytdlg --help` lists commands and options.
  [2]
  $ lytdlg texts empty
  lytdlg: there is no language file (*.nls) in empty/lang; name the folder of the dialogs, which holds the folder lang
  [1]
  $ lytdlg new a/b
  lytdlg: "a/b" is no name for a dialog; use letters from A to Z, digits, - and _, with a letter first
  `lytdlg --help` lists commands and options.
  [2]
  $ lytdlg new a -o nowhere
  lytdlg: there is no folder nowhere; name the folder of the dialogs
  `lytdlg --help` lists commands and options.
  [2]
  $ lytdlg graph samples/dialogs/finding.dlg --of all
  lytdlg: there is no graph of "all"; use one of: rules, scan, groups
  `lytdlg --help` lists commands and options.
  [2]
  $ lytdlg graph samples/dialogs/finding.dlg -o x.png
  lytdlg: "x.png" is no kind of graph; the name ends in .dot or .svg
  `lytdlg --help` lists commands and options.
  [2]
  $ PATH=/nowhere "$LYT_BIN/lytdlg" graph samples/dialogs/finding.dlg -o none.svg
  lytdlg: an .svg needs Graphviz, which is not installed: apt-get install graphviz, or on Windows its setup with the folder on the path; or write a .dot
  [1]
  $ lytdlg graph none.dlg
  lytdlg: there is no dialog "none.dlg"; name a .dlg file with its folder
  `lytdlg --help` lists commands and options.
  [2]
  $ lytdlg preview samples/dialogs/finding.dlg -o x.png
  lytdlg: "x.png" is no kind of picture; the name ends in .svg
  `lytdlg --help` lists commands and options.
  [2]
  $ lytdlg preview none.dlg
  lytdlg: there is no dialog "none.dlg"; name a .dlg file with its folder
  `lytdlg --help` lists commands and options.
  [2]
  $ lytdlg preview samples/dialogs/finding.dlg -o no-such-folder/x.svg
  lytdlg: no-such-folder/x.svg cannot be written (No such file or directory); make its folder first, or choose another
  [1]
  $ lytdlg doctor
  lytdlg: something is missing after "doctor"; write: lytdlg doctor FOLDER...
  `lytdlg --help` lists commands and options.
  [2]
  $ lytdlg doctor nowhere
  lytdlg: there is no folder nowhere; name the folders of the deployment
  `lytdlg --help` lists commands and options.
  [2]
  $ lytdlg doctor samples --format jsn
  lytdlg: there is no format "jsn"; did you mean "json"?
  `lytdlg --help` lists commands and options.
  [2]
