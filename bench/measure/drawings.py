"""drawings.py FOLDER: makes the drawings of the last whole measurement in FOLDER."""
import json
import pathlib
import sys

import page
import works

FIGURES = pathlib.Path(__file__).parents[2] / "docs" / "benchmarks" / "figures.json"

_, drawings = page.make(works.load(), json.loads(FIGURES.read_text(encoding="utf-8")))
for name, drawing in drawings.items():
    (pathlib.Path(sys.argv[1]) / name).write_text(drawing, encoding="utf-8")
