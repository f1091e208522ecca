#!/usr/bin/python3
"""The Debian package as a new user meets it: package_test.py BUILD_FOLDER. It is made, unpacked into a
folder, and both programs are started there with a home of their own. No network, no display."""

import gzip
import os
import pathlib
import re
import signal
import subprocess
import sys
import tempfile
import time
import unittest
import xml.etree.ElementTree

BUILD = pathlib.Path(sys.argv.pop(1))
SOURCE = pathlib.Path(__file__).resolve().parents[2]
PATIENCE = 60  # seconds, for what takes few

MIME_TYPE = "application/x-telarium"


def run(*command, **options):
    return subprocess.run(command, check=True, capture_output=True, text=True, encoding="utf-8",
                          **options).stdout


def wait_until(condition, what):
    end = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > end:
            raise AssertionError("waited in vain until " + what)
        time.sleep(0.02)


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)
        # What is handed on is packed tighter, which takes a minute.
        run("cpack", "-G", "DEB", "--config", BUILD / "CPackConfig.cmake",
            "-D", "CPACK_DEBIAN_COMPRESSION_TYPE=gzip", "-B", cls.folder / "out")
        cls.package, = (cls.folder / "out").glob("telarium_*.deb")
        cls.usr = cls.folder / "root" / "usr"
        run("dpkg-deb", "-x", cls.package, cls.folder / "root")
        cls.data = cls.usr / "share" / "telarium"
        cls.documents = cls.usr / "share" / "doc" / "telarium"
        cls.samples = sorted((cls.data / "Archivio cruciverba").glob("*.tlrm"))

    def setUp(self):
        self.home = pathlib.Path(tempfile.mkdtemp(dir=self.folder))
        self.environment = {"HOME": str(self.home), "XDG_RUNTIME_DIR": str(self.home),
                            "QT_QPA_PLATFORM": "offscreen", "PATH": os.environ["PATH"]}
        self.own = self.home / ".local" / "share" / "telarium"

    def start(self, program, *arguments):
        process = subprocess.Popen(
            [self.usr / "bin" / program, *arguments], env=self.environment, cwd=self.home,
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, encoding="utf-8")
        self.addCleanup(process.communicate)
        self.addCleanup(process.kill)
        return process

    def telar(self, *arguments):
        """Standard output and standard error of a command that succeeds."""
        process = self.start("telar", *arguments)
        results = process.communicate(timeout=PATIENCE)
        self.assertEqual(process.returncode, 0, results)
        return results

    def names_in_own(self):
        return {path.name for path in self.own.iterdir() if not path.name.startswith(".")}

    def expected_names(self):
        return {path.name for path in self.data.iterdir()} - {"clues", "lexicon"}

    def test_says_what_it_needs(self):
        def field(name):
            return run("dpkg-deb", "-f", self.package, name).strip()
        version = field("Version")
        self.assertEqual(version, run(self.usr / "bin/telar", "--version").split()[1])
        changes = gzip.decompress((self.documents / "changelog.gz").read_bytes()).decode("utf-8")
        self.assertEqual(re.match(r"telarium \((.+?)\) ", changes)[1], version)
        told = (self.documents / "CHANGELOG.md").read_text(encoding="utf-8")
        releases = [release for release in re.findall(r"(?m)^## (.+)$", told)
                    if release != "Prossima versione"]
        self.assertEqual(releases[0], version)
        needed = re.split(r"[ ,]+", field("Depends"))
        for name in ("libqt6widgets6", "libqt6svg6", "libqt6printsupport6", "libqt6network6",
                     "libcurl4", "libsqlite3-0", "fonts-liberation", "fonts-dejavu-core",
                     "qt6-translations-l10n", "ca-certificates", "xdg-utils"):
            self.assertIn(name, needed)

    def test_hands_the_lists_on_and_never_the_store(self):
        lists = sorted(path.name for path in (self.data / "clues").iterdir())
        self.assertEqual(sorted(re.sub(r"\d+-", "", name) for name in lists),
                         sorted(path.name.removesuffix(".xz")
                                for path in (SOURCE / "data/clues").glob("*.tsv*")))
        self.assertEqual(lists[0], "10-scritte.tsv")  # the project's own clues stand first
        self.assertEqual([path for path in self.usr.rglob("*") if path.suffix == ".mdb"], [])
        notice = (self.documents / "copyright").read_text(encoding="utf-8")
        for name in [re.sub(r"\d+-", "*-", name) for name in lists] + [
                path.name for path in self.data.glob("*.dat")]:
            self.assertIn(name, notice)

    def test_has_the_lexicon_of_each_source(self):
        lexicons = sorted(path.name for path in (self.data / "lexicon").iterdir())
        self.assertEqual(lexicons, sorted(
            re.sub(r"\.tsv(\.xz)?$", ".lexicon", path.name)
            for path in (SOURCE / "data/lexicon").glob("*.tsv*")))
        notice = (self.documents / "copyright").read_text(encoding="utf-8")
        for name in lexicons:
            self.assertIn(name, notice)

    def test_documents_have_what_they_link_to(self):
        for page in self.documents.glob("*.md"):
            links = re.findall(r"\]\(([^):#]+)\)", page.read_text(encoding="utf-8"))
            self.assertEqual([link for link in links if not (page.parent / link).exists()], [])

    def test_console_makes_the_encyclopedia_when_a_command_needs_it(self):
        sample = self.samples[0]
        grid, told = self.telar("griglia", sample)
        self.assertGreater(len(grid.splitlines()), 5)
        self.assertEqual(told, "")
        self.assertEqual(self.names_in_own(), self.expected_names())

        broken = self.start("telar", "definizioni", "casa")
        self.assertIn("enciclopedia", broken.stderr.readline())
        broken.send_signal(signal.SIGINT)
        self.assertEqual(broken.wait(PATIENCE), 1)
        self.assertEqual(self.names_in_own(), self.expected_names())

        clues, told = self.telar("definizioni", "casa")
        self.assertRegex(clues, r"\AF\t.+\n")
        self.assertEqual(len(told.splitlines()), 1, told)
        self.assertEqual(self.telar("definizioni", "casa"), (clues, ""))
        self.assertEqual(self.names_in_own(), self.expected_names() | {"telarium1.mdb"})
        self.assertGreater(len(self.telar("parole", sample)[0].splitlines()), 10)

    def test_clues_of_two_letters_count_where_the_encyclopedia_is_older(self):
        clues = self.home / "clues"
        clues.write_text("MELA\tF\tFrutto\n")
        self.telar("--cartella", self.home, "enc-crea", clues)
        line = self.telar("--cartella", self.home, "lessico", "--lessico", "sigle", "MI")[0].splitlines()[0]
        self.assertGreater(sum(map(int, line.split("\t")[6:8])), 0, line)

    def test_the_samples_are_fit_for_print(self):
        for sample in self.samples:
            with self.subTest(sample.name):
                self.telar("controlla", sample)

    def test_a_newer_package_reaches_who_changed_nothing(self):
        self.telar("griglia", self.samples[0])
        tips = self.data / "TLRMTIPS.TXT"
        before = tips.read_bytes()
        self.addCleanup(tips.write_bytes, before)
        tips.write_bytes(b"Un altro consiglio.\r\n")
        lock = self.own / ".telarium.lock"
        lock.touch()
        self.telar("griglia", self.samples[0])
        self.assertEqual((self.own / tips.name).read_bytes(), before, "under a running desktop")
        lock.unlink()
        self.telar("griglia", self.samples[0])
        self.assertEqual((self.own / tips.name).read_bytes(), tips.read_bytes())

    def show_no_tips(self):
        settings = self.home / ".config" / "Telarium" / "telarium.ini"
        settings.parent.mkdir(parents=True)
        settings.write_text("[Options]\nShow%20Tips%20at%20Startup=0\n")

    def test_desktop_makes_it_at_the_first_start_and_opens_crosswords(self):
        self.show_no_tips()  # a second start's file waits until they are closed

        def shows(sample):
            snapshot = self.own / "_tlma_32.tmp"
            return snapshot.exists() and snapshot.read_bytes() == sample.read_bytes()
        first = self.start("telarium", self.samples[0])
        wait_until(lambda: first.poll() is not None or shows(self.samples[0]), "the file is open")
        self.assertEqual(self.start("telarium", self.samples[1]).wait(PATIENCE), 0)
        wait_until(lambda: shows(self.samples[1]), "the second file is open")
        self.assertLessEqual(self.expected_names() | {"telarium1.mdb"}, self.names_in_own())
        self.assertFalse({"clues", "lexicon"} & self.names_in_own())
        self.assertEqual(self.telar("definizioni", "casa")[1], "")
        self.assertIsNone(first.poll(), "it has ended")

    def test_a_double_click_on_a_crossword_leads_here(self):
        entry = self.usr / "share/applications/telarium.desktop"
        lines = dict(line.split("=", 1) for line in entry.read_text(encoding="utf-8").splitlines()
                     if "=" in line)
        self.assertEqual(lines["Exec"], "telarium %f")
        self.assertEqual(lines["MimeType"], MIME_TYPE + ";")
        kind = xml.etree.ElementTree.parse(
            self.usr / "share/mime/packages/telarium.xml").getroot()[0]
        self.assertEqual(kind.get("type"), MIME_TYPE)
        self.assertEqual(kind.find("{*}glob").get("pattern"), "*.tlrm")
        icons = self.usr / "share/icons/hicolor"
        for name in ("apps/" + lines["Icon"], "mimetypes/" + kind.find("{*}icon").get("name")):
            self.assertTrue((icons / "scalable" / (name + ".svg")).exists(), name)
            self.assertEqual(len(list(icons.glob(f"*x*/{name}.png"))), 7, name)
        self.assertEqual(run("desktop-file-validate", entry), "")

    def test_a_software_centre_can_show_it(self):
        described, = (self.usr / "share/metainfo").iterdir()
        run("appstreamcli", "validate-tree", "--no-net", self.folder / "root")
        release = xml.etree.ElementTree.parse(described).find("releases/release")
        self.assertEqual(release.get("version"), run("dpkg-deb", "-f", self.package, "Version").strip())

    def test_man_pages_name_every_command_and_option(self):
        pages = {name: self.usr / f"share/man/man1/{name}.1.gz" for name in ("telar", "telarium")}
        for name, page in pages.items():
            self.assertEqual((self.usr / f"share/man/it/man1/{name}.1.gz").read_bytes(),
                             page.read_bytes())
            formatted = subprocess.run(
                ["man", "--warnings", "-E", "UTF-8", "-l", page], capture_output=True,
                env={"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8"}, check=True)
            self.assertEqual(formatted.stderr, b"")
        text = gzip.decompress(pages["telar"].read_bytes()).decode("utf-8").replace("\\-", "-")
        commands = re.findall(r"^  ([a-z][a-z-]*) ", self.telar("--help")[0], re.MULTILINE)
        self.assertGreater(len(commands), 15)
        for command in commands:
            self.assertRegex(text, rf'(?m)^(\.BI? |\\fB){command}\b')
            for option in re.findall(r"^  (--[a-z-]+)", self.telar(command, "--help")[0],
                                     re.MULTILINE):
                self.assertRegex(text, option + r"\b")


if __name__ == "__main__":
    unittest.main()
