"""What is known of Italian forms, for all that is decided about entries."""

import collections
import re

from .counts import Counts
from .hand import HandLists
from .plausibility import Plausibility, inflection_share
from .readings import Readings
from .scores import LEAST_COUNT, LEMMA_BY_VOTES
from .text import fold

FOREIGN_LOCALES = ("en_US", "en_GB", "fr_FR", "de_DE", "es_ES")
WORD_BEFORE_VERB = 10  # times commoner that a finite form must be to give an entry its spelling
FINITE = re.compile(r"v\.(ind|cong|cond|imp|fin|ger)")


def only_finite(readings):
    """Whether all readings, pairs of code and lemma, are of finite forms."""
    return all(FINITE.match(code) for code, _ in readings)


class Knowledge:
    """Hand-made lists, frequencies, readings and how plausible each is. Keys are folded."""

    def __init__(self, sources, hand_folder):
        self.hand = HandLists(hand_folder)
        self.counts = Counts(sources.frequencies("it_IT"))
        self.foreign_counts = Counts(sources.frequencies(*FOREIGN_LOCALES))
        self.readings = Readings(sources)
        self.plausibility = Plausibility(
            self.readings.table,
            {form: self.counts.as_word(form) for form in self.readings.table})
        self.spellings = collections.defaultdict(set)  # key to spelled forms in small letters
        for form in [*self.readings.table, *self.readings.names, *self.counts.small,
                     *self.counts.capital]:
            self.spellings[fold(form)].add(form)

    def spelled_forms(self, key):
        """The spelled forms of a key, the commonest first, but a word before a finite form that is
        somewhat commoner."""
        def weight(form):
            word = any(not FINITE.match(code) for code, _ in self.readings.table.get(form, ()))
            return self.counts.all(form) * (WORD_BEFORE_VERB if word else 1)
        return sorted(self.spellings.get(key) or {key.lower()},
                      key=lambda form: (-weight(form), -len(self.readings.of(form)),
                                        not form.isascii(), form))

    def has_word(self, key):
        """Whether an ordinary word, no finite form, stands under the key."""
        return any(code not in ("np", "sig") and not FINITE.match(code)
                   for form in self.spelled_forms(key)
                   for code, _ in self.readings.of(form)
                   if self.counts.small[form] or not self.counts.capital[form])

    def is_one_word(self, key):
        """Whether dictionaries write a phrase together: blackout, buonsenso."""
        return any(sources > 1 and code[:2] in ("s.", "a.", "av")
                   for form in self.spelled_forms(key)
                   for (code, _), sources in self.readings.table.get(form, {}).items())

    def is_foreign(self, form):
        """Whether a form without Italian reading is a common word of another language."""
        return (self.foreign_counts.small[form] > self.foreign_counts.capital[form]
                and self.counts.small[form] < max(LEAST_COUNT, self.counts.capital[form]))

    def lemma_count(self, code, lemma):
        """Occurrences of all forms of a lemma, by the number of sources where none is seen."""
        known = self.plausibility.lemma_counts.get((lemma, code.split(".")[0]), 0)
        votes = min(self.readings.votes[lemma], len(LEMMA_BY_VOTES) - 1)
        return max(known, LEMMA_BY_VOTES[votes])

    def expected(self, code, lemma):
        """Occurrences that a form with this reading should have."""
        return self.lemma_count(code, lemma) * inflection_share(code) / 100
