#!/usr/bin/env python3
"""Holds the fills of `telar componi` against lists and encyclopedia, which this program reads by itself: random
patterns with random demands, and what it says to bad ones.

Arguments: TELAR, the folder of the sources' data, the folder of the built data, and how many fills (150)."""
import lzma
import os
import random
import re
import subprocess
import sys
import tempfile
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent.parent / "laboratory"))

from bad_input import bad_input_faults
from demands import Demands, Pools
from known_words import SHARES, akin
from planted import runs
from reference import Reference, entries, folded

TELAR, SOURCES, BUILT = (Path(argument).resolve() for argument in sys.argv[1:4])
FILLS = int(sys.argv[4]) if len(sys.argv) > 4 else 150
REFERENCE = Reference(SOURCES, BUILT / "telarium1.mdb")
ENGLISH = entries(lzma.open(SOURCES / "lexicon/inglese.tsv.xz", "rt", encoding="utf-8").read())
STATUS = {"riempito": 0, "impossibile": 3, "tempo": 4}


class Written:
    """A crossword file, read plainly."""

    def __init__(self, data):
        lines = data.decode("cp1252").split("\r\n")
        width, height = int(lines[3][13:15]), int(lines[3][16:18])
        self.rows = [[bytes([ord(c.encode("cp1252")) - 26]).decode("cp1252") for c in line[:2 * width:2]]
                     for line in lines[4:4 + height]]
        colours = lines.index("[Colori caselle]")
        self.clues = {(int(line[:3]), int(line[3:6]), "OV"[int(line[6]) - 1]): line[8:]
                      for line in lines[4 + height:colours]}
        self.own = set()
        for line in lines[colours:]:
            if line.startswith("proprie = "):
                self.own = set(line[10:].split())


class Judge:
    """What is wrong with a fill that was told and written."""

    def __init__(self, demands, told, written):
        self.demands, self.told, self.written = demands, told, written
        self.faults = []
        self.start = demands.start()
        self.known = demands.known
        self.judge_cells()
        # Words as they count, and whether all of their letters were given.
        self.words = [(c, r, d, "".join(self.base(written.rows, y, x) for y, x in cells),
                       all(self.start[y][x] != "." for y, x in cells))
                      for c, r, d, cells in runs(written.rows)]
        self.new = [word for _, _, _, word, given in self.words if not given and "." not in word]
        for word in self.new:
            self.judge_word(word)
        self.judge_together()
        self.judge_shares()
        self.judge_wanted()
        self.judge_clues()
        self.judge_own()
        self.judge_output()

    def blame(self, condition, *what):
        if condition:
            self.faults.append(" ".join(map(str, what)))

    @staticmethod
    def base(rows, y, x):
        letters = folded(rows[y][x])
        return letters if len(letters) == 1 else rows[y][x]

    def judge_cells(self):
        in_runs = {cell for run in self.demands.runs for cell in run[3]}
        for y, row in enumerate(self.start):
            for x, before in enumerate(row):
                after = self.written.rows[y][x]
                if before == "." and (y, x) in in_runs and self.demands.fills(y, x):
                    self.blame(not "A" <= after <= "Z", "no letter at", x + 1, y + 1, after)
                    self.blame(self.demands.masks.get((y, x), after) != after, "no mask at", x + 1, y + 1)
                else:
                    self.blame(before != after, "changed at", x + 1, y + 1, before, after)

    def free(self, word):
        """Needs no lexicon, no score and no clue."""
        return (len(word) == 2 and self.demands.rules == "libere") or word in self.demands.wanted

    def has_clue(self, word):
        easy, hard = REFERENCE.counts(word)
        return {"tutte": easy + hard, "facili": easy, "difficili": hard}[self.demands.family] > 0

    def judge_word(self, word):
        banned = word in self.demands.banned or self.known.banned(word)
        self.blame(banned and word not in self.demands.admitted, "banned:", word)
        if self.free(word):
            return
        known = self.known.of(word)
        if known is None:
            self.faults.append("no word: " + word)
            return
        shares = SHARES[self.demands.rules]
        self.blame(any(shares.get(kind) == 0 for kind in known.kinds()), "against the rules:", word, known.kinds())
        self.blame(len(word) > 2 and "gioco" in known.marks and self.demands.rules == "severe", "letter play:", word)
        self.blame(len(word) == 2 and not known.in_kit and not known.of_a_list, "not of the kit:", word)
        self.blame(known.score < self.demands.levels[len(word)], "score", known.score, word)
        self.blame(self.demands.clues == "obbligatorie" and not self.has_clue(word), "no clue:", word)

    def judge_together(self):
        whole = [(word, given) for _, _, _, word, given in self.words if "." not in word]
        times = Counter(word for word, _ in whole)
        for word in self.new:
            self.blame(times[word] > 1, "twice:", word)
        if self.demands.forms:
            return
        counted = [(word, given, self.known.of(word)) for word, given in whole
                   if not (len(word) == 2 and self.demands.rules == "libere")]
        counted = [one for one in counted if one[2]]
        for i, (one, one_given, known) in enumerate(counted):
            for other, other_given, other_known in counted[:i]:
                if one != other and not (one_given and other_given):
                    self.blame(akin(known, other_known), "two forms:", one, other)

    def judge_shares(self):
        shares = SHARES[self.demands.rules]
        for kind in ("finita", "straniera"):
            limit = len(self.words) // shares[kind] if shares.get(kind) else len(self.words)
            limit = min(limit, self.demands.most.get(kind, limit))
            counted = {given: 0 for given in (True, False)}
            for _, _, _, word, given in self.words:
                known = None if self.free(word) else self.known.of(word)
                counted[given] += known is not None and kind in known.kinds()
            self.blame(counted[False] > max(0, limit - counted[True]), "too many:", kind, counted, limit)
        short = sum(len(word) == 2 for _, _, _, word, _ in self.words)
        self.blame(short > self.demands.most.get("due", short), "two letters:", short)

    def judge_wanted(self):
        for word in self.demands.wanted:
            self.blame(word not in {w[3] for w in self.words}, "wanted:", word)

    def judge_clues(self):
        told = self.demands.crossword.clues
        before = {(c, r, d): "".join(self.demands.rows[y][x] for y, x in cells) for c, r, d, cells in self.demands.runs}
        for c, r, d, cells in self.demands.runs:
            place = (c, r, d)
            after = "".join(self.written.rows[y][x] for y, x in cells)
            touched = any(self.start[y][x] == "." and self.demands.fills(y, x) for y, x in cells)
            if not touched:
                self.blame(self.written.clues.get(place) != told.get(place), "clue not kept:", place)
            elif before[place] != after:
                self.blame(place in self.written.clues, "clue not dropped:", place)

    def judge_own(self):
        expected = {word for _, _, _, word, given in self.words
                    if (given or word in self.demands.wanted) and "." not in word and self.known.of(word) is None
                    and not (len(word) == 2 and self.demands.rules == "libere")}
        self.blame({folded(word) for word in self.written.own} != expected, "own:", self.written.own, expected)

    def judge_output(self):
        scores = [self.known.of(word).score for word in self.new
                  if self.known.of(word) and not (len(word) == 2 and self.demands.rules == "libere")]
        mean = f"{sum(scores) / len(scores):.1f}" if scores else ""
        expected = {
            "voci": (str(len(self.words)),),
            "punteggio": (mean, str(min(scores)) if scores else ""),
            "definite": (str(sum(self.has_clue(word) or (c, r, d) in self.written.clues
                                 for c, r, d, word, _ in self.words)),),
        }
        for name, values in expected.items():
            self.blame(self.told[name] != values, name, values, "but", self.told[name])


LINE = {"passi": r"\d+", "primo": r"\d+\.\d{3}", "in tutto": r"\d+\.\d{3}", "rimedio": None, "colpevole": None}
ORDER = ["esito", "seme", "voci", "punteggio", "definite", "colpevole", "rimedio", "passi", "primo", "in tutto"]


def told_lines(out, result):
    """The fields by the name of the line; a fault when lines are missing, strange or out of order."""
    told, names = {}, []
    for line in out.splitlines():
        name, *fields = line.split("\t")
        names.append(name)
        told[name] = tuple(fields)
        if LINE.get(name) and not re.fullmatch(LINE[name], line[len(name) + 1:]):
            return told, "strange line: " + line
    wanted = [name for name in ORDER if name not in ("colpevole", "rimedio")]
    if result != "riempito":
        wanted = [name for name in wanted if name not in ("voci", "punteggio", "definite", "primo")]
    plain = [name for name in names if name not in ("colpevole", "rimedio")]
    ordered = names == sorted(names, key=lambda name: ORDER.index(name) if name in ORDER else -1)
    return told, "" if plain == wanted and ordered else f"lines: {names}"


def call(home, number, arguments):
    """Status, fields of the lines, standard error and whether there is a file."""
    line = ["--cartella", str(home), "componi", "in", "out", "--seme", str(number), "--passi", "50000",
            "--secondi", "20", "--ottimizza", "0", *arguments]
    done = subprocess.run([TELAR, *line], capture_output=True, cwd=home, timeout=120)
    return done.returncode, done.stdout.decode("utf-8"), done.stderr.decode("utf-8"), (home / "out").exists()


def changed_by(demands, kind, values):
    """The arguments with a remedy; one on the grid changes the crossword."""
    arguments = demands.arguments
    if kind in ("nera", "libera"):
        column, row = map(int, values)
        demands.rows[row - 1][column - 1] = "*" if kind == "nera" else "."
    elif kind == "livello":
        levels = [f"{length}:{min(least, int(values[0]))}" for length, least in enumerate(demands.levels) if length > 1]
        arguments = [one for one in arguments if not one.startswith("--livello")]
        arguments = arguments + ["--livello-lunghezza=" + ",".join(levels)]
    elif kind == "regole":
        arguments = [one for one in arguments if not one.startswith("--regole")] + ["--regole=" + values[0]]
    else:
        named = next((one for one in arguments if one.startswith("--lessico=")), "--lessico=italiano")
        arguments = [one for one in arguments if one != named] + [f"{named},{values[0]}"]
    return arguments


def remedy_faults(home, number, demands, out):
    """A remedy that was told must help."""
    remedies = [line.split("\t")[1:] for line in out.splitlines() if line.startswith("rimedio\t")]
    if not remedies:
        return []
    kind, *values = remedies[number % len(remedies)]
    arguments = changed_by(demands, kind, values)
    (home / "in").write_bytes(demands.crossword.bytes())
    status, _, err, _ = call(home, number, arguments)
    return [f"no remedy: {kind} {values}: {status} {err}"] if status else []


def run(number, demands, folder):
    """Faults of one composition, and its result."""
    home = folder / str(number)
    home.mkdir()
    os.symlink(BUILT / "telarium1.mdb", home / "telarium1.mdb")
    (home / "in").write_bytes(demands.crossword.bytes())
    for name, text in demands.files.items():
        (home / name).write_text(text, encoding="utf-8")
    status, out, err, written = call(home, number, demands.arguments)
    result = out.split("\n", 1)[0].removeprefix("esito\t") or "refused"
    if result == "refused":
        sound = status == 1 and err.count("\n") == 1 and not written
        faults = [] if sound else ["refusal"]
    else:
        told, fault = told_lines(out, result)
        faults = [fault] if fault else []
        if status != STATUS[result] or told["seme"] != (str(number),):
            faults.append("status or seed")
        if written != (result == "riempito" or demands.partial):
            faults.append("out written or not")
        if (result == "impossibile") != ("colpevole" in told):
            faults.append("guilty entries or none")
        if result == "riempito" and not faults:
            faults = Judge(demands, told, Written((home / "out").read_bytes())).faults
        faults += remedy_faults(home, number, demands, out)
    return [f"{number}: {fault}; {' '.join(err.split())[:200]} ({' '.join(demands.arguments)})" for fault in faults], result


def main():
    pools, results, faults = Pools(REFERENCE), Counter(), []
    with tempfile.TemporaryDirectory() as folder, ThreadPoolExecutor(os.cpu_count()) as pool:
        os.environ["XDG_CACHE_HOME"] = folder + "/cache"
        number = 0
        (Path(folder) / "odd").mkdir()
        faults += bad_input_faults(TELAR, BUILT, Path(folder) / "odd")
        while results["riempito"] < FILLS and len(faults) < 20 and number < 3 * FILLS + 100:
            jobs = [(n, Demands(random.Random(n), REFERENCE, ENGLISH, pools)) for n in range(number, number + 50)]
            number += len(jobs)
            for found, result in pool.map(lambda job: run(*job, Path(folder)), jobs):
                faults += found
                results[result] += 1
    print(dict(results))
    for fault in faults[:20]:
        print(fault[:600])
    if faults or results["riempito"] < FILLS:
        sys.exit(f"{len(faults)} faults")


main()
