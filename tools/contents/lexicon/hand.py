"""The hand-made lists that go into the Italian lexicon. Each may be missing."""

from .text import fold, hand_lines


class HandLists:
    """Each list as folded form to the fields of its line: the spelling first, a score last."""

    def __init__(self, folder):
        self.banned = table(folder / "bandite.txt")
        self.foreign = table(folder / "straniere.txt")
        self.names = table(folder / "nomi.txt")
        self.own_words = table(folder / "parole.txt")  # sources take them for names or foreign
        self.abbreviations = table(folder / "sigle_lunghe.txt")
        self.three = table(folder / "tre_lettere.tsv")
        self.phrases = table(folder / "locuzioni.txt")
        self.scores = table(folder / "punteggi.tsv")
        self.everyday = table(folder / "quotidiane.txt")
        self.dropped = table(folder / "scartate.txt")
        self.judged = {key: readings_of(fields)
                       for key, fields in table(folder / "ambigue.tsv").items()}

    def kind(self, key):
        """What an entry of three letters was judged to be; "" for all others."""
        return self.three[key][1] if len(self.three.get(key, ())) > 1 else ""


def table(path):
    rows = [[field.strip() for field in line.split("\t")] for line in hand_lines(path)]
    return {fold(row[0]): row for row in rows if fold(row[0])}


def readings_of(fields):
    """Pairs of code and lemma of a line of ambigue.tsv."""
    pairs = []
    for reading in fields[1].split(";") if len(fields) > 1 else ():
        code, _, lemma = reading.partition("=")
        if code:
            pairs.append((code, lemma or fields[0]))
    return pairs
