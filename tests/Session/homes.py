# SPDX-License-Identifier: MIT
"""Homes of people who do not exist, for the program to clean."""

import importlib.machinery
import importlib.util
import os

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
LIFELIKE_HOME = os.path.join(ROOT, "tools", "lifelike-home")
MIB = 1024 * 1024


def _lifelike():
    loader = importlib.machinery.SourceFileLoader("lifelike_home", LIFELIKE_HOME)
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader("lifelike_home", loader))
    loader.exec_module(module)
    return module


lifelike = _lifelike()


def small_home(folder):
    """A little of everything that the pages list, with sizes that tests can count on."""
    os.makedirs(folder, mode=0o700)
    home = lifelike.Home(folder)
    for number in range(11):
        home.file(f"Library/Logs/mail {number:02}.log", b"well\n" * 200, days=20)  # 1,000 bytes each
    home.file("Library/Caches/com.example.pixelpaint/tiles.db", b"t" * 50_000, days=5)
    home.file("Downloads/tool_1.4-2_amd64.deb", b"d" * 30_000, days=60)

    for name in ("Pictures/beach.jpg", "Pictures/Copies/beach.jpg", "Downloads/beach (1).jpg"):
        home.file(name, b"beach" * 8_000, days=90)  # 40,000 bytes each
    for name in ("Music/song.ogg", "Music/Favourites/song.ogg"):
        home.file(name, b"song" * 5_000, days=200)  # 20,000 bytes each

    home.file("Movies/Holiday.mkv", b"", days=300, size=600 * MIB)
    home.file("Movies/Birthday.mov", b"", days=300, size=150 * MIB)
    home.file("Movies/Clip.mov", b"", days=300, size=60 * MIB)

    for name, days in (("Pixel Paint", 3), ("Forgotten Game", 400)):
        identifier = "com.example." + name.split()[-1].lower()
        bundle = f"Applications/{name}.app"
        home.plist(bundle + "/Contents/Info.plist",
                   {"CFBundleIdentifier": identifier, "CFBundleName": name, "CFBundleShortVersionString": "4.2",
                    "CFBundlePackageType": "APPL"}, days=days)
        home.file(f"{bundle}/Contents/MacOS/{name}", b"p" * 200_000, days=days)
        home.plist(f"Library/Preferences/{identifier}.plist", {"WindowIsOpen": True}, days=days)
        home.dates[home.at(f"Applications/{name}.app")] = home.now - days * lifelike.DAY

    for name, disabled in (("com.example.helper", False), ("com.example.updater", True)):
        home.plist(f"Library/LaunchAgents/{name}.plist",
                   {"Label": name, "ProgramArguments": ["/usr/bin/true"], "Disabled": disabled})
    settings(home, duplicates=("Downloads", "Pictures", "Music"), large=("Movies", ))
    return finished(home)


def empty_home(folder):
    """Nothing to find."""
    os.makedirs(folder, mode=0o700)
    home = lifelike.Home(folder)
    home.folder("Documents")
    settings(home, duplicates=("Documents", ), large=("Documents", ))
    return finished(home)


def lifelike_home(folder):
    lifelike.fill(folder)
    return folder


def vast_home(folder):
    """Takes a while to look through: large copies, which are holes on the disk but have to be read."""
    os.makedirs(folder, mode=0o700)
    home = lifelike.Home(folder)
    for number in range(4):
        home.file(f"Movies/Wedding, cut {number}.mkv", b"", days=300, size=8_000 * MIB)
    settings(home, duplicates=("Movies", ), large=("Movies", ))
    return finished(home)


def settings(home, duplicates, large, more=()):
    def listed(names):
        return ", ".join(f'"{os.fsdecode(home.at(name))}"' for name in names)

    lines = ["[General]", "duplicateFolders=" + listed(duplicates), "largeFileFolders=" + listed(large), *more]
    home.file(".config/Brisko/Brisko.conf", os.fsencode("\n".join(lines) + "\n"))


def finished(home):
    """From here on, tools/lifelike-home runs commands as somebody who lives there."""
    home.folder(".temporary")
    home.file(lifelike.MARK, b"", days=0)
    home.date_everything()
    return os.fsdecode(home.root)


def trashed(folder):
    """The names in a home's Trash."""
    files = os.path.join(folder, ".local/share/Trash/files")
    return sorted(os.listdir(files)) if os.path.isdir(files) else []
