"""All Italian verbs that the sources know, and the readings of their forms."""

import collections

from .conjugation import ENDINGS, FORMS_OF, PERSONS, regular

# Hunspell's flags of conjugation, by the class that each stands for.
FLAG_CLASS = {"A": "are", "z": "are", "B": "ere", "C": "ire", "t": "isc", "À": "ire"}
SHORTEST_ANALOGY = 5  # letters at the end that a verb must share with its model

# What Morph-it! leaves to its auxiliaries, and the commonest forms that go by no rule.
IRREGULAR = {
    "essere": {"ind.pres": "sono sei è siamo siete sono",
               "ind.impf": "ero eri era eravamo eravate erano",
               "ind.pass": "fui fosti fu fummo foste furono",
               "ind.fut": "sarò sarai sarà saremo sarete saranno",
               "cong.pres": "sia sia sia siamo siate siano",
               "cong.impf": "fossi fossi fosse fossimo foste fossero",
               "cond.pres": "sarei saresti sarebbe saremmo sareste sarebbero",
               "imp.pres": "- sii - siamo siate -", "ger": "essendo",
               "part.pass": "stato stata stati state"},
    "avere": {"ind.pres": "ho hai ha abbiamo avete hanno",
              "ind.impf": "avevo avevi aveva avevamo avevate avevano",
              "ind.pass": "ebbi avesti ebbe avemmo aveste ebbero",
              "ind.fut": "avrò avrai avrà avremo avrete avranno",
              "cong.pres": "abbia abbia abbia abbiamo abbiate abbiano",
              "cong.impf": "avessi avessi avesse avessimo aveste avessero",
              "cond.pres": "avrei avresti avrebbe avremmo avreste avrebbero",
              "imp.pres": "- abbi - abbiamo abbiate -", "ger": "avendo",
              "part.pres": "avente aventi",
              "part.pass": "avuto avuta avuti avute"},
}


def from_table(infinitive, table):
    """Pairs of form and code of a conjugation written as the tables of regular verbs are."""
    pairs = [(infinitive, "inf")]
    for tense, forms in table.items():
        codes = FORMS_OF.get(tense) or [f"{tense}.{person}" for person in PERSONS]
        pairs += [(form, code) for code, form in zip(codes, forms.split()) if form != "-"]
    return pairs


class Verbs:
    """Infinitives with their simple forms, from Morph-it!, by Hunspell's classes, or by analogy."""

    def __init__(self, morphit, hunspell, other_infinitives):
        self.forms = {infinitive: from_table(infinitive, table)
                      for infinitive, table in IRREGULAR.items()}
        self.by_tail = collections.defaultdict(list)
        for infinitive, pairs in sorted(morphit.items()):
            if len(pairs) > SHORTEST_ANALOGY:
                self._add_morphit(infinitive, pairs)
        complete = set(self.forms)  # Hunspell tells finire from partire badly: only what is new
        for stem, flags in sorted(hunspell.stems.items()):
            for flag, verb_class in FLAG_CLASS.items():
                if flag in flags and stem not in complete and stem.endswith(("are", "ere", "ire")):
                    self._add(stem, regular(stem, verb_class))
            if "P" in flags:  # facere's children, which Morph-it! takes for regular
                self._add(stem, transferred("fare", self.forms["fare"], stem, len("fare")))
        known_forms = {form for pairs in self.forms.values() for form, _ in pairs}
        for infinitive in sorted(set(other_infinitives)):
            if infinitive not in self.forms:
                self._add(infinitive, self._guessed(infinitive, hunspell.stems, known_forms))

    def _add_morphit(self, infinitive, pairs):
        simple = [(form, code) for form, code in pairs
                  if code not in ("inf", "ger") and " " not in form]
        simple += [(infinitive, "inf"), (gerund(infinitive, simple), "ger")]
        self._add(infinitive, simple)
        for length in range(SHORTEST_ANALOGY, len(infinitive) + 1):
            self.by_tail[infinitive[-length:]].append(infinitive)

    def _add(self, infinitive, pairs):
        known = self.forms.setdefault(infinitive, [])
        known += [pair for pair in dict.fromkeys(pairs) if pair not in known]

    def _guessed(self, infinitive, stems, known_forms):
        """A verb that no table has: after the verb with the longest common end, or by rule."""
        if len(infinitive) <= len("ire"):
            return []
        if infinitive.endswith("are"):
            return regular(infinitive, "are")
        for length in range(len(infinitive), SHORTEST_ANALOGY - 1, -1):
            tail = infinitive[-length:]
            if tail in self.by_tail:
                model = min(self.by_tail[tail], key=lambda verb: (len(verb), verb))
                return transferred(model, self.forms[model], infinitive, length)
        if infinitive.endswith("ire"):
            isc = infinitive[:-3] + "isce"
            return regular(infinitive, "isc" if isc in stems or isc in known_forms else "ire")
        return regular(infinitive, "ere") if infinitive.endswith("ere") else []

    def readings(self):
        """Form to pairs of code and infinitive, of all simple forms."""
        table = collections.defaultdict(dict)
        for infinitive, pairs in self.forms.items():
            for form, code in pairs:
                table[form][f"v.{code}", infinitive] = None
        return table

    def by_ending(self, form):
        """Code and infinitive of a form that is made of a known verb's stem and an ending of any
        class; None where it is not."""
        for ending, code, verb_class in VERB_ENDINGS:
            if len(form) > len(ending) and form.endswith(ending):
                stem = form[:-len(ending)]
                for bare in (stem, stem.removesuffix("h"), stem + "i"):
                    infinitive = bare + verb_class
                    if infinitive in self.forms and len(bare) > 1:
                        return code, infinitive
        return None


def verb_endings():
    """Endings of verbs' forms with code and end of the infinitive, the longest first."""
    found = []
    for verb_class, tenses in ENDINGS.items():
        for tense, endings in tenses.items():
            codes = FORMS_OF.get(tense) or [f"{tense}.{person}" for person in PERSONS]
            found += [(ending, f"v.{code}", verb_class.replace("isc", "ire"))
                      for code, choices in zip(codes, endings.split())
                      for ending in choices.split("|") if ending != "-"]
    return sorted(set(found), key=lambda item: (-len(item[0]), item))


VERB_ENDINGS = verb_endings()


def gerund(infinitive, pairs):
    """Morph-it! has a gerund with a pronoun here and there; the imperfect tells the bare one."""
    stem = next((form[:-2] for form, code in pairs if code == "ind.impf.3s"), infinitive[:-2])
    if stem.endswith("a"):
        return stem + "ndo"
    return stem[:-1] + "endo"


def transferred(model, pairs, infinitive, length):
    """The forms of a model with its beginning replaced by that of another verb."""
    old, new = model[:len(model) - length], infinitive[:len(infinitive) - length]
    return [(new + form[len(old):], code) for form, code in pairs if form.startswith(old)]
