"""What the lines of the benches come to: medians, spreads, ratios and growth."""
import math
import statistics


def spread(values):
    """The median, and between which two values the middle half is."""
    ordered = sorted(values)
    low, high = ordered[len(ordered) // 4], ordered[-1 - len(ordered) // 4]
    return {"median": statistics.median(ordered), "low": low, "high": high, "count": len(ordered)}


def summarise(lines):
    """{work: {size: {"series": {name: spread of nanoseconds}, "ratios": {name: spread of ours to it}}}}.

    The lines of one work and size come from several runs of the program. A ratio is that of two times of one round, which
    followed each other, so that a machine that slows down does not change it.
    """
    times, ratios = {}, {}
    for line in lines:
        place = (line["work"], line["size"])
        for name, values in line["series"].items():
            times.setdefault(place, {}).setdefault(name, []).extend(values)
            if name != "ours" and "ours" in line["series"]:
                pairs = [ours / other for ours, other in zip(line["series"]["ours"], values) if other > 0]
                ratios.setdefault(place, {}).setdefault(name, []).extend(pairs)
    summary = {}
    for place in sorted(times):
        work, size = place
        summary.setdefault(work, {})[str(size)] = {
            "series": {name: spread(values) for name, values in times[place].items()},
            "ratios": {name: spread(values) for name, values in ratios.get(place, {}).items() if values},
        }
    return summary


def run_ratios(here, there):
    """{(work, size): spread of our times here to those there}, each ratio that of one run."""
    ratios = {}
    for place in {(line["work"], line["size"]) for line in here}:
        medians = [[statistics.median(line["series"]["ours"]) for line in lines if (line["work"], line["size"]) == place]
                   for lines in (here, there)]
        ratios[place] = spread([ours / other for ours, other in zip(*medians)])
    return ratios


def slope(sizes, values):
    """The exponent e of the power size**e that is nearest to the values."""
    xs = [math.log(size) for size in sizes]
    ys = [math.log(max(value, 0.1)) for value in values]
    middle_x, middle_y = statistics.mean(xs), statistics.mean(ys)
    return sum((x - middle_x) * (y - middle_y) for x, y in zip(xs, ys)) / sum((x - middle_x) ** 2 for x in xs)


def growth(by_size):
    """{series: {"sizes", "medians", "exponent", "last"}} of a work that is measured in several sizes.

    `last` is the exponent of the last step alone: what is constant hides the growth of small sizes.
    """
    found = {}
    for size in sorted(by_size, key=int):
        for name, value in by_size[size]["series"].items():
            found.setdefault(name, []).append((int(size), value["median"]))
    result = {}
    for name, points in found.items():
        if len(points) < 3:
            continue
        sizes, medians = zip(*points)
        result[name] = {"sizes": sizes, "medians": medians, "exponent": slope(sizes, medians),
                        "last": slope(sizes[-2:], medians[-2:])}
    return result


def time_text(nanoseconds):
    """Three digits and the unit that suits them."""
    for unit, factor in (("s", 1e9), ("ms", 1e6), ("µs", 1e3)):
        if nanoseconds >= 0.9995 * factor:
            return f"{digits(nanoseconds / factor)} {unit}"
    return f"{digits(nanoseconds)} ns"


def digits(number):
    """Three digits that count, without an exponent."""
    if number == 0:
        return "0"
    places = max(0, 2 - math.floor(math.log10(abs(number) * 1.0005)))
    return f"{number:.{places}f}"
