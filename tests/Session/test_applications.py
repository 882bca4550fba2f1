# SPDX-License-Identifier: MIT
"""Applications and what starts by itself."""

import os
import plistlib
import re

from accessibility import BUTTON, ROW
from desktop import wait_for
from homes import trashed
from program import BriskoTest, main


class Uninstaller(BriskoTest):
    def test_uninstalls_an_application_with_what_belongs_to_it(self):
        page = self.brisko
        page.open_page("Uninstaller")
        page.wait_for_text(r"^2 applications · .* installed$")
        page.wait_for_text(r"^Unused$")
        page.tick("^Forgotten Game")
        page.wait_for_text(r"^1 item selected · ")
        page.click_button("Move to Trash")
        dialog = page.dialog("Uninstall Forgotten Game?")
        texts = [element.name for element in dialog.everything()]
        self.assertIn("This will move the application and related files to Trash.", texts)
        page.answer("Uninstall Forgotten Game?", "Move to Trash")
        page.toast(r"freed|Trash")
        self.assertEqual(trashed(self.home), ["Forgotten Game.app", "com.example.game.plist"])
        self.assertFalse(self.there("Applications/Forgotten Game.app"))
        self.assertTrue(self.there("Applications/Pixel Paint.app"))
        self.assertTrue(self.there("Library/Preferences/com.example.paint.plist"))
        page.wait_for_text(r"^1 application · .* installed$")

    def test_several_are_confirmed_together(self):
        page = self.brisko
        page.open_page("Uninstaller")
        page.tick("^Forgotten Game")
        page.tick("^Pixel Paint")
        page.wait_for_text(r"^2 items selected · ")
        page.click_button("Move to Trash")
        page.answer("Uninstall 2 apps?", "Cancel")
        self.assertEqual(trashed(self.home), [])

    def test_a_row_opens_to_its_related_files(self):
        page = self.brisko
        page.open_page("Uninstaller")
        page.click_button("Show files of Pixel Paint")
        page.wait(re.compile(r"com\.example\.paint\.plist$"), ROW)


class Startup(BriskoTest):
    def agent(self, name):
        with open(os.path.join(self.home, "Library/LaunchAgents", name + ".plist"), "rb") as file:
            return plistlib.load(file)

    def button_of(self, word, item):
        """A button in the row of an item."""
        row = self.brisko.wait(item, ROW)
        return next(row.matching(re.compile("^" + word), BUTTON))

    def test_switches_an_item_off_and_on(self):
        page = self.brisko
        page.open_page("Startup")
        page.wait_for_text(r"^2 items · 1 enabled$")
        page.click(self.button_of("Disable", "com.example.helper"))
        page.wait_for_text(r"^2 items · 0 enabled$")
        wait_for(lambda: self.agent("com.example.helper").get("Disabled") is True, "change on the disk")
        page.click(self.button_of("Enable", "com.example.updater"))
        page.wait_for_text(r"^2 items · 1 enabled$")
        wait_for(lambda: not self.agent("com.example.updater").get("Disabled"), "change on the disk")

    def test_removes_an_item_when_confirmed(self):
        page = self.brisko
        page.open_page("Startup")
        page.wait_for_text(r"^2 items")
        page.click(self.button_of("Remove", "com.example.updater"))
        dialog = page.dialog("Remove com.example.updater?")
        texts = [element.name for element in dialog.everything()]
        self.assertTrue({"Type", "Launch Agent", "Path"} <= set(texts), texts)
        page.answer("Remove com.example.updater?", "Remove")
        wait_for(lambda: trashed(self.home) == ["com.example.updater.plist"], "file in the Trash")
        page.wait_for_text(r"^1 items? · 1 enabled$")
        self.assertTrue(self.there("Library/LaunchAgents/com.example.helper.plist"))


if __name__ == "__main__":
    main()
