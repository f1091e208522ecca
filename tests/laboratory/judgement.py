"""What is to be told of a crossword, found out by plain means."""
import re
import unicodedata
from collections import Counter, defaultdict

from planted import runs
from reference import LETTERS, folded


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

    def __init__(self, reference, crossword):
        self.reference = reference
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
            entry = reference.of(word)
            if not whole or not (entry or word in own):
                self.places["inesistente"].add(place)
            if whole and word in seen:
                self.places["ripetuta"].add(place)
            seen.setdefault(word, place)
            if whole and (word in banned or (entry and "bandita" in entry.marks)):
                self.places["vietata"].add(place)
            if entry and whole and word not in own:
                judged.append((place, word, entry))
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
            if word in self.reference.kit:
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
        families = [self.reference.counts(w[3]) for w in self.words]
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
