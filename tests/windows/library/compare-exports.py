#!/usr/bin/python3
"""compare-exports.py LIBRARY.dll IMPORT-LIBRARY...: compares the table of exports with what was built and written.

Read here without the project's other scripts: the export table of the DLL, the symbols of the import libraries, the prototypes of the
header, the declarations of the module for macros. Prints each difference, and ends with 1 when there is one.
"""

import re
import struct
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[3]
sys.path.insert(0, str(ROOT / "scripts"))
sys.dont_write_bytecode = True

from exports import table  # noqa: E402


class Image:
    """A DLL as a file."""

    def __init__(self, file: Path):
        self._bytes = file.read_bytes()
        headers = self._number("<I", 0x3C)
        count, optional_size = self._number("<H", headers + 6), self._number("<H", headers + 20)
        self._export_rva = self._number("<I", headers + 24 + 112)
        first = headers + 24 + optional_size
        self._sections = [struct.unpack_from("<8xIIII", self._bytes, first + 40 * i) for i in range(count)]

    def _number(self, form: str, place: int) -> int:
        return struct.unpack_from(form, self._bytes, place)[0]

    def _place(self, rva: int) -> int:
        for size, start, _, place in self._sections:
            if start <= rva < start + size:
                return place + rva - start
        raise ValueError(f"no section holds the address {rva:#x}")

    def exports(self) -> dict[str, int]:
        """The address of each exported name."""
        directory = self._place(self._export_rva)
        function_count, count, functions, names, ordinals = struct.unpack_from("<20x5I", self._bytes, directory)
        found = {}
        named = set()
        for index in range(count):
            start = self._place(self._number("<I", self._place(names) + 4 * index))
            name = self._bytes[start : self._bytes.index(b"\0", start)].decode("ascii")
            ordinal = self._number("<H", self._place(ordinals) + 2 * index)
            found[name] = self._number("<I", self._place(functions) + 4 * ordinal)
            named.add(ordinal)
        # A linker may begin with an entry that is not used.
        used = {entry for entry in range(function_count) if self._number("<I", self._place(functions) + 4 * entry) != 0}
        assert len(named) == count and named == used, "an export has no separate name"
        return found


def symbols(file: Path) -> set[str]:
    """The symbols that the index of an import library offers."""
    data = file.read_bytes()
    assert data.startswith(b"!<arch>\n"), f"{file} is no library"
    index = data[68 : 68 + int(data[56:66])]
    count = struct.unpack_from(">I", index)[0]
    return {name.decode("ascii") for name in index[4 + 4 * count :].split(b"\0")[:count]}


def prototypes(header: str) -> dict[str, tuple[bool, list[str]]]:
    """Of each function: whether it has a result, and its arguments as "type name"."""
    code = re.sub(r"/\*.*?\*/", "", header, flags=re.S)
    found = {}
    for result, name, arguments in re.findall(r"\b(int|void)\s+__stdcall\s+(\w+)\(([^)]*)\)", code):
        listed = [re.sub(r"\s*\*\s*", "* ", " ".join(text.split())) for text in arguments.split(",")]
        found[name] = (result == "int", [] if listed == ["void"] else listed)
    return found


def declarations(module: str) -> dict[str, tuple[bool, list[str]]]:
    """The same of what the module declares."""
    code = re.sub(r" _\r?\n\s*", " ", module)
    pattern = r'^Public Declare PtrSafe (Function|Sub) (\w+) Lib "lyt64\.dll"(?: Alias "(\w+)")? \(([^)]*)\)(.*?)\r?$'
    found = {}
    for word, name, alias, arguments, result in re.findall(pattern, code, flags=re.M):
        listed = [" ".join(text.split()) for text in arguments.split(",") if text.strip()]
        assert (word == "Function") == (result == " As Long"), f"{name}: a function has a result, a sub has none"
        found[alias or name] = (word == "Function", listed)
    return found


C_TYPES = {"text": "const char*", "number": "int", "buffer": "char*", "size": "int"}
MACRO_TYPES = {"text": "String", "number": "Long", "buffer": "String", "size": "Long"}


def wanted(exports: table.Table, form: str, types: dict[str, str]) -> dict[str, tuple[bool, list[str]]]:
    return {
        function.name: (
            bool(function.results),
            [form.format(type=types[argument.kind], name=argument.name, macro=argument.macro_name) for argument in function.arguments],
        )
        for function in exports.functions
    }


def differences(library: Path, import_libraries: list[Path]) -> list[str]:
    exports = table.read(ROOT / "src/exports/exports.toml")
    names = {function.name for function in exports.functions}
    addresses = Image(library).exports()
    found = [f"{library.name} exports {set(addresses) ^ names} or the table does, but not both"] * (set(addresses) != names)
    for function in exports.functions:
        if addresses.get(function.alias) != (addresses.get(function.name) if function.alias else None):
            found.append(f"{function.name} and {function.alias} are not one function in {library.name}")
    for file in import_libraries:
        missing = {name for name in names if not {name, f"__imp_{name}"} <= symbols(file)}
        if missing:
            found.append(f"{file.name} does not offer {missing}")
    header = prototypes((ROOT / "include/lyt64.h").read_text())
    if header != wanted(exports, "{type} {name}", C_TYPES):
        found.append(f"include/lyt64.h declares other functions than the table: {header}")
    module = declarations((ROOT / "host/lyt64.bas").read_bytes().decode("cp1252"))
    if module != wanted(exports, "ByVal {macro} As {type}", MACRO_TYPES):
        found.append(f"host/lyt64.bas declares other functions than the table: {module}")
    return found


found = differences(Path(sys.argv[1]), [Path(word) for word in sys.argv[2:]])
print("\n".join(found))
sys.exit(1 if found else 0)
