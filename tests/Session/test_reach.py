# SPDX-License-Identifier: MIT
"""Everything has a name, and everything can be reached and pressed without a pointer."""

import re

from accessibility import BUTTON, CHECK_BOX, DIALOG, LABEL, TAB
from desktop import wait_for
from program import PAGES, PANEL_TITLE, BriskoTest, main

FILLED = {"Uninstaller": r"^2 applications", "Duplicates": r"^2 groups", "Large Files": r"^Birthday\.mov$",
          "Junk Cleaner": r"^\d+ categories", "Startup": r"^2 items"}


def in_list(element):
    """The rows of a list are reached by the arrows, the list by the Tab key."""
    return any(above.role in ("list", "page tab list") for above in element.ancestors)


class Reach(BriskoTest):
    def open_filled(self, name):
        self.brisko.open_page(name)
        if name in FILLED:
            self.brisko.wait_for_text(FILLED[name])

    def nameless(self, below):
        return [repr(element) for element in below.everything()
                if "focusable" in element.states and element.role != LABEL and not element.name]

    def test_every_control_of_every_page_has_a_name(self):
        for name in PAGES:
            with self.subTest(name):
                self.open_filled(name)
                self.assertEqual(self.nameless(self.brisko.look()), [])

    def test_every_control_of_a_modal_and_of_the_panel_has_a_name(self):
        page = self.brisko
        self.open_filled("Junk Cleaner")
        page.tick("^System Logs")
        page.click_button("Clean Selected")
        dialog = page.dialog("Clean 1 category?")
        self.assertEqual(self.nameless(dialog), [])
        self.desktop.keys("Escape")
        page.wait_gone("Clean 1 category?", DIALOG)
        page.panel_item().activate()
        page.wait_for_window(PANEL_TITLE)
        page.wait("Quit Brisko", BUTTON)
        self.assertEqual(self.nameless(page.look()), [])

    def walk(self, most=80):
        """What has the focus after each press of the Tab key, until it comes round."""
        visited = {}
        for _ in range(most):
            self.desktop.keys("Tab")
            # A list that holds the focused row says that it is focused too.
            focused = [element for element in self.brisko.look().everything() if element.focused]
            if not focused:
                continue
            if focused[-1].path in list(visited)[:1]:
                return {(element.role, element.name) for element in visited.values()}
            visited[focused[-1].path] = focused[-1]
        self.fail(f"the Tab key does not come round: {list(visited.values())}")

    def test_the_tab_key_reaches_every_control(self):
        for name in PAGES:
            with self.subTest(name):
                self.open_filled(name)
                visited = self.walk()
                controls = {(element.role, element.name) for element in self.brisko.look().everything()
                            if "focusable" in element.states and element.enabled and not in_list(element)
                            and element.role in (BUTTON, CHECK_BOX, "radio button", "button")}
                self.assertLessEqual(controls, visited)

    def focus(self, element):
        element.take_focus()
        wait_for(lambda: any(other.focused and other.name == element.name
                             for other in self.brisko.look().everything()), f"focus at {element}")

    def test_space_and_return_press(self):
        page = self.brisko
        for key, name in (("space", "Junk Cleaner"), ("Return", "Settings"), ("space", "Overview")):
            self.focus(page.wait(name, TAB))
            self.desktop.keys(key)
            page.wait(name, TAB, that=lambda tab: tab.selected)
        for key, name in (("Return", "Duplicates"), ("space", "Large Files")):
            page.open_page("Overview")
            self.focus(page.wait(name, BUTTON))
            self.desktop.keys(key)
            page.wait(name, TAB, that=lambda tab: tab.selected)

    def test_the_arrows_walk_through_a_list_and_space_chooses(self):
        page = self.brisko
        self.open_filled("Large Files")
        for _ in range(40):
            self.desktop.keys("Tab")
            focused = [element for element in page.look().everything() if element.focused]
            if any(in_list(element) and element.role != TAB for element in focused):
                break
        else:
            self.fail("the Tab key does not lead into the list")
        self.desktop.keys("Down")
        self.desktop.keys("space")
        page.wait_for_text(r"^1 file selected")
        self.desktop.keys("Up")
        self.desktop.keys("space")
        page.wait_for_text(r"^2 files selected")

    def test_a_modal_holds_the_focus_and_gives_it_back(self):
        page = self.brisko
        self.open_filled("Large Files")
        page.tick(r"^Birthday\.mov")
        self.focus(page.button("Move to Trash"))
        self.desktop.keys("Return")
        page.dialog("Remove 1 large file?")
        # With the modal on top, the Tab key goes round among its own two buttons.
        self.assertEqual({name for _, name in self.walk(20)}, {"Cancel", "Move to Trash"})
        self.desktop.keys("Escape")
        page.wait_gone("Remove 1 large file?", DIALOG)
        page.wait("Move to Trash", BUTTON, that=lambda button: button.focused)

    def test_pressing_by_an_assistive_tool(self):
        page = self.brisko
        page.wait("Junk Cleaner", TAB).press()
        page.wait("Junk Cleaner", TAB, that=lambda tab: tab.selected)
        page.check_box("^System Logs").press()
        self.assertTrue(page.wait(re.compile("^System Logs"), CHECK_BOX, that=lambda box: box.checked))
        page.wait_for_text(r"^1 selected")
        page.button("Clean Selected").press()
        page.dialog("Clean 1 category?")


if __name__ == "__main__":
    main()
