"""What a composition makes of odd crosswords, demands that contradict each other, and Ctrl+C at any moment."""
import signal
import subprocess
import time

from planted import Crossword

BLACK, WIDE = ["*" * 53] * 30, ["." * 53] * 30
# The grid, the arguments, the exit status, and how the message begins.
CASES = [
    (["*"], "", 0, ""),
    (["."], "", 0, ""),
    (BLACK, "", 0, ""),
    ([".*.", "*.*"], "", 0, ""),
    (["...*...", "*******", "...*...", "...*...", "...*..."], "", 0, ""),
    (WIDE, "", 3, "Con queste parole"),
    (WIDE, "--regole=libere", 3, "Con queste parole"),
    (["."] * 30, "--parziale", 3, "Con queste parole"),
    (["7.A"], "", 3, "Con queste parole"),
    (["7A-", "***", "ÀB."], "", 0, ""),
    (["ß..."], "", 3, "Con queste parole"),
    (["A" * 53], "", 0, ""),
    (["..."], "--lessico=vuota", 3, "vuota: non contiene nemmeno una parola."),
    (["...."], "--passi=0", 4, "Interrotto"),
    (["...."], "--secondi=0", 4, "Interrotto"),
    (["*"], "--secondi=0", 4, "Interrotto"),
    (["...."], "--secondi=0 --parziale", 4, "Interrotto"),
    ([".."], "--due=0", 3, "Con queste parole"),
    (["...."], "--vuole=casa,cane", 3, "Con queste parole"),
    (["..."], "--vuole=casa", 1, "La parola voluta CASA"),
    (["...."], "--vuole=casa --vieta=casa", 1, "La parola voluta CASA"),
    (["...."], "--vuole=casa --livello=100", 1, "La parola voluta CASA"),
    (["....."], "--vuole=andai", 1, "La parola voluta ANDAI"),
    (["C..."], "--maschera=1,1,O:D...", 1, "La maschera D..."),
    (["...."], "--maschera=1,1,O:C... --maschera=1,1,O:D...", 1, "La maschera D..."),
    (["...."], "--maschera=1,1,O:CASE --vieta=CASE", 3, "Con queste parole"),
    (["...."], "--regione=5,1,6,1", 1, "La regione 5,1,6,1"),
    (["...."], "--regole=manca", 1, ""),
    (["...."], "--lessico=manca", 1, ""),
]


def bad_input_faults(telar, built, home):
    (home / "vuota").write_text("")

    def start(rows, arguments):
        (home / "in").write_bytes(Crossword([list(row) for row in rows]).bytes())
        (home / "out").write_bytes(b"old")
        return subprocess.Popen([telar, "--cartella", built, "componi", "in", "out", "--seme=1", "--secondi=60",
                                 *arguments.split()], cwd=home, stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def ended(process):
        out, err = (text.decode("utf-8") for text in process.communicate(timeout=120))
        return process.returncode, out.split("\n")[0], err, (home / "out").read_bytes() != b"old"

    for rows, arguments, status, message in CASES:
        code, first, err, written = ended(start(rows, "--ottimizza=0 " + arguments))
        results = {0: "esito\triempito", 1: "", 3: "esito\timpossibile", 4: "esito\ttempo"}
        sound = code == status and first == results[status] and err.startswith(message) and bool(err) == (status > 0)
        if not sound or written != (status == 0 or "--parziale" in arguments):
            yield f"{rows[0]} {arguments}: {code} {first} {err} {written}"
    # Before it listens the system ends it.
    expected = {-signal.SIGINT: "", 0: "esito\triempito", 3: "esito\timpossibile", 4: "esito\ttempo"}
    for tenths in range(0, 30, 3):
        process = start([".....*.....", "...*...*..."] * 6, "--ottimizza=100000 --livello=" + str(tenths % 3 * 40))
        time.sleep(tenths / 100)
        process.send_signal(signal.SIGINT)
        code, first, err, written = ended(process)
        if expected.get(code) != first or written != (code == 0):
            yield f"Ctrl+C: {code} {first} {err} {written}"
