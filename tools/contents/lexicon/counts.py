"""How often forms occur, and how often as names."""

import collections


class Counts:
    """Occurrences of spelled forms, in small letters and with capitals."""

    def __init__(self, frequencies):
        self.small = collections.Counter()
        self.capital = collections.Counter()
        for form, count in frequencies.items():
            (self.small if form == form.lower() else self.capital)[form.lower()] += count

    def all(self, form):
        return self.small[form] + self.capital[form]

    def as_word(self, form):
        """Without its use as a name: of the capitals only as many as small letters, which is what
        beginnings of sentences make."""
        if self.small[form]:
            return self.small[form] + min(self.capital[form], self.small[form])
        return 0.1 * self.capital[form]

    def mostly_capital(self, form):
        return self.capital[form] > 3 * self.small[form]
