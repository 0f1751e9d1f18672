Saved reports.

  $ . "$HERE/setup.sh"
  $ cp "$HERE"/report-*.txt .

  $ lytcall report --diff report-before.txt report-before.txt
  different lines = 0
  different from run to run = 0

  $ lytcall report --diff report-before.txt report-after.txt
  Printers
    -   Default Printer : no default printer found
    +   Default Printer : Office,winspool,LPT1:
    +   Printer: Office on LPT1: (Driver), Simplex, A4, 210mm x 297mm
  Word 16.0
    - Word 16.0 User Template Dir     : C:\tpl
    - Word 16.0 Macro Security        : 2
  Word 15.0
    + Word 15.0 User Template Dir     : C:\tpl
  Lines that differ from run to run
    - Memory in use: 40 %
    + Memory in use: 44 %
  different lines = 6
  different from run to run = 2
  [1]

  $ lytcall report --diff nowhere.txt report-after.txt
  lytcall: nowhere.txt cannot be read; save a report by `lytcall report --out nowhere.txt` first
  [1]

  $ echo 'Dear all' >letter.txt
  $ lytcall report --diff report-after.txt letter.txt
  lytcall: letter.txt is no report; name a file that `lytcall report --out FILE` has saved
  [1]

  $ lytcall report --redact report-names.txt | grep .
  Memory in use: 40 %
  Printers
    Default Printer : no default printer found
    Network Printer: Office of USER1 on SERVER1
  PATH    :C:\Users\USER1\bin;//SERVER1/tools
  COMPUTERNAME:MACHINE
  USERNAME:USER
  File Information:
  GUI-HOME                       : \\MACHINE.DOMAIN1\gui
  Word 16.0 User Template Dir     : C:\tpl
  Word 16.0 Macro Security        : 2
  Shell command <print> not available for extension <.pdf>
  Section [Convert] in lyt.ini:
    Mail=MAIL1
    LicenceKey=REMOVED

  $ lytcall report --redact report-names.txt --json
  {"blocks": [
    {"title": "The program and Windows", "lines": [
      "",
      "Memory in use: 40 %"]},
    {"title": "Printers", "lines": [
      "Printers",
      "  Default Printer : no default printer found",
      "  Network Printer: Office of USER1 on SERVER1"]},
    {"title": "The workstation", "lines": [
      "PATH    :C:\\Users\\USER1\\bin;//SERVER1/tools",
      "COMPUTERNAME:MACHINE",
      "USERNAME:USER"]},
    {"title": "LYT's files and versions", "lines": [
      "File Information:",
      "GUI-HOME                       : \\\\MACHINE.DOMAIN1\\gui"]},
    {"title": "Word 16.0", "lines": [
      "Word 16.0 User Template Dir     : C:\\tpl",
      "Word 16.0 Macro Security        : 2"]},
    {"title": "Commands and sections of lyt.ini", "lines": [
      "Shell command <print> not available for extension <.pdf>",
      "Section [Convert] in lyt.ini:",
      "  Mail=MAIL1",
      "  LicenceKey=REMOVED"]}]}

  $ lytcall report --diff --redact report-before.txt report-names.txt
  Printers
    - COMPUTERNAME:MACHINE
    +   Network Printer: Office of USER1 on SERVER1
  LYT's files and versions
    - GUI-HOME                       : C:\gui
    + GUI-HOME                       : \\MACHINE.DOMAIN1\gui
  The workstation
    + PATH    :C:\Users\USER1\bin;//SERVER1/tools
    + COMPUTERNAME:MACHINE
    + USERNAME:USER
  Commands and sections of lyt.ini
    + Shell command <print> not available for extension <.pdf>
    + Section [Convert] in lyt.ini:
    +   Mail=MAIL1
    +   LicenceKey=REMOVED
  different lines = 11
  different from run to run = 0
  [1]

  $ lytcall report --diff report-after.txt
  lytcall: --diff compares two saved reports; write: lytcall report --diff FILE FILE
  `lytcall --help` lists commands and options.
  [2]

  $ lytcall report one two
  lytcall: one folder is examined; to compare two saved reports, add --diff
  `lytcall --help` lists commands and options.
  [2]
