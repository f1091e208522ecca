#!/usr/bin/env python3
"""Holds `telar lessico` and `telar controlla` against the lists of the sources and the encyclopedia, which this
program reads by itself: 10,000 words, and 500 crosswords with planted faults.

Arguments: TELAR, the folder of the sources' data, the folder of the built data."""
import lzma
import os
import random
import re
import sqlite3
import subprocess
import sys
import tempfile
import unicodedata
from collections import Counter, defaultdict
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

TELAR, SOURCES, BUILT = sys.argv[1], Path(sys.argv[2]), Path(sys.argv[3])
LETTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
FINITE = {"ind", "cong", "cond", "imp", "fin"}


def is_finite(code):
    return code[0] == "v" and bool(FINITE & set(code[1:]))  # a conjunction is "cong" too


def folded(text):
    text = unicodedata.normalize("NFD", text.replace("œ", "oe").replace("Œ", "OE").replace("ß", "ss")
                                 .replace("æ", "ae").replace("Æ", "AE").replace("ø", "o").replace("Ø", "O"))
    return "".join(c for c in text.upper() if c in LETTERS)


class Entry:
    def __init__(self, line):
        self.spelled, score, marks, readings = line.split("\t")
        self.score = int(score)
        self.marks = set(filter(None, marks.split(",")))
        self.readings = []
        for reading in filter(None, readings.split(";")):
            code, _, lemma = reading.partition("=")
            self.readings.append((code.split("."), lemma or self.spelled))
        self.word = folded(self.spelled)

    def only_finite(self):
        return bool(self.readings) and all(is_finite(code) for code, _ in self.readings)

    def lemmas(self):
        return {lemma for _, lemma in self.readings}


def entries(text):
    return {entry.word: entry for entry in map(Entry, text.splitlines())}


ITALIAN = entries(lzma.open(SOURCES / "lexicon/italiano.tsv.xz", "rt", encoding="utf-8").read())
KIT = entries((SOURCES / "lexicon/sigle.tsv").read_text(encoding="utf-8"))


def kit_clues():
    clues = defaultdict(lambda: {"F": set(), "D": set()})
    for line in (SOURCES / "clues/sigle.tsv").read_text(encoding="utf-8").splitlines():
        word, family, clue = line.split("\t")
        clues[word][family].add(clue)
    return clues


KIT_CLUES = kit_clues()


class Store:
    """How many easy and hard clues a word has, by its first row."""

    def __init__(self, file):
        self.counts = {}
        base = sqlite3.connect(f"file:{file}?mode=ro", uri=True)
        for word, easy, hard in base.execute(
                "SELECT PAROLA, DEFINIZ_FACILE, DEFINIZ_DIFFIC FROM Parole ORDER BY rowid"):
            self.counts.setdefault(word, tuple(
                {c.strip() for c in (text or "").replace("\r", "\n").split("\n") if c.strip()}
                for text in (easy, hard)))
        base.close()

    def of(self, word):
        easy, hard = self.counts.get(word, (set(), set()))
        kit = KIT_CLUES.get(word, {"F": set(), "D": set()})
        return len(easy | kit["F"]), len(hard | kit["D"])


STORE = Store(BUILT / "telarium1.mdb")


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
    if word in KIT:
        entry, layer = KIT[word], "sigle"
    elif word in ITALIAN:
        entry, layer = ITALIAN[word], "italiano"
    else:
        return None
    easy, hard = STORE.of(word)
    head = (word, entry.spelled, str(entry.score))
    tail = (str(easy), str(hard), layer)
    readings = entry.readings or [([""], "")]
    return [(head, lemma, entry.marks | forms(code), tail) for code, lemma in readings]


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


def same_spelling(one, other):
    return one.casefold() == other.casefold()


def same_lines(expected, told):
    if expected is None or told is None:
        return expected == told
    return len(expected) == len(told) and all(
        a[0][0] == b[0][0] and same_spelling(a[0][1], b[0][1]) and a[0][2] == b[0][2]
        and same_spelling(a[1], b[1]) and a[2:] == b[2:] for a, b in zip(expected, told))


def misspelled(chance, word):
    place = chance.randrange(len(word))
    return word[:place] + chance.choice(LETTERS) + word[place + 1:]


def check_words(chance):
    known = sorted(ITALIAN)
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
            if not same_lines(expected, told[word]):
                faults.append(f"{word}: {expected} but {told[word]}")
    complain(faults, f"{len(words)} words")


# --- Crosswords ---

PATTERNS = ["""
.....*....
.....*....
.....*....
...*...*..
**.....***
....*.....
.....*....
.....*....
..*...*...
""", """
.......
.*.*.*.
.......
.*.*.*.
.......
.*.*.*.
.......
""", """
....*....
....*....
....*....
.........
***...***
.........
....*....
....*....
....*....
""", """
..........
.*.*.*.**.
......*...
.*.*......
...*.*.*.*
..........
"""]


def runs(rows):
    """Column, row, direction and cells of each run of two and more white cells, in reading order."""
    height, width = len(rows), len(rows[0])
    found = []
    for r in range(height):
        for c in range(width):
            for d, (dc, dr) in (("O", (1, 0)), ("V", (0, 1))):
                if rows[r][c] == "*":
                    continue
                before = (r - dr, c - dc)
                if min(before) >= 0 and rows[before[0]][before[1]] != "*":
                    continue
                cells = []
                y, x = r, c
                while y < height and x < width and rows[y][x] != "*":
                    cells.append((y, x))
                    y, x = y + dr, x + dc
                if len(cells) > 1:
                    found.append((c + 1, r + 1, d, cells))
    return found


class Filler:
    """Fills a pattern with words, slot by slot, the one with the fewest candidates first."""

    def __init__(self):
        self.at = defaultdict(set)
        self.by_length = defaultdict(set)
        for word, entry in {**ITALIAN, **KIT}.items():
            if len(word) > 10 or entry.marks & {"bandita"} or (len(word) > 2 and entry.score < 12):
                continue
            if len(word) == 2 and word not in KIT:
                continue
            self.by_length[len(word)].add(word)
            for place, letter in enumerate(word):
                self.at[len(word), place, letter].add(word)

    def candidates(self, rows, cells):
        sets = [self.at[len(cells), i, rows[y][x]] for i, (y, x) in enumerate(cells) if rows[y][x] != "."]
        return set.intersection(*sets) if sets else self.by_length[len(cells)]

    def fill(self, chance, rows, slots, used, effort):
        if not slots:
            return rows
        effort[0] -= 1
        if effort[0] < 0:
            return None
        ranked = [(len(self.candidates(rows, slot[3])), i) for i, slot in enumerate(slots)]
        _, i = min(ranked)
        rest = slots[:i] + slots[i + 1:]
        words = sorted(self.candidates(rows, slots[i][3]) - used)
        chance.shuffle(words)
        for word in words[:15]:
            tried = [list(row) for row in rows]
            for (y, x), letter in zip(slots[i][3], word):
                tried[y][x] = letter
            done = self.fill(chance, tried, rest, used | {word}, effort)
            if done:
                return done
        return None


def filled(chance, filler):
    while True:
        rows = [list(row) for row in chance.choice(PATTERNS).split()]
        done = filler.fill(chance, rows, runs(rows), set(), [400])
        if done:
            return done


OPENINGS = ["Lo guarda", "Vi pensa", "Non dorme", "Corre sempre", "Sta lassù", "Fu detto", "Cede poco", "Ne parla"]


class Crossword:
    def __init__(self, rows):
        self.rows = rows
        self.clues = {}
        self.own, self.banned = [], []

    def words(self):
        return [(c, r, d, "".join(self.rows[y][x] for y, x in cells)) for c, r, d, cells in runs(self.rows)]

    def give_clues(self):
        # No clue has a word that could hold or betray an entry: numbers do not.
        for i, (c, r, d, _) in enumerate(self.words()):
            self.clues[c, r, d] = f"{i + 1}00 e {i + 7} volte {chr(97 + i % 26)}{i}"

    def bytes(self):
        height, width = len(self.rows), len(self.rows[0])
        lines = [b"Autore     : Prova", b"Data       : 01-01-2026", b"Tipo       : Crociate",
                 b"Dimensioni : %02dx%02d" % (width, height)]
        for row in self.rows:
            lines.append(b"".join(bytes([(ord(cell.encode("cp1252")) + 26), ord("*" if cell == "*" else ".")])
                                  for cell in row))
        for (c, r, d), clue in sorted(self.clues.items(), key=lambda item: (item[0][0], item[0][1], item[0][2])):
            lines.append(b"%3d%3d%d-" % (c, r, "OV".index(d) + 1) + clue.encode("cp1252"))
        lines.append(b"[Colori caselle]")
        lines += [b" 0 " * height] * width
        section = [(b"proprie", self.own), (b"vietate", self.banned)]
        if any(words for _, words in section):
            lines.append(b"[Laboratorio]")
            lines += [name + b" = " + " ".join(words).encode("cp1252") for name, words in section if words]
        return b"\r\n".join(lines) + b"\r\n"


def plant(chance, crossword):
    """Plants one or more faults, and gives a name for them."""
    names = chance.sample(sorted(PLANTS), chance.choice([1, 1, 2, 3]))
    for name in names:
        PLANTS[name](chance, crossword)
    return "+".join(names)


def some_word(chance, crossword, least=2):
    words = [w for w in crossword.words() if len(w[3]) >= least]
    return chance.choice(words)


def put_letter(chance, crossword):
    white = [(y, x) for y, row in enumerate(crossword.rows) for x, cell in enumerate(row) if cell != "*"]
    y, x = chance.choice(white)
    crossword.rows[y][x] = chance.choice(LETTERS)


def put_sign(chance, crossword, signs):
    c, r, _, _ = some_word(chance, crossword)
    crossword.rows[r - 1][c - 1] = chance.choice(signs)


def repeat_word(chance, crossword):
    found = runs(crossword.rows)
    one, other = chance.sample(found, 2)
    same = [run for run in found if len(run[3]) == len(one[3]) and run is not one]
    other = chance.choice(same) if same else other
    letters = [crossword.rows[y][x] for y, x in one[3]]
    for (y, x), letter in zip(other[3], letters):
        crossword.rows[y][x] = letter


def cut_apart(chance, crossword):
    row = chance.randrange(len(crossword.rows))
    crossword.rows[row] = ["*"] * len(crossword.rows[row])


def set_clue(make):
    def plant_clue(chance, crossword):
        c, r, d, word = some_word(chance, crossword)
        crossword.clues[c, r, d] = make(chance, crossword, word)
    return plant_clue


def drop_clue(chance, crossword):
    c, r, d, _ = some_word(chance, crossword)
    crossword.clues.pop((c, r, d), None)


def put_kind(condition):
    """Writes a word of some kind over another one of its length."""
    pools = defaultdict(list)
    for word in sorted(ITALIAN):
        if len(word) <= 10 and condition(ITALIAN[word]):
            pools[len(word)].append(word)

    def plant_word(chance, crossword):
        found = [run for run in runs(crossword.rows) if pools[len(run[3])]]
        if not found:
            return
        cells = chance.choice(found)[3]
        for (y, x), letter in zip(cells, chance.choice(pools[len(cells)])):
            crossword.rows[y][x] = letter
    return plant_word


def make_own(chance, crossword):
    put_letter(chance, crossword)
    crossword.own += [w[3] for w in crossword.words() if w[3] not in ITALIAN and "." not in w[3]]


def ban(chance, crossword):
    crossword.banned.append(some_word(chance, crossword)[3])


PLANTS = {
    "letter": put_letter,
    "empty": lambda chance, crossword: put_sign(chance, crossword, "."),
    "sign": lambda chance, crossword: put_sign(chance, crossword, "7-À"),
    "repeated": repeat_word,
    "apart": cut_apart,
    "no clue": drop_clue,
    "same clue": set_clue(lambda chance, crossword, word: chance.choice(sorted(crossword.clues.values()))),
    "answer in clue": set_clue(lambda chance, crossword, word: f"Si dice {word.lower()}, e basta"),
    "entry in clue": set_clue(
        lambda chance, crossword, word: f"È con {some_word(chance, crossword)[3].capitalize()} che va"),
    "long clue": set_clue(lambda chance, crossword, word: "x" * chance.choice([45, 46, 60, 61, 75])),
    "finite": put_kind(Entry.only_finite),
    "banned": put_kind(lambda entry: "bandita" in entry.marks),
    "foreign": put_kind(lambda entry: "straniera" in entry.marks),
    "play": put_kind(lambda entry: "gioco" in entry.marks),
    "truncated": put_kind(lambda entry: "tronca" in entry.marks),
    "rare": put_kind(lambda entry: entry.score < 20),
    "own": make_own,
    "banned here": ban,
}


def area_count(rows):
    white = {(y, x) for y, row in enumerate(rows) for x, cell in enumerate(row) if cell != "*"}
    areas = 0
    while white:
        areas += 1
        open_cells = [white.pop()]
        while open_cells:
            y, x = open_cells.pop()
            for near in ((y + 1, x), (y - 1, x), (y, x + 1), (y, x - 1)):
                if near in white:
                    white.remove(near)
                    open_cells.append(near)
    return areas


def largest_square(rows):
    """The area of the largest white rectangle, by trying all of them."""
    height, width, best = len(rows), len(rows[0]), 0
    for top in range(height):
        free = [True] * width
        for bottom in range(top, height):
            free = [f and rows[bottom][x] != "*" for x, f in enumerate(free)]
            for stretch in "".join(".*"[not f] for f in free).split("*"):
                best = max(best, len(stretch) * (bottom - top + 1))
    return best


def clue_words(clue):
    plain = unicodedata.normalize("NFD", clue.upper())
    plain = "".join(c for c in plain if not unicodedata.combining(c))
    return re.findall(r"[A-Z0-9]+", plain)


class Judgement:
    """What is to be told of a crossword under the rule set `severe`, as far as it can be read off plainly."""

    def __init__(self, crossword):
        rows = crossword.rows
        base = [[folded(cell) if len(folded(cell)) == 1 else cell for cell in row] for row in rows]
        self.words = [(c, r, d, "".join(base[y][x] for y, x in cells), cells) for c, r, d, cells in runs(rows)]
        own = {folded(word) for word in crossword.own}
        banned = {folded(word) for word in crossword.banned}
        self.places = defaultdict(set)
        self.at_least = defaultdict(set)
        seen, clues, stretches = {}, {}, {}
        texts = {w[3] for w in self.words if all(letter in LETTERS for letter in w[3])}
        judged = []
        for c, r, d, word, cells in self.words:
            place = (c, r, d)
            whole = all(letter in LETTERS for letter in word)
            entry = KIT.get(word) or ITALIAN.get(word)
            if not whole or not (entry or word in own):
                self.places["inesistente"].add(place)
            if whole and word in seen:
                self.places["ripetuta"].add(place)
            seen.setdefault(word, place)
            if whole and (word in banned or (entry and "bandita" in entry.marks)):
                self.places["vietata"].add(place)
            if entry and whole and word not in own:
                judged.append((place, word, entry))
            if "." not in word or crossword.clues.get(place):  # an empty cell is told alone
                self.judge_clue(place, word, crossword.clues.get(place, ""), clues, texts)
            if whole:
                self.judge_stretches(place, word, stretches)
        self.judge_rules(judged)
        self.judge_grid(base)

    def judge_clue(self, place, word, clue, clues, texts):
        if not clue:
            self.places["senza-definizione"].add(place)
            return
        key = tuple(clue_words(clue))
        if key in clues:
            self.places["definizione-ripetuta"].add(place)
        clues.setdefault(key, place)
        if len(clue) > 60:
            self.places["definizione-lunga"].add(place)
        elif len(clue) > 45:
            self.places["definizione-oltre"].add(place)
        if set(key) & {text for text in texts if len(text) >= 4 or text == word}:
            self.at_least["definizione-rivela"].add(place)

    def judge_stretches(self, place, word, stretches):
        parts = {word[i:i + 5] for i in range(len(word) - 4)}
        if any(other != word for part in parts for other in stretches.get(part, ())):
            self.at_least["tratto-comune"].add(place)
        for part in parts:
            stretches.setdefault(part, []).append(word)

    def judge_rules(self, judged):
        for place, word, entry in judged:
            if word in KIT:
                continue
            if entry.only_finite() or "tronca" in entry.marks or "gioco" in entry.marks:
                self.places["regola"].add(place)
        total = len(self.words)
        foreign = [w for w in judged if "straniera" in w[2].marks]
        self.foreign_too_many = max(0, len(foreign) - total // 20)
        rare = [w for w in judged if w[2].score < 30]
        self.rare_told = max(0, len(rare) - total // 10)
        scores = [entry.score for _, _, entry in judged]
        self.score = (f"{sum(scores) / len(scores):.1f}", str(min(scores))) if scores else None
        self.short = sum(len(w[3]) == 2 for w in self.words)
        self.short_told = self.short > total * 15 // 100
        crossing = defaultdict(list)
        rare_places = {w[0] for w in rare}
        for c, r, d, _, cells in self.words:
            if (c, r, d) in rare_places:
                for cell in cells:
                    crossing[cell].append((c, r, d))
        self.hard_crossings = Counter(min(two, key=lambda p: p[2]) for two in crossing.values() if len(two) == 2)

    def judge_grid(self, rows):
        covered = Counter(cell for w in self.words for cell in w[4])
        self.places["cella-sola"] = {(x + 1, y + 1, "") for (y, x), times in covered.items() if times == 1}
        self.apart = area_count(rows) > 1
        cells = sum(len(row) for row in rows)
        black = sum(cell == "*" for row in rows for cell in row)
        lengths = Counter(len(w[3]) for w in self.words)
        self.figures = {
            "nere": f"{100 * black / cells:.1f}",
            "media": f"{sum(len(w[3]) for w in self.words) / max(1, len(self.words)):.1f}",
            "lettere": str(len({cell for row in rows for cell in row if cell in LETTERS})),
            **{f"voci-{n}": str(times) for n, times in lengths.items()},
        }
        if self.score:
            self.figures["punteggio"], self.figures["minimo"] = self.score
        self.square = largest_square(rows)
        families = [STORE.of(w[3]) for w in self.words]
        self.figures["facili"] = str(sum(easy > 0 for easy, _ in families))
        self.figures["difficili"] = str(sum(hard > 0 for _, hard in families))

    def differences(self, told, figures):
        places = {code: {p for p, _ in found} for code, found in told.items()}
        exact = ["inesistente", "ripetuta", "vietata", "senza-definizione", "definizione-ripetuta",
                 "definizione-lunga", "definizione-oltre", "cella-sola"]
        for code in exact:
            if places.get(code, set()) != self.places[code]:
                yield f"{code}: {sorted(self.places[code])} but {sorted(places.get(code, set()))}"
        for code, least in self.at_least.items():
            if not least <= places.get(code, set()):
                yield f"{code}: {sorted(least)} but {sorted(places.get(code, set()))}"
        rules = places.get("regola", set())
        extra = len(told.get("regola", [])) - len(self.places["regola"])
        if not self.places["regola"] <= rules or extra != self.foreign_too_many:
            yield f"regola: {sorted(self.places['regola'])} and {self.foreign_too_many} but {sorted(rules)}"
        if len(told.get("rare", [])) != self.rare_told:
            yield f"rare: {self.rare_told} but {told.get('rare')}"
        if ("separate" in told) != self.apart or ("due-lettere" in told) != self.short_told:
            yield f"separate {self.apart}, due-lettere {self.short_told} but {sorted(told)}"
        if Counter(p for p, _ in told.get("incrocio-duro", [])) != self.hard_crossings:
            yield f"incrocio-duro: {self.hard_crossings} but {told.get('incrocio-duro')}"
        for name, value in self.figures.items():
            if figures.get(name) != value:
                yield f"{name}: {value} but {figures.get(name)}"
        side = [int(n) for n in figures["piazza"].split("x")]
        if side[0] * side[1] != self.square:
            yield f"piazza: {self.square} cells but {figures['piazza']}"


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
    return [f"{file.name} ({name}): {difference}" for difference in Judgement(crossword).differences(told, figures)]


def check_crosswords(chance, folder):
    filler = Filler()
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
