#!/usr/bin/python3 -B
"""Every writing command of telar, and what the desktop writes by itself, with an error, or a kill, at
each of their system calls in turn.

    fault_sweep.py TELAR DESKTOP_WRITER SHIM [--every K] [--command NAME]

A run that says 0 must have left the whole result and the usual report; any other one leaves each file
as it was, or whole and new, says why on standard error and prints nothing. An encyclopedia keeps its
rows; what a merge had stored before the error stays. With --every only each K-th call is tried."""

import argparse
import concurrent.futures
import os
import shutil
import sqlite3
import subprocess
import sys
import tempfile
from pathlib import Path

import fault

LIMIT = 60  # seconds for a run

# What happens at a call, and to which calls: see fault_shim.cpp.
FAULTS = [
    ("write", "ENOSPC", ""),
    ("write", "ENOSPC", "onward"),
    ("write", "EIO", ""),
    ("write", "SHORT", ""),
    ("write", "KILL", ""),
    ("read", "EIO", ""),
    ("read", "EMFILE", "onward"),
    ("lock", "EIO", ""),
]

HEAD = "Autore\r\nData\r\nTipo\r\nDimensioni : "
# Three by three cells with ORA across and OCA down, and a clue of each.
GRID = HEAD + "03x03\r\ni.l.[.\r\n].D*D*\r\n[.D*D*\r\n  1  11-tempo\r\n  1  12-starnazza\r\n"
EMPTY = HEAD + "04x05\r\nH.H.H.H.\r\nH.H.H.H.\r\nH.H.H.H.\r\nH.H.H.H.\r\nD*D*D*D*\r\n"


class Command:
    def __init__(self, line, files=(), store=None, desktop=False):
        self.words = line.split()
        self.name = self.words[0]
        self.files = files  # that it writes, below the folder of the run
        self.store = store  # whether it "makes" the encyclopedia anew or "merges" into it
        self.desktop = desktop  # whether it is the desktop's and no command of telar


COMMANDS = [
    Command("copia grid out", ["out"]),
    Command("nuovo out --dimensioni 5x5", ["out"]),
    Command("estrai empty out --dizionario Forzato.dat", ["out"]),
    Command("preleva grid out", ["out"]),
    Command("salva-definizioni grid", store="merges"),
    Command("importa-definizioni", store="merges"),
    Command("enc-crea clues", store="makes"),
    Command("diz-crea Nuovo.dat words", ["program/Nuovo.dat"]),
    Command("html grid --uscita out", ["out"]),
    Command("form grid --uscita out", ["out"]),
    Command("testo grid --cartella-uscita folder", ["folder/NONOME.TXT", "folder/NONOME.html"]),
    Command("apri page out", ["out"]),
    Command("settings", ["program/telarium.INI"], desktop=True),
    Command("snapshot", ["program/_tlma_32.tmp"], desktop=True),
]


def run(program, folder, words, environment=None):
    own = {"TMPDIR": str(folder / "tmp"), "HOME": str(folder / "home"), "XDG_CACHE_HOME": str(folder / "cache"),
           "XDG_STATE_HOME": str(folder / "state"), "TELARIUM_CARTELLA": str(folder / "program")}
    return subprocess.run([program, *words], cwd=folder, env={**os.environ, **own, **(environment or {})},
                          capture_output=True, timeout=LIMIT)


def make_template(telar, folder):
    for name in ("program", "tmp", "home", "folder"):
        (folder / name).mkdir()
    (folder / "grid").write_text(GRID, newline="")
    (folder / "empty").write_text(EMPTY, newline="")
    (folder / "forced").write_text("AAAA\n")
    (folder / "words").write_text("ORA\nMELA\n")
    (folder / "first").write_text("ORA\tF\tpassa\nALTRO\tD\tresta\n")
    (folder / "clues").write_text("".join(f"P{n}\tF\tdi {n}\n" for n in range(3000)).translate(
        str.maketrans("0123456789", "ABCDEFGHIJ")))
    (folder / "program/definizIONI.txt").write_text("UNO\nprimo\nORA\naltra\nDUE\nsecondo\n")
    for words in ("diz-crea Forzato.dat forced", "diz-crea Nuovo.dat forced", "enc-crea first",
                  "form grid --uscita page"):
        assert run(telar, folder, words.split()).returncode == 0, words
    for name in ("out", "folder/NONOME.TXT", "folder/NONOME.html", "program/telarium.INI",
                 "program/_tlma_32.tmp"):
        (folder / name).write_text("old")


def rows_of(folder):
    """The rows of the encyclopedia, each family as the set of its clues; a text when it is broken."""
    try:
        store = sqlite3.connect(folder / "program/telarium1.mdb", timeout=LIMIT)
        said = store.execute("PRAGMA integrity_check").fetchone()[0]
        rows = store.execute("SELECT PAROLA, coalesce(DEFINIZ_FACILE, ''), DEFINIZ_DIFFIC FROM Parole")
        found = sorted((row[0], tuple(row[1].split("\r\n")), row[2]) for row in rows)
        store.close()
    except sqlite3.Error as error:
        return f"broken: {error}"
    return found if said == "ok" else f"broken: {said}"


class State:
    """What a run has left."""

    def __init__(self, command, folder):
        self.files = [(folder / name).read_bytes() if (folder / name).exists() else None
                      for name in command.files]
        self.rows = rows_of(folder)

    def __eq__(self, other):
        return self.files == other.files and self.rows == other.rows


def between(rows, old, new):
    """Whether rows are the old ones and some of what a merge adds."""
    if isinstance(rows, str):
        return False
    families = {row[0]: set(row[1]) for row in rows}
    least = {row[0]: set(row[1]) for row in old}
    most = {row[0]: set(row[1]) for row in new}
    return (len(families) == len(rows) and least.keys() <= families.keys() <= most.keys()
            and all(clues <= families[word] for word, clues in least.items())
            and all(clues <= most[word] for word, clues in families.items()))


class Sweep:
    def __init__(self, telar, desktop_writer, shim, every):
        self.telar, self.desktop_writer = telar, desktop_writer
        self.shim, self.every = shim, every
        self.injected = self.false = self.damaged = self.untold = 0

    def attempt(self, command, template, tried, at):
        """The result of one run, what it has left, and the call that was hit."""
        with tempfile.TemporaryDirectory() as name:
            folder, report = Path(name) / "run", Path(name) / "report"
            shutil.copytree(template, folder)
            calls, do, onward = tried
            program = self.desktop_writer if command.desktop else self.telar
            result = run(program, folder, command.words, fault.environment(
                self.shim, at=at, do=do, calls=calls, onward=onward, under=folder, report=report))
            calls, _, hit = report.read_text().strip().partition(" ")
            return result, State(command, folder), int(calls), hit

    def judge(self, command, tried, at, old, clean, attempt):
        result, state, _, hit = attempt
        expected, new = clean
        if not hit:
            return  # the run had fewer calls this time
        self.injected += 1
        name = f"{' '.join(command.words)}, {tried} at call {at}, {hit}"
        said = f"{result.returncode} {result.stdout!r} {result.stderr!r}"
        if result.returncode == 0 and (state != new or result.stdout != expected.stdout):
            self.false += 1
            print(f"false success: {name}: {said}")
        whole = all(one in (was, will) for one, was, will in zip(state.files, old.files, new.files))
        if command.store == "merges":
            whole = whole and between(state.rows, old.rows, new.rows)
        else:
            whole = whole and state.rows in (old.rows, new.rows)
        if not whole:
            self.damaged += 1
            print(f"damaged: {name}: {said}")
        killed = tried[1] == "KILL" and result.returncode == -9
        told = result.returncode == 1 and not result.stdout and result.stderr
        if result.returncode != 0 and not killed and not told:
            self.untold += 1
            print(f"badly told: {name}: {said}")

    def try_command(self, command, template, pool):
        old = State(command, template)
        expected, new, *_ = self.attempt(command, template, ("write", "", ""), 0)
        assert expected.returncode == 0 and expected.stderr == b"" and new != old, expected
        tries = []
        for tried in FAULTS:
            calls = self.attempt(command, template, (tried[0], "", ""), 0)[2]
            tries += [(tried, at) for at in range(1 + len(tries) % self.every, calls + 1, self.every)]
        attempts = pool.map(lambda one: self.attempt(command, template, *one), tries)
        for (tried, at), attempt in zip(tries, attempts):
            self.judge(command, tried, at, old, (expected, new), attempt)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("telar", type=os.path.abspath)
    parser.add_argument("desktop_writer", type=os.path.abspath)
    parser.add_argument("shim", type=os.path.abspath)
    parser.add_argument("--every", type=int, default=1)
    parser.add_argument("--command")
    arguments = parser.parse_args()
    sweep = Sweep(arguments.telar, arguments.desktop_writer, arguments.shim, arguments.every)
    with tempfile.TemporaryDirectory() as name, \
            concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        template = Path(name) / "template"
        template.mkdir()
        make_template(arguments.telar, template)
        for command in COMMANDS:
            if arguments.command in (None, command.name):
                sweep.try_command(command, template, pool)
    print(f"{sweep.injected} faults: {sweep.false} false successes, {sweep.damaged} damaged files, "
          f"{sweep.untold} badly told")
    return sweep.injected == 0 or sweep.false + sweep.damaged + sweep.untold > 0


sys.exit(main())
