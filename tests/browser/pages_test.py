#!/usr/bin/python3 -B
"""The web pages of a crossword in a real browser, as a visitor meets them: pages_test.py TELAR."""

import subprocess
import sys
import unittest

from selenium.webdriver.common.by import By
from selenium.webdriver.support.expected_conditions import alert_is_present

from browser_test_case import BrowserTest

TELAR = sys.argv.pop(1)

GRID = ["CITTÀ", "ÈRA*.", "DUE**"]
CLUES = {(1, 1, 1): "Perché c'è, è «grande»", (1, 1, 2): "L'€ però"}


def crossword(grid, clues):
    """The crossword file of a drawing, without its colours."""
    head = ["Autore     : Niccolò", "Data       : 05-03-2024", "Tipo       : Crociate Normale",
            f"Dimensioni : {len(grid[0]):02}x{len(grid):02}"]
    rows = [b"".join(bytes([cell + 26]) + (b"*" if cell == ord("*") else b".")
                     for cell in row.encode("cp1252")) for row in grid]
    lines = [f"{c:3}{r:3}{d}-{text}" for (c, r, d), text in clues.items()]
    return b"\r\n".join([line.encode("cp1252") for line in head] + rows +
                        [line.encode("cp1252") for line in lines] + [b""])


class Pages(BrowserTest):
    def open(self, command, grid, clues=None):
        """Makes a page of a crossword and opens it."""
        source, page = self.folder / "prova.tlrm", self.folder / "page.html"
        source.write_bytes(crossword(grid, clues or {}))
        subprocess.run([TELAR, "--cartella", self.folder, command, source, "--uscita", page],
                       check=True)
        self.browser.get(page.as_uri())

    def named(self, name):
        return self.browser.find_element(By.NAME, name)

    def heading(self, text):
        """The cell of the page in which the list of that heading stands."""
        return self.browser.find_element(By.XPATH, f"//b[.='{text}']/ancestor::td[1]").rect

    def grid(self):
        return self.browser.find_element(By.CSS_SELECTOR, "table[bgcolor='#c0c0c0']").rect

    def visible_text(self):
        return self.browser.find_element(By.TAG_NAME, "body").text


class InteractivePage(Pages):
    def setUp(self):
        self.open("form", GRID, CLUES)

    def solve(self, letters):
        """Types into the cells, which count from 1 in reading order, and gives what is told."""
        for cell, letter in letters.items():
            self.named(f"num{cell}").send_keys(letter)
        self.named("Invia").click()
        alert = self.wait(alert_is_present())
        told = alert.text
        alert.accept()
        return told

    def expect_result(self, told, right, percent):
        self.assertRegex(told, rf"^Tempo impiegato : \d+ Secondi ?\n"
                               rf"Lettere totali nel cruciverba : 12\n"
                               rf"Lettere risolte correttamente: {right}\n"
                               rf"Percentuale risolta = {percent}%$")

    def test_the_clock_runs(self):
        shown = int(self.named("timeBox").get_attribute("value"))
        self.wait(lambda _: int(self.named("timeBox").get_attribute("value")) > shown)

    def test_answers_are_checked_in_either_case(self):
        self.expect_result(self.solve({}), 0, 0)
        self.expect_result(self.solve({1: "c", 2: "I", 3: "x"}), 2, 17)
        address = self.browser.current_url
        self.named("num3").clear()
        # An empty cell wants a full stop; the accents are matched in either case too.
        rest = {3: "T", 4: "t", 5: "à", 6: "È", 7: "r", 8: "a", 10: ".", 11: "d", 12: "U", 13: "e"}
        self.assertRegex(self.solve(rest), r"^Complimenti! hai risolto il cruciverba "
                                           r"completamente in : \d+ Secondi$")
        self.assertEqual(self.browser.current_url, address, "nothing is sent")

    def test_a_cell_takes_one_character(self):
        self.named("num1").send_keys("CA")
        self.assertEqual(self.named("num1").get_attribute("value"), "C")

    def test_grid_and_lists_stand_side_by_side(self):
        left, grid, right = self.heading("ORIZZONTALI"), self.grid(), self.heading("VERTICALI")
        self.assertLessEqual(left["x"] + left["width"], grid["x"])
        self.assertLessEqual(grid["x"] + grid["width"], right["x"])
        self.assertEqual(left["y"], right["y"])
        self.assertLess(abs(left["y"] - grid["y"]), 10)

    def test_the_save_block_is_not_seen_and_accents_are_right(self):
        text = self.visible_text()
        self.assertNotIn("SALVATAGGIO", text)
        self.assertNotIn("Dimensioni", text)
        # The page names no encoding: the browser has to guess it.
        guess = "taken for " + self.browser.execute_script("return document.characterSet")
        for words in (*CLUES.values(), "Niccolò"):
            self.assertIn(words, text, guess)


class StaticPage(Pages):
    def test_up_to_19_columns_three_cells_stand_side_by_side(self):
        self.open("html", ["AB*" * 6 + "A"] * 3, CLUES)
        left, grid, right = self.heading("ORIZZONTALI"), self.grid(), self.heading("VERTICALI")
        self.assertLessEqual(left["x"] + left["width"], grid["x"])
        self.assertLessEqual(grid["x"] + grid["width"], right["x"])
        self.assertEqual(left["y"], right["y"])
        self.assertIn(CLUES[1, 1, 1], self.visible_text())

    def test_from_20_columns_on_they_stand_one_below_the_other_in_columns(self):
        self.open("html", ["AB*" * 6 + "AB"] * 3, CLUES)
        upper, grid, lower = self.heading("ORIZZONTALI"), self.grid(), self.heading("VERTICALI")
        self.assertLessEqual(upper["y"] + upper["height"], grid["y"])
        self.assertLessEqual(grid["y"] + grid["height"], lower["y"])
        lists = self.browser.find_elements(By.XPATH, "//b[.='ORIZZONTALI']/ancestor::tr[1]//ol")
        self.assertEqual([len(one.find_elements(By.TAG_NAME, "li")) for one in lists], [13, 8])
        self.assertLess(lists[0].rect["x"] + lists[0].rect["width"], lists[1].rect["x"])


if __name__ == "__main__":
    unittest.main()
