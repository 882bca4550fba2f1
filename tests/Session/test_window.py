# SPDX-License-Identifier: MIT
"""The window itself: moved, resized, maximised, minimised, translucent or not."""

from accessibility import TAB
from desktop import wait_for
from program import BriskoTest, main


class WindowTest(BriskoTest):
    waits_for_scan = False

    def setUp(self):
        super().setUp()
        self.brisko.wait("Overview", TAB, 30)
        self.window = self.brisko.window()

    def empty_place(self):
        """A point of the window where there is nothing but its background: above the page, near its right end."""
        x, y, width, _ = self.window.area()
        return x + width - 60, y + 16

    def behind(self):
        """What lies behind the window."""
        area = self.window.area()
        self.window.close()
        self.brisko.wait_for_no_window()
        picture = self.desktop.settled(*area)
        self.assertEqual(self.start().wait_for_end(), 0)
        self.window = self.brisko.wait_for_window()
        wait_for(lambda: self.window.area() == area, "window where it was")
        return picture


def near(one, other, tolerance=12):
    return all(abs(a - b) <= tolerance for a, b in zip(one, other))


class Window(WindowTest):
    def test_dragging_its_background_moves_it(self):
        x, y, width, height = self.window.area()
        start = self.empty_place()
        self.desktop.drag(start, (start[0] - 50, start[1] + 40))
        wait_for(lambda: near(self.window.area(), (x - 50, y + 40, width, height), 6), "moved window")

    def test_dragging_a_control_does_not(self):
        before = self.window.area()
        start = self.brisko.wait("Settings", TAB).centre()
        self.desktop.drag(start, (start[0] + 60, start[1] + 60))
        self.assertEqual(self.window.area(), before)

    def test_dragging_its_corner_resizes_it(self):
        x, y, width, height = self.window.area()
        corner = (x + width - 4, y + height - 4)
        self.desktop.drag(corner, (corner[0] + 60, corner[1] + 50))
        wait_for(lambda: near(self.window.area(), (x, y, width + 60, height + 50), 6), "larger window")

    def test_is_never_smaller_than_its_least(self):
        x, y, width, height = self.window.area()
        corner = (x + width - 4, y + height - 4)
        self.desktop.drag(corner, (corner[0] - 500, corner[1] - 300))
        wait_for(lambda: self.window.area()[2:] == (1000, 680), "smallest window")

    def test_maximises_and_comes_back(self):
        before = self.window.area()
        self.brisko.click_button("Zoom")
        wait_for(lambda: self.window.maximised, "maximised window")
        wait_for(lambda: self.window.area()[2] == self.desktop.size[0], "full width")
        self.brisko.click_button("Restore")
        wait_for(lambda: not self.window.maximised and self.window.area()[2:] == before[2:], "restored window")
        self.desktop.click(*self.empty_place(), times=2)
        wait_for(lambda: self.window.maximised, "window maximised by a double click")

    def test_minimises(self):
        self.brisko.click_button("Minimize")
        wait_for(lambda: self.window.minimised, "minimised window")
        self.assertEqual(self.start().wait_for_end(), 0)
        wait_for(lambda: not self.window.minimised and self.window.active, "window in front again")

    def test_floats_in_a_transparent_margin(self):
        picture, behind = self.brisko.picture(), self.behind()
        for x, y in ((1, 1), (2, picture.height // 2), (picture.width - 2, picture.height - 2)):
            self.assertTrue(near(picture.at(x, y), behind.at(x, y), 40), (x, y, picture.at(x, y), behind.at(x, y)))
        middle = (picture.width // 2, 14)
        self.assertFalse(near(picture.at(*middle), behind.at(*middle)), "the glass is tinted")


class WithoutCompositor(WindowTest):
    compositor = False

    def test_is_opaque_with_round_corners(self):
        picture, behind = self.brisko.picture(), self.behind()
        for x, y in ((0, 0), (picture.width - 1, 0), (0, picture.height - 1), (picture.width - 1, picture.height - 1)):
            self.assertTrue(near(picture.at(x, y), behind.at(x, y)), "the corners are cut off, not black")
        for x, y in ((1, picture.height // 2), (picture.width // 2, 1)):
            self.assertFalse(near(picture.at(x, y), (0, 0, 0)), "no black margin")
            self.assertFalse(near(picture.at(x, y), behind.at(x, y)), "the panel reaches the edge")

    def test_resizes_with_its_corners_cut(self):
        x, y, width, height = self.window.area()
        edge = (x + width - 3, y + height // 2)
        self.desktop.drag(edge, (edge[0] + 50, edge[1]))
        wait_for(lambda: near(self.window.area(), (x, y, width + 50, height), 6), "wider window")
        picture, behind = self.brisko.picture(), self.behind()
        self.assertTrue(near(picture.at(picture.width - 1, 0), behind.at(picture.width - 1, 0)))
        self.assertFalse(near(picture.at(picture.width - 2, height // 2), behind.at(picture.width - 2, height // 2)))


if __name__ == "__main__":
    main()
