"""The score of an entry: commonness of the form and of its lemma on one scale, 0 to 100.

Everything is reckoned in logarithms of occurrences in the frequency list: the entry of rank
MIDDLE_RANK has 50 points, that of rank TOP_RANK 100, and the line through both goes on below."""

import math

MIDDLE_RANK, TOP_RANK = 30_000, 100
LEAST_COUNT = 100  # the frequency list has no form that occurs less often
UNSEEN = 0.9  # of LEAST_COUNT: what a form that the list lacks may have at the most
RAREST = 0.02  # occurrences of a form of which nothing is known

# How much of the score the lemma makes, by the beginning of the reading's code: the whole noun is
# known where one of its forms is, a verb's rare form is rare however common the verb.
LEMMA_WEIGHT = (("v.inf", .45), ("v.part.pass", .2), ("v.part.pres", .1),
                ("v.ger", .1), ("v", 0), ("a.comp", .1), ("a", .3), ("avv", .2), ("", .35))
NAME_USE = 0.8  # of a word's occurrences as a name: what does not count for it
HAND_SCORE = 40  # the least that an entry has that somebody wrote down by hand
EVERYDAY_SCORE = 60  # the least of a word of home, school and kitchen, which an encyclopedia lacks
PLURAL_SCORE = 50  # and of its plural,
SEEN_SCORE = 25  # if that has so many by itself: tuorli, no dormiri
LIST_SHARE = 0.2  # of a logarithm: what the order of the word list makes among words never seen
GUESSED_DISCOUNT = 1.5  # of a logarithm: what a form has less whose reading no source has
NAME_LEAST = 8  # occurrences taken for a name that the list lacks
NAME_DISCOUNT = 0.35  # the list comes from an encyclopedia, where names abound

# Occurrences taken for a lemma that the frequency list lacks, by how many dictionaries have it.
LEMMA_BY_VOTES = (0.2, 2, 15, 80, 180)


def lemma_weight(code):
    if code.endswith((".comp", ".cli")):
        return .1 * code.endswith(".comp")
    return next(weight for start, weight in LEMMA_WEIGHT if code.startswith(start))


class Scale:
    """From a logarithm of occurrences to points."""

    def __init__(self, logarithms):
        ranked = sorted(logarithms, reverse=True)
        top = ranked[min(TOP_RANK, len(ranked)) - 1]
        middle = ranked[min(MIDDLE_RANK, len(ranked)) - 1]
        self.middle = middle
        self.slope = 50 / (top - middle)

    def points(self, logarithm):
        return max(0, min(100, round(50 + self.slope * (logarithm - self.middle))))


def by_frequency(count):
    return math.log10(max(count, RAREST))


def with_lemma(code, count, expected, lemma_count):
    """Logarithm of occurrences of one reading: `count` of the form, 0 where the list lacks it;
    `expected` by its lemma and inflection; `lemma_count` of all forms of the lemma."""
    weight = lemma_weight(code)
    most = UNSEEN * LEAST_COUNT
    if not count and expected > most:  # a common verb's form that nobody writes: it is none
        count, weight = most * most / expected, 0
    own = by_frequency(count or expected)
    return (1 - weight) * own + weight * max(own, by_frequency(lemma_count / 2))
