"""Which Italian entries are names, abbreviations, foreign, phrases, truncated or banned."""

import re

from .knowledge import only_finite
from .text import SHORTEST

WHOLE_COUNT = 300  # occurrences of a lemma that is common enough to be met truncated
TRUNCATED = re.compile("[aeiou][lnrm]$")
# What looks truncated but has a place of its own in dictionaries.
WORDS_IN_THEIR_OWN_RIGHT = set(
    "san vuol son han star pulsar dinar spin lichen canter caftan kaftan mohair salam metil acetil "
    "social terrier bustier".split())
SEVERAL_WORDS = re.compile(r"\w[ '’]\w")


class Marks:
    def __init__(self, knowledge):
        self.know = knowledge

    def mark(self, entry):
        """Sets an entry's marks, and the spelling and readings that go with them."""
        know, hand, key = self.know, self.know.hand, entry.folded
        kind = hand.kind(key)
        if key in hand.abbreviations and key not in hand.names and not know.has_word(key):
            kind = "sigla"
        if kind in ("sigla", "gioco", "straniera"):
            entry.marks.add(kind)
        if kind == "gioco":
            entry.readings = []
        if kind == "sigla":
            entry.readings = abbreviation_readings(entry)
        if kind in ("", "parola") and key not in hand.names:
            self._mark_truncated(entry)
        if entry.readings and entry.readings[0][0] == "np" and kind in ("", "nome"):
            entry.marks.add("nome")
            entry.spelled = entry.readings[0][1]
        if SEVERAL_WORDS.search(entry.spelled) or "-" in entry.spelled and key in hand.phrases:
            entry.marks.add("locuzione")
        if key in hand.banned:
            entry.marks.add("bandita")
        if not kind and key not in hand.own_words and (
                key in hand.foreign or not entry.readings and know.is_foreign(entry.spelled)):
            entry.marks.add("straniera")

    # ---- names

    def with_name(self, entry, forms, readings):
        """The readings with that of a name, where the entry is one: first where it is chiefly a
        name or else a finite form only. `forms` are the spelled ones, the commonest first."""
        if not self._is_name(entry.folded, forms, readings):
            return readings
        name = ("np", self._capitalised(entry, forms))
        chiefly = (entry.folded in self.know.hand.names or only_finite(readings)
                   or self.know.counts.mostly_capital(forms[0]))
        return [name] + readings if chiefly else readings + [name]

    def _is_name(self, key, forms, readings):
        know, hand, counts = self.know, self.know.hand, self.know.counts
        if key in hand.own_words:
            return False
        if key in hand.names or hand.kind(key):
            return hand.kind(key) in ("", "nome")
        named = [form for form in forms if form in know.readings.names]
        if named:
            return (not readings or any(counts.mostly_capital(form) for form in named)
                    or only_finite(readings)
                    and any(counts.capital[form] > counts.small[form] for form in named))
        return not readings and any(
            counts.mostly_capital(form) or know.foreign_counts.mostly_capital(form)
            for form in forms if not know.is_foreign(form))

    def _capitalised(self, entry, forms):
        if entry.spelled != entry.spelled.lower():
            return entry.spelled
        names = self.know.readings.names
        form = next((form for form in forms if form in names), forms[0])
        return names.get(form) or form.capitalize()

    # ---- truncated words

    def _mark_truncated(self, entry):
        form = entry.folded.lower()
        if TRUNCATED.search(form) and form not in WORDS_IN_THEIR_OWN_RIGHT:
            whole = self._readings_of_whole(entry, form)
            if whole:
                entry.marks.add("tronca")
                entry.spelled = form
                entry.readings = whole

    def _readings_of_whole(self, entry, form):
        """The readings of what a form is truncated from: an infinitive, a noun or adjective, a
        third person; none where it is a word itself."""
        know, table = self.know, self.know.readings.table
        if entry.folded in know.hand.judged:
            cut = all(lemma.startswith(form) and lemma != form for _, lemma in entry.readings)
            return entry.readings if cut else []
        if know.readings.votes[form] > 1 or any(
                code[:2] != "v." and sources > 1
                for (code, _), sources in table.get(form, {}).items()):
            return []
        long = len(form) > SHORTEST
        third = [(code, lemma) for code, lemma in table.get(form + "o", ())
                 if code.startswith(("v.ind", "v.cong")) and code.endswith("3p")]
        if long and third and not entry.readings:
            return third[:1]
        long = long and not know.is_foreign(form)
        named = form in know.readings.names or any(code == "np" for code, _ in entry.readings)
        for whole in (form + "e", form + "o"):
            common = know.counts.all(form) < know.counts.all(whole) / 2
            for code, lemma in know.plausibility.ordered(table.get(whole, {})):
                if code == "v.inf" or (code[:2] in ("s.", "a.") and long and not named and common
                                       and know.lemma_count(code, lemma) > WHOLE_COUNT):
                    return [(code, lemma)]
        return []


def abbreviation_readings(entry):
    """Besides the abbreviation what real nouns and adjectives stand there; dictionaries have
    abbreviations as nouns too, which are their own lemma."""
    return [("sig", entry.spelled)] + [
        (code, lemma) for code, lemma in entry.readings
        if code[:2] in ("s.", "a.") and lemma.lower() != entry.folded.lower()]
