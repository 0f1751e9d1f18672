"""docs/benchmarks.md."""
from figures import growth, run_ratios, summarise, time_text
from works import outcomes

# A work that grows by more than this with its size is steeper than linear; so much is noise.
STEEP = 1.1
ALARM = "**steeper than linear**"

HEAD = """# How fast it is

`./measure` writes this page. Do not edit it: titles, aims and reasons are in `bench/works.toml`. `./measure --page` writes it
again from the figures of the last whole measurement, which are in `docs/benchmarks/figures.json`; `./measure --help` says more.

## How to read it

Each piece of work alternates with its rivals, which do the same work in another way, in the same program and the same run. Other
load on the machine affects both, so that their ratio is more reliable than the times. A time is the median of all rounds, and a
ratio the median of the rounds' ratios. The brackets contain the middle half of the ratios. Where they are far apart the machine was
busy, and a ratio close to its aim means little.

A rival *by hand* calls Windows as the library does. It reads what the library has to read: each text and the language it is in, and
the level of the log. It looks for the companion library, `lyt.dll`, as often. It keeps only what it needs.

*Natively* means that the library's code runs over windows in memory, and that processor time is measured. All other works are done
by the DLL under Wine, in clock time. There the calls of Windows cost more or less than on a real Windows, so the ratios mean more
than the times.
"""


def table(heads, rows):
    """A table of Markdown; numbers are set to the right by a colon in front of their head."""
    lines = ["| " + " | ".join(head.lstrip(":") for head in heads) + " |",
             "|" + "|".join("---:" if head.startswith(":") else "---" for head in heads) + "|"]
    lines += ["| " + " | ".join(row) + " |" for row in rows]
    return "\n".join(lines) + "\n"


def counted(number, word):
    return f"{number:,} {word}" + ("s" if number != 1 else "")


def brackets(spread):
    return f'{spread["median"]:.2f} ({spread["low"]:.2f}–{spread["high"]:.2f})'


def title(work):
    return work["title"] + (" *(natively)*" if work.get("native") else "")


def machine_section(figures):
    rows = [[name, value] for name, value in figures["machine"].items()]
    words = [f'Measured on {figures["date"]} in {counted(figures["runs"], "run")} of each work, all works in turn.']
    if figures["load"] > 0.05:
        words.append(f'**Other programs took {100 * figures["load"]:.0f} % of the processors when the measurement began: take '
                     "the figures as rough ones.**")
    return "## The machine\n\n" + table(["", ""], rows) + "\n" + " ".join(words) + "\n"


def aims_section(found):
    rows = []
    for one in found:
        rows.append([title(one.work), one.size_text(), one.ours, one.other, one.rival,
                     brackets(one.ratio) if one.ratio else "", one.aim_text, "yes" if one.is_met() else "**no**"])
    met = sum(one.is_met() for one in found)
    return (f"## The aims\n\n{met} of {len(found)} are met.\n\n" +
            table(["work", ":size", ":time", ":rival's time", "rival", ":ratio", ":aim", "met"], rows))


def reasons_section(found):
    missed = {one.name: one.work for one in found if not one.is_met()}
    if not missed:
        return ""
    words = []
    for work in missed.values():
        words.append(f'**{work["title"]}.** {work.get("reason") or "The reason has not been measured yet."}\n')
    return "## What is missed, and why\n\n" + "\n".join(words)


def rivals_section(works, summary):
    rows = []
    for name, work in works.items():
        for kind in ("rivals", "parts"):
            for series, words in work.get(kind, {}).items():
                sizes = [size for size, one in summary.get(name, {}).items() if series in one["series"]]
                if not sizes:
                    continue
                one = summary[name][max(sizes, key=int)]
                ours, other = one["series"]["ours"]["median"], one["series"][series]["median"]
                place = f'{int(max(sizes, key=int)):,} {work["unit"]}' if "unit" in work else ""
                how = brackets(one["ratios"][series]) + " ×" if kind == "rivals" else f"{100 * other / ours:.0f} % of it"
                rows.append([title(work), place, time_text(ours), f"*{series}*: {words}", time_text(other), how])
    return ("## The rivals, and what the library has to do\n\n"
            "Each rival at the largest size that was measured, with the ratio to it. Rows with a share in percent are parts of the\n"
            "library's work that the rivals do as well.\n\n" +
            table(["work", ":size", ":time", "beside it", ":its time", ":the library"], rows))


def verdict(name, one, grown, rivals):
    """`last` decides, for what is constant hides the growth from the fit over all sizes."""
    if one["last"] <= STEEP:
        return "linear" if one["last"] > 0.9 else "below linear"
    steep = [rival for rival in rivals if rival in grown and grown[rival]["last"] >= one["last"] - STEEP + 1]
    if name not in rivals and steep:
        return f"as steep as *{steep[0]}*"
    return "steeper than linear" if name in rivals else ALARM


def growth_rows(work, named, grown):
    rows = []
    for series, one in named.items():
        is_ours = series == "ours"
        rows.append([title(work) if is_ours else "", "the library" if is_ours else f"*{series}*",
                     " / ".join(f"{size:,}" for size in one["sizes"]) + f' {work["unit"]}',
                     " / ".join(time_text(time) for time in one["medians"]),
                     f'{one["exponent"]:.2f}', f'{one["last"]:.2f}', verdict(series, one, grown, list(work.get("rivals", {})))])
    return rows


def growth_section(works, summary):
    rows, steep = [], []
    for name, work in works.items():
        grown = growth(summary.get(name, {}))
        if "ours" not in grown:
            continue
        named = {series: one for series, one in grown.items() if series not in work.get("parts", {})}
        added = growth_rows(work, named, grown)
        if any(ALARM in row[-1] for row in added):
            steep.append(work["title"])
        rows += added
    words = ("## Growth\n\n"
             "Each work in three sizes, each ten times the one before, and the exponent of the size that fits its times best: 1 is\n"
             "linear, 0 constant. The exponent of the last step alone shows growth that a constant share hides from the fit. Growth\n"
             "that is just as steep in a rival comes from the platform, not from the library.\n\n")
    words += f'Steeper than linear, and steeper than every rival: {", ".join(steep) or "nothing"}.\n\n'
    return words + table(["work", "", ":sizes", ":times", ":exponent", ":last step", "growth"], rows)


def profile_section(works, profile):
    if not profile:
        return ""
    words = ["## Where the time goes\n\n"
             "Instructions counted by a profiler, each function with all that it calls. Functions of windows in memory are among them,\n"
             "which are not in the DLL: `GetPrivateProfileStringA`, for instance, which reads its file again each time. Inlined\n"
             "functions do not appear.\n"]
    for name, rows in profile.items():
        listing = [[f"{share:.0f} %", f"`{function}`"] for share, function in rows]
        words.append(f'**{works[name]["title"]}**\n\n' + table([":share", "function"], listing))
    return "\n".join(words)


def make(works, figures):
    """The text of the page."""
    summary = figures["works"]
    found = outcomes(works, summary)
    sections = [HEAD, machine_section(figures), aims_section(found), reasons_section(found), rivals_section(works, summary),
                growth_section(works, summary), profile_section(works, figures["profile"])]
    return "\n".join(section for section in sections if section)


def in_short(works, figures):
    """The aims for somebody at a terminal."""
    lines = []
    for one in outcomes(works, figures["works"]):
        ratio = f"{brackets(one.ratio)} × {one.rival}" if one.ratio else ""
        lines.append(f'{"met   " if one.is_met() else "MISSED"}  {one.name:20}{one.size:>9,}  {one.ours:>22}  {ratio:38}'
                     f"aim {one.aim_text}")
    return "\n".join(lines)


def side_by_side(works, here, there, revision):
    """What a change did, of the lines of two trees: the times of every work and size, their ratio, and both beside rivals."""
    ratios = run_ratios(here, there)
    here, there = summarise(here), summarise(there)
    lines = [f'{"work":22}{"size":>10}{"here":>12}{revision[:10]:>12}  {"ratio":20}to rivals, here / {revision[:10]}']
    for work, by_size in here.items():
        for size, one in by_size.items():
            other = there[work][size]
            rivals = [f'{name} {one["ratios"][name]["median"]:.2f} / {other["ratios"][name]["median"]:.2f}'
                      for name in works[work].get("rivals", {}) if name in one["ratios"]]
            times = [time_text(each["series"]["ours"]["median"]) for each in (one, other)]
            lines.append(f"{work:22}{int(size):>10,}{times[0]:>12}{times[1]:>12}  {brackets(ratios[work, int(size)]):20}"
                         + ", ".join(rivals))
    return "\n".join(lines)
