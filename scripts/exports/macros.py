"""The declarations of the module for macros. A host that is not 64-bit gets functions in their place that say so."""

import textwrap

from .table import Argument, Function, Table

BEGIN = "' ---- Begin of what scripts/make-exports writes from src/exports/exports.toml ----"
END = "' ---- End of what scripts/make-exports writes ----"
TYPES = {"text": "String", "number": "Long", "buffer": "String", "size": "Long"}
# Longer lines are continued on the next.
WIDTH = 120


def _argument(argument: Argument) -> str:
    return f"ByVal {argument.macro_name} As {TYPES[argument.kind]}"


def _form(function: Function) -> tuple[str, str, str]:
    """The word, the arguments and the type of the result."""
    word = "Function" if function.has_result else "Sub"
    arguments = "(" + ", ".join(_argument(argument) for argument in function.arguments) + ")"
    return word, arguments, " As Long" if function.has_result else ""


def _continued(start: str, rest: str) -> str:
    if len(start) + len(rest) <= WIDTH:
        return start + rest
    # A line is continued after a comma, never inside an argument.
    lines = textwrap.wrap(rest.replace(" ", "\0").replace(",\0", ", "), WIDTH - 6, break_long_words=False)
    return f"{start.rstrip()} _\n    " + " _\n     ".join(lines).replace("\0", " ")


def declaration(function: Function, library: str) -> str:
    word, arguments, result = _form(function)
    alias = f' Alias "{function.name}"' if function.macro else ""
    start = f'Public Declare PtrSafe {word} {function.macro_name} Lib "{library}.dll"{alias} '
    return _continued(start, arguments + result)


def refusal(function: Function) -> str:
    word, arguments, result = _form(function)
    head = _continued(f"Public {word} {function.macro_name}", arguments + result)
    return f"{head}\n    RefuseHost\nEnd {word}"


def region(table: Table) -> str:
    lines = [BEGIN, "#If Win64 Then"]
    lines += [declaration(function, table.library) for function in table.functions]
    lines.append("#End If")
    lines.append(END)
    return "\n".join(lines)


def _names(table: Table) -> str:
    """A function of the module that tells the names that the library exports."""
    lines = textwrap.wrap(" ".join(function.name + "," for function in table.functions)[:-1], WIDTH - 40)
    text = '" & _\n        "'.join(line.replace(" ", "") for line in lines)
    return f'Private Function FunctionNames() As String\n    FunctionNames = "{text}"\nEnd Function'


def refusals(table: Table) -> str:
    lines = [BEGIN, "#If Not Win64 Then"]
    lines += [refusal(function) for function in table.functions]
    lines += ["#End If", "", _names(table), END]
    return "\n".join(lines)


def replaced(module: str, regions: list[str]) -> str:
    """The module with its marked regions replaced, in their order."""
    parts = module.split(BEGIN)
    if len(parts) != len(regions) + 1 or any(END not in part for part in parts[1:]):
        raise ValueError(f"the module needs {len(regions)} regions between the lines\n{BEGIN}\n{END}")
    text = parts[0]
    for region_text, part in zip(regions, parts[1:]):
        text += region_text + part.split(END, 1)[1]
    return text


def write(table: Table, module: str) -> str:
    return replaced(module, [region(table), refusals(table)])
