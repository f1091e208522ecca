"""Where the sources lie, and each of them as Python values."""

import collections
import json
import pathlib
import re

from .hunspell import Hunspell

# Tags of festlex-ifd: gender and number behind the first dash, tense behind the person.
FESTLEX_NUMBER = {"MS": "ms", "FS": "fs", "MP": "mp", "FP": "fp", "MN": "m", "FN": "f",
                  "NS": "s", "NP": "p"}
FESTLEX_TENSE = {"IP": "ind.pres", "II": "ind.impf", "IR": "ind.pass", "IF": "ind.fut",
                 "CP": "cong.pres", "CI": "cong.impf", "DP": "cond.pres", "MP": "imp.pres"}
FESTLEX_PERSON = {"S1": "1s", "S2": "2s", "S3": "3s", "P1": "1p", "P2": "2p", "P3": "3p"}
FESTLEX_CATEGORY = {"S": "s", "A": "a", "B": "avv", "L": "avv", "P": "pron", "D": "a", "R": "art",
                    "E": "prep", "C": "cong", "I": "inter", "N": "num", "ACR": "sig", "PS": "s"}
FESTLEX_NAMES = {"cp", "np", "ng", "n"}  # surnames, given names, places, brands

MYTHES_CATEGORY = [(re.compile(pattern), code) for pattern, code in (
    (r"^s\. ?m\. ?f", "s."), (r"^s\. ?m", "s.m"), (r"^s\. ?f", "s.f"), (r"^agg", "a"),
    (r"^v\.", "v.inf"), (r"^avv", "avv"), (r"^cong", "cong"), (r"^prep", "prep"),
    (r"^inter", "inter"), (r"^pron", "pron"))]


class Sources:
    """Files of Debian packages below `root` (as installed or unpacked), and the unpacked npm
    packages of Morph-it! below `morphit`."""

    def __init__(self, root, morphit):
        self.share = pathlib.Path(root) / "usr" / "share"
        self.morphit = pathlib.Path(morphit)

    def frequencies(self, *locales):
        """Spelled form, capitals kept, to its count in onboard-data; locales are summed."""
        counts = collections.Counter()
        for locale in locales:
            path = self.share / "onboard" / "models" / f"{locale}.lm"
            for line in path.read_text(encoding="utf-8").splitlines():
                if line == "\\2-grams:":
                    break
                count, _, word = line.partition(" ")
                if word and count.isdigit() and not word.startswith("<"):
                    counts[word] += int(count)
        return counts

    def hunspell(self, locale):
        folder = self.share / "hunspell"
        return Hunspell(folder / f"{locale}.aff", folder / f"{locale}.dic")

    def words(self, name):
        """A plain word list of /usr/share/dict, empty where it is not installed."""
        path = self.share / "dict" / name
        return path.read_text(encoding="utf-8").split("\n") if path.exists() else []

    def festlex(self):
        """Pairs of form and reading code of festlex-ifd; names as "np"."""
        path = self.share / "festival" / "dicts" / "ifd" / "lex.out"
        for line in path.read_text(encoding="iso-8859-1").splitlines():
            found = re.match(r'\("([^"]+)" (\S+)', line)
            if found:
                code = festlex_code(found[2])
                if code:
                    yield found[1], code

    def mythes(self):
        """Pairs of headword and reading code of mythes-it."""
        path = self.share / "mythes" / "th_it_IT_v2.dat"
        head = ""
        for line in path.read_text(encoding="utf-8").splitlines()[1:]:
            if not line.startswith("("):
                head = line.split("|")[0]
                continue
            label = line[1:line.find(")")]
            for pattern, code in MYTHES_CATEGORY:
                if pattern.search(label):
                    yield head, headword_code(head, code, "inv" in label)
                    break

    def french_headwords(self):
        """The headwords of mythes-fr."""
        path = self.share / "mythes" / "th_fr_FR_v2.dat"
        lines = path.read_text(encoding="utf-8").splitlines()[1:]
        return [line.split("|")[0] for line in lines if line[:1] not in "(-" and "|" in line]

    def _morphit(self, name):
        path = self.morphit / f"italian-{name}-dict" / "dist" / f"{name}.json"
        return json.loads(path.read_text(encoding="utf-8"))

    def morphit_verbs(self):
        """Infinitive to pairs of form and code, of Morph-it!."""
        tenses = {"ind": {"pres": "ind.pres", "impf": "ind.impf", "past": "ind.pass",
                          "fut": "ind.fut"},
                  "sub": {"pres": "cong.pres", "impf": "cong.impf"},
                  "cond": {"pres": "cond.pres"}, "impr": {"pres": "imp.pres"}}
        verbs = {}
        for infinitive, moods in self._morphit("verbs").items():
            pairs = [(infinitive, "inf")]
            for mood, by_tense in moods.items():
                for tense, forms in by_tense.items():
                    code = tenses.get(mood, {}).get(tense)
                    if code:
                        pairs += [(form, f"{code}.{FESTLEX_PERSON[person]}")
                                  for person, form in forms.items()]
            past = moods.get("part", {}).get("past", {})
            for key, number in (("S", "ms"), ("SF", "fs"), ("P", "mp"), ("PF", "fp")):
                if key in past:
                    pairs.append((past[key], f"part.pass.{number}"))
            present = moods.get("part", {}).get("pres", {})
            pairs += [(present[key], f"part.pres.{key.lower()}") for key in "SP" if key in present]
            verbs[infinitive] = pairs
        return verbs

    def morphit_nouns(self):
        """Triples of form, code and lemma of Morph-it!'s nouns and adjectives."""
        for noun, entry in self._morphit("words").items():
            gender, plural = entry["G"].lower(), entry["P"]
            if plural == noun:
                yield noun, f"s.{gender}", noun
            else:
                yield noun, f"s.{gender}s", noun
                yield plural, f"s.{gender}p", noun
        for adjective, entry in self._morphit("adjectives").items():
            numbers = {"ms": adjective, "fs": entry["FS"], "mp": entry["MP"], "fp": entry["FP"]}
            for form, code in adjective_codes(numbers):
                yield form, code, adjective


def adjective_codes(numbers):
    """Forms of an adjective by gender and number, as pairs; alike ones share one code."""
    if len(set(numbers.values())) == 1:
        return [(numbers["ms"], "a")]
    if numbers["ms"] == numbers["fs"]:
        pairs = [(numbers["ms"], "a.s")]
        plural = {numbers["mp"]: "a.p"} if numbers["mp"] == numbers["fp"] else {
            numbers["mp"]: "a.mp", numbers["fp"]: "a.fp"}
        return pairs + list(plural.items())
    return [(form, f"a.{number}") for number, form in numbers.items()]


def festlex_code(tag):
    """The reading code of a festlex-ifd tag, "" where it says nothing."""
    category, _, rest = tag.partition("-")
    number, _, attribute = rest.partition("_")
    if category == "V":
        return festlex_verb(number, attribute)
    if category == "S" and number in FESTLEX_NAMES:
        return "np"
    code = FESTLEX_CATEGORY.get(category, "")
    if code and number in FESTLEX_NUMBER:
        code += "." + FESTLEX_NUMBER[number]
    if code and (attribute in ("S", "C") or (category == "B" and number == "S")):
        code += ".comp"
    return code


def festlex_verb(number, attribute):
    if number == "F":
        return "v.inf"
    if number == "G":
        return "v.ger"
    if attribute == "PR" and number in FESTLEX_NUMBER:
        return "v.part.pass." + FESTLEX_NUMBER[number]
    if attribute == "PP" and number in FESTLEX_NUMBER:
        return "v.part.pres." + FESTLEX_NUMBER[number]
    if attribute in FESTLEX_TENSE and number in FESTLEX_PERSON:
        return f"v.{FESTLEX_TENSE[attribute]}.{FESTLEX_PERSON[number]}"
    return ""


def headword_code(head, code, invariable):
    """Gender and number that a headword has where a dictionary writes only s.m. or agg."""
    last = head[-1]
    if code == "v.inf" and head.endswith("si"):
        return "v.inf.cli"
    if code in ("s.m", "s.f"):
        return code if invariable or last not in "aeio" else code + "s"
    if code == "a" and not invariable:
        return {"o": "a.ms", "e": "a.s", "a": "a.s"}.get(last, "a")
    return "s" if code == "s." else code
