"""The header for C and C++ callers, laid out as .clang-format does."""

import textwrap

from .table import Argument, Function, Table, blocks

WIDTH = 120
INDENT = "    "
C_TYPES = {"text": "const char*", "number": "int", "buffer": "char*", "size": "int"}


def _declared(argument: Argument) -> str:
    return f"{C_TYPES[argument.kind]} {argument.name}"


def prototype(function: Function, indent: str = "") -> str:
    start = f"{indent}{'int' if function.has_result else 'void'} __stdcall {function.name}("
    arguments = ", ".join(_declared(argument) for argument in function.arguments) or "void"
    # An argument stays on one line.
    wrapped = textwrap.wrap(
        arguments.replace(" ", "\0").replace(",\0", ", "), WIDTH - len(start) - 2, break_long_words=False
    )
    return start + f"\n{' ' * len(start)}".join(wrapped).replace("\0", " ") + ");"


def _filled(text: str, first: str, rest: str) -> list[str]:
    return textwrap.wrap(
        text, WIDTH, initial_indent=first, subsequent_indent=rest, break_long_words=False, break_on_hyphens=False
    )


def _listed(rows: list[tuple[str, str]], margin: str) -> list[str]:
    width = max(len(term) for term, _ in rows)
    lines = []
    for term, meaning in rows:
        lines += _filled(meaning, f"{margin}  {term:{width}}  ", margin + " " * (width + 4))
    return lines


def comment(doc: str) -> str:
    margin = f"{INDENT} * "
    lines: list[str] = []
    after_list = False
    for block in blocks(doc):
        is_list = not isinstance(block, str)
        # A list belongs to the paragraph above it, and what follows continues it.
        if lines and not is_list and not after_list:
            lines.append(margin.rstrip())
        lines += _listed(block, margin) if is_list else _filled(block, margin, margin)
        after_list = is_list
    lines[0] = f"{INDENT}/* " + lines[0].removeprefix(margin)
    # No separate line for the end, unless the last is full.
    if len(lines[-1]) + 3 > WIDTH:
        return "\n".join(lines) + f"\n{INDENT} */"
    return "\n".join(lines) + " */"


def _rule(section: str) -> str:
    start = f"{INDENT}/* ---- {section} "
    return start + "-" * (WIDTH - len(start) - 3) + " */"


def _bullets(texts: tuple[str, ...]) -> list[str]:
    return [line for text in texts for line in _filled(text, " *   - ", " *     ")]


def _intro(table: Table) -> str:
    guard = table.library.upper() + "_H"
    lines = [
        f"/* {table.library}.h: {table.purpose}",
        " *",
        " * Written by scripts/make-exports from src/exports/exports.toml.",
        " *",
        " * Conventions",
        *_bullets(table.conventions),
        " *",
        " * Traps",
        *_bullets(table.traps),
        " */",
        f"#ifndef {guard}",
        f"#define {guard}",
        "",
        "#ifdef __cplusplus",
        'extern "C"',
        "{",
        "#endif",
    ]
    return "\n".join(lines)


def write(table: Table) -> str:
    parts = [_intro(table)]
    for section, functions in table.sections():
        parts.append(_rule(section))
        if section in table.section_docs:
            parts.append(comment(table.section_docs[section]))
        for group in table.documented(functions):
            declarations = [prototype(function, INDENT) for function in group]
            parts.append("\n".join([comment(group[0].doc), *declarations]))
    return "\n\n".join(parts) + "\n\n#ifdef __cplusplus\n}\n#endif\n\n#endif\n"
