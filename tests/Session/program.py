# SPDX-License-Identifier: MIT
"""Brisko on a desktop, as somebody sees and uses it: through the accessibility tree, the pointer and the keys."""

import os
import re
import signal
import subprocess
import sys
import time
import unittest
import xml.etree.ElementTree as ElementTree

from accessibility import (ALERT_MESSAGE, BUTTON, CHECK_BOX, DIALOG, HEADING, LABEL, MENU_ITEM, TAB)
from desktop import Desktop, wait_for
from homes import LIFELIKE_HOME, ROOT, small_home

TITLE, PANEL_TITLE = "Brisko", "Brisko panel"
PAGES = ("Overview", "Uninstaller", "Duplicates", "Large Files", "Junk Cleaner", "Startup", "Settings")
# A place where nobody listens: no test asks the outside for an update.
NO_FEED = "http://127.0.0.1:9/appcast.json"

# What may stand on the console, and why. Everything else there fails the test.
ALLOWED_OUTPUT = (
    (r"^libEGL warning: ", "Mesa without a graphics card"),
    (r"^MESA: error: ZINK", "Mesa without a graphics card"),
    (r"^The account keeps its own home here", "tools/lifelike-home where the system grants no mount namespace"),
)


def binary():
    """The program to test, from the environment."""
    return os.environ["BRISKO_PROGRAM"]


def translated(english, language):
    """What an English text is in another language, by its table."""
    path = os.path.join(ROOT, "src", "Support", "Localization", language + ".lproj")
    for name in os.listdir(path):
        for message in ElementTree.parse(os.path.join(path, name)).iter("message"):
            if message.findtext("source") == english:
                return message.findtext("translation")
    raise LookupError(f"{language} has no text for {english!r}")


class Brisko:
    """One running program and its home."""

    def __init__(self, desktop, home, arguments=(), environment=None):
        self.desktop, self.home = desktop, home
        values = {
            **desktop.environment, "HOME": home, "TMPDIR": os.path.join(home, ".temporary"),
            "XDG_CONFIG_HOME": os.path.join(home, ".config"), "XDG_CACHE_HOME": os.path.join(home, ".cache"),
            "XDG_DATA_HOME": os.path.join(home, ".local/share"), "XDG_STATE_HOME": os.path.join(home, ".local/state"),
            "QT_QPA_PLATFORM": "xcb", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_LOGGING_TO_CONSOLE": "1",
            "BRISKO_REDUCED_MOTION": "1", "BRISKO_APPCAST_URL": NO_FEED, **(environment or {}),
        }
        self._output = os.path.join(desktop.folder, f"program-{time.monotonic_ns()}.log")
        settings = [f"{name}={value}" for name, value in values.items()]
        with open(self._output, "wb") as output:
            # The account's own home must not be found either: the tool names another one for it.
            self.process = subprocess.Popen([sys.executable, LIFELIKE_HOME, home, "env", "-i", *settings, binary(),
                                             *arguments], env=values, stdin=subprocess.DEVNULL, stdout=output,
                                            stderr=output, start_new_session=True)
        self.pid = self.process.pid
        self._root = None

    # Its process.

    @property
    def running(self):
        return self.process.poll() is None

    def output(self):
        with open(self._output, encoding="utf-8", errors="replace") as file:
            return file.read()

    def complaints(self):
        """What it said that is not allowed for."""
        return [line for line in self.output().splitlines()
                if line.strip() and not any(re.search(pattern, line) for pattern, _ in ALLOWED_OUTPUT)]

    def wait_for_end(self, seconds=30):
        try:
            return self.process.wait(seconds)
        except subprocess.TimeoutExpired:
            raise AssertionError(f"it still runs after {seconds} s") from None

    def processor_seconds(self):
        with open(f"/proc/{self.pid}/stat", encoding="ascii", errors="replace") as file:
            fields = file.read().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")

    def processor_use(self, seconds):
        """In percent of one core, over a while."""
        before, start = self.processor_seconds(), time.monotonic()
        time.sleep(seconds)
        return 100 * (self.processor_seconds() - before) / (time.monotonic() - start)

    def stop(self):
        if self.running:
            self.process.terminate()
            try:
                self.process.wait(10)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait(10)

    # Its windows.

    def window(self, title=TITLE):
        """The window of that title when it is on the screen, else None."""
        return next((window for window in self.desktop.windows(self.pid) if window.title == title), None)

    def wait_for_window(self, title=TITLE):
        def shown():
            if not self.running:
                raise RuntimeError(f"it ended with {self.process.returncode}: {self.output()}")
            return self.window(title)
        return wait_for(shown, f"window {title!r}", 30)

    def wait_for_no_window(self, title=TITLE):
        wait_for(lambda: self.window(title) is None, f"end of the window {title!r}")

    def picture(self, title=TITLE):
        return self.desktop.settled(*self.window(title).area())

    # What it shows.

    def look(self):
        """The tree of everything that shows now."""
        if self._root is None:
            self._root = wait_for(lambda: self.desktop.accessibility.program(self.pid), "accessible program", 30)
        return self.desktop.accessibility.look(self._root)

    def all(self, name=None, role=None):
        return list(self.look().matching(name, role))

    def find(self, name=None, role=None):
        """The first that shows now, or None."""
        return next(self.look().matching(name, role), None)

    def wait(self, name=None, role=None, seconds=30, that=lambda element: True):
        """The first with that name and role, once it shows and is `that`."""
        def seen():
            return next((element for element in self.look().matching(name, role) if that(element)), None)
        try:
            return wait_for(seen, f"{role or 'element'} {name!r}", seconds, 0.1)
        except AssertionError as missing:
            raise AssertionError(f"{missing}; what shows:\n{self.look().outline()}") from None

    def wait_gone(self, name=None, role=None, seconds=30):
        wait_for(lambda: self.find(name, role) is None, f"end of the {role or 'element'} {name!r}", seconds, 0.1)

    def wait_for_text(self, pattern, seconds=30):
        """A label or heading whose text matches."""
        return self.wait(re.compile(pattern), None, seconds, lambda element: element.role in (LABEL, HEADING))

    def texts(self):
        return [element.name for element in self.look().matching() if element.role in (LABEL, HEADING)]

    # What somebody does.

    def click(self, element, button=1):
        self.desktop.click(*element.centre(), button=button)

    def button(self, name, seconds=30):
        """A button that can be pressed."""
        return self.wait(name, BUTTON, seconds, lambda element: element.enabled)

    def click_button(self, name):
        self.click(self.button(name))

    def open_page(self, name):
        """Goes to a page by its row in the sidebar."""
        self.click(self.wait(name, TAB, that=lambda tab: tab.enabled))
        self.wait(name, TAB, that=lambda tab: tab.selected)

    def current_page(self):
        return next((tab.name for tab in self.all(role=TAB) if tab.selected), None)

    def check_box(self, pattern):
        return self.wait(re.compile(pattern), CHECK_BOX)

    def tick(self, pattern, wanted=True):
        """Clicks a check box and waits until it answers."""
        self.click(self.check_box(pattern))
        return self.wait(re.compile(pattern), CHECK_BOX, that=lambda box: box.checked == wanted)

    def dialog(self, title):
        return self.wait(title, DIALOG)

    def answer(self, title, button):
        """Presses a button of the modal with that title."""
        dialog = self.dialog(title)
        self.click(next(iter(dialog.matching(button, BUTTON))))
        self.wait_gone(title, DIALOG)

    def toast(self, pattern, seconds=30):
        return self.wait(re.compile(pattern), ALERT_MESSAGE, seconds)

    def choose_in_menu(self, button, item):
        self.click_button(button)
        self.click(self.wait(item, MENU_ITEM))

    def wait_for_first_scan(self):
        """The scan that every start begins with has come to its end."""
        self.toast(r"^Scan complete", 90)

    def panel_item(self):
        """What it put into the status area."""
        def registered():
            for item in self.desktop.status_area.items(self.desktop.bus):
                if item.get("Id") is not None:
                    return item
            return None
        return wait_for(registered, "item in the status area")


class BriskoTest(unittest.TestCase):
    """A desktop for each class, a program and a home for each test."""

    home_maker = staticmethod(small_home)
    compositor = True
    environment = {}
    waits_for_scan = True

    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop(compositor=cls.compositor)
        cls.desktop.__enter__()
        cls.addClassCleanup(cls.desktop.stop)

    def setUp(self):
        self.home = os.path.join(self.desktop.folder, "homes", f"{time.monotonic_ns()}")
        os.makedirs(os.path.dirname(self.home), exist_ok=True)
        self.home_maker(self.home)
        self.brisko = self.start()
        self.brisko.wait_for_window()
        if self.waits_for_scan:
            self.brisko.wait_for_first_scan()

    def start(self, *arguments, **environment):
        """Starts the program; at the test's end it is stopped, and what it said is judged."""
        brisko = Brisko(self.desktop, self.home, arguments, {**self.environment, **environment})
        self.addCleanup(self.judge, brisko)
        return brisko

    def judge(self, brisko):
        brisko.stop()
        self.assertEqual(brisko.complaints(), [], "what the program said on the console")
        self.assertIn(brisko.process.returncode, (0, -signal.SIGTERM), brisko.output())

    def there(self, path):
        return os.path.lexists(os.path.join(self.home, path))


def main():
    unittest.main(verbosity=2)
