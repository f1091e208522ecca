"""The entries of the languages that are filled with, but not read: spelling, names, scores."""

import collections
import math

from .entry import Entry
from .counts import Counts
from .scores import MIDDLE_RANK, TOP_RANK, Scale
from .text import SHORTEST, fold, list_order

LIST_SHARE = 0.9  # of a logarithm: what the order of the word list makes among words never seen
HEADWORD_BONUS = 0.2

# Lists of English words, the shorter the commoner, and the logarithm of occurrences that a word
# has which the frequency list lacks.
ENGLISH_LISTS = (("american-english-small", 1.0), ("british-english-small", 1.0),
                 ("american-english", 0.8), ("british-english", 0.8),
                 ("american-english-large", 0.3), ("british-english-large", 0.3),
                 ("american-english-huge", -0.2), ("british-english-huge", -0.2))
# The same for French: a form of a dictionary, an inflected one, one of a verb.
FRENCH_STEM, FRENCH_INFLECTED, FRENCH_VERB = 0.9, 0.6, -0.2
FRENCH_NAMES = ("po:npr", "po:patr", "po:prn")
UNKNOWN = -0.4


def others(language, sources, words):
    if language == "latino":
        return latin(words)
    build = {"inglese": english, "francese": french}[language]
    counts, known, names = build(sources)
    return by_counts([word for word in words if len(word) >= SHORTEST],
                     counts, known, names)


def english(sources):
    known = {}
    for name, logarithm in ENGLISH_LISTS:
        for word in sources.words(name):
            known.setdefault(word, logarithm)
    names = {word.lower() for word in known if word != word.lower() and word.lower() not in known}
    return Counts(sources.frequencies("en_US", "en_GB")), known, names


def french(sources):
    known = {}
    hunspell = sources.hunspell("fr")
    names = set()
    for stem in hunspell.stems:
        label = hunspell.labels[stem]
        known[stem] = max(known.get(stem, UNKNOWN), FRENCH_STEM)
        if any(name in label for name in FRENCH_NAMES):
            names.add(stem.lower())
        inflected = FRENCH_VERB if "po:v" in label else FRENCH_INFLECTED
        for form in hunspell.expanded(stem):
            known[form] = max(known.get(form, UNKNOWN), inflected)
    for word in sources.words("french"):
        known.setdefault(word, UNKNOWN)
    for word in sources.french_headwords():
        if word in known:
            known[word] += HEADWORD_BONUS
    names -= {form for form in known if form == form.lower()}
    return Counts(sources.frequencies("fr_FR")), known, names


def by_counts(words, counts, known, names):
    """Entries scored by occurrences, by the lists that have a word where it never occurs."""
    spellings = collections.defaultdict(dict)
    for form in [*known, *counts.small]:
        spellings[fold(form)].setdefault(form)
    for form in counts.capital:
        if not spellings[fold(form)]:
            spellings[fold(form)].setdefault(form.capitalize())
            names.add(form)
    order = list_order(words)
    entries, logarithms = [], []
    for word in words:
        forms = spellings.get(word) or {word.lower(): None}
        small = [form for form in forms if form == form.lower()]
        spelled = min(small or forms, key=lambda form: (
            "'" in form, -counts.all(form.lower()), -known.get(form, UNKNOWN), form))
        entry = Entry(word, spelled)
        if spelled.lower() in names and not small:
            entry.marks.add("nome")
        count = sum(counts.all(form) for form in {form.lower() for form in forms})
        logarithms.append(math.log10(count) if count else LIST_SHARE * order[word] + max(
            known.get(form, UNKNOWN) for form in forms))
        entries.append(entry)
    scale = Scale(logarithms)
    for entry, logarithm in zip(entries, logarithms):
        entry.score = scale.points(logarithm)
    return entries


# Common forms by length, in hundredths, as they are in Italian: of the 30,000 commonest.
COMMON_BY_LENGTH = {3: 1, 4: 3.7, 5: 8, 6: 11.2, 7: 15.5, 8: 15.9, 9: 14.7, 10: 12.2, 11: 8.5,
                    12: 4.8, 13: 2.5, 14: 1.3, 15: 0.7}


def latin(words):
    """No frequencies, but within a length the commonest come first. A place there stands for a rank
    among all words by how many common words have that length; points fall with its logarithm,
    twice as fast behind the middle, where the corpus ends."""
    places = collections.Counter()
    entries = []
    for word in words:
        places[len(word)] += 1
        rank = places[len(word)] * 100 / COMMON_BY_LENGTH[len(word)]
        steps = math.log(MIDDLE_RANK / rank) / math.log(MIDDLE_RANK / TOP_RANK)
        points = 50 + 50 * (steps if steps > 0 else 2 * steps)
        entries.append(Entry(word, word.lower(), max(0, min(100, round(points)))))
    return entries
