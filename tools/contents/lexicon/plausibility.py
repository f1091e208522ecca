"""How often each reading of a form is meant: from frequencies of forms to those of lemmas.

Forms have counts, lemmas have none, and a form like "porto" belongs to several. So counts are
shared out among readings by how common lemma and inflection are, which gives better counts of
lemmas, and again, until they settle."""

import collections

ROUNDS = 6
FLOOR = 0.5  # count of a form that never occurs, and of a lemma before its forms are counted

# How often a reading's inflection is meant, in hundredths of its lemma's occurrences. The longest
# beginning of the code counts.
INFLECTION_SHARE = {
    "s": 50, "a": 25, "a.ms": 30, "a.comp": 2, "avv": 100, "avv.comp": 5, "inter": 30, "pron": 100,
    "art": 100, "prep": 100, "cong": 100, "num": 100, "np": 100, "sig": 100, "v": 2, "v.inf": 18,
    "v.inf.cli": 0.5, "v.ger": 4, "v.ger.cli": 0.2, "v.part.pass": 10, "v.part.pass.cli": 0.005,
    "v.part.pres": 0.5, "v.imp": 0.1, "v.imp.cli": 0.01, "v.ind.cli": 0.01, "v.fin": 1,
    "v.ind.pres": 0.3, "v.ind.pres.3s": 14, "v.ind.pres.3p": 6, "v.ind.pres.1s": 1,
    "v.ind.impf": 0.05, "v.ind.impf.3s": 3, "v.ind.impf.3p": 1.5, "v.ind.pass": 0.05,
    "v.ind.pass.3s": 7, "v.ind.pass.3p": 2.5, "v.ind.fut": 0.1, "v.ind.fut.3s": 1.5,
    "v.ind.fut.3p": 0.6, "v.cong.pres": 0.1, "v.cong.pres.3s": 0.8, "v.cong.impf": 0.03,
    "v.cong.impf.3s": 0.5, "v.cond.pres": 0.05, "v.cond.pres.3s": 0.5}


def inflection_share(code):
    """Hundredths of a lemma's occurrences that a form with this code has."""
    parts = code.split(".")
    if parts[-1] == "comp":
        parts = [parts[0], "comp"]
    elif parts[-1] == "cli":
        kind = parts[:3] if parts[1] == "part" else parts[:2]
        return INFLECTION_SHARE.get(".".join([*kind, "cli"]), INFLECTION_SHARE["v.imp.cli"])
    while parts:
        share = INFLECTION_SHARE.get(".".join(parts))
        if share is not None:
            return share
        parts.pop()
    return 1


def category_of(code):
    """Lemmas of unlike categories have counts of their own: potere is verb and noun."""
    return code.split(".")[0]


class Plausibility:
    """Shares of readings and counts of lemmas. `readings` is form to {(code, lemma): sources},
    `counts` form to occurrences."""

    def __init__(self, readings, counts):
        self.lemma_counts = collections.Counter()
        for _ in range(ROUNDS):
            fresh = collections.Counter()
            for form, choices in readings.items():
                count = counts.get(form, 0)
                if count:
                    for (code, lemma), share in self.shares(choices).items():
                        fresh[lemma, category_of(code)] += count * share
            self.lemma_counts = fresh

    def weight(self, code, lemma, sources):
        known = self.lemma_counts.get((lemma, category_of(code)), 0) + FLOOR
        return known * inflection_share(code) * min(sources, 3)

    def shares(self, choices):
        """Readings to their share of the form's occurrences, which add up to 1."""
        weights = {(code, lemma): self.weight(code, lemma, sources)
                   for (code, lemma), sources in choices.items()}
        total = sum(weights.values())
        return {reading: weight / total for reading, weight in weights.items()}

    def ordered(self, choices):
        """Readings, the commonest first."""
        shares = self.shares(choices)
        return sorted(shares, key=lambda reading: (-shares[reading], reading))
