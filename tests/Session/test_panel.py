# SPDX-License-Identifier: MIT
"""The item in the status area, and the panel that it opens."""

from accessibility import BUTTON, TAB
from desktop import wait_for
from program import PANEL_TITLE, BriskoTest, main


class Panel(BriskoTest):
    waits_for_scan = False

    def setUp(self):
        super().setUp()
        self.brisko.wait("Overview", TAB, 30)
        self.item = self.brisko.panel_item()

    def open(self):
        self.item.activate()
        panel = self.brisko.wait_for_window(PANEL_TITLE)
        wait_for(lambda: panel.active, "active panel")
        return panel

    def test_the_item_wears_the_brand_in_colour(self):
        self.assertEqual(self.item.tool_tip, "Brisko")
        blues = [colour for colour in self.item.colours() if colour[0] == 255 and colour[3] > colour[1] + 60]
        self.assertTrue(blues, "a picture in colour, not a mask")

    def test_opens_near_the_status_area_and_closes_again(self):
        panel = self.open()
        x, y, width, height = panel.area()
        self.assertGreaterEqual(x, self.desktop.size[0] // 2, "at the right")
        self.assertTrue(0 <= y and x + width <= self.desktop.size[0] and y + height <= self.desktop.size[1])
        self.item.activate()
        self.brisko.wait_for_no_window(PANEL_TITLE)
        self.open()
        self.desktop.keys("Escape")
        self.brisko.wait_for_no_window(PANEL_TITLE)
        self.open()
        self.brisko.window().activate()
        self.brisko.wait_for_no_window(PANEL_TITLE)
        self.assertTrue(self.brisko.running)

    def test_shows_the_figures(self):
        self.open()
        shown = {element.name for element in self.brisko.look().matching()}
        self.assertTrue({"CPU", "Memory", "Disk Temperature", "Freeable Space", "Open Brisko", "Quit Brisko"} <= shown,
                        shown)

    def in_panel(self, name):
        """A button of the panel; the window behind it may have one of the same name."""
        def inside():
            x, y, width, height = self.brisko.window(PANEL_TITLE).area()
            for element in self.brisko.all(name, BUTTON):
                at = element.centre()
                if x <= at[0] <= x + width and y <= at[1] <= y + height:
                    return element
            return None
        return wait_for(inside, f"{name} in the panel")

    def test_a_tile_opens_its_page(self):
        self.brisko.window().close()
        self.brisko.wait_for_no_window()
        self.open()
        self.brisko.click(self.in_panel("Large Files"))
        self.brisko.wait_for_window()
        self.brisko.wait_for_no_window(PANEL_TITLE)
        self.brisko.wait("Large Files", TAB, that=lambda tab: tab.selected)
        wait_for(lambda: self.brisko.window().active, "active window")

    def test_opens_the_window_and_quits(self):
        self.brisko.window().close()
        self.brisko.wait_for_no_window()
        self.open()
        self.brisko.click(self.in_panel("Open Brisko"))
        self.brisko.wait_for_window()
        self.brisko.wait_for_no_window(PANEL_TITLE)
        self.open()
        self.brisko.click(self.in_panel("Quit Brisko"))
        self.assertEqual(self.brisko.wait_for_end(), 0)


if __name__ == "__main__":
    main()
