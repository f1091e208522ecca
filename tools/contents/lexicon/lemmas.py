"""From an inflected Italian noun or adjective to the form under which a dictionary has it."""

# Ending of a plural to those of its singular, the likeliest first; longer endings come first.
SINGULARS = {
    "mp": (("chi", ("co", "ca", "chio")), ("ghi", ("go", "ga", "ghio")),
           ("i", ("o", "e", "io", "a")), ("a", ("o",))),
    "fp": (("che", ("ca",)), ("ghe", ("ga",)), ("ce", ("cia", "ce")), ("ge", ("gia", "ge")),
           ("e", ("a", "e")), ("i", ("e", "o")), ("a", ("o",))),
    "p": (("chi", ("co", "ca")), ("i", ("e", "a", "o", "io")), ("e", ("a",))),
}
# Ending of a feminine or plural adjective to that of the masculine singular.
MASCULINES = {
    "fs": (("trice", ("tore",)), ("a", ("o", "e", ""))),
    "mp": (("chi", ("co",)), ("ghi", ("go",)), ("i", ("o", "e", "io", "a"))),
    "fp": (("trici", ("tore",)), ("che", ("co", "ca")), ("ghe", ("go",)), ("ce", ("cio", "ce")),
           ("ge", ("gio",)), ("e", ("o", "a")), ("i", ("e",))),
    "p": (("i", ("e", "a", "o")),),
}
SUPERLATIVES = (("chissim", ("co",)), ("ghissim", ("go",)), ("issim", ("o", "e", "io", "a")),
                ("errim", ("re", "ro")))


def candidates(form, table):
    for ending, others in table:
        if form.endswith(ending):
            for other in others:
                yield form[:len(form) - len(ending)] + other


def lemma_of(form, code, known):
    """The lemma of a noun or adjective reading. `known(lemma, codes)` tells whether a source has
    that lemma under one of the codes. The form itself where nothing fits."""
    category, *attributes = code.split(".")
    if "comp" in attributes:
        return superlative_lemma(form, known)
    number = attributes[0] if attributes else ""
    if category == "s":
        gender = number[0] if len(number) == 2 else ""
        wanted = {f"s.{gender}s", f"s.{gender}", "s.s"} if gender else {"s.s", "s.ms", "s.fs"}
        rules = SINGULARS.get(number, ())
    else:
        wanted = {"a.ms", "a.s", "a"}
        rules = MASCULINES.get(number, ())
    choices = list(candidates(form, rules))
    for choice in choices:
        if known(choice, wanted):
            return choice
    return form


def superlative_lemma(form, known):
    for choice in candidates(form[:-1], SUPERLATIVES):
        if known(choice, {"a.ms", "a.s", "a", "avv", "v.part.pass.ms"}):
            return choice
    return form
