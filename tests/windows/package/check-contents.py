#!/usr/bin/env python3
"""check-contents.py VERSION: in the folder of the package, lyt64.cdx.json lists each program and library with its sum and with
what is inside, and the terms of all that is inside are there."""
import hashlib
import json
import sys
from pathlib import Path

contents = json.loads(Path("lyt64.cdx.json").read_text(encoding="utf-8"))
assert contents["metadata"]["component"]["version"] == sys.argv[1]
parts = {part["bom-ref"]: part for part in contents["components"]}
files = [file for file in Path().iterdir() if file.suffix in (".dll", ".exe")]
assert len(files) == 5
for file in files:
    assert parts[file.name]["hashes"][0]["content"] == hashlib.sha256(file.read_bytes()).hexdigest(), file
assert all(part in parts for row in contents["dependencies"] for part in row["dependsOn"])
inside = sorted(name for name in parts if "hashes" not in parts[name])
assert inside == sorted(file.stem for file in Path("licences").iterdir()), inside
