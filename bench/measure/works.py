"""What the works are, as bench/works.toml tells, and whether their aims are met."""
import pathlib
import tomllib

from figures import digits, time_text

FILE = pathlib.Path(__file__).resolve().parents[1] / "works.toml"

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
        ours = measured["series"]["ours"]["median"]
        self.ratio = measured["ratios"].get(self.rival)
        if self.rival:
            self.limit, self.value = aim["ratio"], self.ratio["median"]
            self.ours, self.other = time_text(ours), time_text(measured["series"][self.rival]["median"])
            self.aim_text = f"{self.limit:.2f} × the rival"
        elif "ms" in aim:
            self.limit, self.value = aim["ms"], ours / 1e6
            self.ours, self.other = time_text(ours), ""
            self.aim_text = f"{digits(self.limit)} ms"
        else:
            self.limit, self.value = aim["kb"], ours
            self.ours, self.other = f"{digits(ours)} KB", ""
            self.aim_text = f"{digits(self.limit)} KB"

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
