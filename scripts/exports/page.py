"""The reference of the exports, in Markdown."""

import re
import textwrap

from .header import prototype
from .macros import declaration
from .table import Argument, Function, Table, blocks

WIDTH = 120


def _filled(text: str, rest: str = "", first: str = "") -> str:
    return textwrap.fill(
        text, WIDTH, initial_indent=first, subsequent_indent=rest, break_long_words=False, break_on_hyphens=False
    )


def _linked(table: Table, text: str, here: tuple[str, ...] = ()) -> str:
    """The text with the names of functions as code, with links to those that are not meant here."""
    names = "|".join(sorted((function.name for function in table.functions), key=len, reverse=True))

    def code(match: re.Match) -> str:
        name = match[0]
        return f"`{name}`" if name in here else f"[`{name}`](#{name.lower()})"

    return re.sub(rf"\b({names})\b(?!`)", code, text)


def _cell(text: str) -> str:
    return text.replace("|", "\\|")


def _row(argument: Argument) -> str:
    cells = (f"`{argument.name}`", argument.kind, argument.direction, argument.about, argument.extent)
    return "| " + " | ".join(_cell(cell) for cell in cells) + " |"


def _arguments(function: Function) -> list[str]:
    if not function.arguments:
        return []
    lines = ["| argument | kind | direction | what it is | what is written |", "|---|---|---|---|---|"]
    return ["\n".join(lines + [_row(argument) for argument in function.arguments])]


def _results(function: Function) -> list[str]:
    if not function.has_result:
        return ["No result."]
    lines = ["| result | meaning |", "|---|---|"]
    return ["\n".join(lines + [f"| {value} | {_cell(meaning)} |" for value, meaning in function.results])]


def _doc(table: Table, doc: str, here: tuple[str, ...] = ()) -> list[str]:
    parts = []
    for block in blocks(doc):
        if isinstance(block, str):
            parts.append(_filled(_linked(table, block, here)))
        else:
            parts.append("\n".join(_filled(f"`{term}`: {meaning}", "  ", "- ") for term, meaning in block))
    return parts


def _function(table: Table, function: Function) -> list[str]:
    declared = declaration(function, table.library)
    parts = [f"### {function.name}", f"```c\n{prototype(function)}\n```", f"```vb\n{declared}\n```"]
    if function.covered_by:
        parts.append(_linked(table, f"See {function.covered_by}."))
    return parts + _doc(table, function.doc, (function.name,)) + _arguments(function) + _results(function)


def _bullets(table: Table, texts: tuple[str, ...]) -> str:
    return "\n".join(_filled(_linked(table, text), "  ", "- ") for text in texts)


def write(table: Table) -> str:
    parts = [
        "# The exports",
        _filled(
            f"The {len(table.functions)} functions of `{table.library}.dll`. This page is written by "
            "`scripts/make-exports` from `src/exports/exports.toml`, as are the header `include/lyt64.h` and the "
            "declarations in `host/lyt64.bas`, where each argument has `the` before its name. Macros call them without buffers, by the module that [macros.md](macros.md) describes."
        ),
        "## Conventions",
        _bullets(table, table.conventions),
        "## Traps",
        _bullets(table, table.traps),
    ]
    for section, functions in table.sections():
        parts.append(f"## {section}")
        parts += _doc(table, table.section_docs.get(section, ""))
        for function in functions:
            parts += _function(table, function)
    return "\n\n".join(parts) + "\n"
