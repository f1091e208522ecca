#!/usr/bin/python3 -B
"""How many faults the tests catch: injects some into a copy of the sources and runs the tests.

    tools/inject_faults.py [--seed N] [--count N] [--folder FOLDER]... [--only ID]... [--keep]

A seed chooses the places, as many from each folder of src/ and from each kind of fault as there
are. One build holds all faults, each switched on by its number as the tests run. One run of every
test without a fault tells which faults it reaches; then each fault meets the tests that reach it.
What survives is either behind no test or no fault at all, since nothing that the program does
differs: a reader tells which, and writes the latter into faults/judged.txt. They count no more.
"""

import argparse
import collections
import concurrent.futures
import dataclasses
import json
import pathlib
import random
import re
import shutil
import subprocess
import sys

from faults.operators import all_places
from faults.source_text import NO_CODE, Source
from faults.trials import Tests

ROOT = pathlib.Path(__file__).resolve().parent.parent
JUDGED = ROOT / "tools" / "faults" / "judged.txt"
FAULT_HEADER = ROOT / "tools" / "faults" / "fault.h"
COPIED = ("CMakeLists.txt", ".clang-format", "src", "tests", "tools", "data", "package", "bench")
NO_TARGET = re.compile(r"bin/(\w+_bench|window_pictures)$")  # programs that no test here needs
SPARE = 2  # so many times more places than asked for: some do not compile
ROUNDS = 8  # of a build, each without the faults that the one before did not compile


@dataclasses.dataclass
class Fault:
    number: int
    path: str
    line: int
    kind: str
    start: int
    end: int
    changed: str
    was: str
    shown: str
    code: str  # its first line

    @property
    def folder(self):
        return str(pathlib.PurePath(self.path).parent.relative_to("src"))

    @property
    def judgement(self):
        """How the file of judgements names this fault, wherever in its source the line stands."""
        return f"{self.path}: {self.code} | {self.kind}: {self.was} -> {self.shown}"

    def __str__(self):
        return f"{self.number:4} {self.path}:{self.line} {self.kind}: {self.was} -> {self.shown}"


def one_line(text, most=90):
    text = " ".join(text.split())
    return text if len(text) <= most else text[:most - 3] + "..."


def read_tree():
    """All files that a build needs, as they are now: they may change while this works."""
    listed = subprocess.run(["git", "ls-files", "-z", "-co", "--exclude-standard", *COPIED],
                            cwd=ROOT, check=True, capture_output=True).stdout
    return {path: (ROOT / path).read_bytes() for path in listed.decode().split("\0")
            if path and (ROOT / path).is_file()}


def faults_of(path, content):
    """Every fault that a source could have."""
    source = Source(content.decode("utf-8"))
    for place in all_places(source):
        was = source.text[place.start:place.end]
        if any(m.group()[:2] in ("//", "/*", 'R"') for m in NO_CODE.finditer(was)):
            continue
        # As many lines as before, so that the compiler's messages tell the place.
        changed = re.sub(r"\s*\n\s*", " ", place.changed) + "\n" * was.count("\n")
        line = source.line_of(place.start)
        yield Fault(0, path, line, place.kind, place.start, place.end, changed, one_line(was),
                    one_line(place.shown) or "(left out)", source.line_text(line))


def candidates(files, folders):
    """The possible faults by folder and kind."""
    wanted = tuple(f"src/{folder.strip('/')}/" for folder in folders) or ("src/",)
    found = collections.defaultdict(lambda: collections.defaultdict(list))
    for path in sorted(files):
        if path.endswith(".cpp") and path.startswith(wanted):
            for fault in faults_of(path, files[path]):
                found[fault.folder][fault.kind].append(fault)
    return found


def overlaps(fault, taken):
    """One fault a line, so that a message of the compiler means one of them."""
    last = fault.line + fault.changed.count("\n")
    return any(line in taken for line in range(fault.line, last + 1))


def choose(found, count, chance):
    """Faults in turn from each folder, in each from a kind that it was not asked for before."""
    lines = collections.defaultdict(set)
    rows = {folder: [chance.sample(kinds[kind], len(kinds[kind])) for kind in sorted(kinds)]
            for folder, kinds in sorted(found.items())}
    for kinds in rows.values():
        chance.shuffle(kinds)
    chosen = []
    while rows and len(chosen) < count:
        for folder in list(rows):
            kinds = rows[folder]
            while kinds:
                faults = kinds.pop(0)
                fault = faults.pop()
                if faults:
                    kinds.append(faults)
                if not overlaps(fault, lines[fault.path]):
                    lines[fault.path].update(
                        range(fault.line, fault.line + fault.changed.count("\n") + 1))
                    chosen.append(fault)
                    break
            if not kinds:
                del rows[folder]
    for number, fault in enumerate(chosen[:count], 1):
        fault.number = number
    return chosen[:count]


def judgements():
    """What is no fault, and why."""
    lines = [line for line in JUDGED.read_text(encoding="utf-8").splitlines()
             if line and not line.startswith("#")]
    return {fault: reason.strip() for fault, reason in zip(lines[::2], lines[1::2])}


class Tree:
    """The copy of the sources that the faults are written into, and its build."""

    def __init__(self, files, scratch, jobs):
        self.files = files
        self.sources = scratch / "tree"
        self.build_folder = scratch / "tree" / "build"
        self.jobs = jobs

    def write(self, faults):
        """Writes what differs, with the faults in it, and removes what is no more."""
        by_path = collections.defaultdict(list)
        for fault in faults:
            by_path[fault.path].append(fault)
        for path, content in self.files.items():
            if path in by_path:
                content = with_faults(content.decode("utf-8"), by_path[path]).encode("utf-8")
            target = self.sources / path
            if not target.exists() or target.read_bytes() != content:
                target.parent.mkdir(parents=True, exist_ok=True)
                target.write_bytes(content)
                shutil.copymode(ROOT / path, target)
        for folder in COPIED:
            for file in (self.sources / folder).rglob("*"):
                if file.is_file() and str(file.relative_to(self.sources)) not in self.files:
                    file.unlink()

    def configure(self):
        header = self.sources / FAULT_HEADER.relative_to(ROOT)
        subprocess.run(["cmake", "-S", self.sources, "-B", self.build_folder, "-G", "Ninja",
                        "-DCMAKE_BUILD_TYPE=Release", "-DBUILD_TESTING=ON",
                        f"-DCMAKE_CXX_FLAGS=-w -include {header}"],
                       check=True, stdout=subprocess.DEVNULL)

    def _targets(self):
        """The programs, and what the tests load into them."""
        listed = subprocess.run(["ninja", "-t", "targets", "all"], cwd=self.build_folder, check=True,
                                capture_output=True, text=True).stdout
        linked = re.findall(r"^((?:bin|tests)/\S+): CXX_(?:EXECUTABLE|MODULE)", listed, re.M)
        return [target for target in linked if not NO_TARGET.match(target)]

    def build(self):
        """Builds all; the places that do not compile, or none."""
        run = subprocess.run(["cmake", "--build", self.build_folder, "-j", str(self.jobs),
                              "--target", *self._targets(), "--", "-k", "0"],
                             capture_output=True, text=True)
        if run.returncode == 0:
            return []
        errors = re.findall(r"^(?:\.\./)*(\S*?)(src/\S+?\.cpp):(\d+):\d+: (?:fatal )?error:",
                            run.stdout, re.M)
        if not errors:
            sys.exit(run.stdout[-4000:] + run.stderr)
        return [(path, int(line)) for _, path, line in errors]


def with_faults(text, faults):
    for fault in sorted(faults, key=lambda f: f.start, reverse=True):
        changed = fault.changed.replace("FAULT", f"FaultIsOn({fault.number})")
        text = text[:fault.start] + changed + text[fault.end:]
    return text


def build_with(tree, faults):
    """Builds the tree with those of the faults that compile, and returns these."""
    for _ in range(ROUNDS):
        tree.write(faults)
        tree.configure()
        errors = tree.build()
        if not errors:
            return faults
        bad = set()
        for path, line in errors:
            before = [f for f in faults if f.path == path and f.line <= line]
            if before:
                bad.add(max(before, key=lambda f: f.line).number)
        if not bad:
            sys.exit(f"no fault stands before the error: {errors[0]}")
        faults = [f for f in faults if f.number not in bad]
        print(f"{len(bad)} faults do not compile, {len(faults)} are left", flush=True)
    sys.exit("the tree with faults does not compile")


def table(outcomes):
    """Caught of injected, by folder and kind."""
    kinds = sorted({fault.kind for fault, _ in outcomes})
    lines = [f"{'':24}" + "".join(f"{kind[:9]:>10}" for kind in kinds) + f"{'all':>9}"]
    folders = sorted({fault.folder for fault, _ in outcomes})
    for folder in folders + [None]:
        rows = [(f, o) for f, o in outcomes if folder in (None, f.folder)]
        cells = []
        for kind in kinds + [None]:
            of_kind = [o for f, o in rows if kind in (None, f.kind)]
            cells.append(f"{sum(o.caught for o in of_kind)}/{len(of_kind)}" if of_kind else "")
        lines.append(f"{folder or 'all':24}" + "".join(f"{c:>10}" for c in cells[:-1])
                     + f"{cells[-1]:>9}")
    return "\n".join(lines)


def report(outcomes):
    judged = judgements()
    survivors = [fault for fault, outcome in outcomes if not outcome.caught]
    harmless = [fault for fault in survivors if fault.judgement in judged]
    missed = [fault for fault in survivors if fault.judgement not in judged]
    real = [(fault, outcome) for fault, outcome in outcomes if fault not in harmless]
    print("\n" + table(real), "\nNot caught:", sep="\n")
    for fault in missed:
        print(f"{fault}\n       in {fault.code}")
    print("\nNo faults:")
    for fault in harmless:
        print(f"{fault}\n       {judged[fault.judgement]}")
    caught = len(real) - len(missed)
    print(f"\n{caught} of {len(real)} faults caught, {100 * caught / len(real):.1f} %"
          f"; {len(harmless)} more are none")


def arguments():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--count", type=int, default=150)
    parser.add_argument("--folder", action="append", default=[],
                        help="only below this folder of src/ (may be given again)")
    parser.add_argument("--only", type=int, action="append", default=[], metavar="ID",
                        help="run this fault of the choice alone (may be given again)")
    parser.add_argument("--keep", action="store_true",
                        help="leave the built tree; the next run builds only what changed")
    parser.add_argument("--list", action="store_true", help="tell the choice and end")
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--scratch", type=pathlib.Path, default=ROOT / "build" / "faults")
    return parser.parse_args()


def main():
    args = arguments()
    files = read_tree()
    faults = choose(candidates(files, args.folder), args.count * SPARE, random.Random(args.seed))
    if args.list:
        print(*faults, sep="\n")
        return
    tree = Tree(files, args.scratch.resolve(), args.jobs)
    faults = build_with(tree, faults)[:args.count]
    (args.scratch / "faults.json").write_text(
        json.dumps([dataclasses.asdict(f) for f in faults], indent=1), encoding="utf-8")
    tests = Tests(tree.build_folder, args.scratch.resolve(), args.jobs)
    tests.trace()
    faults = [fault for fault in faults if not args.only or fault.number in args.only]
    outcomes = []
    with concurrent.futures.ThreadPoolExecutor(args.jobs) as pool:
        for fault, outcome in zip(faults, pool.map(tests.meet, [f.number for f in faults])):
            outcomes.append((fault, outcome))
            print(f"{fault}\n       {outcome.text}", flush=True)
    report(outcomes)
    if not args.keep:
        shutil.rmtree(args.scratch)


if __name__ == "__main__":
    main()
