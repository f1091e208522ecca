"""Stems and affixes of a Hunspell dictionary."""

import collections
import re

Affix = collections.namedtuple("Affix", "strip add condition further")


class Hunspell:
    """Stems with their flags, and the suffixes that each flag stands for. Flags are one letter
    each, or two where the affix file says so."""

    def __init__(self, aff_path, dic_path):
        self.suffixes = collections.defaultdict(list)
        self.flag_length = 1
        for line in aff_path.read_text(encoding="utf-8").splitlines():
            parts = line.split()
            if parts[:2] == ["FLAG", "long"]:
                self.flag_length = 2
            if len(parts) >= 5 and parts[0] == "SFX":
                strip = "" if parts[2] == "0" else parts[2]
                add, _, further = parts[3].partition("/")
                self.suffixes[parts[1]].append(Affix(
                    strip, "" if add == "0" else add, re.compile(f"(?:{parts[4]})$"), further))
        self.labels = {}  # stem to the morphology behind it
        self.stems = self._stems(dic_path)

    def _stems(self, dic_path):
        """Stem to flags. Lines of a licence at the head begin with a stroke or hold blanks."""
        stems = collections.defaultdict(str)
        for line in dic_path.read_text(encoding="utf-8").splitlines()[1:]:
            entry, _, label = line.replace("\t", " ").partition(" ")
            stem, _, flags = entry.partition("/")
            if stem and (":" in label or not label):
                stems[stem] += "".join(flag for flag in self.flags(flags)
                                       if flag not in self.flags(stems[stem]))
                self.labels[stem] = f"{self.labels.get(stem, '')} {label}".strip()
        return dict(stems)

    def flags(self, text):
        return [text[i:i + self.flag_length] for i in range(0, len(text), self.flag_length)]

    def derived(self, stem, flag):
        """The forms that a suffix flag makes of a stem, with the affix that made each."""
        for affix in self.suffixes.get(flag, ()):
            if stem.endswith(affix.strip) and affix.condition.search(stem):
                yield stem[:len(stem) - len(affix.strip)] + affix.add, affix

    def expanded(self, stem):
        """All forms of a stem by its suffixes, and by the suffixes that these take."""
        for flag in self.flags(self.stems[stem]):
            for form, affix in self.derived(stem, flag):
                yield form
                for further in self.flags(affix.further):
                    yield from (last for last, _ in self.derived(form, further))
