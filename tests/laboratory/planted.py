"""Crosswords that are filled with words, and the faults that are planted in them."""
from collections import defaultdict

from reference import LETTERS, Entry

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

    def __init__(self, reference):
        self.at = defaultdict(set)
        self.by_length = defaultdict(set)
        for word, entry in {**reference.italian, **reference.kit}.items():
            if len(word) > 10 or entry.marks & {"bandita"} or (len(word) > 2 and entry.score < 12):
                continue
            if len(word) == 2 and word not in reference.kit:
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


class Crossword:
    def __init__(self, rows):
        self.rows = rows
        self.clues = {}
        self.own, self.banned, self.locked = [], [], []

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
        section = [(b"proprie", self.own), (b"vietate", self.banned), (b"bloccate", self.locked)]
        if any(words for _, words in section):
            lines.append(b"[Laboratorio]")
            lines += [name + b" = " + " ".join(words).encode("cp1252") for name, words in section if words]
        return b"\r\n".join(lines) + b"\r\n"


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


def put_kind(reference, condition):
    """Writes a word of some kind over another one of its length."""
    pools = defaultdict(list)
    for word in sorted(reference.italian):
        if len(word) <= 10 and condition(reference.italian[word]):
            pools[len(word)].append(word)

    def plant_word(chance, crossword):
        found = [run for run in runs(crossword.rows) if pools[len(run[3])]]
        if not found:
            return
        cells = chance.choice(found)[3]
        for (y, x), letter in zip(cells, chance.choice(pools[len(cells)])):
            crossword.rows[y][x] = letter
    return plant_word


def make_own(reference):
    def plant_own(chance, crossword):
        put_letter(chance, crossword)
        crossword.own += [w[3] for w in crossword.words() if not reference.of(w[3]) and "." not in w[3]]
    return plant_own


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
    "banned here": ban,
}
KINDS = {
    "finite": Entry.only_finite,
    "banned": lambda entry: "bandita" in entry.marks,
    "foreign": lambda entry: "straniera" in entry.marks,
    "play": lambda entry: "gioco" in entry.marks,
    "truncated": lambda entry: "tronca" in entry.marks,
    "rare": lambda entry: entry.score < 20,
}


def planting(reference):
    """Gives a function that plants one or more faults in a crossword and tells which."""
    plants = {**PLANTS, "own": make_own(reference),
              **{name: put_kind(reference, condition) for name, condition in KINDS.items()}}

    def plant(chance, crossword):
        names = chance.sample(sorted(plants), chance.choice([1, 1, 2, 3]))
        for name in names:
            plants[name](chance, crossword)
        return "+".join(names)
    return plant
