#!/usr/bin/python3 -B
"""What the maker of the guide refuses, and says of it: help_maker_test.py HELP_MAKER."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

MAKER = sys.argv.pop(1)
PNG = b"\x89PNG\r\n\x1a\n" + b"\0\0\0\rIHDR" + b"\0\0\0\x30" + b"\0\0\0\x20"  # as far as it is read

CHAPTER = """<h2 id="uno">Uno</h2>
<p>Si veda <a class="x"
href="#due">due</a>, <a href="https://esempio.example/">fuori</a>.</p>
<hr>
<h3 id="due">Due <b>bis</b></h3>
<p><img src="pictures/a.png" alt="a"></p>
"""

# What is put in place of what, and what is told then.
REFUSED = (
    ('src="pictures/a.png"', "src='pictures/a.png'", "tag of another shape"),
    ('href="#due"', "href='#due'", "tag of another shape"),
    ('<hr>', "<p class=", "tag of another shape"),
    ('href="#due"', 'href="due.html"', "link to a file"),
    ('href="#due"', 'href="#tre"', "broken link: #tre"),
    ('id="due"', 'id="uno"', "anchor stands twice: uno"),
    ('src="pictures/a.png"', 'src="a.png"', "no picture of the guide's folder: a.png"),
    ('src="pictures/a.png"', 'src="pictures/b.png"', "b.png"),
    (' src="pictures/a.png"', "", "picture that no chapter shows"),
    ('<h3 id="due">', '<h3 class="x" id="due">', "heading of another shape"),
    ('<h2 id="uno">Uno</h2>', '<h2 id="uno">\nUno</h2>', "heading of another shape"),
    ('<hr>', "<h", "tag of another shape"),
    ('<h2 id="uno">Uno</h2>', '<h3 id="uno">Uno</h3>', "section before the first chapter"),
)


class HelpMaker(unittest.TestCase):
    def make(self, chapter, picture=PNG):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            (folder / "out").mkdir()
            (folder / "pictures").mkdir()
            (folder / "pictures" / "a.png").write_bytes(picture)
            (folder / "guide.css").write_text("")
            (folder / "uno.html").write_text(chapter)
            made = subprocess.run([MAKER, folder, folder / "out", "uno"], capture_output=True,
                                  text=True)
            page = folder / "out" / "TELARIUM7.html"
            return made, page.read_text() if page.exists() else None

    def assertRefused(self, outcome, why):
        made, page = outcome
        self.assertEqual(made.returncode, 1)
        self.assertIn(why, made.stderr)
        self.assertIsNone(page)

    def test_takes_a_sound_chapter_with_its_contents_and_the_sizes_of_its_pictures(self):
        made, page = self.make(CHAPTER)
        self.assertEqual((made.returncode, made.stderr), (0, ""))
        self.assertIn('<li><a href="#uno">Uno</a>\n<ol><li><a href="#due">Due <b>bis</b></a></li></ol>'
                      '</li>\n</ol></nav>', page)
        self.assertIn('width="48" height="32"', page)

    def test_refuses_what_would_be_missing_or_lead_nowhere(self):
        for sound, broken, why in REFUSED:
            with self.subTest(broken):
                self.assertRefused(self.make(CHAPTER.replace(sound, broken)), why)

    def test_refuses_a_picture_of_another_kind(self):
        for picture in (b"", b"GIF89a" + bytes(30), PNG[:20]):
            with self.subTest(picture):
                self.assertRefused(self.make(CHAPTER, picture), "no PNG")
                self.assertRefused(self.make(CHAPTER, picture), "a.png")


if __name__ == "__main__":
    unittest.main()
