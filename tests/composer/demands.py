"""Crosswords to be filled, with random demands as a person would put them on the command line."""
from collections import defaultdict

from known_words import SHARES, KnownWords
from planted import Crossword, runs
from reference import LETTERS


def pattern(chance):
    width, height = chance.choice([(chance.randint(2, 9), chance.randint(2, 9))] * 17 + [(13, 13)] * 2 + [(21, 21)])
    black = chance.uniform(0.18, 0.32) if width > 4 else chance.uniform(0, 0.3)
    return [["*" if chance.random() < black else "." for _ in range(width)] for _ in range(height)]


class Pools:
    """Words to draw demands from."""

    def __init__(self, reference):
        self.common = defaultdict(list)
        for word in sorted(reference.italian):
            entry = reference.italian[word]
            if len(word) <= 21 and entry.score >= 40 and not entry.marks and not entry.only_finite():
                self.common[len(word)].append(word)
        self.banned = sorted(word for word, entry in reference.italian.items() if "bandita" in entry.marks)


class Demands:
    """One crossword, what is demanded of its fill, and the arguments that say so."""

    def __init__(self, chance, reference, english, pools):
        self.chance, self.pools = chance, pools
        self.arguments, self.files = [], {}
        self.crossword = Crossword(pattern(chance))
        self.rows = self.crossword.rows
        self.runs = runs(self.rows)
        self.rules, self.clues, self.family = "severe", "preferite", "tutte"
        self.levels = [0] * 54
        self.banned, self.admitted, self.wanted = set(), set(), set()
        self.lists, self.mine, self.masks = {}, {}, {}
        self.region, self.from_scratch, self.forms, self.partial = None, False, False, False
        self.most = {}
        languages, alone = [reference.italian], False
        if self.one_in(8):
            languages.append(english)
            self.arguments.append("--lessico=italiano,inglese")
        elif self.one_in(6):
            alone = self.draw_list()
        self.draw_content()
        self.draw_choice()
        for draw in (self.draw_bans, self.draw_masks, self.draw_region, self.draw_wanted):
            if self.one_in(5):
                draw()
        if self.one_in(6):
            self.draw_mine()
        self.known = KnownWords(languages, reference.kit, self.lists, self.mine, alone)

    def one_in(self, times):
        return self.chance.randrange(times) == 0

    def word(self, length):
        words = self.pools.common[length]
        return self.chance.choice(words) if words else "".join(self.chance.choices("AEIORSTNLC", k=length))

    def some_word(self):
        return self.word(len(self.chance.choice(self.runs)[3]) if self.runs else 5)

    # --- Words ---

    def draw_list(self):
        """A list beside Italian, or alone; gives which."""
        alone = self.one_in(2)
        lengths = sorted({len(run[3]) for run in self.runs}) or [3]
        words = [self.word(self.chance.choice(lengths)) for _ in range(3000 if alone else 200)]
        words += ["".join(self.chance.choices("AEIOSTRN", k=self.chance.choice(lengths))) for _ in range(300)]
        self.lists = {word: self.chance.choice([None, 1, 45, 90]) for word in words}
        self.files["elenco"] = "".join(
            word + ("\n" if score is None else f";{score}\n") for word, score in sorted(self.lists.items()))
        self.arguments.append("--lessico=elenco" if alone else "--lessico=italiano,elenco")
        return alone

    def draw_mine(self):
        for _ in range(20):
            self.mine[self.some_word()] = self.chance.choice([0, 5, 100])
        self.files["parole_mie.txt"] = "".join(f"{word};{score}\n" for word, score in sorted(self.mine.items()))

    def draw_bans(self):
        self.banned = {self.some_word() for _ in range(30)}
        self.admitted = set(self.chance.sample(self.pools.banned, 30)) - self.banned
        by_name, by_file = sorted(self.banned)[::2], sorted(self.banned)[1::2]
        self.files["vietate"] = "".join(f"{word.lower()}\n" for word in by_file)
        self.arguments += ["--vieta=" + ",".join(by_name), "--vieta-da=vietate"]
        self.arguments += ["--ammetti=" + ",".join(sorted(self.admitted))]
        self.crossword.banned = [self.some_word() for _ in range(10)]
        self.banned |= set(self.crossword.banned)

    def draw_wanted(self):
        word = self.some_word()
        if self.one_in(4):
            word = "".join(self.chance.choices("AEIORST", k=len(word)))
        if not word in self.banned | set(self.mine):
            self.wanted = {word}
            self.arguments.append("--vuole=" + word.lower())

    def draw_choice(self):
        if self.one_in(2):
            self.rules = self.chance.choice(sorted(SHARES))
            self.arguments.append("--regole=" + self.rules)
        if self.one_in(3):
            self.levels = [self.chance.choice([5, 15, 30, 40])] * 54
            self.arguments.append(f"--livello={self.levels[0]}")
        if self.one_in(5):
            length, least = self.chance.randint(3, 7), self.chance.choice([0, 20, 50])
            self.levels[length] = least
            self.arguments.append(f"--livello-lunghezza={length}:{least}")
        if self.one_in(2):
            self.clues = self.chance.choice(["no", "obbligatorie", "obbligatorie"])
            self.family = self.chance.choice(["tutte", "tutte", "facili", "difficili"])
            self.arguments += ["--definizioni=" + self.clues, "--famiglia=" + self.family]
        if self.one_in(4):
            self.forms = True
            self.arguments.append("--forme=si")
        for kind, option in (("straniera", "--straniere"), ("due", "--due")):
            if self.one_in(5):
                self.most[kind] = self.chance.randrange(12)
                self.arguments.append(f"{option}={self.most[kind]}")
        if self.one_in(5):
            self.partial = True
            self.arguments.append("--parziale")

    # --- The grid ---

    def put(self, cells, letters):
        for (y, x), letter in zip(cells, letters):
            self.rows[y][x] = letter

    def draw_content(self):
        if self.runs and self.one_in(3):
            for _, _, _, cells in self.chance.sample(self.runs, min(len(self.runs), self.chance.randint(1, 2))):
                # A word, or what only the author knows.
                own = self.one_in(4)
                self.put(cells, self.chance.choices(LETTERS, k=len(cells)) if own else self.word(len(cells)))
        if self.runs and self.one_in(4):
            y, x = self.chance.choice(self.chance.choice(self.runs)[3])
            self.rows[y][x] = self.chance.choice("AEIOSTRÀÉ")
        self.crossword.give_clues()
        self.crossword.clues = {place: clue for place, clue in self.crossword.clues.items() if self.one_in(2)}
        if self.one_in(6):
            self.from_scratch = True
            self.arguments.append("--da-capo")
            if self.runs and self.one_in(2):
                c, r, d, _ = self.chance.choice(self.runs)
                self.crossword.locked = [f"{c},{r},{d}"]

    def start(self):
        """The grid that is to be filled: without the letters that are dropped."""
        start = [list(row) for row in self.rows]
        if self.from_scratch:
            kept = {cell for c, r, d, cells in self.runs if f"{c},{r},{d}" in self.crossword.locked for cell in cells}
            for _, _, _, cells in self.runs:
                for y, x in cells:
                    if (y, x) not in kept and self.fills(y, x):
                        start[y][x] = "."
        return start

    def fills(self, y, x):
        if not self.region:
            return True
        left, top, right, bottom = self.region
        return left <= x + 1 <= right and top <= y + 1 <= bottom

    def draw_masks(self):
        for c, r, d, cells in self.chance.sample(self.runs, min(len(self.runs), 2)):
            mask = [letter if self.one_in(3) else "." for letter in self.word(len(cells))]
            start = self.start()
            for letter, (y, x) in zip(mask, cells):
                if letter != "." and (start[y][x] != "." or (y, x) in self.masks):
                    return
            if set(mask) != {"."}:
                self.masks.update({cell: letter for cell, letter in zip(cells, mask) if letter != "."})
                self.arguments.append(f"--maschera={c},{r},{d}:{''.join(mask)}")

    def draw_region(self):
        height, width = len(self.rows), len(self.rows[0])
        left, right = sorted(self.chance.randint(1, width) for _ in range(2))
        top, bottom = sorted(self.chance.randint(1, height) for _ in range(2))
        if not self.masks:
            self.region = (left, top, right, bottom)
            self.arguments.append(f"--regione={left},{top},{right},{bottom}")
