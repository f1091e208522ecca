"""The readings of Italian forms: what each source says, put together."""

import bisect
import collections

from .conjugation import CLITICS, FINITE_CLITICS, SHORT_IMPERATIVES, clitic_code
from .lemmas import SINGULARS, candidates, lemma_of
from .verbs import Verbs

NOUN_FLAGS = "OQRSnopu"  # Hunspell's plurals and feminines
CONJUGATING_FLAGS = "AzBCtÀVPZfEGHam"
DERIVING_FLAGS = NOUN_FLAGS + "WYN@"
ADJECTIVE_FLAGS = "WYopy"  # superlatives, adverbs in -mente, four endings
INFINITIVE_ENDS = ("are", "ere", "ire", "rre")
SHORTEST_WITH_CLITIC = 6  # letters of a finite form with a pronoun: Geti are a people
NEAR = 12  # infinitives looked at on each side of a form without a lemma
PLURAL = {"ms": "mp", "fs": "fp", "s": "p"}


class Readings:
    """Spelled form (small letters, but names) to its readings, (code, lemma) to how many sources
    have it. Names are apart, since nearly every word is somebody's surname."""

    def __init__(self, sources):
        self.table = collections.defaultdict(dict)
        self.names = {}  # small letters to the spelling
        self.hunspell = sources.hunspell("it_IT")
        self.festlex = list(sources.festlex())
        self.headwords = list(sources.mythes())
        self.clitics = {}  # what was asked for, since it is asked for again
        self.votes = collections.Counter()  # lemma to the number of sources that have it
        self.attested = set()  # forms that a source has, and not only conjugation by rule
        self.verbs = self._verbs(sources)
        self._add_simple(sources)
        self._add_festlex()
        self._add_hunspell()
        self._settle_feminines()
        self._add_names()

    def _verbs(self, sources):
        infinitives = [form for form, code in self.festlex + self.headwords if code == "v.inf"]
        infinitives += [stem for stem, flags in self.hunspell.stems.items() if "I" in flags]
        morphit = sources.morphit_verbs()
        self.attested.update(form for pairs in morphit.values() for form, _ in pairs)
        verbs = Verbs(morphit, self.hunspell,
                      [verb for verb in infinitives
                       if verb.endswith(INFINITIVE_ENDS) and verb.isalpha()])
        for form, readings in verbs.readings().items():
            for code, lemma in readings:
                self.add(form, code, lemma)
        return verbs

    def add(self, form, code, lemma):
        known = self.table[form]
        known[code, lemma] = known.get((code, lemma), 0) + 1

    def has(self, lemma, codes):
        return any(code in codes for code, _ in self.table.get(lemma, ()))

    def _add_simple(self, sources):
        """Sources that name the lemma themselves."""
        for form, code, lemma in sources.morphit_nouns():
            if form and form.isalpha():
                self.add(form, code, lemma)
                self.attested.add(form)
                self.votes[lemma] += form == lemma
        for form, code in self.headwords:
            if code == "v.inf" and not form.endswith(INFINITIVE_ENDS):
                continue  # mythes-it calls participles verbs
            if code == "v.inf.cli":
                base = form[:-2] + ("re" if form[:-2] + "re" in self.verbs.forms else "e")
                self.add(form, code, base)
            else:
                self.add(form, code, form)
        self.votes.update({form for form, _ in self.headwords})
        self.attested.update(form for form, _ in self.headwords)
        self.votes.update({verb for verb in sources.morphit_verbs()})

    def _add_festlex(self):
        """festlex-ifd has tags without lemma: dictionary forms first, then what is inflected."""
        inflected = []
        for form, code in dict.fromkeys(self.festlex):
            if code == "v.inf" and not form.endswith(INFINITIVE_ENDS):
                continue
            if code == "np":
                self.names.setdefault(form, "-".join(map(str.capitalize, form.split("-"))))
            elif code.startswith("v.") or lemma_of(form, code, lambda *_: True) != form:
                inflected.append((form, code))
            else:
                self.add(form, code, form)
                self.votes[form] += 1
        infinitives = sorted(self.verbs.forms)
        for form, code in inflected:
            if code.startswith("v."):
                self.votes[form] += code == "v.inf"
                for lemma in self._verb_lemmas(form, code, infinitives):
                    self.add(form, code, lemma)
            else:
                self.add(form, code, lemma_of(form, code, self.has))

    def _verb_lemmas(self, form, code, infinitives):
        """The verbs that have this very form, else the verb that begins alike to its ending."""
        regular = form[:-3] + "ere"  # perduto is no participle of perdurre
        if code.startswith("v.part.pass") and form[-3:-1] == "ut" and regular in self.verbs.forms:
            return [regular]
        verbal = [(known, lemma) for known, lemma in self.table.get(form, ()) if known[:2] == "v."]
        lemmas = [lemma for known, lemma in verbal if known == code] or [
            lemma for known, lemma in verbal if not known.startswith("v.part")]
        if lemmas:
            return dict.fromkeys(lemmas)
        made = self.verbs.by_ending(form)
        if made and made[0] == code:
            return [made[1]]
        place = bisect.bisect(infinitives, form)
        near = infinitives[max(0, place - NEAR):place + NEAR]
        best = max(near, key=lambda verb: (alike(form, verb), -len(verb), verb))
        return [best] if alike(form, best) >= max(2, len(best) - 3) else [form]

    def _add_hunspell(self):
        """Hunspell's stems tell plurals and feminines, and seldom what part of speech they are."""
        for stem, flags in sorted(self.hunspell.stems.items()):
            if stem[0].isupper():
                self.names[stem.lower()] = stem
            elif stem.isalpha():
                self.votes[stem] += 1
                self._add_stem(stem, flags)

    def _add_stem(self, stem, flags):
        own = self._categories(stem, flags)
        self.attested.add(stem)
        for flag in set(flags) & set(CONJUGATING_FLAGS):
            self.attested.update(form for form, _ in self.hunspell.derived(stem, flag))
        for flag in sorted(set(flags)):
            for form, _ in self.hunspell.derived(stem, flag) if flag in DERIVING_FLAGS else ():
                self.attested.add(form)
                if flag in NOUN_FLAGS:
                    self._add_inflected(stem, form, own)
                elif form.endswith("mente"):
                    self.add(form, "avv.comp" if "issimamente" in form else "avv", form)
                elif flag == "W":
                    self.add(form, f"a.{ending_number(form)}.comp", stem)
                elif flag == "@":
                    self.add(form, f"a.{ending_number(form)}", form[:-1] + "o")
                elif flag == "N":
                    self.add(form, f"s.{ending_number(form)}", form[:-1] + "a"
                             if form.endswith("e") and not form.endswith("one") else form)

    def _categories(self, stem, flags):
        """What a stem of Hunspell's is: a noun or adjective as other sources have it, by the flags
        where none has it. Its irregular verb forms carry flags of nouns too (vinse/S)."""
        known = self.table.get(stem, {})
        own = [(code, lemma) for code, lemma in known
               if code[:2] in ("s.", "a.") and not code.endswith("comp")]
        if own or not (set(flags) & set(NOUN_FLAGS) or stem.endswith("mente")):
            return own
        verbal = [code for code, _ in known if code[:2] == "v."]
        if any(code.startswith("v.part") for code in verbal):
            return []
        if not set(flags) & set("OQn") and (verbal or self.verbs.by_ending(stem)):
            return []
        own = [inferred(stem, flags)]
        self.add(stem, *own[0])
        return own

    def _add_inflected(self, stem, form, own):
        """A plural or feminine, of the categories that its stem has."""
        for code, lemma in own:
            category, *attributes = code.split(".")
            number = attributes[0] if attributes else ""
            if form[-1] in "ae" and stem[-1] == "o":
                number = {"a": "fs", "e": "fp"}[form[-1]]
            elif form[-1] == "i" and number == "fs":
                number = None  # a feminine in -a has no plural in -i, though roba/R would have it
            else:
                number = PLURAL.get(number)
            if number:
                self.add(form, f"{category}.{number}", lemma)

    def _settle_feminines(self):
        """Casa and moda are words of their own: caso and modo have no feminine, though a rule would
        make one. What is an adjective too has one (bianca), but not beside a noun of its own
        (banca)."""
        for code, singulars in (("s.fs", lambda form: [form]),
                                ("s.fp", lambda form: list(candidates(form, SINGULARS["fp"])))):
            for form, choices in list(self.table.items()):
                for known, lemma in [reading for reading in choices if reading[0] == code]:
                    if self._masculine(lemma):
                        self._settle_feminine(choices, known, lemma, singulars(form))

    def _masculine(self, lemma):
        own = {code for code, known in self.table.get(lemma, ()) if known == lemma}
        return bool(own & {"s.ms", "s.m"}) and not own & {"s.fs", "s.f", "s.s", "s"}

    def _settle_feminine(self, choices, code, lemma, singulars):
        feminines = [word for word in singulars
                     if word != lemma and self.has_own(word, ("s.fs", "s.f"))]
        if not feminines and not self.has_own(lemma, ("a.ms", "a.s", "a")):
            feminines = [word for word in singulars if self.has(word, ("s.fs",))] or [
                word for word in singulars if code == "s.fs"]
        if feminines:
            sources = choices.pop((code, lemma))
            choices[code, feminines[0]] = choices.get((code, feminines[0]), 0) + sources

    def has_own(self, word, codes):
        return any(code in codes and lemma == word for code, lemma in self.table.get(word, ()))

    def _add_names(self):
        self.names = {name: spelled for name, spelled in self.names.items() if name.isalpha()
                      or "'" in name or "-" in name}

    def of(self, form):
        """The readings of a form, those with pronouns where it has no other."""
        if form in self.table:
            return self.table[form]
        if form not in self.clitics:
            self.clitics[form] = self._with_clitics(form)
        return self.clitics[form]

    def _with_clitics(self, form):
        """The readings of a verb's form that a pronoun leans on."""
        found = {}
        for clitic in CLITICS:
            if not form.endswith(clitic):
                continue
            bare = form[:-len(clitic)]
            for host in (bare, bare + "e") + ((bare + "re",) if bare.endswith("r") else ()):
                for code, lemma in self.table.get(host, ()):
                    joined = clitic_code(code, bare == host)
                    if joined:
                        found[joined, lemma] = 1
            if bare[-1:] == clitic[0] and bare[:-1] in SHORT_IMPERATIVES:
                found["v.imp.pres.2s.cli", SHORT_IMPERATIVES[bare[:-1]]] = 1
        if any(code.startswith("v.imp") for code, _ in found):  # fategli is no participle
            found = {reading: 1 for reading in found if not reading[0].startswith("v.part")}
        for code, lemma in self.table.get(form[:-2], ()) if not found else ():
            third = code.startswith("v.") and code.endswith(("3s", "3p"))
            if third and form.endswith(FINITE_CLITICS) and len(form) >= SHORTEST_WITH_CLITIC:
                found[code + ".cli", lemma] = 1
        return found


def alike(one, other):
    length = 0
    for a, b in zip(one, other):
        if a != b:
            break
        length += 1
    return length


def ending_number(form):
    return {"o": "ms", "a": "fs", "i": "mp", "e": "fp"}.get(form[-1], "s")


def inferred(stem, flags):
    """Reading of a stem that only Hunspell has."""
    if stem.endswith("mente") and "S" not in flags:
        return "avv", stem
    category = "a" if any(flag in flags for flag in ADJECTIVE_FLAGS) else "s"
    number = {"o": "ms", "a": "fs"}.get(stem[-1], "s")
    lemma = stem
    return f"{category}.{number}", lemma
