# SPDX-License-Identifier: MIT
"""What a program tells assistive tools about itself: its tree of named things, read over the accessibility bus.

A look at the tree is a picture of one moment: `Element.name` and the like say how it was then. What an element is
asked to do (press, focus, where it lies) is asked of the program as it is now."""

import re

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

ACCESSIBLE = "org.a11y.atspi.Accessible"
ACTION = "org.a11y.atspi.Action"
COMPONENT = "org.a11y.atspi.Component"
PROPERTIES = "org.freedesktop.DBus.Properties"

# The numbers of the states that tests ask for.
STATES = {1: "active", 4: "checked", 10: "expanded", 11: "focusable", 12: "focused", 22: "selectable", 23: "selected",
          25: "showing", 30: "visible", 43: "read-only"}

BUTTON, CHECK_BOX, TAB, ROW, HEADING, LABEL = "push button", "check box", "page tab", "list item", "heading", "label"
DIALOG, ALERT_MESSAGE, MENU_ITEM, TIP = "dialog", "alert message", "menu item", "tool tip"


def connect(address):
    """A connection to a message bus of one's own."""
    flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
    bus = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
    bus.set_exit_on_close(False)
    return bus


def call(bus, service, path, interface, method, parameters=None, timeout=5_000):
    """Calls and waits; the answer without its outer brackets."""
    answer = bus.call_sync(service, path, interface, method, parameters, None, Gio.DBusCallFlags.NONE, timeout,
                           None).unpack()
    return answer[0] if len(answer) == 1 else answer


class Element:
    """One thing in the tree, as it was when it was looked at."""

    def __init__(self, bus, service, path, parent=None):
        self.bus, self.service, self.path, self.parent = bus, service, path, parent
        self.role = self.name = self.description = ""
        self.states = frozenset()
        self.children = []

    def __repr__(self):
        more = f" ({self.description})" if self.description else ""
        return f"[{self.role}] {self.name!r}{more} {','.join(sorted(self.states))}"

    @property
    def enabled(self):
        """The toolkit never says "disabled": read-only is the program's sign for it."""
        return "read-only" not in self.states

    @property
    def checked(self):
        return "checked" in self.states

    @property
    def selected(self):
        return "selected" in self.states

    @property
    def focused(self):
        return "focused" in self.states

    @property
    def ancestors(self):
        above = self.parent
        while above is not None:
            yield above
            above = above.parent

    def everything(self):
        """This element and all below it, from above."""
        yield self
        for child in self.children:
            yield from child.everything()

    def matching(self, name=None, role=None):
        """Every element below with the role and the name, which may be a pattern."""
        for element in self.everything():
            if role is not None and element.role != role:
                continue
            if isinstance(name, re.Pattern) and not name.search(element.name):
                continue
            if isinstance(name, str) and element.name != name:
                continue
            yield element

    def outline(self, level=0):
        lines = ["  " * level + repr(self)]
        for child in self.children:
            lines.append(child.outline(level + 1))
        return "\n".join(lines)

    def ask(self, interface, method, parameters=None):
        return call(self.bus, self.service, self.path, interface, method, parameters)

    def area(self):
        """Where it lies on the screen now: x, y, width, height."""
        return tuple(self.ask(COMPONENT, "GetExtents", GLib.Variant("(u)", (0,))))

    def centre(self):
        x, y, width, height = self.area()
        if width <= 0 or height <= 0:
            raise AssertionError(f"{self} has no area")
        return x + width // 2, y + height // 2

    def press(self):
        """What an assistive tool does to press it."""
        count = self.ask(PROPERTIES, "Get", GLib.Variant("(ss)", (ACTION, "NActions")))
        for number in range(count):
            name = self.ask(ACTION, "GetName", GLib.Variant("(i)", (number,)))
            if name.lower() == "press":
                self.ask(ACTION, "DoAction", GLib.Variant("(i)", (number,)))
                return
        raise AssertionError(f"{self} cannot be pressed")

    def take_focus(self):
        self.ask(COMPONENT, "GrabFocus")


class Bus:
    """The accessibility bus of a session."""

    def __init__(self, session_bus):
        address = call(session_bus, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")
        self.bus = connect(address)

    def close(self):
        self.bus.close_sync(None)

    def program(self, pid):
        """The root of a process's tree; None while it has not registered."""
        for service, path in call(self.bus, "org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root", ACCESSIBLE,
                                  "GetChildren"):
            try:
                owner = call(self.bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                             "GetConnectionUnixProcessID", GLib.Variant("(s)", (service,)))
            except GLib.Error:
                continue  # it has just left
            if owner == pid:
                return Element(self.bus, service, path)
        return None

    def look(self, root):
        """A picture of everything that shows below `root`. One level of the tree is asked about at once."""
        root.children = []
        level = [root]
        while level:
            below = []
            for element, answers in zip(level, self._ask_all([self._questions(element) for element in level])):
                if element.parent is not None and not self._take(element, answers):
                    continue
                if element.parent is not None:
                    element.parent.children.append(element)
                for service, path in answers[4] or ():
                    if not path.endswith("/null"):
                        below.append(Element(self.bus, service, path, element))
            level = below
        return root

    @staticmethod
    def _questions(element):
        def prop(name):
            return PROPERTIES, "Get", GLib.Variant("(ss)", (ACCESSIBLE, name))

        return [(element.service, element.path, *question) for question in
                ((ACCESSIBLE, "GetState", None), (ACCESSIBLE, "GetRoleName", None), prop("Name"), prop("Description"),
                 (ACCESSIBLE, "GetChildren", None))]

    @staticmethod
    def _take(element, answers):
        """Fills an element; answers whether it is there and shows."""
        state, element.role, element.name, element.description, _ = answers
        if None in answers:
            return False
        bits = state[0] | state[1] << 32
        element.states = frozenset(name for number, name in STATES.items() if bits >> number & 1)
        return "showing" in element.states

    def _ask_all(self, groups):
        """Sends every question, then waits for the answers: None where the program had none."""
        answers = [[None] * len(group) for group in groups]
        left = sum(map(len, groups))

        def answered(bus, result, place):
            nonlocal left
            left -= 1
            group, number = place
            try:
                value = bus.call_finish(result).unpack()
                answers[group][number] = value[0] if len(value) == 1 else value
            except GLib.Error:
                pass  # the element is gone by now

        for group, questions in enumerate(groups):
            for number, (service, path, interface, method, parameters) in enumerate(questions):
                self.bus.call(service, path, interface, method, parameters, None, Gio.DBusCallFlags.NONE, 10_000, None,
                              answered, (group, number))
        context = GLib.MainContext.default()
        while left > 0:
            context.iteration(True)
        return answers
