"""What the words of one crossword are, by the layers, rules and bans that a person has chosen."""
from reference import only_a_verb

LIMITING = {"nome", "sigla", "straniera", "gioco", "tronca"}
LEMMA_CATEGORIES = {"s", "a", "v", "avv", "num", "np"}
COMMON_LEMMAS = {"essere", "avere"}
# Lemmas that are forms of one word.
ONE_WORD = {(stem + end, "prep"): (stem + "l", "prep") for stem in ("a", "co", "da", "de", "ne")
            for end in ("l", "llo", "lla", "i", "gli", "lle")} | {("miei", "a"): ("mio", "a")}
# One in so many; 0 is none.
SHARES = {
    "severe": {"finita": 0, "tronca": 0, "straniera": 20},
    "settimanali": {"finita": 10, "tronca": 0, "straniera": 10},
    "libere": {},
}


class Word:
    """A word as all layers together know it."""

    def __init__(self, score, marks, readings, in_kit, of_a_list):
        self.score, self.marks, self.readings = score, marks, readings
        self.in_kit, self.of_a_list = in_kit, of_a_list

    def kinds(self):
        finite = bool(self.readings) and all(only_a_verb(code) for code, _ in self.readings)
        return (self.marks & LIMITING) | ({"finita"} if finite and not self.in_kit else set())

    def lemmas(self):
        """Lemmas with their part of speech, that of the commonest reading first."""
        read = [(lemma, "a" if code[0] == "pron" else code[0]) for code, lemma in self.readings]
        found = [ONE_WORD.get(one, one) for one in read
                 if one in ONE_WORD or one[1] in LEMMA_CATEGORIES and one[0] not in COMMON_LEMMAS]
        return list(dict.fromkeys(found))


def akin(one, other):
    first, second = one.lemmas(), other.lemmas()
    return bool(first and second) and (first[0] in second or second[0] in first)


class KnownWords:
    """`lists`: words with their scores, None for none told; `mine`: likewise, 0 bans."""

    def __init__(self, languages, kit, lists, mine, lists_alone):
        self.layers = [] if lists_alone else [languages[0]]
        self.layers.append(kit)
        self.foreign = languages[1:]
        self.kit, self.lists = kit, lists
        self.mine, self.mine_counts = mine, not lists_alone

    def of(self, word):
        found = [layer[word] for layer in self.layers if word in layer]
        scored = [scores for scores in ([self.lists, self.mine] if self.mine_counts else [self.lists])
                  if word in scores]
        if not found and not scored:
            return self.foreign_word(word)
        score = found[-1].score if found else 40
        for scores in scored:
            score = scores[word] if scores[word] else score
        marks = set().union(*(entry.marks for entry in found))
        if any(not entry.marks & LIMITING for entry in found):
            marks -= LIMITING
        readings = next((entry.readings for entry in found if entry.readings), [])
        return Word(score, marks, readings, word in self.kit, bool(scored))

    def foreign_word(self, word):
        for layer in self.foreign:
            if word in layer:
                return Word(layer[word].score, layer[word].marks | {"straniera"}, layer[word].readings, False, False)
        return None

    def banned(self, word):
        layers = self.layers + self.foreign
        return self.mine.get(word) == 0 or any(word in layer and "bandita" in layer[word].marks for layer in layers)
