"""The Italian entries: which there are, how they are spelled, read and scored."""

import collections
import re

from .entry import Entry
from .knowledge import FINITE, Knowledge, only_finite
from .lemmas import superlative_lemma
from .marks import Marks
from .readings import ending_number
from .scores import (EVERYDAY_SCORE, GUESSED_DISCOUNT, HAND_SCORE, LIST_SHARE, NAME_DISCOUNT,
                     NAME_LEAST, NAME_USE, PLURAL_SCORE, SEEN_SCORE, Scale, by_frequency, with_lemma)
from .text import SHORTEST, fold, list_order

MOST_READINGS = 6
RARE_READING = 0.0005  # of a form's occurrences: what is meant less often is left out
LEAST_FINITE = 1.5  # expected occurrences of a verb's form that is worth an entry
KNOWN_VERB = 2  # sources that a verb must have for a participle to count beside a finite form
PREFIXES = ("ri", "stra", "pre", "dis", "s", "auto", "super", "sovra")
SUPERLATIVE = re.compile("issim[oaie]$")
# Endings that only finite forms have, of verbs that no source knows.
ONLY_FINITE = re.compile("..(([aei]ss|ebb|ett|[^aeiou]s|ar|ir)ero|[aei]rono|[aei]ranno|[ei]remmo|"
                         "[ei]rebbe|[ei]resti|[aei]va(mo|te|no)|[ae]ssimo)$")


class Italian:
    def __init__(self, sources, words, hand_folder):
        self.words = [word for word in words if len(word) >= SHORTEST]
        self.know = Knowledge(sources, hand_folder)
        self.marks = Marks(self.know)
        self.list_order = list_order(self.words)
        self.guessed = set()  # entries whose readings no source has

    def entries(self):
        entries = []
        for key in sorted(self._keys()):
            entry = Entry(key, self._spelling(key))
            entry.readings = self._read(entry)
            self._put_own_first(entry)
            self.marks.mark(entry)
            entries.append(entry)
        logarithms = [self._logarithm(entry) for entry in entries]
        scale = Scale(logarithms)
        for entry, logarithm in zip(entries, logarithms):
            entry.score = self._hand_score(entry, scale.points(logarithm))
        return entries

    # ---- which entries

    def _keys(self):
        """The word list, and what it lacks, since it had room for so many of a length only."""
        hand, readings = self.know.hand, self.know.readings
        keys = set(self.words).union(hand.names, hand.abbreviations, hand.phrases, hand.foreign,
                                     hand.own_words, hand.three, hand.judged)
        keys |= {fold(stem) for stem in readings.hunspell.stems
                 if stem.isalpha() and stem[0].isupper()}
        keys |= {fold(form) for form, choices in readings.table.items()
                 if self._worth_adding(form, choices)}
        return {key for key in keys - hand.dropped.keys()
                if len(key) >= SHORTEST and hand.kind(key) != "via"}

    def _worth_adding(self, form, choices):
        know = self.know
        if know.counts.all(form):
            return True
        if form not in know.readings.attested:
            return False
        if all(code.endswith("comp") for code, _ in choices):
            return any(sources > 1 for sources in choices.values())
        if any(code[:2] != "v." for code, _ in choices):
            return True
        verbs = {lemma for _, lemma in choices if know.readings.votes[lemma] > 1}
        if not only_finite(choices):
            return bool(verbs)
        return any(know.expected(code, lemma) >= LEAST_FINITE
                   for code, lemma in choices if lemma in verbs)

    def _spelling(self, key):
        hand, know = self.know.hand, self.know
        if key in hand.phrases and not know.is_one_word(key):
            return hand.phrases[key][0]
        for table in (hand.three, hand.names, hand.own_words):
            if key in table:
                return table[key][0]
        for table in (hand.abbreviations, hand.foreign):
            if key in table and not know.has_word(key):
                return table[key][0]
        return know.spelled_forms(key)[0]

    # ---- readings

    def _read(self, entry):
        hand, key = self.know.hand, entry.folded
        if key in hand.judged:
            judged = list(hand.judged[key])
            unnamed = key in hand.names and all(code != "np" for code, _ in judged)
            return [("np", entry.spelled)] + judged if unnamed else judged
        forms = self.know.spelled_forms(key)
        weights = self._weights(forms, key in hand.phrases)
        readings = kept(weights)
        if not readings and key not in hand.phrases:
            readings = self._guessed(forms[0])
            self.guessed.add(key)
        return self.marks.with_name(entry, forms, readings)

    def _put_own_first(self, entry):
        """Readings of the entry as spelled before those of other spellings (inizio, iniziò)."""
        own = self.know.readings.of(entry.spelled)
        if own:
            entry.readings.sort(key=lambda one: one not in own and one[0] != "np")

    def _weights(self, forms, is_phrase):
        """Readings of all spelled forms to how often each is meant."""
        weights = collections.Counter()
        for form in forms:
            choices = self.know.readings.of(form)
            unseen = .1 if only_finite(choices) else 1  # zittò beside zitto
            for reading, share in self.know.plausibility.shares(choices).items():
                weights[reading] += share * (self.know.counts.as_word(form) + unseen)
        if is_phrase:  # in fieri is no infierì
            return {reading: weight for reading, weight in weights.items()
                    if not reading[0].startswith("v.")}
        infinitives = {lemma for code, lemma in weights if code == "v.inf"}
        finite = any(FINITE.match(code) for code, _ in weights)
        return {(code, lemma): weight for (code, lemma), weight in weights.items()
                if not (FINITE.match(code) and lemma in infinitives)  # fare is no farè
                and not (finite and code.startswith("v.part")  # sposti is none of sporre
                         and self.know.readings.votes[lemma] <= KNOWN_VERB)}

    def _guessed(self, form):
        """A form without readings: a superlative, made with a prefix, or ending as only verbs'
        forms do."""
        readings = self.know.readings
        if SUPERLATIVE.search(form):
            lemma = superlative_lemma(form, readings.has)
            return [(f"a.{ending_number(form)}.comp", lemma)] if lemma != form else []
        for prefix in PREFIXES:
            rest = form.removeprefix(prefix)
            if rest != form and len(rest) > SHORTEST:
                found = [(code, prefix + lemma) for code, lemma in readings.of(rest)
                         if code.startswith("v.") and code != "v.inf"]
                if found:
                    return sorted(found)[:MOST_READINGS]
        if self.know.counts.mostly_capital(form):
            return []
        found = readings.verbs.by_ending(form)
        if not found and ONLY_FINITE.search(form):
            found = "v.fin", form
        return [found] if found else []

    # ---- scores

    def _logarithm(self, entry):
        """Of an entry's occurrences: its commonest reading tells."""
        know, counts = self.know, self.know.counts
        forms = know.spelled_forms(entry.folded)
        count = sum(counts.all(form) for form in forms)
        if "nome" in entry.marks:
            logarithm = by_frequency(max(count, NAME_LEAST)) - NAME_DISCOUNT
        else:
            if entry.readings:
                count -= NAME_USE * sum(counts.all(form) - counts.as_word(form) for form in forms)
            logarithm = max((with_lemma(code, count, know.expected(code, lemma),
                                        know.lemma_count(code, lemma))
                             for code, lemma in entry.readings if code != "np"),
                            default=by_frequency(count))
        if count:
            return logarithm
        old = entry.folded.endswith("II") and not know.readings.attested & set(forms)  # archivii
        if "nome" not in entry.marks and (old or entry.folded in self.guessed):
            logarithm -= GUESSED_DISCOUNT
        return logarithm + LIST_SHARE * self.list_order.get(entry.folded, 0)

    def _hand_score(self, entry, score):
        """The score that somebody gave by hand; the least of what is in such lists at all."""
        hand, key = self.know.hand, entry.folded
        lists = (hand.scores, hand.three, hand.phrases, hand.names, hand.own_words,
                 hand.abbreviations)
        given = [row[key][-1] for row in lists if key in row and row[key][-1].isdigit()]
        if given:
            return int(given[0])
        if key in hand.everyday:
            return max(score, EVERYDAY_SCORE)
        if score >= SEEN_SCORE and self._is_everyday_plural(entry):
            return max(score, PLURAL_SCORE)
        listed = any(key in table for table in (hand.names, hand.abbreviations, hand.phrases))
        return max(score, HAND_SCORE) if listed else score

    def _is_everyday_plural(self, entry):
        code, lemma = entry.readings[0] if entry.readings else ("", "")
        return (code in ("s.mp", "s.fp") and fold(lemma) in self.know.hand.everyday
                and lemma not in self.know.readings.verbs.forms)


def kept(weights):
    """The commonest readings, and always one that is no finite form where there is any."""
    total = sum(weights.values())
    ordered = [reading for reading, weight in sorted(
        weights.items(), key=lambda item: (-item[1], item[0])) if weight > total * RARE_READING]
    chosen = ordered[:MOST_READINGS]
    others = [reading for reading in weights if not FINITE.match(reading[0])]
    if others and only_finite(chosen):
        chosen = chosen[:MOST_READINGS - 1] + [max(others, key=lambda one: (weights[one], one))]
    return chosen
