#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""tools/lifelike-home fills what it may, refuses what it may not, and gives each part of Brisko something to find. The
program itself is named as the first argument."""

import hashlib
import json
import os
import pwd
import stat
import subprocess
import sys
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
TOOL = os.path.join(ROOT, "tools", "lifelike-home")
BRISKO = sys.argv.pop(1)


def run(*arguments, **environment):
    return subprocess.run([sys.executable, TOOL, *arguments], capture_output=True, check=False,
                          stdin=subprocess.DEVNULL, env={**os.environ, **environment})


def everything(folder):
    """Every entry below a folder: its name, kind and content."""
    found = {}
    for where, folders, names in os.walk(os.fsencode(folder)):
        for name in folders + names:
            path = os.path.join(where, name)
            status = os.lstat(path)
            content = os.readlink(path) if stat.S_ISLNK(status.st_mode) else None
            if stat.S_ISREG(status.st_mode):
                with open(path, "rb") as file:
                    content = (status.st_size, int(status.st_mtime), hashlib.sha256(file.read(300_000)).hexdigest())
            found[os.path.relpath(path, os.fsencode(folder))] = (stat.S_IFMT(status.st_mode), content)
    return found


class LifelikeHome(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = os.path.join(os.path.realpath(scratch.name), "somebody")

    def test_fills_a_folder_the_same_every_time(self):
        self.assertEqual(run(self.folder).returncode, 0)
        first = everything(self.folder)
        os.rename(self.folder, self.folder + " before")
        os.mkdir(self.folder)  # an empty one will do as well
        self.assertEqual(run(self.folder).returncode, 0)
        self.assertEqual(everything(self.folder), first)
        kinds = {kind for kind, _ in first.values()}
        self.assertEqual(kinds, {stat.S_IFREG, stat.S_IFDIR, stat.S_IFLNK, stat.S_IFIFO})
        names = [os.path.basename(path) for path in first]
        self.assertIn(255, map(len, names))
        self.assertTrue(any(b"\xff" in name for name in names))
        self.assertTrue(any(b"\n" in name for name in names))

    def test_takes_hardly_any_space(self):
        run(self.folder)
        taken = sum(os.lstat(os.path.join(where, name)).st_blocks * 512
                    for where, _, names in os.walk(os.fsencode(self.folder)) for name in names)
        self.assertLess(taken, 30e6)

    def refuses(self, folder, words, **environment):
        before = sorted(os.listdir(folder)) if os.path.isdir(folder) else None
        answer = run(folder, **environment)
        self.assertEqual(answer.returncode, 1, answer)
        self.assertIn(words, answer.stderr)
        if before is not None:
            self.assertEqual(sorted(os.listdir(folder)), before)

    def test_refuses_a_folder_that_holds_something(self):
        os.mkdir(self.folder)
        with open(os.path.join(self.folder, "kept.txt"), "w", encoding="ascii") as file:
            file.write("kept")
        self.refuses(self.folder, b"not empty")

    def test_refuses_what_is_no_folder(self):
        with open(self.folder, "w", encoding="ascii"):
            pass
        self.refuses(self.folder, b"not empty")

    def test_refuses_the_true_home_and_what_holds_it(self):
        os.makedirs(os.path.join(self.folder, "home"))
        self.refuses(os.path.join(self.folder, "home"), b"your own home", HOME=os.path.join(self.folder, "home"))
        self.refuses(self.folder, b"your own home", HOME=os.path.join(self.folder, "home"))
        self.refuses(pwd.getpwuid(os.getuid()).pw_dir, b"your own home")

    def test_a_link_to_the_true_home_is_the_true_home(self):
        os.makedirs(os.path.join(self.folder, "home"))
        os.symlink("home", os.path.join(self.folder, "link"))
        self.refuses(os.path.join(self.folder, "link"), b"your own home", HOME=os.path.join(self.folder, "home"))

    def test_runs_a_command_as_somebody_who_lives_there(self):
        answer = run(self.folder, "sh", "-c", 'echo "$HOME $TMPDIR ${XDG_DATA_HOME-none}"; exit 3', XDG_DATA_HOME="/x")
        self.assertEqual(answer.returncode, 3, answer)
        self.assertEqual(answer.stdout.decode(), f"{self.folder} {self.folder}/.temporary none\n")
        os.remove(os.path.join(self.folder, "Downloads", "ticket.pdf"))
        again = run(self.folder, "ls", os.path.join(self.folder, "Downloads"))
        self.assertEqual(again.returncode, 0, again)
        self.assertNotIn(b"ticket.pdf", again.stdout)

    def test_the_user_database_itself_stays_as_it_is(self):
        before = pwd.getpwuid(os.getuid()).pw_dir
        run(self.folder, "true")
        self.assertEqual(pwd.getpwuid(os.getuid()).pw_dir, before)

    def test_brisko_finds_something_of_every_kind(self):
        answer = run(self.folder, BRISKO, "scan", "all", "--json")
        self.assertEqual(answer.returncode, 0, answer)
        found = json.loads(answer.stdout)
        names = [category["name"] for category in found["junk"]["categories"]]
        self.assertEqual(names, ["Old Downloads", "App Caches", "System Logs", "Temp Files", "Trash", "Crash Reports",
                                 "Browser Caches", "Chat App Caches", "Leftover Installers"])
        self.assertTrue(found["duplicates"]["groups"])
        startup = json.loads(run(self.folder, BRISKO, "scan", "startup", "--json").stdout)
        self.assertEqual({item["name"]: item["isEnabled"] for item in startup["items"] if item["isUserLevel"]},
                         {"broken.plist": True, "com.example.sync.plist": True,
                          "com.example.tunebox.helper.plist": True, "com.example.updater.plist": False})
        films = [os.path.basename(file["path"]) for file in found["largeFiles"]["files"]]
        self.assertEqual(films, ["Holiday.mkv", "Wedding.mp4", "database dump.sql", "Birthday.mov", "Just large.mov"])
        # Elsewhere it may be a machine whose true account has applications, or none.
        if b"keeps its own home" not in answer.stderr:
            apps = {app["name"]: app for app in found["apps"]["apps"] if self.folder in app["path"]}
            self.assertEqual(sorted(apps), ["Bare", "Forgotten Game", "Pixel Paint", "Tune Box"])
            self.assertTrue(apps["Tune Box"]["relatedFiles"])
            self.assertTrue(apps["Forgotten Game"]["unused"])


if __name__ == "__main__":
    unittest.main()
