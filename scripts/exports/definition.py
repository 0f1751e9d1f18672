"""What the linker exports."""

from .table import Function, Table


def _entry(function: Function) -> str:
    return f"  {function.name} = {function.alias}" if function.alias else f"  {function.name}"


def write(table: Table) -> str:
    entries = sorted(_entry(function) for function in table.functions)
    head = ["; Written by scripts/make-exports from src/exports/exports.toml.", f"LIBRARY {table.library}", "EXPORTS"]
    return "\n".join(head + entries) + "\n"
