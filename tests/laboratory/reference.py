"""The lists of the sources and the encyclopedia, as a program of its own reads them."""
import lzma
import sqlite3
import unicodedata
from collections import defaultdict

LETTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZ"
FINITE = {"ind", "cong", "cond", "imp", "fin"}


def is_finite(code):
    return code[0] == "v" and bool(FINITE & set(code[1:]))  # a conjunction is "cong" too


def only_a_verb(code):
    """What rules count as a finite form: gerunds too."""
    return is_finite(code) or code[0] == "v" and "ger" in code


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
        return bool(self.readings) and all(only_a_verb(code) for code, _ in self.readings)

    def lemmas(self):
        return {lemma for _, lemma in self.readings}


def entries(text):
    return {entry.word: entry for entry in map(Entry, text.splitlines())}


def kit_clues(file):
    clues = defaultdict(lambda: {"F": set(), "D": set()})
    for line in file.read_text(encoding="utf-8").splitlines():
        word, family, clue = line.split("\t")
        clues[word][family].add(clue)
    return clues


def stored_clues(file):
    """The easy and the hard clues of a word, by its first row."""
    clues = {}
    base = sqlite3.connect(f"file:{file}?mode=ro", uri=True)
    for word, *families in base.execute(
            "SELECT PAROLA, DEFINIZ_FACILE, DEFINIZ_DIFFIC FROM Parole ORDER BY rowid"):
        clues.setdefault(word, tuple(
            {c.strip() for c in (text or "").replace("\r", "\n").split("\n") if c.strip()} for text in families))
    base.close()
    return clues


class Reference:
    """Italian and the kit by word, and how many clues a word has."""

    def __init__(self, sources, store):
        self.italian = entries(lzma.open(sources / "lexicon/italiano.tsv.xz", "rt", encoding="utf-8").read())
        self.kit = entries((sources / "lexicon/sigle.tsv").read_text(encoding="utf-8"))
        self._kit_clues = kit_clues(sources / "clues/sigle.tsv")
        self._clues = stored_clues(store)

    def of(self, word):
        return self.kit.get(word) or self.italian.get(word)

    def counts(self, word):
        easy, hard = self._clues.get(word, (set(), set()))
        kit = self._kit_clues.get(word, {"F": set(), "D": set()})
        return len(easy | kit["F"]), len(hard | kit["D"])
