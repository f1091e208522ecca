"""The Italian entries: which there are, how they are spelled, read, marked and scored."""

import collections
import re

from .entry import Entry
from .hand import HandLists
from .counts import Counts
from .plausibility import Plausibility, inflection_share
from .readings import Readings
from .scores import (LEAST_COUNT, LEMMA_BY_VOTES, NAME_DISCOUNT, Scale, by_frequency, lemma_weight,
                     with_lemma)
from .text import fold, list_order

GUESSED_DISCOUNT = 1.5  # of a logarithm: what a form has less that only its ending shows for a verb's
SHORTEST = 3  # two letters are the kit's
FOREIGN_LOCALES = ("en_US", "en_GB", "fr_FR", "de_DE", "es_ES")
MOST_READINGS = 6
RARE_READING = 0.0005  # of a form's occurrences: what is meant less often is left out
LEAST_FINITE = 1.5  # expected occurrences of a verb's form that only conjugation knows
HAND_SCORE = 40  # the least that an entry has that somebody wrote down by hand
LIST_SHARE = 0.2  # of a logarithm: what the order of the word list makes among words never seen
TRUNCATED = re.compile("[aeiou][lnrm]$")
WHOLE_COUNT = 300  # occurrences of a lemma that is common enough to be met truncated
# What looks truncated but has a place of its own in dictionaries.
WORDS_IN_THEIR_OWN_RIGHT = set(
    "gran san bel buon quel ben mal fin pur suor tal qual nessun ciascun alcun ognun talun or ancor finor "
    "fuor ver vuol son han star pulsar dinar marin spin lichen canter caftan kaftan mohair salam metil "
    "acetil ventun trentun quarantun cinquantun social terrier bustier monsignor".split())
# Endings that only finite forms have, of verbs that no source knows.
ONLY_FINITE = re.compile("..(([aei]ss|ebb|ett|[^aeiou]s|ar|ir)ero|[aei]rono|[aei]ranno|[ei]remmo|[ei]rebbe|"
                         "[ei]resti|[aei]va(mo|te|no)|[aei]ssimo)$")
SEVERAL_WORDS = re.compile(r"\w[ '’]\w")
FINITE = re.compile(r"v\.(ind|cong|cond|imp|fin|ger)")


class Italian:
    def __init__(self, sources, words, hand_folder):
        self.words = [word for word in words if len(word) >= SHORTEST]
        self.hand = HandLists(hand_folder)
        self.counts = Counts(sources.frequencies("it_IT"))
        self.foreign_counts = Counts(sources.frequencies(*FOREIGN_LOCALES))
        self.readings = Readings(sources)
        self.plausibility = Plausibility(
            self.readings.table,
            {form: self.counts.as_word(form) for form in self.readings.table})
        self.spellings = self._spellings()
        self.list_order = list_order(self.words)
        self.guessed = set()  # entries whose readings no source has

    def entries(self):
        left_out = {key for key, row in self.hand.three.items() if row[1:2] == ["via"]}
        keys = (set(self.words) | self._additions()) - left_out
        entries = {}
        logarithms = {}
        for key in sorted(keys):
            entry = Entry(key, *self._spelling(key))
            entry.readings = self._read(entry)
            self._mark(entry)
            entries[key] = entry
            logarithms[key] = self._logarithm(entry)
        scale = Scale(logarithms.values())
        for key, entry in entries.items():
            entry.score = scale.points(logarithms[key])
            self._apply_hand_scores(entry)
        return list(entries.values())

    # ---- which entries

    def _additions(self):
        """What the word list lacks, since it had room for so many of a length only."""
        known = set(self.words)
        hand = self.hand
        added = set(hand.names) | set(hand.abbreviations) | set(hand.phrases) | set(hand.foreign)
        added |= set(hand.own_words)
        added |= {key for key, row in hand.three.items() if row[1:2] != ["via"]} | set(hand.judged)
        added |= {fold(stem) for stem in self.readings.hunspell.stems
                  if stem.isalpha() and stem[0].isupper()}
        for form, choices in self.readings.table.items():
            key = fold(form)
            if key and key not in known and self._worth_adding(form, choices):
                added.add(key)
        return {key for key in added if len(key) >= SHORTEST}

    def _worth_adding(self, form, choices):
        if self.counts.all(form):
            return True
        if form not in self.readings.attested:
            return False
        if all(code.endswith("comp") for code, _ in choices):
            return any(number > 1 for number in choices.values())
        if any(code[:2] != "v." for code, _ in choices):
            return True
        known = self.readings.votes
        verbs = {lemma for _, lemma in choices if known[lemma] > 1}
        if not all(FINITE.match(code) for code, _ in choices):
            return bool(verbs)
        return any(self._expected(code, lemma) >= LEAST_FINITE for code, lemma in choices
                   if lemma in verbs)

    # ---- spelling

    def _spellings(self):
        """Folded form to the spelled ones, in small letters."""
        spellings = collections.defaultdict(set)
        forms = set(self.readings.table) | set(self.readings.names)
        forms |= set(self.counts.small) | set(self.counts.capital)
        for form in forms:
            spellings[fold(form)].add(form)
        return spellings

    def _spelled_forms(self, key):
        """The spelled forms of a key, the commonest first."""
        return sorted(self.spellings.get(key) or {key.lower()},
                      key=lambda form: (-self.counts.all(form), -len(self.readings.of(form)),
                                        not form.isascii(), form))

    def _spelling(self, key):
        for table in (self.hand.phrases, self.hand.three, self.hand.names, self.hand.own_words):
            if key in table:
                return (table[key][0],)
        for table in (self.hand.abbreviations, self.hand.foreign):
            if key in table and not self._has_word(key):
                return (table[key][0],)
        return (self._spelled_forms(key)[0],)

    def _has_word(self, key):
        """Whether an ordinary word, no finite form, stands under the key."""
        return any(code not in ("np", "sig") and not FINITE.match(code)
                   for form in self._spelled_forms(key)
                   for code, _ in self.readings.of(form)
                   if self.counts.small[form] or not self.counts.capital[form])

    # ---- readings

    def _read(self, entry):
        if entry.folded in self.hand.judged:
            judged = self.hand.judged[entry.folded]
            named = entry.folded in self.hand.names and all(code != "np" for code, _ in judged)
            return [("np", entry.spelled)] * named + judged
        forms = self._spelled_forms(entry.folded)
        weights = collections.Counter()
        for form in forms:
            share_of_form = self.counts.as_word(form) + 1
            for reading, share in self.plausibility.shares(self.readings.of(form)).items():
                weights[reading] += share * share_of_form
        if any(FINITE.match(code) for code, _ in weights):  # sposti is no participle of sporre
            weights = {(code, lemma): weight for (code, lemma), weight in weights.items()
                       if not code.startswith("v.part") or self.readings.votes[lemma] > 2}
        total = sum(weights.values())
        ordered = [reading for reading, weight in sorted(
            weights.items(), key=lambda item: (-item[1], item[0])) if weight > total * RARE_READING]
        ordered = self._kept(ordered, weights)
        if not ordered:
            ordered = self._guessed(forms[0])
            self.guessed.add(entry.folded)
        if self._is_name(entry.folded, forms, ordered):
            reading = ("np", self._capitalised(entry, forms))
            first = entry.folded in self.hand.names or self._name_first(forms, ordered)
            ordered = [reading] + ordered if first else ordered + [reading]
        return ordered

    @staticmethod
    def _kept(ordered, weights):
        """The commonest readings, and always one that is no finite form where there is any."""
        kept = ordered[:MOST_READINGS]
        others = [reading for reading in weights if not FINITE.match(reading[0])]
        if others and all(FINITE.match(code) for code, _ in kept):
            kept = kept[:MOST_READINGS - 1] + [max(others, key=lambda one: (weights[one], one))]
        return kept

    def _guessed(self, form):
        """A form without readings: made with a prefix, or ending as only finite forms do."""
        for prefix in ("ri", "stra", "pre", "dis", "s", "auto", "super", "sovra"):
            rest = form.removeprefix(prefix)
            if rest != form and len(rest) > 3:
                found = [(code, prefix + lemma) for code, lemma in self.readings.of(rest)
                         if code.startswith("v.") and code != "v.inf"]
                if found:
                    return sorted(found)[:MOST_READINGS]
        found = self.readings.verbs.by_ending(form)
        if self.counts.mostly_capital(form):
            return []
        if not found and ONLY_FINITE.search(form) and not form.endswith("issimo"):
            found = "v.fin", form
        return [found] if found else []

    # ---- names and marks

    def _is_name(self, key, forms, ordered):
        if key in self.hand.own_words:
            return False
        kind = self.hand.three.get(key, ["", ""])[1]
        if key in self.hand.names or kind:
            return kind in ("", "nome")
        named = [form for form in forms if form in self.readings.names]
        if named:
            return not ordered or any(self.counts.mostly_capital(form) for form in named) or (
                all(FINITE.match(code) for code, _ in ordered)
                and any(self.counts.capital[form] > self.counts.small[form] for form in named))
        return not ordered and any(self.counts.mostly_capital(form) or
                                   self.foreign_counts.mostly_capital(form) for form in forms
                                   if not self._is_foreign(form))

    def _is_foreign(self, form):
        """Whether a form without Italian reading is a common word of another language."""
        return (self.foreign_counts.small[form] > self.foreign_counts.capital[form]
                and self.counts.small[form] < max(LEAST_COUNT, self.counts.capital[form]))

    def _name_first(self, forms, ordered):
        return not ordered or all(FINITE.match(code) for code, _ in ordered) or (
            self.counts.mostly_capital(forms[0]))

    def _capitalised(self, entry, forms):
        if entry.spelled != entry.spelled.lower():
            return entry.spelled
        form = next((form for form in forms if form in self.readings.names), forms[0])
        return self.readings.names.get(form) or form.capitalize()

    def _mark(self, entry):
        key, hand = entry.folded, self.hand
        kind = hand.three.get(key, ["", ""])[1]
        if key in hand.abbreviations and key not in hand.names and not self._has_word(key):
            kind = "sigla"
        if kind in ("sigla", "gioco", "straniera"):
            entry.marks.add(kind)
        if kind == "gioco":
            entry.readings = []
        if kind == "sigla":
            entry.readings = [("sig", entry.spelled)] + [
                reading for reading in entry.readings
                if reading[0][:2] in ("s.", "a.") and reading[1].lower() != entry.folded.lower()]
        if kind in ("", "parola") and key not in hand.names:
            self._mark_truncated(entry)
        if entry.readings and entry.readings[0][0] == "np" and kind in ("", "nome"):
            entry.marks.add("nome")
            entry.spelled = entry.readings[0][1]
        if key in hand.phrases or SEVERAL_WORDS.search(entry.spelled):
            entry.marks.add("locuzione")
        if key in hand.banned:
            entry.marks.add("bandita")
        if not kind and key not in hand.own_words and (
                key in hand.foreign or not entry.readings and self._is_foreign(entry.spelled)):
            entry.marks.add("straniera")

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
        table = self.readings.table
        if entry.folded in self.hand.judged:
            cut = all(lemma in (form + "e", form + "o") and code.startswith(("v.inf", "s", "a."))
                      for code, lemma in entry.readings)
            return entry.readings * cut
        if self.readings.votes[form] > 1 or any(
                code[:2] != "v." and number > 1 for (code, _), number in table.get(form, {}).items()):
            return []
        long = len(form) > SHORTEST and not self._is_foreign(form)
        if long and not entry.readings:
            for code, lemma in table.get(form + "o", ()):
                if code.startswith("v.ind") and code.endswith("3p"):
                    return [(code, lemma)]
        named = form in self.readings.names or any(code == "np" for code, _ in entry.readings)
        for whole in (form + "e", form + "o"):
            common = self.counts.all(form) < self.counts.all(whole) / 2
            for code, lemma in self.plausibility.ordered(table.get(whole, {})):
                if code == "v.inf" or (code[:2] in ("s.", "a.") and long and not named and common
                                       and self._lemma_count(code, lemma) > WHOLE_COUNT):
                    return [(code, lemma)]
        return []

    # ---- scores

    def _expected(self, code, lemma):
        return self._lemma_count(code, lemma) * inflection_share(code) / 100

    def _lemma_count(self, code, lemma):
        known = self.plausibility.lemma_counts.get((lemma, code.split(".")[0]), 0)
        votes = min(self.readings.votes[lemma], len(LEMMA_BY_VOTES) - 1)
        return max(known, LEMMA_BY_VOTES[votes])

    def _logarithm(self, entry):
        """The commonest reading tells; a form's occurrences as a name count less."""
        forms = self._spelled_forms(entry.folded)
        count = sum(self.counts.all(form) for form in forms)
        if entry.readings and entry.readings[0][0] != "np":
            named = sum(self.counts.all(form) - self.counts.as_word(form) for form in forms)
            count -= named * 0.8
        choices = [with_lemma(code, count, self._expected(code, lemma),
                              self._lemma_count(code, lemma))
                   for code, lemma in entry.readings if code != "np"]
        best = max(choices) if choices else by_frequency(count)
        if not count and (entry.folded in self.guessed or entry.folded.endswith("II")
                          and not self.readings.attested & set(forms)):
            best -= GUESSED_DISCOUNT  # archivii for archivi too
        if "nome" in entry.marks:
            best = by_frequency(count) - NAME_DISCOUNT
        if not count:
            best += LIST_SHARE * self.list_order.get(entry.folded, 0)
        return best

    def _apply_hand_scores(self, entry):
        hand, key = self.hand, entry.folded
        scores = [row[-1] for row in (table.get(key, []) for table in (
            hand.three, hand.phrases, hand.names, hand.own_words, hand.abbreviations))
                  if row[-1:] and row[-1].isdigit()]
        if scores:
            entry.score = int(scores[0])
        elif any(key in table for table in (hand.names, hand.abbreviations, hand.phrases)):
            entry.score = max(entry.score, HAND_SCORE)
