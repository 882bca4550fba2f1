# SPDX-License-Identifier: MIT
"""Cleaning from the window, from the first click to the files in the Trash."""

import os
import re

from accessibility import BUTTON, CHECK_BOX, MENU_ITEM, ROW, TIP
from desktop import wait_for
from homes import trashed
from program import BriskoTest, main


class Junk(BriskoTest):
    def test_cleans_what_was_chosen_and_confirmed(self):
        page = self.brisko
        page.open_page("Junk Cleaner")
        page.wait_for_text(r"^\d+ categories · .* reclaimable$")
        page.wait_for_text(r"^11 files · 11 KB$")
        self.assertIsNotNone(page.find("Select categories to clean"))
        self.assertFalse(page.find("Clean Selected", BUTTON).enabled)

        page.tick("^System Logs")
        page.wait_for_text(r"^1 selected · 11 KB$")
        page.click_button("Clean Selected")
        dialog = page.dialog("Clean 1 category?")
        texts = [element.name for element in dialog.everything()]
        self.assertIn("This will move 11 files to Trash.", texts)
        self.assertTrue({"Total Size", "11 KB"} <= set(texts), texts)
        self.assertEqual(trashed(self.home), [], "nothing goes before it is confirmed")

        page.answer("Clean 1 category?", "Clean Selected")
        page.toast(r"11 KB")
        self.assertEqual(trashed(self.home), [f"mail {number:02}.log" for number in range(11)])
        self.assertEqual(os.listdir(os.path.join(self.home, "Library/Logs")), [])
        self.assertTrue(self.there("Library/Caches/com.example.pixelpaint/tiles.db"), "not chosen, not touched")
        page.wait_gone("System Logs")
        self.assertFalse(page.find("Clean Selected", BUTTON).enabled)

    def test_cancelling_removes_nothing(self):
        page = self.brisko
        page.open_page("Junk Cleaner")
        page.tick("^System Logs")
        for leave in (lambda: page.answer("Clean 1 category?", "Cancel"), lambda: page.desktop.keys("Escape")):
            page.click_button("Clean Selected")
            page.dialog("Clean 1 category?")
            leave()
            page.wait_gone("Clean 1 category?")
        self.assertEqual(trashed(self.home), [])
        self.assertEqual(len(os.listdir(os.path.join(self.home, "Library/Logs"))), 11)
        self.assertTrue(page.check_box("^System Logs").checked, "the choice is kept")

    def test_a_card_shows_its_first_ten_files(self):
        page = self.brisko
        page.open_page("Junk Cleaner")
        page.click_button("Show files of System Logs")
        page.wait_for_text(r"^… and 1 more$")
        shown = [row.name for row in page.all(re.compile(r"^mail \d\d\.log$"), ROW)]
        self.assertEqual(len(set(shown)), 10, shown)
        page.click_button("Hide files of System Logs")
        page.wait_gone(re.compile("^… and 1 more$"))


class LargeFiles(BriskoTest):
    def open_scanned(self):
        """The first list comes from the start; the page counts only what it has scanned itself."""
        page = self.brisko
        page.open_page("Large Files")
        page.wait_for_text(r"^Set threshold and press Scan$")
        page.click_button("Scan")
        page.wait_for_text(r"^2 files · .* total$")
        return page

    def test_removes_the_chosen_file(self):
        page = self.open_scanned()
        page.tick(r"^Birthday\.mov")
        page.wait_for_text(r"^1 file selected · 157\.3 MB$")
        page.click_button("Move to Trash")
        page.answer("Remove 1 large file?", "Move to Trash")
        page.toast(r"157\.3 MB")
        self.assertEqual(trashed(self.home), ["Birthday.mov"])
        self.assertTrue(self.there("Movies/Holiday.mkv"))
        page.wait_for_text(r"^1 file · 629\.1 MB total$")

    def test_a_lower_threshold_scans_again(self):
        page = self.open_scanned()
        page.click_button("≥ 100 MB")
        self.assertTrue(page.wait("100 MB", MENU_ITEM).selected)
        self.assertEqual([item.name for item in page.all(role=MENU_ITEM)],
                         ["10 MB", "50 MB", "100 MB", "200 MB", "500 MB", "1 GB"])
        page.click(page.find("50 MB", MENU_ITEM))
        page.wait_for_text(r"^3 files · .* total$")
        self.assertIsNotNone(page.find("≥ 50 MB", BUTTON))
        page.choose_in_menu("≥ 50 MB", "1 GB")
        page.wait_for_text(r"^No large files found above threshold$")


    def test_the_menu_of_an_item_leads_to_it(self):
        page = self.brisko
        page.open_page("Large Files")
        path = os.path.join(self.home, "Movies/Birthday.mov")

        def choose(name):
            page.click(page.wait("Birthday.mov", ROW), button=3)
            page.click(page.wait(name, MENU_ITEM))
            page.wait_gone(name, MENU_ITEM)
        choose("Copy Path")
        wait_for(lambda: self.desktop.clipboard() == path, "path on the clipboard")
        choose("Show in File Manager")
        wait_for(lambda: self.desktop.file_manager.shown == ["file://" + path], "item in the file manager")


class Duplicates(BriskoTest):
    def box_of(self, path):
        """A copy's check box says in its description where the copy lies."""
        return self.brisko.wait(None, CHECK_BOX, that=lambda box: box.description == path)

    def test_removes_copies_and_keeps_one(self):
        page = self.brisko
        page.open_page("Duplicates")
        page.wait_for_text(r"^2 groups · 100 KB reclaimable$")
        copies = [box.description for box in page.all("beach.jpg", CHECK_BOX) + page.all("beach (1).jpg", CHECK_BOX)]
        self.assertEqual(len(copies), 3, copies)
        for path in copies[1:]:
            page.click(self.box_of(path))
            page.wait(None, CHECK_BOX, that=lambda box, path=path: box.description == path and box.checked)
        page.wait_for_text(r"^2 files selected · 80 KB$")
        last = page.wait(None, CHECK_BOX, that=lambda box: box.description == "At least one copy is kept")
        self.assertFalse(last.enabled, "the last copy cannot be ticked")
        page.desktop.point_at(*last.centre())
        page.wait("At least one copy is kept", TIP)
        page.click(last)
        last.press()
        page.wait_for_text(r"^2 files selected · 80 KB$")

        page.click_button("Move to Trash")
        dialog = page.dialog("Remove 2 duplicate files?")
        self.assertIn("The selected copies will be moved to Trash. One original copy of each file is kept.",
                      [element.name for element in dialog.everything()])
        page.answer("Remove 2 duplicate files?", "Move to Trash")
        page.toast(r"80 KB")
        self.assertEqual(len(trashed(self.home)), 2)
        left = [name for name in ("Pictures/beach.jpg", "Pictures/Copies/beach.jpg", "Downloads/beach (1).jpg")
                if self.there(name)]
        self.assertEqual(len(left), 1, left)
        page.wait_for_text(r"^1 group · 20 KB reclaimable$")

    def test_keep_first_chooses_the_rest(self):
        page = self.brisko
        page.open_page("Duplicates")
        page.wait_for_text(r"^2 groups")
        for button in page.all("Keep First", BUTTON):
            page.click(button)
        page.wait_for_text(r"^3 files selected · 100 KB$")
        page.click_button("Move to Trash")
        page.answer("Remove 3 duplicate files?", "Move to Trash")
        page.toast(r"100 KB")
        self.assertEqual(len(trashed(self.home)), 3)
        page.wait_for_text(r"^No duplicate files yet")


if __name__ == "__main__":
    main()
