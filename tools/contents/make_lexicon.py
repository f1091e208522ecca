#!/usr/bin/python3 -B
"""Makes the lists of data/lexicon from dictionaries of Debian, word lists and hand-made lists.

    tools/contents/make_lexicon.py --morphit FOLDER [--root FOLDER] [--out FOLDER] [LANGUAGE]...

`--root` is where the Debian packages named in data/lexicon/README.md are unpacked, / where they are
installed; `--morphit` holds the unpacked npm packages italian-{words,verbs,adjectives}-dict. The
same sources always give the same bytes."""

import argparse
import pathlib

from lexicon import entry
from lexicon.italian import Italian
from lexicon.others import others
from lexicon.sources import Sources
from lexicon.text import read_packed, write_packed

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
WORDS = ROOT / "data" / "words"
LEXICON = ROOT / "data" / "lexicon"
LANGUAGES = ("italiano", "inglese", "latino", "francese")


def entries_of(language, sources):
    words = read_packed(WORDS / f"{language}.txt.xz")
    if language == "italiano":
        return Italian(sources, words, LEXICON / "hand").entries()
    return others(language, sources, words)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--root", default="/")
    parser.add_argument("--morphit", required=True)
    parser.add_argument("--out", type=pathlib.Path, default=LEXICON)
    parser.add_argument("languages", nargs="*", metavar="LANGUAGE")
    options = parser.parse_args()
    unknown = set(options.languages) - set(LANGUAGES)
    if unknown:
        parser.error(f"no such language: {', '.join(sorted(unknown))}")
    sources = Sources(options.root, options.morphit)
    for language in options.languages or LANGUAGES:
        lines = entry.lines(entries_of(language, sources))
        write_packed(options.out / f"{language}.tsv.xz", lines)
        print(f"{language}: {len(lines)} entries")


if __name__ == "__main__":
    main()
