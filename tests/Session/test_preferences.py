# SPDX-License-Identifier: MIT
"""Language and appearance change while the program runs, and are remembered."""

import re

from accessibility import HEADING, TAB
from program import BriskoTest, main, translated


class Preferences(BriskoTest):
    waits_for_scan = False

    def choose(self, name):
        """A language's row or an appearance's segment, whatever kind of control it is."""
        pressable = ("push button", "list item", "radio button", "menu item", "page tab", "check box", "button")
        found = self.brisko.wait(name, that=lambda element: element.role in pressable)
        self.brisko.click(found)

    def test_another_language_at_once_on_the_same_page(self):
        page = self.brisko
        page.open_page("Settings")
        self.choose("Deutsch")
        for english in ("Settings", "Overview", "Junk Cleaner"):
            page.wait(translated(english, "de"), TAB)
        self.assertEqual(page.current_page(), translated("Settings", "de"), "the page is kept")
        page.wait(translated("Settings", "de"), HEADING)
        self.assertIsNone(page.find("Settings", HEADING))
        page.open_page(translated("Junk Cleaner", "de"))
        page.wait(translated("Junk Cleaner", "de"), HEADING)

        page.stop()
        self.brisko = self.start()
        self.brisko.wait(translated("Overview", "de"), TAB, 30)

    def test_light_and_dark(self):
        page = self.brisko
        page.open_page("Settings")
        seen = {}
        for name in ("Light", "Dark", "Light"):
            self.choose(name)
            page.wait(re.compile(f"^{name}$"), that=lambda element: element.selected or element.checked)
            seen[name] = page.picture().brightness()
        self.assertGreater(seen["Light"], seen["Dark"] + 40)

        self.choose("Dark")
        page.picture()
        page.stop()
        self.brisko = self.start()
        self.brisko.wait_for_window()
        self.brisko.wait("Overview", TAB, 30)
        self.assertLess(self.brisko.picture().brightness(), seen["Dark"] + 20)


if __name__ == "__main__":
    main()
