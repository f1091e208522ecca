#!/usr/bin/env python3
"""Holds `telar lessico` and `telar controlla` against the lists of the sources and the encyclopedia, which this
program reads by itself: 10,000 words, and 500 crosswords with planted faults.

Arguments: TELAR, the folder of the sources' data, the folder of the built data."""
import os
import random
import subprocess
import sys
import tempfile
from collections import defaultdict
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from judgement import Judgement
from planted import Crossword, Filler, filled, planting
from reference import LETTERS, Reference, is_finite

TELAR, BUILT = sys.argv[1], Path(sys.argv[3])
REFERENCE = Reference(Path(sys.argv[2]), BUILT / "telarium1.mdb")


def telar(*arguments):
    done = subprocess.run([TELAR, "--cartella", str(BUILT), *arguments], capture_output=True, timeout=300)
    return done.returncode, done.stdout.decode("utf-8"), done.stderr.decode("utf-8")


def complain(faults, what):
    for fault in faults[:20]:
        print(fault)
    if faults:
        sys.exit(f"{what}: {len(faults)} faults")
    print(f"{what}: in agreement")


# --- Words ---

FORMS = {"inf": "infinito", "part": "participio", "ger": "gerundio", "cli": "clitica", "comp": "comparata"}


def forms(code):
    """The names of those forms of a reading that its code alone decides."""
    names = {FORMS[part] for part in code if part in FORMS}
    return names | ({"finita"} if is_finite(code) else set())


def expected_lines(word):
    entry = REFERENCE.of(word)
    if not entry:
        return None
    layer = "sigle" if word in REFERENCE.kit else "italiano"
    easy, hard = REFERENCE.counts(word)
    head = (word, entry.spelled.upper(), str(entry.score))
    tail = (str(easy), str(hard), layer)
    readings = entry.readings or [([""], "")]
    return [(head, lemma.upper(), entry.marks | forms(code), tail) for code, lemma in readings]


def told_lines(text):
    told = defaultdict(list)
    decided = set(FORMS.values()) | {"finita", "nome", "sigla", "straniera", "locuzione", "gioco", "tronca",
                                     "bandita"}
    for line in text.splitlines():
        fields = line.split("\t")
        if fields[0] == "assente":
            told[fields[1]] = None
            continue
        _, word, spelled, score, lemma, marks, easy, hard, layer = fields
        told[word].append(((word, spelled, score), lemma, set(marks.split(",")) & decided, (easy, hard, layer)))
    return told


def misspelled(chance, word):
    place = chance.randrange(len(word))
    return word[:place] + chance.choice(LETTERS) + word[place + 1:]


def check_words(chance):
    known = sorted(REFERENCE.italian)
    words = chance.sample(known, 6500) + [a + b for a in LETTERS for b in LETTERS]
    words += [misspelled(chance, word) for word in chance.sample(known, 10000 - len(words))]
    faults = []
    for start in range(0, len(words), 2500):
        part = words[start:start + 2500]
        status, out, err = telar("lessico", *part)
        if status != (3 if any(expected_lines(word) is None for word in part) else 0) or err:
            sys.exit(f"telar lessico: status {status}: {err}")
        told = told_lines(out)
        for word in set(part):
            expected = expected_lines(word)
            if expected != told[word]:
                faults.append(f"{word}: {expected} but {told[word]}")
    complain(faults, f"{len(words)} words")


def check_one(job):
    name, crossword, file = job
    file.write_bytes(crossword.bytes())
    status, out, err = telar("controlla", str(file))
    told, figures = defaultdict(list), {}
    for line in out.splitlines():
        fields = line.split("\t")
        if fields[0] == "cifra":
            figures[fields[1]] = fields[2]
        else:
            place = (int(fields[2] or 0), int(fields[3] or 0), fields[4])
            told[fields[1]].append((place, fields[5]))
    faults = [line for line in out.splitlines() if line.startswith("errore\t")]
    if status != (3 if faults else 0) or err:
        return [f"{name}: status {status}: {err}"]
    return [f"{file.name} ({name}): {difference}" for difference in Judgement(REFERENCE, crossword).differences(told, figures)]


def check_crosswords(chance, folder):
    filler, plant = Filler(REFERENCE), planting(REFERENCE)
    grids = [filled(chance, filler) for _ in range(50)]
    jobs = []
    for i in range(500):
        crossword = Crossword([list(row) for row in grids[i % len(grids)]])
        crossword.give_clues()
        name = plant(chance, crossword) if i >= len(grids) else "nothing planted"
        jobs.append((name, crossword, folder / f"{i}.tlrm"))
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        faults = [fault for found in pool.map(check_one, jobs) for fault in found]
    complain(faults, f"{len(jobs)} crosswords")


def main():
    with tempfile.TemporaryDirectory() as folder:
        os.environ["XDG_CACHE_HOME"] = folder + "/cache"
        check_words(random.Random(7))
        check_crosswords(random.Random(8), Path(folder))


main()
