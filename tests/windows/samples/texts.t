Texts, values and the environment.

  $ . "$HERE/setup.sh"

  $ lytcall text Dialog_Error 212 17
  result = 1 (found)
  text = "Line '17' of the description has the wrong form. Correct it."

  $ lytcall text Buttons 002 --language German
  result = 1 (found)
  text = "&Abbrechen"

  $ lytcall text Buttons 003
  result = 0 (not found)
  text = "no value present"
  [1]

  $ lytcall ini global/TreeLevels
  result = 1
  value = "2"

  $ lytcall ini TreeLevels --script message.steps
  message = "A text was asked for without a slash: use section/key."
  result = 0
  value = ""
  [1]

  $ lytcall list Inspection/Trades
  result = 1
  item = "Roofing"
  item = "Masonry"
  item = "Carpentry"
  item = "Plumbing"
  item = "Heating"
  item = "Electrical"

  $ lytcall list Inspection/Moons
  result = 1
  item = "Entry not found"

  $ mkdir logging
  $ printf '[global]\nCurrent Language=English\n[LogLevel]\nlevel=2\n' >logging/lyt.ini
  $ lytcall log 'The inspection begins.' --init logging
  level = 1
  $ sed -e 's/Date .*/Date .../' -e 's/\r$//' -e 's/^$/(empty)/' inspection.log
  (empty)
  -----------------------------------------------------------------------------
  START...  Date ...
  -----------------------------------------------------------------------------
  (empty)
  The inspection begins.
  -----------------------------------------------------------------------------
  END...    Date ...
  (empty)

  $ lytcall log 'The inspection begins.'
  level = 1

The exception that comes out of the library belongs to its catcher, and lytcall does not know its type.

  $ (export ASAN_OPTIONS=detect_leaks=0; lytcall log 'The inspection begins.' --init logging --document nowhere/inspection.doc)
  lytcall: the library raised an exception; is the folder of the document writable?
  [1]

  $ lytcall path
  result = 1
  text = "SAMPLES\\init"

  $ lytcall doc
  result = 1
  text = "inspection.doc"

  $ lytcall symbol --dialogs nowhere --script message.steps
  key = "S1:area(2,kWh/(m2a))=\"n. a.\""
  message = "no value present"
  result = 0 (not confirmed)
  text = ""
  [1]
