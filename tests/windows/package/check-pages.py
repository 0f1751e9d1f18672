#!/usr/bin/env python3
"""check-pages.py: in the folder of the package, each page is there as HTML too, all that it links to and shows is there, and the
search finds each of its headings at its place."""
import json
import re
from pathlib import Path

script = Path("docs/search.js").read_text(encoding="utf-8")
sections, _ = json.JSONDecoder().raw_decode(script.removeprefix("const sections = "))
places = {section["place"] for section in sections}
for source in [*Path().glob("*.md"), *Path("docs").glob("*.md")]:
    page = source.with_name("index.html" if source.name == "README.md" else source.stem + ".html")
    text = page.read_text(encoding="utf-8")
    for target in re.findall(r'(?:href|src)="([^"]*)"', text):
        path, _, anchor = target.partition("#")
        if re.match("[a-z]+:", path):
            continue
        file = page.parent / path if path else page
        assert file.exists(), (page, target)
        assert not anchor or f'id="{anchor}"' in file.read_text(encoding="utf-8"), (page, target)
    headings = re.findall(r'<h[1-3] id="([^"]*)"', text)
    assert headings, page
    assert {f"{page.as_posix()}#{heading}" for heading in headings} <= places, page
    written = re.sub(r"^```.*?^```", "", source.read_text(encoding="utf-8"), flags=re.DOTALL | re.MULTILINE)
    assert len(headings) == len(re.findall(r"^#{1,3} ", written, re.MULTILINE)), page
