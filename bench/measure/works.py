"""What the works are, as bench/works.toml tells, and whether their aims are met."""
import pathlib
import tomllib

from figures import digits, time_text

FILE = pathlib.Path(__file__).resolve().parents[1] / "works.toml"

# An absolute aim: how its figure follows from nanoseconds, and how it is written.
ABSOLUTE = {
    "ns_each": (lambda time, size: time / size, "ns per {unit}"),
    "us": (lambda time, size: time / 1e3, "µs"),
    "ms": (lambda time, size: time / 1e6, "ms"),
    "kb": (lambda value, size: value, "KB"),
}


def load(file=FILE):
    """{name: work}, in the order of the page."""
    return tomllib.loads(file.read_text(encoding="utf-8"))


class Outcome:
    """One aim beside what was measured."""

    def __init__(self, name, work, aim, measured):
        self.name = name
        self.work = work
        self.size = aim["size"]
        self.rival = aim.get("rival", "")
        kind = next(kind for kind in ("ratio", *ABSOLUTE) if kind in aim)
        self.limit = aim[kind]
        series = measured["series"]
        self.ours = time_text(series["ours"]["median"]) if kind != "kb" else f'{digits(series["ours"]["median"])} KB'
        self.other = time_text(series[self.rival]["median"]) if self.rival else ""
        self.ratio = measured["ratios"].get(self.rival)
        if kind == "ratio":
            self.value = self.ratio["median"]
            self.aim_text = f"{self.limit:.2f} × the rival"
        else:
            figure, unit = ABSOLUTE[kind]
            self.value = figure(series["ours"]["median"], self.size)
            unit = unit.format(unit=work.get("unit", "").removesuffix("s"))
            self.aim_text = f"{digits(self.limit)} {unit}"
            if kind == "ns_each":
                self.ours += f", {digits(self.value)} {unit}"

    # A figure that is written as the aim itself has met it.
    def is_met(self):
        return round(self.value, 2) <= self.limit

    def size_text(self):
        return f'{self.size:,} {self.work["unit"]}' if "unit" in self.work else ""


def outcomes(works, summary):
    """Of every aim whose work was measured at its size."""
    found = []
    for name, work in works.items():
        for aim in work.get("aims", []):
            measured = summary.get(name, {}).get(str(aim["size"]))
            if measured and (not aim.get("rival") or aim["rival"] in measured["series"]):
                found.append(Outcome(name, work, aim, measured))
    return found
