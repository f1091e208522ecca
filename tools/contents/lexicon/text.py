"""Spelled words and their folded forms; reading and writing of packed lists."""

import collections
import lzma
import re
import unicodedata

LIGATURES = str.maketrans({"Œ": "OE", "Æ": "AE", "ß": "SS"})
DROPPED = re.compile(r"[ '’.\-]")
SHORTEST = 3  # letters of an entry here; two letters are the kit's
FOLDED = re.compile(r"[A-Z]{2,53}")


def fold(spelled):
    """The entry of a spelled word: capitals without accents, blanks, apostrophes, hyphens and
    points; "" where something else is left or the length is no entry's."""
    letters = unicodedata.normalize("NFD", spelled.upper().translate(LIGATURES))
    letters = "".join(c for c in letters if not unicodedata.combining(c))
    letters = DROPPED.sub("", letters)
    return letters if FOLDED.fullmatch(letters) else ""


def in_code_page(spelled):
    """The spelling with bare letters for those that the program's code page, Windows-1252,
    lacks."""
    def covered(letter):
        return letter.encode("cp1252", "ignore") != b""
    if len(spelled.encode("cp1252", "ignore")) == len(spelled):
        return spelled
    return "".join(letter if covered(letter) else unicodedata.normalize("NFD", letter)[0]
                   for letter in unicodedata.normalize("NFC", spelled))


def read_packed(path):
    """The lines of an xz-packed UTF-8 file."""
    with lzma.open(path, "rt", encoding="utf-8") as file:
        return file.read().splitlines()


def write_packed(path, lines):
    """Writes lines so that the same lines always give the same bytes."""
    text = "".join(line + "\n" for line in lines).encode("utf-8")
    path.write_bytes(lzma.compress(text, check=lzma.CHECK_CRC64, preset=9 | lzma.PRESET_EXTREME))


def hand_lines(path):
    """The lines of a hand-made list without comments; none where it is missing."""
    if not path.exists():
        return []
    lines = path.read_text(encoding="utf-8").splitlines()
    return [line for line in lines if line.strip() and not line.startswith("#")]


def list_order(words):
    """Word to its place within its length, 1 at the head and 0 at the end."""
    by_length = collections.defaultdict(list)
    for word in words:
        by_length[len(word)].append(word)
    return {word: 1 - place / len(group)
            for group in by_length.values() for place, word in enumerate(group)}
