#!/usr/bin/python3 -B
"""The guide in a real browser, as a web archive and as a page: guide_test.py DATA_FOLDER MENU_TABLE."""

import base64
import pathlib
import re
import subprocess
import sys
import unittest

from selenium.webdriver.common.by import By

from browser_test_case import BrowserTest

DATA = pathlib.Path(sys.argv.pop(1)).absolute()
MENU = pathlib.Path(sys.argv.pop(1)).read_text(encoding="utf-8")

MAX_BYTES = 3_000_000  # it goes by mail


class Guide(BrowserTest):
    def for_each_file(self, check):
        for name in ("TELARIUM7.mht", "TELARIUM7.html"):
            with self.subTest(name):
                self.browser.get((DATA / name).as_uri())
                for frame in self.browser.find_elements(By.TAG_NAME, "iframe"):
                    self.browser.switch_to.frame(frame)
                check(DATA / name)

    def text(self):
        return self.browser.execute_script("return document.body.textContent.replace(/\\s+/g, ' ')")

    def test_it_shows_with_its_accents_and_all_its_pictures(self):
        def check(file):
            self.assertLess(file.stat().st_size, MAX_BYTES)
            self.assertEqual(self.browser.title, "Guida di Telarium")
            self.assertIn("È il posto giusto per rileggere", self.text())
            self.assertNotRegex(self.text(), "[Ã\ufffd]")
            missing = self.browser.execute_script(
                "return [...document.images].filter(i => !i.complete || i.naturalWidth == 0 ||"
                " i.naturalWidth != i.getAttribute('width')).map(i => i.alt || i.src)")
            self.assertEqual(missing, [])
            self.assertGreater(self.browser.execute_script("return document.images.length"), 40)

        self.for_each_file(check)

    def test_every_link_stays_in_the_page_and_lands(self):
        def check(_):
            address = self.browser.execute_script("return document.URL")
            links = self.browser.execute_script(
                "return [...document.links].map(a => a.getAttribute('href'))")
            self.assertGreater(len(links), 100)
            for link in sorted(set(links)):
                top, now = self.browser.execute_script(
                    "const link = arguments[0]; scrollTo(0, 0);"
                    "document.querySelector(`a[href='${link}']`).click();"
                    "return [document.querySelector(link).getBoundingClientRect().top, document.URL]",
                    link)
                self.assertTrue(-1 <= top < 1000, f"{link} leads to {top}")
                self.assertEqual(now, address + link)

        self.for_each_file(check)

    def test_it_fits_narrow_and_wide_windows(self):
        def check(_):
            for width in (500, 900, 1600):
                self.browser.set_window_size(width, 1000)
                wide = self.browser.execute_script(
                    "return document.documentElement.scrollWidth - innerWidth")
                self.assertLessEqual(wide, 0, f"at {width}")

        self.for_each_file(check)

    def test_all_of_it_is_printed(self):
        def check(_):
            self.browser.switch_to.default_content()
            paper = self.folder / "guide.pdf"
            paper.write_bytes(base64.b64decode(self.browser.print_page()))
            text = subprocess.run(["pdftotext", paper, "-"], check=True, capture_output=True).stdout
            self.assertEqual(text.decode().count("Domande e risposte"), 2, "contents and chapter")

        self.for_each_file(check)

    def test_it_names_every_menu_entry_and_key(self):
        self.browser.get((DATA / "TELARIUM7.html").as_uri())
        text = self.text()
        entries = re.findall(r'\{1, "\w+", "([^"-]+)"(?:_cp)?(?:, "([^"]+)")?\}', MENU)
        self.assertGreater(len(entries), 40)
        for caption, key in entries:
            name = re.split(r" \.\.\.| \(|,", caption.replace("&", ""))[0].strip()
            if name != "Gestione schemi predefinito":  # hidden
                self.assertIn(name, text)
            self.assertIn(key.replace("Shift+Ctrl", "Ctrl+Maiusc").replace("Shift", "Maiusc"), text)


if __name__ == "__main__":
    unittest.main()
