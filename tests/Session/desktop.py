# SPDX-License-Identifier: MIT
"""A desktop of our own for tests: a screen in memory, a message bus, a window manager, a compositor and a status area.
Nobody sees it, it sees nothing of the tester's own desktop, and it ends with the test.

Runs with the system's own Python, which knows the bindings that it needs."""

import atexit
import ctypes
import os
import shutil
import signal
import struct
import subprocess
import tempfile
import time
import uuid
import zlib

from gi.repository import GLib
from Xlib import X, Xatom, display, error
from Xlib.protocol import event

from accessibility import Bus, connect
from services import FileManager, StatusArea

MARK = "BRISKO_TEST_DESKTOP"
BUS = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>session</type><listen>unix:path={folder}/bus</listen><auth>EXTERNAL</auth>
<servicedir>{folder}/services</servicedir>
<policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/>
<allow own="*"/></policy></busconfig>"""


def wait_for(question, what, seconds=30, pause=0.05):
    """Asks again and again until the answer is a yes, which it returns."""
    end = time.monotonic() + seconds
    while True:
        try:
            answer, reason = question(), ""
        except (GLib.Error, LookupError, OSError) as problem:
            answer, reason = None, f" ({problem})"
        if answer:
            return answer
        if time.monotonic() > end:
            raise AssertionError(f"after {seconds} s still no {what}{reason}")
        time.sleep(pause)


class Picture:
    """What a part of the screen looked like, four bytes a pixel: blue, green, red and nothing."""

    def __init__(self, width, height, pixels):
        self.width, self.height, self.pixels = width, height, pixels

    def at(self, x, y):
        offset = 4 * (y * self.width + x)
        blue, green, red = self.pixels[offset:offset + 3]
        return red, green, blue

    def brightness(self):
        """From 0, black, to 255, white."""
        return sum(self.pixels[0::4] + self.pixels[1::4] + self.pixels[2::4]) / (3 * self.width * self.height)

    def colours(self):
        return len({self.pixels[at:at + 3] for at in range(0, len(self.pixels), 4)})

    def save(self, path):
        """Writes it as a PNG file."""
        rgb = bytearray(3 * self.width * self.height)
        rgb[0::3], rgb[1::3], rgb[2::3] = self.pixels[2::4], self.pixels[1::4], self.pixels[0::4]
        line = 3 * self.width
        lines = b"".join(b"\0" + rgb[row * line:(row + 1) * line] for row in range(self.height))

        def chunk(kind, content):
            return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))

        with open(path, "wb") as file:
            header = struct.pack(">2I5B", self.width, self.height, 8, 2, 0, 0, 0)
            file.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header)
                       + chunk(b"IDAT", zlib.compress(bytes(lines), 6)) + chunk(b"IEND", b""))


class Window:
    """A window that the window manager keeps; where it is and how is read anew each time."""

    def __init__(self, desktop, number):
        self.desktop, self.number = desktop, number
        self._window = desktop.screen.create_resource_object("window", number)

    def __eq__(self, other):
        return isinstance(other, Window) and self.number == other.number

    def __hash__(self):
        return hash(self.number)

    def _property(self, name):
        value = self._window.get_full_property(self.desktop.atom(name), X.AnyPropertyType)
        return value.value if value else None

    @property
    def title(self):
        return bytes(self._property("_NET_WM_NAME") or b"").decode(errors="replace")

    @property
    def pid(self):
        return int((self._property("_NET_WM_PID") or [0])[0])

    @property
    def states(self):
        return {self.desktop.screen.get_atom_name(atom) for atom in self._property("_NET_WM_STATE") or ()}

    @property
    def maximised(self):
        return {"_NET_WM_STATE_MAXIMIZED_VERT", "_NET_WM_STATE_MAXIMIZED_HORZ"} <= self.states

    @property
    def minimised(self):
        return "_NET_WM_STATE_HIDDEN" in self.states

    @property
    def active(self):
        return self.desktop.active_window() == self.number

    def area(self):
        """x, y, width, height on the screen."""
        size = self._window.get_geometry()
        origin = self._window.translate_coords(self.desktop.root, 0, 0)
        return -origin.x, -origin.y, size.width, size.height

    def picture(self):
        return self.desktop.picture(*self.area())

    def _tell(self, kind, *data):
        message = event.ClientMessage(window=self._window, client_type=self.desktop.atom(kind), data=(32, list(data)))
        self.desktop.root.send_event(message, X.SubstructureRedirectMask | X.SubstructureNotifyMask)
        self.desktop.screen.flush()

    def close(self):
        """Asks it to close, as the window manager's own button or Alt+F4 would."""
        self._tell("_NET_CLOSE_WINDOW", X.CurrentTime, 2, 0, 0, 0)

    def activate(self):
        self._tell("_NET_ACTIVE_WINDOW", 2, X.CurrentTime, 0, 0, 0)


class Desktop:
    """`compositor`: whether windows may be translucent; `wallpaper`: raw pixels of the screen's size, or none."""

    def __init__(self, size=(1280, 860), compositor=True, wallpaper=None):
        self.size = size
        self._with_compositor, self._wallpaper = compositor, wallpaper
        self._mark = uuid.uuid4().hex
        self._started = []
        self.folder = self.screen = self.root = self.bus = self.accessibility = None
        self.status_area = self.file_manager = None

    def __enter__(self):
        try:
            self._start()
        except BaseException:
            self.stop()
            raise
        return self

    def __exit__(self, *_):
        self.stop()

    def _start(self):
        # What our own processes leave behind comes to us, so that it can be ended.
        ctypes.CDLL(None).prctl(36, 1, 0, 0, 0)  # PR_SET_CHILD_SUBREAPER
        atexit.register(self.stop)
        self.folder = os.path.realpath(tempfile.mkdtemp(prefix="brisko-desktop-"))
        for name in ("runtime", "home", "services"):
            os.mkdir(os.path.join(self.folder, name), 0o700)
        self.environment = {
            "PATH": "/usr/local/bin:/usr/bin:/bin", "LANG": "C.UTF-8", "TZ": "UTC", MARK: self._mark,
            "HOME": os.path.join(self.folder, "home"), "XDG_RUNTIME_DIR": os.path.join(self.folder, "runtime"),
            "LIBGL_ALWAYS_SOFTWARE": "1", "GSETTINGS_BACKEND": "memory",
        }
        self._start_screen()
        self._start_bus()
        self._start_windows()

    def spawn(self, name, command, **more):
        """Starts a helper of the desktop. Should this process die, the helper ends too."""
        with open(os.path.join(self.folder, name + ".log"), "wb") as log:
            process = subprocess.Popen(["setpriv", "--pdeathsig", "TERM", *command], env=self.environment, stdout=log,
                                       stderr=log, stdin=subprocess.DEVNULL, start_new_session=True, **more)
        self._started.append(process)
        return process

    def _start_screen(self):
        reading, writing = os.pipe()
        width, height = self.size
        self.spawn("screen", ["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{width}x{height}x24", "-nolisten",
                              "tcp", "-noreset", "-dpi", "96"], pass_fds=(writing,))
        os.close(writing)
        with os.fdopen(reading) as answer:
            number = answer.readline().strip()
        if not number:
            raise RuntimeError("Xvfb did not start")
        self.environment["DISPLAY"] = ":" + number
        self.screen = display.Display(":" + number)
        self.screen.set_error_handler(lambda *_: None)  # a window may go while it is asked about
        self.root = self.screen.screen().root
        self._hang_wallpaper()

    def _hang_wallpaper(self):
        """As desktops do: a pixmap that the root window names, for compositors to blend with."""
        width, height = self.size
        pixels = self._wallpaper or b"".join(
            struct.pack("4B", 150 - row * 60 // height, 110 - row * 40 // height, 60 + row * 30 // height, 0) * width
            for row in range(height))
        self._pixmap = self.root.create_pixmap(width, height, 24)
        context = self._pixmap.create_gc()
        lines = 200_000 // (4 * width)  # a request holds no more than 256 KiB
        for row in range(0, height, lines):
            count = min(lines, height - row)
            self._pixmap.put_image(context, 0, row, width, count, X.ZPixmap, 24, 0,
                                   pixels[4 * width * row:4 * width * (row + count)])
        for name in ("_XROOTPMAP_ID", "ESETROOT_PMAP_ID"):
            self.root.change_property(self.atom(name), Xatom.PIXMAP, 32, [self._pixmap.id])
        self.root.change_attributes(background_pixmap=self._pixmap, event_mask=X.NoEventMask)
        self.root.clear_area()
        self.screen.sync()

    def _start_bus(self):
        """Only the accessibility bus may be started by name: nothing of the tester's desktop answers here."""
        shutil.copy("/usr/share/dbus-1/services/org.a11y.Bus.service", os.path.join(self.folder, "services"))
        settings = os.path.join(self.folder, "bus.conf")
        with open(settings, "w", encoding="utf-8") as file:
            file.write(BUS.format(folder=self.folder))
        self.spawn("bus", ["dbus-daemon", "--nofork", "--nopidfile", "--config-file=" + settings])
        address = f"unix:path={self.folder}/bus"
        self.bus = wait_for(lambda: connect(address), "message bus")
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address
        self.accessibility = Bus(self.bus)
        self.status_area = StatusArea(address)
        self.file_manager = FileManager(address)

    def _start_windows(self):
        self.spawn("windows", ["openbox", "--sm-disable"])
        wait_for(lambda: self.root.get_full_property(self.atom("_NET_SUPPORTING_WM_CHECK"), X.AnyPropertyType),
                 "window manager")
        if self._with_compositor:
            self.start_compositor()

    def start_compositor(self):
        process = self.spawn("compositor", ["picom", "--config", "/dev/null", "--backend", "xrender", "--no-vsync",
                                            "--no-fading-openclose"])
        wait_for(self.composited, "compositor")
        return process

    def composited(self):
        return bool(self.screen.get_selection_owner(self.atom("_NET_WM_CM_S0")))

    def stop(self):
        """Ends everything that was started here, by its number: the programs first, the screen last."""
        atexit.unregister(self.stop)
        for service in (self.status_area, self.file_manager):
            if service:
                service.stop()
        if self.accessibility:
            self.accessibility.close()
        if self.bus:
            self.bus.close_sync(None)
        if self.screen:
            try:
                self.screen.close()
            except (error.ConnectionClosedError, OSError):
                pass
        self.status_area = self.file_manager = self.accessibility = self.bus = self.screen = None
        for number in (signal.SIGTERM, signal.SIGKILL):
            for pid in self._own_processes():
                try:
                    os.kill(pid, number)
                except ProcessLookupError:
                    pass
            end = time.monotonic() + 5
            while self._own_processes() and time.monotonic() < end:
                self._reap()
                time.sleep(0.02)
        if self.folder:
            shutil.rmtree(self.folder, ignore_errors=True)
            self.folder = None

    def _own_processes(self):
        """The living processes that carry this desktop's mark in their environment."""
        mark = f"{MARK}={self._mark}".encode()
        found = []
        for name in filter(str.isdigit, os.listdir("/proc")):
            try:
                with open(f"/proc/{name}/environ", "rb") as file:
                    if mark in file.read().split(b"\0"):
                        found.append(int(name))
            except OSError:
                continue
        return [pid for pid in found if pid != os.getpid()]

    def _reap(self):
        for process in self._started:
            process.poll()
        for pid in self._own_processes():
            try:
                os.waitpid(pid, os.WNOHANG)
            except ChildProcessError:
                continue

    # The screen.

    def atom(self, name):
        return self.screen.intern_atom(name)

    def windows(self, pid=None):
        """The windows that are on the screen or minimised, of one process or of all."""
        listed = self.root.get_full_property(self.atom("_NET_CLIENT_LIST"), X.AnyPropertyType)
        found = []
        for number in listed.value if listed else ():
            window = Window(self, int(number))
            try:
                if pid is None or window.pid == pid:
                    found.append(window)
            except (error.BadWindow, error.BadDrawable):
                continue
        return found

    def active_window(self):
        value = self.root.get_full_property(self.atom("_NET_ACTIVE_WINDOW"), X.AnyPropertyType)
        return int(value.value[0]) if value and len(value.value) else 0

    def picture(self, x, y, width, height):
        """Of a part of the screen; what reaches beyond its edge is cut off."""
        x, y, right, bottom = max(x, 0), max(y, 0), min(x + width, self.size[0]), min(y + height, self.size[1])
        answer = self.root.get_image(x, y, right - x, bottom - y, X.ZPixmap, 0xFFFFFFFF)
        return Picture(right - x, bottom - y, bytes(answer.data))

    def settled(self, x, y, width, height, quiet=0.4, seconds=30):
        """The picture of a part of the screen once it has not changed for a while."""
        last, since, end = None, 0.0, time.monotonic() + seconds
        while time.monotonic() < end:
            picture = self.picture(x, y, width, height)
            if last is None or picture.pixels != last.pixels:
                last, since = picture, time.monotonic()
            elif time.monotonic() - since >= quiet:
                return picture
            time.sleep(0.05)
        raise AssertionError(f"the screen did not come to rest within {seconds} s")

    def clipboard(self):
        """The text that a program put there, or None."""
        asking = self.root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        try:
            place = self.atom("BRISKO_TEST_CLIPBOARD")
            asking.convert_selection(self.atom("CLIPBOARD"), self.atom("UTF8_STRING"), place, X.CurrentTime)
            self.screen.flush()

            def answered():
                while self.screen.pending_events():
                    if self.screen.next_event().type == X.SelectionNotify:
                        return True
                return False
            wait_for(answered, "answer from the clipboard")
            value = asking.get_full_property(place, X.AnyPropertyType)
            return bytes(value.value).decode() if value else None
        finally:
            asking.destroy()

    # The pointer and the keys.

    def _xdotool(self, *words):
        subprocess.run(["xdotool", *map(str, words)], env=self.environment, check=True, capture_output=True, timeout=30)

    def point_at(self, x, y):
        self._xdotool("mousemove", "--", x, y)

    def click(self, x, y, button=1, times=1):
        self.point_at(x, y)
        time.sleep(0.05)  # the pointer enters before it presses, as a hand does
        self._xdotool("click", "--repeat", times, "--delay", 60, button)

    def drag(self, start, end):
        self.point_at(*start)
        time.sleep(0.1)
        self._xdotool("mousedown", 1)
        for step in range(1, 13):
            self.point_at(*(a + (b - a) * step // 12 for a, b in zip(start, end)))
            time.sleep(0.03)
        time.sleep(0.1)
        self._xdotool("mouseup", 1)

    def wheel(self, x, y, notches):
        """Turns the wheel down, or up for a negative number."""
        self.point_at(x, y)
        self._xdotool("click", "--repeat", abs(notches), "--delay", 40, 5 if notches > 0 else 4)

    def keys(self, *names):
        self._xdotool("key", "--clearmodifiers", "--delay", 40, *names)
