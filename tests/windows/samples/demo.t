What the demo shows.

  $ . "$HERE/setup.sh"

  $ lytcall symbol --script samples/scripts/symbol.steps
  key = "S1:area(2,kWh/(m2a))=\"n. a.\""
  window = "Properties of a value"
  result = 1 (changed)
  text = "S1:volume(2,m³)=\"n. a.\""

  $ lytcall phrase --script samples/scripts/phrase.steps
  key = "P1{roof.tiles}see plan 4[three|north]"
  window = "Properties of a phrase"
  result = 1 (changed)
  text = "P1{roof.slates}see plan 4[two|south|lichen]"

  $ lytcall group --kind 0 --script samples/scripts/condition.steps
  kind = 0
  key = "F-001BNG(area>=20)"
  window = "Properties of a conditional group"
  message = "An area or a volume is never below zero. Please choose another limit."
  result = 1 (changed)
  first = "F-001BNG(area>=35)"
  second = "1CONDBNG;large rooms only"

  $ lytcall group --script samples/scripts/findings.steps
  kind = 1
  key = "F-002REPfindings(Findings;R;roofing;Team North;101 Hall|102 Kitchen;Xroof|Xcellar;PC75;DIN 18338;;Cracks in the plaster; medium; north wall|Damp patch; severe)"
  window = "Findings of an inspection"
  items list2 = 3
    item = "101 Hall"
    item = "102 Kitchen"
    item = "103 Living room"
  items list3 = 2
    item = "[ ] Roof"
    item = "[x] Cellar"
  window = "A finding"
  message = "Please say where it is."
  window = "Findings of an inspection"
  items list4 = 2
    item = "Cracks in the plaster; medium; north wall"
    item = "Damp patch; severe; cellar stairs"
  result = 1 (changed)
  first = "F-002REPfindings(Findings;R;heating;M. Weber;101 Hall|102 Kitchen|103 Living room;-roof|Xcellar;PC75;DIN 18380;;Cracks in the plaster; medium; north wall|Damp patch; severe; cellar stairs)"
  second = "1REPTREP"

  $ lytcall tree S --script samples/scripts/tree.steps
  request = "S"
  window = "Catalogue of the inspection"
  read tree = "Site/Access/Paths/Paving/Material"
  result = 1 (confirmed)
  choice = "site.access.path.paving.material"

  $ lytcall wizard --script samples/scripts/wizard.steps
  window = "Catalogue of the inspection"
  window = "New group"
  items list = 4
    item = "[x] Area, sq m"
    item = "[x] Material"
    item = "[x] Slip resistance"
    item = "[x] Condition"
  items list = 4
    item = "[x] Area, sq m"
    item = "[ ] Material"
    item = "[x] Condition"
    item = "[x] Slip resistance"
  result = 1 (a text of a group, more to come)
  text = "G1:site.access.path.paving(Paving)/LIST{"
  result = 1 (a text of a group, more to come)
  text = "Xsite.access.path.paving.area|"
  result = 1 (a text of a group, more to come)
  text = "-site.access.path.paving.material|"
  result = 1 (a text of a group, more to come)
  text = "Xsite.access.path.paving.state|"
  result = 0 (the end)
  text = "Xsite.access.path.paving.slip"

A picture that a script saves is a bitmap.

  $ for picture in demo-out/*; do echo "$picture $(head -c 2 "$picture")"; done
  demo-out/condition.bmp BM
  demo-out/finding.bmp BM
  demo-out/findings.bmp BM
  demo-out/phrase.bmp BM
  demo-out/symbol.bmp BM
  demo-out/tree.bmp BM
  demo-out/wizard.bmp BM
