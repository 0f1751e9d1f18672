"""The table of exports, read and judged."""

import tomllib
from dataclasses import dataclass, field
from pathlib import Path

KINDS = ("text", "number", "buffer", "size")
WRITES = {
    "fits": "up to `{size}` bytes, NUL included; a text that does not fit leaves it empty",
    "marks longer": "up to `{size}` bytes, NUL included; a text that does not fit leaves it empty, and a longer one puts a "
    "NUL at `{name}[{size}]` as well",
    "marks always": "up to `{size}` bytes, NUL included, and always a NUL at `{name}[{size}]`; a text that does not fit "
    "leaves it empty",
    "cuts": "`{size}` bytes, the last always a NUL; a text that does not fit is cut",
}


class TableError(Exception):
    """The table says something that cannot be; the text tells where, and what to write."""


@dataclass(frozen=True)
class Argument:
    name: str
    kind: str
    about: str
    size: str = ""  # the argument with a buffer's size
    writes: str = ""
    kept: str = ""
    compared: bool = False

    @property
    def macro_name(self) -> str:
        """The name in the module for macros. The macro editor writes a word alike in the whole template, in small letters
        if a parameter of that name is: so a parameter has no name that the word processor's objects use, such as Text.
        """
        return f"the{self.name[0].upper()}{self.name[1:]}"

    @property
    def direction(self) -> str:
        if self.kind != "buffer":
            return "in"
        return "in and out" if self.compared else "out"

    @property
    def extent(self) -> str:
        """Who writes how much, as a phrase in Markdown."""
        if self.kind != "buffer":
            return ""
        extent = WRITES[self.writes].format(name=self.name, size=self.size)
        return f"{extent}. Nothing {self.kept}" if self.kept else extent


@dataclass(frozen=True)
class Function:
    name: str
    section: str
    arguments: tuple[Argument, ...]
    results: tuple[tuple[int, str], ...] = ()
    doc: str = ""
    covered_by: str = ""  # the function whose documentation is this one's too
    alias: str = ""
    macro: str = ""

    @property
    def has_result(self) -> bool:
        return bool(self.results)

    @property
    def macro_name(self) -> str:
        return self.macro or self.name


@dataclass(frozen=True)
class Table:
    library: str
    purpose: str
    conventions: tuple[str, ...]
    traps: tuple[str, ...]
    functions: tuple[Function, ...]
    section_docs: dict[str, str] = field(default_factory=dict)

    def sections(self) -> list[tuple[str, list[Function]]]:
        found: dict[str, list[Function]] = {}
        for function in self.functions:
            found.setdefault(function.section, []).append(function)
        return list(found.items())

    def documented(self, section: list[Function]) -> list[list[Function]]:
        """The functions of a section, those together that one documentation covers."""
        groups: list[list[Function]] = []
        for function in section:
            if function.covered_by:
                groups[-1].append(function)
            else:
                groups.append([function])
        return groups


def blocks(doc: str) -> list[str | list[tuple[str, str]]]:
    """The paragraphs of a documentation as texts, its lists as pairs of term and meaning."""
    found: list[str | list[tuple[str, str]]] = []
    for block in doc.strip().split("\n\n"):
        lines = block.split("\n")
        if lines[0].startswith("- "):
            found.append([tuple(part.strip() for part in line[2:].split(" | ", 1)) for line in lines])
        elif block:
            found.append(" ".join(lines))
    return found


def _argument(function: str, row: dict) -> Argument:
    try:
        argument = Argument(**row)
    except TypeError as error:
        raise TableError(f"{function}: an argument has a wrong field: {error}") from error
    if argument.kind not in KINDS:
        raise TableError(f"{function}, {argument.name}: the kind is one of {', '.join(KINDS)}")
    if argument.kind == "buffer" and argument.writes not in WRITES:
        raise TableError(f"{function}, {argument.name}: `writes` is one of {', '.join(WRITES)}")
    return argument


def _function(row: dict) -> Function:
    name = row.get("name", "(a function without a name)")
    fields = dict(row)
    fields["covered_by"] = fields.pop("with", "")
    fields["arguments"] = tuple(_argument(name, argument) for argument in fields.get("arguments", []))
    fields["results"] = tuple((value, meaning) for value, meaning in fields.get("results", []))
    try:
        return Function(**fields)
    except TypeError as error:
        raise TableError(f"{name}: {error}") from error


def _judge(functions: tuple[Function, ...]) -> None:
    names = [function.name for function in functions]
    for before, function in zip((None, *functions), functions):
        if names.count(function.name) > 1:
            raise TableError(f"{function.name} is there twice")
        if function.alias and function.alias not in names:
            raise TableError(f"{function.name}: there is no function {function.alias} to be the same as")
        if bool(function.doc) == bool(function.covered_by):
            raise TableError(f"{function.name}: give it `doc`, or name in `with` the function that covers it")
        if function.covered_by and function.covered_by not in (before.name, before.covered_by):
            raise TableError(f"{function.name}: put it right below {function.covered_by}, which covers it")
        sizes = [argument.name for argument in function.arguments if argument.kind == "size"]
        used = [argument.size for argument in function.arguments if argument.kind == "buffer"]
        if sizes != used:
            raise TableError(f"{function.name}: each buffer is followed by its size, which `size` names")


def read(file: Path) -> Table:
    """Reads the table; raises TableError when something in it cannot be."""
    rows = tomllib.loads(file.read_text(encoding="utf-8"))
    functions = tuple(_function(row) for row in rows["function"])
    _judge(functions)
    return Table(
        rows["library"],
        rows["purpose"],
        tuple(rows["conventions"]),
        tuple(rows["traps"]),
        functions,
        {section["name"]: section["doc"] for section in rows.get("section", [])},
    )
