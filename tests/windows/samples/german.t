The demo in German. A script that names entries of the catalogue has a second form with the German names.

  $ . "$HERE/setup.sh"

  $ lytcall symbol --language German --script samples/scripts/symbol.steps
  key = "S1:area(2,kWh/(m2a))=\"n. a.\""
  window = "Eigenschaften eines Wertes"
  result = 1 (changed)
  text = "S1:volume(2,m³)=\"n. a.\""

  $ lytcall phrase --language German --script samples/scripts/phrase.steps
  key = "P1{roof.tiles}see plan 4[three|north]"
  window = "Eigenschaften eines Textbausteins"
  result = 1 (changed)
  text = "P1{roof.slates}see plan 4[two|south|lichen]"

  $ lytcall group --kind 0 --language German --script samples/scripts/condition.steps
  kind = 0
  key = "F-001BNG(area>=20)"
  window = "Eigenschaften einer bedingten Gruppe"
  message = "Fläche und Volumen sind nie unter null. Bitte den Grenzwert ändern."
  result = 1 (changed)
  first = "F-001BNG(area>=35)"
  second = "1CONDBNG;large rooms only"

  $ lytcall group --language German --script samples/scripts/findings.steps
  kind = 1
  key = "F-002REPfindings(Findings;R;roofing;Team North;101 Hall|102 Kitchen;Xroof|Xcellar;PC75;DIN 18338;;Cracks in the plaster; medium; north wall|Damp patch; severe)"
  window = "Befunde einer Begehung"
  items list2 = 3
    item = "101 Hall"
    item = "102 Kitchen"
    item = "103 Living room"
  items list3 = 2
    item = "[ ] Roof"
    item = "[x] Cellar"
  window = "Ein Befund"
  message = "Bitte angeben, wo es ist."
  window = "Befunde einer Begehung"
  items list4 = 2
    item = "Cracks in the plaster; medium; north wall"
    item = "Damp patch; severe; cellar stairs"
  result = 1 (changed)
  first = "F-002REPfindings(Findings;R;heating;M. Weber;101 Hall|102 Kitchen|103 Living room;-roof|Xcellar;PC75;DIN 18380;;Cracks in the plaster; medium; north wall|Damp patch; severe; cellar stairs)"
  second = "1REPTREP"

  $ lytcall tree S --language German --script samples/scripts/tree.German.steps
  request = "S"
  window = "Katalog der Begehung"
  read tree = "Gelände/Zugang/Wege/Pflaster/Material"
  result = 1 (confirmed)
  choice = "site.access.path.paving.material"

  $ lytcall wizard --language German --script samples/scripts/wizard.German.steps
  window = "Katalog der Begehung"
  window = "Neue Gruppe"
  items list = 4
    item = "[x] Fläche, m²"
    item = "[x] Material"
    item = "[x] Rutschfestigkeit"
    item = "[x] Zustand"
  items list = 4
    item = "[x] Fläche, m²"
    item = "[ ] Material"
    item = "[x] Zustand"
    item = "[x] Rutschfestigkeit"
  result = 1 (a text of a group, more to come)
  text = "G1:site.access.path.paving(Pflaster)/LIST{"
  result = 1 (a text of a group, more to come)
  text = "Xsite.access.path.paving.area|"
  result = 1 (a text of a group, more to come)
  text = "-site.access.path.paving.material|"
  result = 1 (a text of a group, more to come)
  text = "Xsite.access.path.paving.state|"
  result = 0 (the end)
  text = "Xsite.access.path.paving.slip"
