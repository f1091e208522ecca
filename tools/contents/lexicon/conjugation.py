"""Italian verbs conjugated by rule: what every verb has that no irregular table names."""

PERSONS = ("1s", "2s", "3s", "1p", "2p", "3p")

# Endings behind the stem, by class of the infinitive, persons in the order of PERSONS.
# "isc" is the class of finire: it differs from ire in the present only.
ENDINGS = {
    "are": {
        "ind.pres": "o i a iamo ate ano", "ind.impf": "avo avi ava avamo avate avano",
        "ind.pass": "ai asti ò ammo aste arono", "ind.fut": "erò erai erà eremo erete eranno",
        "cong.pres": "i i i iamo iate ino", "cong.impf": "assi assi asse assimo aste assero",
        "cond.pres": "erei eresti erebbe eremmo ereste erebbero", "imp.pres": "- a - iamo ate -",
        "ger": "ando", "part.pres": "ante anti", "part.pass": "ato ata ati ate"},
    "ere": {
        "ind.pres": "o i e iamo ete ono", "ind.impf": "evo evi eva evamo evate evano",
        "ind.pass": "ei|etti esti é|ette emmo este erono|ettero",
        "ind.fut": "erò erai erà eremo erete eranno",
        "cong.pres": "a a a iamo iate ano", "cong.impf": "essi essi esse essimo este essero",
        "cond.pres": "erei eresti erebbe eremmo ereste erebbero", "imp.pres": "- i - iamo ete -",
        "ger": "endo", "part.pres": "ente enti", "part.pass": "uto uta uti ute"},
    "ire": {
        "ind.pres": "o i e iamo ite ono", "ind.impf": "ivo ivi iva ivamo ivate ivano",
        "ind.pass": "ii isti ì immo iste irono", "ind.fut": "irò irai irà iremo irete iranno",
        "cong.pres": "a a a iamo iate ano", "cong.impf": "issi issi isse issimo iste issero",
        "cond.pres": "irei iresti irebbe iremmo ireste irebbero", "imp.pres": "- i - iamo ite -",
        "ger": "endo", "part.pres": "ente enti", "part.pass": "ito ita iti ite"},
}
ENDINGS["isc"] = ENDINGS["ire"] | {
    "ind.pres": "isco isci isce iamo ite iscono", "cong.pres": "isca isca isca iamo iate iscano",
    "imp.pres": "- isci - iamo ite -"}

FORMS_OF = {"ger": ("ger",), "part.pres": ("part.pres.s", "part.pres.p"),
            "part.pass": ("part.pass.ms", "part.pass.fs", "part.pass.mp", "part.pass.fp")}

# Pronouns that lean on an infinitive, a gerund, a participle or an imperative.
CLITICS = ("mi ti ci vi si lo la li le gli ne melo mela meli mele mene telo tela teli tele tene "
           "selo sela seli sele sene celo cela celi cele cene velo vela veli vele vene "
           "glielo gliela glieli gliele gliene").split()


def joined(stem, ending, verb_class):
    """Stem and ending with the h, the i or neither that Italian spelling puts between them."""
    if verb_class == "are":
        if stem[-1] in "cg" and ending[0] in "ei":
            return stem + "h" + ending
        if stem.endswith(("ci", "gi")) and ending[0] == "e":
            return stem[:-1] + ending
    if stem[-1] == "i" and ending[0] == "i":
        return stem + ending[1:]
    return stem + ending


def regular(infinitive, verb_class):
    """All simple forms of a regular verb as pairs of form and code."""
    stem = infinitive[:-3]
    pairs = [(infinitive, "inf")]
    for tense, endings in ENDINGS[verb_class].items():
        codes = FORMS_OF.get(tense) or [f"{tense}.{person}" for person in PERSONS]
        for code, choices in zip(codes, endings.split()):
            pairs += [(joined(stem, ending, verb_class), code)
                      for ending in choices.split("|") if ending != "-"]
    return pairs


# Imperatives of one syllable double the consonant of a pronoun: dimmi, fallo, vacci.
SHORT_IMPERATIVES = {"di": "dire", "da": "dare", "fa": "fare", "va": "andare", "sta": "stare"}
# Pronouns that older Italian and advertisements put behind a finite form: vendesi, ruppemi.
FINITE_CLITICS = ("si", "mi", "ti")


def clitic_code(code, whole):
    """The code of a verb's form with pronouns behind it; "" where none can stand there. Only the
    infinitive loses its last vowel, and it always does: it is not `whole`."""
    category, _, rest = code.partition(".")
    tense = rest.split(".")[0]
    if category != "v" or whole == (tense == "inf") or code.endswith("cli"):
        return ""
    if tense in ("inf", "ger"):
        return code + ".cli"
    return code + ".cli" if tense == "imp" or rest.startswith("part.pass") else ""
