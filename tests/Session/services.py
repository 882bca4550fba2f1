# SPDX-License-Identifier: MIT
"""What a desktop offers programs over the message bus: a status area and a file manager of our own."""

import threading

from gi.repository import Gio, GLib

from accessibility import call, connect

PROPERTIES = "org.freedesktop.DBus.Properties"
ITEM = "org.kde.StatusNotifierItem"


class Service:
    """Answers programs from a thread of its own: they wait for the answer while we may be waiting for them."""

    NAME = PATH = INTERFACE = ""

    def __init__(self, address):
        self._context = GLib.MainContext()
        self._loop = GLib.MainLoop(self._context)
        self._ready = threading.Event()
        self._bus = None
        self._thread = threading.Thread(target=self._serve, args=(address,), daemon=True)
        self._thread.start()
        if not self._ready.wait(10):
            raise RuntimeError(f"{self.NAME} did not start")

    def _serve(self, address):
        self._context.push_thread_default()
        self._bus = connect(address)
        interface = Gio.DBusNodeInfo.new_for_xml(self.INTERFACE).interfaces[0]
        self._bus.register_object(self.PATH, interface, self._called, self._asked, None)
        self.begin(self._bus)
        call(self._bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
             GLib.Variant("(su)", (self.NAME, 0)))
        self._ready.set()
        self._loop.run()

    def _called(self, _bus, sender, _path, _interface, method, parameters, invocation):
        invocation.return_value(None)
        self.called(sender, method, parameters.unpack())

    def _asked(self, _bus, _sender, _path, _interface, name):
        return self.asked(name)

    def begin(self, bus):
        """Before the service has its name."""

    def called(self, sender, method, parameters):
        """A program called; it has its answer already."""

    def asked(self, name):
        """A program asked for a property."""

    def stop(self):
        self._context.invoke_full(GLib.PRIORITY_DEFAULT, self._loop.quit)
        self._thread.join(5)
        self._bus.close_sync(None)


class StatusItem:
    """What a program put into the status area."""

    def __init__(self, bus, service, path):
        self.bus, self.service, self.path = bus, service, path

    def get(self, name):
        return call(self.bus, self.service, self.path, PROPERTIES, "Get", GLib.Variant("(ss)", (ITEM, name)))

    @property
    def tool_tip(self):
        return self.get("ToolTip")[2]

    def colours(self):
        """The different colours of its largest picture, as alpha, red, green, blue."""
        _, _, pixels = max(self.get("IconPixmap"))
        pixels = bytes(pixels)
        return {tuple(pixels[at:at + 4]) for at in range(0, len(pixels), 4)}

    def activate(self):
        """What a click does."""
        call(self.bus, self.service, self.path, ITEM, "Activate", GLib.Variant("(ii)", (0, 0)))


class StatusArea(Service):
    """Keeps the items that programs register."""

    NAME = "org.kde.StatusNotifierWatcher"
    PATH = "/StatusNotifierWatcher"
    INTERFACE = """<node><interface name="org.kde.StatusNotifierWatcher">
<method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
<method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
<property name="RegisteredStatusNotifierItems" type="as" access="read"/>
<property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
<property name="ProtocolVersion" type="i" access="read"/>
<signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
<signal name="StatusNotifierItemUnregistered"><arg type="s"/></signal>
<signal name="StatusNotifierHostRegistered"/>
</interface></node>"""

    def __init__(self, address):
        self._items = []
        super().__init__(address)

    def items(self, bus):
        return [StatusItem(bus, service, path) for _, service, path in list(self._items)]

    def begin(self, bus):
        bus.signal_subscribe("org.freedesktop.DBus", "org.freedesktop.DBus", "NameOwnerChanged",
                             "/org/freedesktop/DBus", None, Gio.DBusSignalFlags.NONE, self._owner_changed)

    def called(self, sender, method, parameters):
        if method == "RegisterStatusNotifierItem":
            # An item names its service, or the path of its object in the service that calls.
            (named,) = parameters
            place = (sender, named) if named.startswith("/") else (named, "/StatusNotifierItem")
            self._items.append((sender, *place))
            self._tell("StatusNotifierItemRegistered", "".join(place))

    def asked(self, name):
        if name == "RegisteredStatusNotifierItems":
            return GLib.Variant("as", [service + path for _, service, path in self._items])
        if name == "IsStatusNotifierHostRegistered":
            return GLib.Variant("b", True)
        return GLib.Variant("i", 0)

    def _tell(self, signal, item):
        self._bus.emit_signal(None, self.PATH, self.NAME, signal, GLib.Variant("(s)", (item,)))

    def _owner_changed(self, _bus, _sender, _path, _interface, _signal, parameters):
        name, _, owner = parameters.unpack()
        if owner:
            return
        for gone in [item for item in self._items if name in item[:2]]:
            self._items.remove(gone)
            self._tell("StatusNotifierItemUnregistered", "".join(gone[1:]))


class FileManager(Service):
    """Remembers what it was asked to show."""

    NAME = "org.freedesktop.FileManager1"
    PATH = "/org/freedesktop/FileManager1"
    INTERFACE = """<node><interface name="org.freedesktop.FileManager1">
<method name="ShowItems"><arg type="as" direction="in"/><arg type="s" direction="in"/></method>
</interface></node>"""

    def __init__(self, address):
        self.shown = []
        super().__init__(address)

    def called(self, _sender, _method, parameters):
        self.shown.extend(parameters[0])
