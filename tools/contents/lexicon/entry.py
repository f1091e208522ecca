"""An entry of the lexicon and its line."""

import dataclasses

from .text import in_code_page

MARKS = ("nome", "sigla", "straniera", "locuzione", "gioco", "tronca", "bandita")


@dataclasses.dataclass
class Entry:
    folded: str
    spelled: str
    score: int = 0
    marks: set = dataclasses.field(default_factory=set)
    readings: list = dataclasses.field(default_factory=list)  # of (code, lemma), commonest first

    def line(self):
        marks = ",".join(mark for mark in MARKS if mark in self.marks)
        readings = ";".join(code if lemma == self.spelled else f"{code}={lemma}"
                            for code, lemma in self.readings)
        return in_code_page(f"{self.spelled}\t{self.score}\t{marks}\t{readings}")


def lines(entries):
    """The lines of a list in its order."""
    ordered = sorted(entries, key=lambda e: (len(e.folded), -e.score, e.folded))
    return [entry.line() for entry in ordered]
