# SPDX-License-Identifier: MIT
"""What the window costs: the time to its first frame beside other programs of the desktop, and what it takes at rest,
for a redraw and in memory. Everything happens on a desktop of its own, drawn without a graphics card."""

import os
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass

HERE = os.path.dirname(os.path.abspath(__file__))
SESSION = os.path.join(os.path.dirname(HERE), "tests", "Session")
WANTED = ("Xvfb", "openbox", "xdotool", "dbus-daemon", "setpriv")
NEIGHBOURS = ("baobab", "bleachbit")  # looking at a disk, and cleaning one

FIRST_FRAME = 0.6  # seconds
IDLE = 1.0  # percent of one core
REDRAW = 0.020  # seconds of processor time
MEMORY = 220 * 1024  # KiB

# What counts as drawn: more colours than a window's plain background, or a gradient alone, would have.
COLOURS = 40
LINES = 16  # looked at on the screen, from its top to its bottom


@dataclass(frozen=True)
class Lengths:
    rest: float  # seconds that each page is watched at rest
    hovers: int  # times that the pointer moves from one row to another


FULL = Lengths(rest=20, hovers=80)
QUICK = Lengths(rest=1, hovers=5)


class Unwatched(Exception):
    """A program did not do what was to be measured."""


def missing():
    """Why nothing can be measured here; empty when it can."""
    absent = [program for program in WANTED if shutil.which(program) is None]
    if absent:
        return f"{absent[0]} is not installed"
    try:
        import gi  # noqa: F401 (only asked for)
        import Xlib  # noqa: F401
    except ImportError as error:
        return f"{error.name} is not known to {sys.executable}"
    return ""


def parts():
    """The tests' desktop and homes."""
    if SESSION not in sys.path:
        sys.path.insert(0, SESSION)
    import desktop
    import homes
    import program
    return desktop, homes, program


class Drawn:
    """A desktop to draw on, for a program that needs no more than that."""

    def __enter__(self):
        self._desktop = parts()[0].Desktop(compositor=False)
        return self._desktop.__enter__()

    def __exit__(self, *_):
        self._desktop.stop()


class Started:
    """A program that runs on the desktop, in a home of its own."""

    def __init__(self, desktop, home, command, more=None):
        _, homes, _ = parts()
        self.desktop, self.folder = desktop, tempfile.mkdtemp(dir=desktop.folder)
        self._stamp = os.path.join(self.folder, "stamp")
        self._log = os.path.join(self.folder, "log")
        values = {**desktop.environment, "HOME": home, "TMPDIR": os.path.join(home, ".temporary"),
                  "XDG_CONFIG_HOME": os.path.join(home, ".config"), "XDG_CACHE_HOME": os.path.join(home, ".cache"),
                  "XDG_DATA_HOME": os.path.join(home, ".local/share"),
                  "XDG_STATE_HOME": os.path.join(home, ".local/state"), "QT_QPA_PLATFORM": "xcb", "GDK_BACKEND": "x11",
                  "BRISKO_APPCAST_URL": "http://127.0.0.1:9/appcast.json", **(more or {})}
        settings = [f"{name}={value}" for name, value in values.items()]
        with open(self._log, "wb") as log:
            # The account's own home must not be found either: the tool names another one for it.
            self.process = subprocess.Popen(
                [sys.executable, homes.LIFELIKE_HOME, home, "env", "-i", *settings, sys.executable, "-I", "-S",
                 os.path.join(HERE, "start.py"), self._stamp, *command],
                env=values, stdin=subprocess.DEVNULL, stdout=log, stderr=log, start_new_session=True)
        self.pid = self.process.pid

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.terminate()
            try:
                self.process.wait(10)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait(10)

    def require_running(self):
        if self.process.poll() is not None:
            raise Unwatched(f"{self.process.args[-1]} ended with {self.process.returncode}: {self.output()[-1_000:]}")

    def output(self):
        with open(self._log, encoding="utf-8", errors="replace") as file:
            return file.read()

    def started(self):
        """When it began, None before it has."""
        try:
            with open(self._stamp, encoding="ascii") as file:
                return float(file.read())
        except FileNotFoundError:
            return None

    def processor_seconds(self):
        with open(f"/proc/{self.pid}/stat", encoding="ascii", errors="replace") as file:
            fields = file.read().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")

    def resident(self):
        """KiB: all, and those of files that are mapped, which are the libraries."""
        with open(f"/proc/{self.pid}/status", encoding="utf-8", errors="replace") as file:
            sizes = dict(line.split(":", 1) for line in file)
        return int(sizes["VmRSS"].split()[0]), int(sizes["RssFile"].split()[0])


class Lines:
    """Some lines of the screen: enough to see that something was drawn, and little enough to look all the time."""

    def __init__(self, desktop):
        self.desktop = desktop
        width, height = desktop.size
        self.rows = [height * number // LINES + height // (2 * LINES) for number in range(LINES)]
        self.width = width

    def look(self):
        return [self.desktop.picture(0, row, self.width, 1).pixels for row in self.rows]

    @staticmethod
    def new_colours(before, now):
        found = set()
        for old, line in zip(before, now):
            if old != line:
                found.update(line[at:at + 3] for at in range(0, len(line), 4) if line[at:at + 4] != old[at:at + 4])
        return len(found)


def first_frame(desktop, home, command, seconds=60, stays=False):
    """Seconds from a program's start to the first picture of its window, and the processor time it had taken by then.
    One that stays is ended only when it has come to rest: what is kept for the next start is written by then."""
    lines = Lines(desktop)
    before = lines.look()
    with Started(desktop, home, command) as program:
        end = time.monotonic() + seconds
        while True:
            now = lines.look()
            seen = time.monotonic()
            if lines.new_colours(before, now) >= COLOURS:
                started = program.started()
                if started is None:
                    raise Unwatched("something else was drawn")
                took = seen - started, program.processor_seconds()
                if stays:
                    settled(program)
                return took
            program.require_running()
            if seen > end:
                raise Unwatched(f"{command[0]} showed nothing within {seconds} s")
            time.sleep(0.002)


def quiet_screen(desktop):
    """Waits until the windows of the program before are gone."""
    desktop_module, _, _ = parts()
    desktop_module.wait_for(lambda: not desktop.windows(), "empty desktop")
    desktop.settled(0, 0, *desktop.size)


def race(brisko, desktop, home, rounds, table, say):
    """Who shows the first picture first. Each starts in turn; the first round warms up."""
    names = [name for name in NEIGHBOURS if shutil.which(name)]
    for name in set(NEIGHBOURS) - set(names):
        say(f"{name} is not installed and stays out.")
    commands = {"brisko": [brisko], **{name: [name] for name in names}}
    runs = {name: [] for name in commands}
    for number in range(rounds + 1):
        for name, command in commands.items():
            quiet_screen(desktop)
            took, _ = first_frame(desktop, home, command, stays=number == 0)
            if number > 0:
                runs[name].append({"seconds": took})
    ours = statistics.median(run["seconds"] for run in runs["brisko"])
    table.counted("window: first frame, warm", milliseconds(ours), f"at most {milliseconds(FIRST_FRAME)}",
                  ours / FIRST_FRAME)
    if names:
        table.race("window: first frame, beside others", runs, limit=1)


def milliseconds(seconds):
    return f"{seconds * 1000:.0f} ms" if seconds >= 0.1 else f"{seconds * 1000:.1f} ms"


def tabs(brisko, desktop, home):
    """The pages' names and where the sidebar has them, as assistive tools are told. Only this run has such tools."""
    _, _, program = parts()
    os.environ["BRISKO_PROGRAM"] = brisko
    one = program.Brisko(desktop, home)
    try:
        one.wait_for_window()
        one.wait_for_first_scan()
        return {name: one.wait(name, program.TAB).centre() for name in program.PAGES}
    finally:
        one.stop()


def settled(program, seconds=60):
    """Waits until a program has done what it was at: less than a tenth of a core over half a second."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        before = program.processor_seconds()
        time.sleep(0.5)
        program.require_running()
        if program.processor_seconds() - before < 0.05:
            return
    raise Unwatched(f"it did not come to rest within {seconds} s")


def open_page(program, place):
    desktop = program.desktop
    before = desktop.picture(*place, 1, 1).pixels
    desktop.click(*place)
    desktop.point_at(5, desktop.size[1] - 5)  # nothing of it is hovered afterwards
    time.sleep(1)  # the pages fade into each other
    settled(program)
    return before


def at_rest(brisko, desktop, home, places, lengths, table):
    """Each page at rest, and the memory once all were visited."""
    with Started(desktop, home, [brisko]) as program:
        area = wait_for_scan(program, desktop)
        shown = None
        for name, place in places.items():
            open_page(program, place)
            page = desktop.picture(*area).pixels
            if page == shown:
                raise Unwatched(f"the page {name} did not open")
            shown = page
            time.sleep(lengths.rest / 5)  # the toast of the first scan goes by itself
            before, since = program.processor_seconds(), time.monotonic()
            time.sleep(lengths.rest)
            use = 100 * (program.processor_seconds() - before) / (time.monotonic() - since)
            table.counted(f"window: at rest, {name}", f"{use:.2f} %", f"at most {IDLE:.0f} % of one core", use / IDLE)
        resident, of_files = program.resident()
        table.counted("window: memory, all pages seen", f"{resident / 1024:.0f} MiB",
                      f"at most {MEMORY / 1024:.0f} MiB; {of_files / 1024:.0f} MiB are libraries", resident / MEMORY)


def wait_for_scan(program, desktop):
    """Waits for the window, then for the end of the scan that every start begins with; answers the window's area."""
    desktop_module, _, _ = parts()

    def window():
        program.require_running()
        return next(iter(desktop.windows(program.pid)), None)
    area = desktop_module.wait_for(window, "window", 30).area()
    settled(program)
    return area


FRAME = re.compile(r"^qt\.scenegraph\.time\.renderloop:.*\brendered\b", re.MULTILINE)


def redraws(brisko, desktop, home, places, lengths, table):
    """The processor time of a frame, while the pointer goes from row to row and each lights up and fades again."""
    told = {"QT_LOGGING_RULES": "qt.scenegraph.time.renderloop=true", "QT_LOGGING_TO_CONSOLE": "1"}
    with Started(desktop, home, [brisko], told) as program:
        wait_for_scan(program, desktop)
        between = list(places.values())[2:4]
        frames, before = count_frames(program), program.processor_seconds()
        for number in range(lengths.hovers):
            desktop.point_at(*between[number % 2])
            time.sleep(0.15)
        took, frames = program.processor_seconds() - before, count_frames(program) - frames
    if frames < lengths.hovers:
        raise Unwatched(f"{frames} frames for {lengths.hovers} movements")
    table.counted("window: a redraw", milliseconds(took / frames),
                  f"at most {milliseconds(REDRAW)} of processor time; {frames} frames", took / frames / REDRAW)


def count_frames(program):
    return len(FRAME.findall(program.output()))


def measure(brisko, rounds, quick, table, say):
    """All of it; says so and does nothing where it cannot be measured."""
    reason = missing()
    if reason:
        say(f"The window is not measured: {reason}.")
        return
    desktop_module, homes, _ = parts()
    lengths = QUICK if quick else FULL
    with desktop_module.Desktop(compositor=False) as desktop:
        home = os.path.join(desktop.folder, "homes", "somebody")
        os.makedirs(os.path.dirname(home))
        homes.small_home(home)
        race(brisko, desktop, home, rounds, table, say)
        quiet_screen(desktop)
        places = tabs(brisko, desktop, home)
        quiet_screen(desktop)
        redraws(brisko, desktop, home, places, lengths, table)
        quiet_screen(desktop)
        at_rest(brisko, desktop, home, places, lengths, table)
