"""Source trees that are built and whose benches are run: the working tree, and that of another revision."""
import json
import os
import pathlib
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
SCRATCH = ROOT / "build" / "measure"
PREFIX = ROOT / "build" / "windows" / "wine"
GROUNDS = ("native", "windows")
# The page in a browser, which is built and measured only when it is asked for: its compiler is a large package.
BROWSER = ("browser",)
# Of one work in one run; those that open large dialogs take longer than asked for.
LIMIT = 600


class Tree:
    """A folder with the sources; what it builds is in its own folder `build`."""

    def __init__(self, name, folder):
        self.name = name
        self.folder = folder

    def build(self, grounds=GROUNDS):
        for ground in grounds:
            target = "lytengine" if ground in BROWSER else "bench"
            print(f"building {self.name}, {ground} ...", flush=True)
            log = SCRATCH / f"build-{ground}.log"
            with open(log, "w", encoding="utf-8") as output:
                for command in (["cmake", "--preset", ground],
                                ["cmake", "--build", "--preset", ground, "--target", target],
                                *([["web/page/build.sh", "build/browser/bin"]] if ground in BROWSER else [])):
                    done = subprocess.run(command, cwd=self.folder, stdout=output, stderr=subprocess.STDOUT, check=False)
                    if done.returncode != 0:
                        print("\n".join(log.read_text(encoding="utf-8").splitlines()[-30:]))
                        sys.exit(f"measure: {self.name} does not build; all of it is in {log.relative_to(ROOT)}")

    def program(self, ground):
        folder = self.folder / "build" / ground
        programs = {"native": [str(folder / "bin" / "bench")],
                    "windows": [str(folder / "wine-run.sh"), str(folder / "bin" / "bench.exe")],
                    "browser": ["node", str(self.folder / "web" / "page" / "test" / "measure.mjs")]}
        return programs[ground]

    def run(self, ground, *words):
        environment = {**os.environ, "LYT_WINEPREFIX": str(PREFIX), "WINE_LIMIT": str(LIMIT)}
        environment.pop("DISPLAY", None)
        done = subprocess.run(self.program(ground) + [str(word) for word in words], cwd=SCRATCH, env=environment,
                              capture_output=True, text=True, errors="replace", check=False)
        if done.returncode != 0:
            sys.exit(f"measure: {self.name}, {ground} {' '.join(map(str, words))} failed:\n{done.stdout}{done.stderr}")
        return done.stdout

    def works(self, grounds=GROUNDS):
        """(ground, work) of all."""
        return [(ground, work) for ground in grounds for work in self.run(ground, "--list").split()]

    def measure(self, ground, work, seconds):
        output = self.run(ground, "--seconds", seconds, work)
        return [json.loads(line) for line in output.splitlines() if line.startswith("{")]

    def library_size(self):
        return (self.folder / "build" / "windows" / "bin" / "lyt64.dll").stat().st_size


class Revision(Tree):
    """Another revision, in a separate work tree while it is needed, with the benches of this one."""

    def __init__(self, revision):
        super().__init__(revision, SCRATCH / "revision")

    def __enter__(self):
        self.remove()
        added = subprocess.run(["git", "worktree", "add", "--detach", str(self.folder), self.name], cwd=ROOT,
                               capture_output=True, text=True, check=False)
        if added.returncode != 0:
            sys.exit(f"measure: {added.stderr.strip()}")
        shutil.rmtree(self.folder / "bench", ignore_errors=True)
        shutil.copytree(ROOT / "bench", self.folder / "bench")
        return self

    def __exit__(self, *_):
        self.remove()

    def remove(self):
        for command in (["remove", "--force", str(self.folder)], ["prune"]):
            subprocess.run(["git", "worktree", *command], cwd=ROOT, capture_output=True, check=False)
        shutil.rmtree(self.folder, ignore_errors=True)


class WineServer:
    """Keeps Wine's server running, so that no bench has to wait for it to start."""

    def __enter__(self):
        subprocess.run([ROOT / "tests/support/wine-prefix.sh", PREFIX, "null"], check=True)

    def __exit__(self, *_):
        subprocess.run([ROOT / "tests/support/wine-stop.sh", PREFIX], check=False)
