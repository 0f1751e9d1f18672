A name with a letter that the code page of the library lacks.

  $ . "$HERE/setup.sh"
  $ mkdir Größe
  $ cp samples/dialogs/lytInSym.dlg Größe/Д.dlg
  $ lytdlg run Größe/Д.dlg
  lytdlg: the library cannot open "Д.dlg": its code page lacks a letter of the name; rename the file or folder, or copy the dialogs to a folder with plain letters
  `lytdlg --help` lists commands and options.
  [2]
