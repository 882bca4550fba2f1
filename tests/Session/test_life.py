# SPDX-License-Identifier: MIT
"""From start to end: hiding and coming back, a second start, the desktop's own calls, and quitting."""

import re

from gi.repository import GLib

from accessibility import BUTTON, CHECK_BOX, HEADING, TAB, call
from desktop import wait_for
from homes import vast_home
from program import PAGES, PANEL_TITLE, BriskoTest, main

APPLICATION = "org.freedesktop.Application"


class Life(BriskoTest):
    waits_for_scan = False

    def hide(self):
        self.brisko.window().close()
        self.brisko.wait_for_no_window()
        self.assertTrue(self.brisko.running, "closing the window only hides it")

    def test_starts_in_the_middle_with_its_first_page(self):
        x, y, width, height = self.brisko.window().area()
        self.assertEqual((width, height), (1100, 680))
        self.assertAlmostEqual(x + width / 2, self.desktop.size[0] / 2, delta=40)
        self.assertAlmostEqual(y + height / 2, self.desktop.size[1] / 2, delta=40)
        self.assertEqual(self.brisko.current_page(), "Overview")
        self.brisko.wait("Your Mac, Cleaner and Lighter", HEADING)
        self.assertEqual([tab.name for tab in self.brisko.all(role=TAB)], list(PAGES))

    def test_a_second_start_brings_the_hidden_window_back_as_it_was(self):
        page = self.brisko
        page.wait_for_first_scan()
        page.open_page("Junk Cleaner")
        page.tick("^System Logs")
        self.hide()
        second = self.start()
        self.assertEqual(second.wait_for_end(), 0)
        page.wait_for_window()
        wait_for(lambda: page.window().active, "active window")
        page.wait("Junk Cleaner", TAB, that=lambda tab: tab.selected)
        self.assertTrue(page.wait(re.compile("^System Logs"), CHECK_BOX).checked)
        self.assertGreater(page.picture().colours(), 500, "it is drawn again")

    def test_frames_keep_coming_after_a_second_start(self):
        page = self.brisko
        page.wait("Overview", TAB)
        for _ in range(3):
            self.hide()
            self.assertEqual(self.start().wait_for_end(), 0)
            page.wait_for_window()
        before = page.picture()
        page.open_page("Settings")
        self.assertNotEqual(page.picture().pixels, before.pixels)

    def test_close_button_hides_and_activation_shows(self):
        page = self.brisko
        page.click_button("Close")
        page.wait_for_no_window()
        self.assertTrue(page.running)
        call(self.desktop.bus, "com.brisko.Brisko", "/com/brisko/Brisko", APPLICATION, "Activate",
             GLib.Variant("(a{sv})", ({},)))
        page.wait_for_window()

    def test_the_settings_shortcut_with_the_window_hidden(self):
        page = self.brisko
        self.hide()
        # With the window away, the panel has the keys.
        page.panel_item().activate()
        panel = page.wait_for_window(PANEL_TITLE)
        wait_for(lambda: panel.active, "active panel")
        self.desktop.keys("ctrl+comma")
        page.wait_for_window()
        page.wait("Settings", TAB, that=lambda tab: tab.selected)

    def test_the_settings_shortcut(self):
        page = self.brisko
        wait_for(lambda: page.window().active, "active window")
        self.desktop.keys("ctrl+comma")
        page.wait("Settings", TAB, that=lambda tab: tab.selected)

    def test_quits_by_the_menu_of_its_window(self):
        self.brisko.choose_in_menu("Menu", "Quit Brisko")
        self.assertEqual(self.brisko.wait_for_end(), 0)

    def test_settings_by_the_menu_of_its_window(self):
        self.brisko.choose_in_menu("Menu", "Settings")
        self.brisko.wait("Settings", TAB, that=lambda tab: tab.selected)

    def test_ends_politely_while_it_scans(self):
        self.brisko.process.terminate()
        self.brisko.wait_for_end()


class Stopping(BriskoTest):
    home_maker = staticmethod(vast_home)
    waits_for_scan = False

    def test_a_scan_can_be_stopped(self):
        page = self.brisko
        page.open_page("Duplicates")
        page.wait_for_text(r"^Scanning")
        self.assertFalse(page.find("Scan", BUTTON).enabled)
        page.click_button("Stop")
        page.button("Scan")
        page.wait_gone("Stop", BUTTON)
        page.wait_for_text(r"^No duplicate files yet")
        self.assertLess(page.processor_use(3), 20, "nothing goes on in the background")


if __name__ == "__main__":
    main()
