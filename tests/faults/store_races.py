#!/usr/bin/python3 -B
"""Several programs at once on one encyclopedia: makers, importers, readers and a stand-in for the
desktop, in every second round with kills. Afterwards the store must be sound, with every row that was
told as stored and none twice.

    store_races.py TELAR STORE_USER SHIM [--rounds N] [--seed N]

Before the rounds a maker is stopped at each of its calls that change files while an importer runs."""

import argparse
import os
import random
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import fault

LIMIT = 60  # seconds for any one program


def word(prefix, number):
    letters = ""
    for _ in range(3):
        letters += chr(ord("A") + number % 26)
        number //= 26
    return prefix + letters


BASE = [word("BASE", n) for n in range(400)]
IMPORTED = [word("IMP", n) for n in range(150)]
MARK = "SEGNO"


def write_lists(folder):
    """Each clue holds its word. The new list is the old one and a word that marks it."""
    rows = "".join(f"{one}\tF\tdi {one}\n" for one in BASE)
    (folder / "old").write_text(rows)
    (folder / "new").write_text(rows + f"{MARK}\tF\tdi {MARK}\n")
    pairs = "".join(f"{one}\n{text} {one}\n" for one in IMPORTED for text in ("prima di", "poi di"))
    (folder / "definizIONI.txt").write_text(pairs)


class Process:
    def __init__(self, *command, environment=None):
        self.killed = False
        self.begun = time.monotonic()
        self.output = tempfile.TemporaryFile()
        self.errors = tempfile.TemporaryFile()
        self.process = subprocess.Popen(command, stdout=self.output, stderr=self.errors,
                                        env={**os.environ, **(environment or {})})

    def kill(self):
        if self.process.poll() is None:
            self.killed = True
            self.process.send_signal(signal.SIGKILL)

    def wait(self):
        self.status = self.process.wait(LIMIT)
        self.ended = time.monotonic()
        self.output.seek(0)
        self.errors.seek(0)
        self.out = self.output.read().decode()
        self.err = self.errors.read().decode()
        return self


class Faults(list):
    def check(self, sound, text):
        if not sound:
            self.append(text)


def read_store(folder, faults):
    """The rows by word, if the store is sound and no word stands twice."""
    try:
        store = sqlite3.connect(folder / "telarium1.mdb", timeout=LIMIT)
        said = store.execute("PRAGMA integrity_check").fetchone()[0]
        rows = store.execute("SELECT PAROLA, DEFINIZ_FACILE FROM Parole").fetchall()
        store.close()
    except sqlite3.Error as error:
        faults.append(f"broken: {error}")
        return {}
    faults.check(said == "ok", f"broken: {said}")
    words = [row[0] for row in rows]
    doubled = {one for one in words if words.count(one) > 1} if len(set(words)) < len(words) else ()
    faults.check(not doubled, f"doubled words: {sorted(doubled)}")
    for one, clues in rows:
        lines = clues.split("\r\n")
        faults.check(len(set(lines)) == len(lines), f"doubled clues of {one}: {lines}")
        faults.check(all(line.endswith(one) for line in lines), f"foreign clues of {one}: {lines}")
    return dict(rows)


def check_base(rows, faults):
    lost = [one for one in BASE if one not in rows]
    faults.check(not lost, f"lost from the list: {lost}")


def check_imports(rows, maker, importers, faults):
    """Words come in their order; an import that succeeds has stored them all, unless the store was
    made anew after it."""
    there = [one in rows for one in IMPORTED]
    faults.check(there == sorted(there, reverse=True), "an import has lost words in the middle")
    certain = [one for one in importers
               if one.status == 0 and (MARK not in rows or one.begun > maker.ended)]
    if certain:
        faults.check(all(there), f"an import has lost {there.count(False)} words")
        clues = [rows.get(one, "").count("\r\n") + 1 for one in IMPORTED]
        faults.check(set(clues) == {2}, "an import has lost clues")


def sessions_of(user):
    sessions = []
    for line in user.out.splitlines():
        if line.startswith("S"):
            sessions.append([])
        elif line.startswith("A"):
            sessions[-1].append(line[2:])
    return sessions


def check_user(rows, user, faults):
    for line in user.out.splitlines():
        faults.check(not line.startswith("X"), f"read: {line}")
    for session in sessions_of(user):
        lost = [one for one in session if one not in rows]
        # A session comes before a maker, which takes all of it away, or after it.
        allowed = not lost or (MARK in rows and len(lost) == len(session))
        faults.check(allowed, f"the desktop has lost {lost}")


def check_reader(reader, faults):
    one = reader.process.args[-1]
    sound = reader.status == 0 and all(line.endswith(one) for line in reader.out.splitlines())
    told = reader.status == 1 and reader.out == "" and reader.err != ""
    faults.check(sound or told or reader.killed, f"a reader said {reader.out!r} {reader.err!r}")


def check_told(process, faults):
    """What fails says why, and reports no success."""
    if process.status == 0 or process.killed:
        return
    faults.check(process.status == 1 and process.out == "" and process.err != "",
                 f"{process.process.args}: {process.status} {process.out!r} {process.err!r}")


class Races:
    def __init__(self, arguments):
        self.arguments = arguments
        self.draw = random.Random(arguments.seed)
        self.refused = 0

    def telar(self, folder, *words, environment=None):
        return Process(self.arguments.telar, "--cartella", str(folder), *words,
                       environment=environment)

    def prepare(self, folder):
        write_lists(folder)
        assert self.telar(folder, "enc-crea", str(folder / "old")).wait().status == 0

    def start(self, folder):
        tasks = [lambda: ("maker", self.telar(folder, "enc-crea", str(folder / "new")))]
        tasks += 2 * [lambda: ("importer", self.telar(folder, "importa-definizioni"))]
        tasks += 3 * [lambda: ("reader", self.telar(folder, "definizioni", self.draw.choice(BASE)))]
        for prefix in ("UNO", "DUE"):
            tasks.append(lambda prefix=prefix: ("user", Process(
                self.arguments.store_user, str(folder), prefix, "6", "10")))
        self.draw.shuffle(tasks)
        started = []
        for task in tasks:
            started.append(task())
            time.sleep(self.draw.choice((0, 0, 0.002, 0.01, 0.03)))
        return started

    def round(self, kills):
        faults = Faults()
        with tempfile.TemporaryDirectory() as name:
            folder = Path(name)
            self.prepare(folder)
            started = self.start(folder)
            if kills:
                for _, victim in self.draw.sample(started, 3):
                    time.sleep(self.draw.uniform(0, 0.02))
                    victim.kill()
            for _, process in started:
                process.wait()
                check_told(process, faults)
            rows = read_store(folder, faults)
            by = lambda kind: [process for what, process in started if what == kind]
            maker = by("maker")[0]
            faults.check(maker.status != 0 or MARK in rows, "the new list is not there")
            check_base(rows, faults)
            check_imports(rows, maker, by("importer"), faults)
            for user in by("user"):
                check_user(rows, user, faults)
            for reader in by("reader"):
                check_reader(reader, faults)
            self.refused += sum(process.status == 1 for _, process in started)
            keep_if_faulty(folder, faults)
        return faults

    def stopped_maker(self, at, ends):
        """An importer meets a maker that stands still before one of its calls; `ends` tells whether
        the maker then goes on or is killed."""
        faults = Faults()
        with tempfile.TemporaryDirectory() as name:
            folder = Path(name)
            self.prepare(folder)
            maker = self.telar(folder, "enc-crea", str(folder / "new"), environment=fault.environment(
                self.arguments.shim, at=at, do="STOP", under=folder))
            _, status = os.waitpid(maker.process.pid, os.WUNTRACED)
            if not os.WIFSTOPPED(status):
                return None
            importer = self.telar(folder, "importa-definizioni")
            try:  # long enough for it to open the store; it may also end
                importer.process.wait(0.2)
            except subprocess.TimeoutExpired:
                pass
            maker.killed = ends == signal.SIGKILL
            os.kill(maker.process.pid, ends)
            importer.wait()
            maker.wait()
            for process in (maker, importer):
                check_told(process, faults)
            rows = read_store(folder, faults)
            check_base(rows, faults)
            check_imports(rows, maker, [importer], faults)
            keep_if_faulty(folder, faults)
        return faults


def keep_if_faulty(folder, faults):
    if faults:
        kept = tempfile.mkdtemp(prefix="store_races-")
        shutil.copytree(folder, kept, dirs_exist_ok=True)
        faults.append(f"kept in {kept}")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("telar", type=os.path.abspath)
    parser.add_argument("store_user", type=os.path.abspath)
    parser.add_argument("shim", type=os.path.abspath)
    parser.add_argument("--rounds", type=int, default=200)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--every", type=int, default=1, help="of the calls at which the maker stops")
    arguments = parser.parse_args()
    races = Races(arguments)
    failed = moments = 0

    def judge(name, faults):
        nonlocal failed
        failed += bool(faults)
        for one in faults:
            print(f"{name}: {one}")

    for ends in (signal.SIGCONT, signal.SIGKILL):
        at = 1
        while (faults := races.stopped_maker(at, ends)) is not None:
            judge(f"maker stopped at call {at}", faults)
            moments += 1
            at += arguments.every
    for number in range(arguments.rounds):
        judge(f"round {number}", races.round(kills=number % 2 == 1))
    print(f"{moments} moments and {arguments.rounds} races: {failed} faulty; "
          f"{races.refused} programs were refused, and said so")
    return failed > 0 or moments == 0


sys.exit(main())
