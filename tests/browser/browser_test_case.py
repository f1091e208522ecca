"""A real browser that shows itself on no screen, and a folder, for the tests of one class."""

import os
import pathlib
import shutil
import tempfile
import unittest

from selenium import webdriver
from selenium.webdriver.support.ui import WebDriverWait

os.environ["no_proxy"] = "localhost,127.0.0.1"  # whatever the network is reached through

PATIENCE = 20  # seconds, for what takes none


class BrowserTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)
        options = webdriver.ChromeOptions()
        options.binary_location = shutil.which("chromium")
        for argument in ("--headless=new", f"--user-data-dir={folder.name}/profile",
                         "--window-size=1600,1000", "--disable-dev-shm-usage",
                         "--disable-background-networking", "--no-first-run"):
            options.add_argument(argument)
        if os.geteuid() == 0:  # the browser refuses its sandbox to root
            options.add_argument("--no-sandbox")
        service = webdriver.chrome.service.Service(shutil.which("chromedriver"))
        cls.browser = webdriver.Chrome(service=service, options=options)
        cls.addClassCleanup(cls.browser.quit)

    def wait(self, condition):
        return WebDriverWait(self.browser, PATIENCE).until(condition)
