"""Measures everything and writes docs/benchmarks.md; usage.txt says how it is called."""
import argparse
import contextlib
import datetime
import json
import re
import sys

import figures
import machine
import page
import profiles
import works
from trees import BROWSER, GROUNDS, ROOT, SCRATCH, Revision, Tree, WineServer

DOCS = ROOT / "docs"
# Runs of each work, and how many seconds a run takes.
WHOLE = (4, 3.0)
QUICK = (1, 0.2)


def run_all(trees, chosen, runs, seconds):
    """{tree: lines}; the trees take turns, and which comes first changes with each run."""
    lines = {tree.name: [] for tree in trees}
    for run in range(1, runs + 1):
        for number, (ground, work) in enumerate(chosen, 1):
            print(f"run {run} of {runs}, work {number} of {len(chosen)}: {work}", flush=True)
            for tree in trees if run % 2 else reversed(trees):
                lines[tree.name] += tree.measure(ground, work, seconds)
    return lines


def grounds_of(pattern):
    return BROWSER if pattern.startswith("workbench") else GROUNDS


def chosen_works(tree, pattern):
    chosen = [(ground, work) for ground, work in tree.works(grounds_of(pattern)) if re.search(pattern, work)]
    if not chosen:
        sys.exit(f'measure: no work is named like "{pattern}"; `build/native/bin/bench --list` names them')
    unknown = [work for _, work in chosen if work not in works.load()]
    if unknown:
        sys.exit(f"measure: bench/works.toml has no {', '.join(unknown)}")
    return chosen


def measured(tree, lines, runs, load, is_profiled):
    summary = figures.summarise(lines)
    if not all(work.startswith("workbench") for work in summary):
        size = figures.spread([tree.library_size() / 1024])
        summary["library-size"] = {"1": {"series": {"ours": size}, "ratios": {}}}
    return {"date": datetime.date.today().isoformat(), "machine": machine.in_words(), "load": load, "runs": runs,
            "works": summary, "profile": profiles.of_works(tree, works.load()) if is_profiled else {}}


def as_lines(result):
    """The figures as JSON with a line for each work, so that a difference between two measurements can be read."""
    rest = json.dumps({name: value for name, value in result.items() if name != "works"}, ensure_ascii=False)
    works_lines = ",\n".join(f"{json.dumps(name)}: {json.dumps(one)}" for name, one in result["works"].items())
    return f'{rest[:-1]}, "works": {{\n{works_lines}\n}}}}\n'


def write_page(result, folder):
    """The page, and beside it the figures that it can be written from again."""
    beside = folder / "benchmarks"
    beside.mkdir(parents=True, exist_ok=True)
    (folder / "benchmarks.md").write_text(page.make(works.load(), result), encoding="utf-8")
    (beside / "figures.json").write_text(as_lines(result), encoding="utf-8")


def write_again():
    file = DOCS / "benchmarks" / "figures.json"
    if not file.is_file():
        sys.exit(f"measure: {file.relative_to(ROOT)} is not there; run ./measure first")
    write_page(json.loads(file.read_text(encoding="utf-8")), DOCS)


def compare(options, runs, seconds):
    tree = Tree("working tree", ROOT)
    tree.build()
    with Revision(options.compare) as other, WineServer():
        chosen = chosen_works(tree, options.only)
        other.build({ground for ground, _ in chosen})
        lines = run_all([tree, other], chosen, runs, seconds)
    print("\n" + page.side_by_side(works.load(), lines[tree.name], lines[other.name], options.compare))


def measure(options, runs, seconds):
    tree = Tree("working tree", ROOT)
    grounds = grounds_of(options.only)
    tree.build(grounds)
    is_whole = not options.quick and options.only == "."
    load = machine.load_of_others()
    if load > 0.05:
        print(f"measure: other programs take {100 * load:.0f} % of the processors; the figures will be rough ones")
    with WineServer() if "windows" in grounds else contextlib.nullcontext():
        lines = run_all([tree], chosen_works(tree, options.only), runs, seconds)[tree.name]
    result = measured(tree, lines, runs, load, is_whole)
    folder = DOCS if is_whole else SCRATCH
    write_page(result, folder)
    print("\n" + page.in_short(works.load(), result))
    print(f"\n{(folder / 'benchmarks.md').relative_to(ROOT)} has it all.")


def main():
    parser = argparse.ArgumentParser(prog="./measure", add_help=False,
                                     usage="./measure [--quick] [--only REGEX] [--compare REV] [--page]")
    parser.add_argument("--quick", action="store_true")
    parser.add_argument("--only", default=".", metavar="REGEX")
    parser.add_argument("--compare", metavar="REV")
    parser.add_argument("--page", action="store_true")
    options = parser.parse_args()
    runs, seconds = QUICK if options.quick else WHOLE
    SCRATCH.mkdir(parents=True, exist_ok=True)
    if options.page:
        write_again()
    elif options.compare:
        compare(options, runs, seconds)
    else:
        measure(options, runs, seconds)


try:
    main()
except KeyboardInterrupt:
    sys.exit("measure: stopped")
