"""Where the time of a native work goes, counted in instructions by a profiler."""
import re
import shutil
import subprocess

from trees import SCRATCH

LEAST_SHARE = 4.0
MOST_ROWS = 20
# The frame of the bench, what the standard library does, and helpers whose names say nothing.
PASSED_OVER = re.compile(r"$|std::|operator |_|0x|main$|\(below main\)|Work$|.*(Bench|Measure|Journey|TimeOf|RunsOf|<|WndProc)")
ROW = re.compile(r"^\s*([\d,]+) \(\s*([\d.]+)%\)\s+\S*?:(.+?)(?: \[.*\])?$")


def rows_of(annotation):
    """[(share in per cent, function)] from the profiler's listing, the dearest first."""
    rows = []
    for line in annotation.splitlines():
        found = ROW.match(line)
        if not found:
            continue
        # A function that calls itself is counted once for each depth; the first has all of it.
        share, function = float(found.group(2)), found.group(3).replace("(anonymous namespace)::", "").split("'")[0]
        function = re.sub(r"^non-virtual thunk to |\(.*\)( const)?$", "", function)
        if share >= LEAST_SHARE and not PASSED_OVER.match(function) and function not in [row[1] for row in rows]:
            rows.append((share, function))
    return rows[:MOST_ROWS]


def of_works(tree, works):
    """{work: rows} of those that name a function to be counted; nothing without the profiler."""
    profile = {}
    for name, work in works.items() if shutil.which("valgrind") else ():
        if "profile" not in work:
            continue
        print(f"profiling {name} ...", flush=True)
        file = SCRATCH / f"{name}.callgrind"
        command = ["valgrind", "--tool=callgrind", f"--callgrind-out-file={file}", f"--toggle-collect={work['profile']}",
                   *tree.program("native"), "--seconds", "0", name]
        done = subprocess.run(command, capture_output=True, text=True, check=False)
        if done.returncode != 0:
            print(f"measure: no profile of {name}: {done.stderr.strip()[-300:]}")
            continue
        listing = subprocess.run(["callgrind_annotate", "--inclusive=yes", "--threshold=100", str(file)],
                                 capture_output=True, text=True, check=True).stdout
        profile[name] = rows_of(listing)
    return profile
