#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The comparison itself, on small trees: that it runs through with the program named first and its helpers in the
folder named second, that it notices who finds less, and that it touches nothing of others."""

import os
import stat
import subprocess
import sys
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
TOOL = os.path.join(ROOT, "benchmarks", "compare.py")
BRISKO, HELPERS = sys.argv.pop(1), sys.argv.pop(1)


class Bench(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.root = scratch.name
        self.scratch = os.path.join(self.root, "bench")

    def answer(self, *arguments, brisko=BRISKO):
        return subprocess.run([sys.executable, TOOL, "--brisko", brisko, "--helpers", HELPERS, "--quick", "--rounds=1",
                               "--warm-only", "--scratch", self.scratch, *arguments], capture_output=True, text=True,
                              stdin=subprocess.DEVNULL, check=False)

    def stand_in(self, body):
        path = os.path.join(self.root, "brisko")
        with open(path, "w", encoding="utf-8") as file:
            file.write("#!/bin/sh\n" + body)
        os.chmod(path, stat.S_IRWXU)
        return path

    def test_every_work_runs_through_and_all_agree(self):
        answer = self.answer()
        self.assertEqual(answer.returncode, 0, answer)
        for words in ("duplicates, small files, warm", "duplicates, large files, warm", "duplicates, small files: opens",
                      "duplicates, large files: bytes hashed", "large-file walk, warm", "sizes of a tree",
                      "120 files to the Trash", "40 of one name to the Trash"):
            self.assertIn(words, answer.stdout)
        for words, unless in (("window: memory", "The window is not measured: "),
                              ("long list of duplicates: worst frame", "Scrolling is not measured: ")):
            self.assertTrue(words in answer.stdout or unless in answer.stderr, answer)
        self.assertFalse(os.path.exists(self.scratch))

    def test_who_finds_less_is_found_out(self):
        empty = self.stand_in("""echo '{"files":[],"totalSize":0}'""")
        answer = self.answer("--only=walk", brisko=empty)
        self.assertEqual(answer.returncode, 1, answer)
        self.assertIn("did not find the same", answer.stderr)
        self.assertFalse(os.path.exists(self.scratch))

    def test_who_moves_nothing_is_found_out(self):
        answer = self.answer("--only=names", brisko=self.stand_in(
            'mkdir -p "$XDG_DATA_HOME/Trash/files" "$XDG_DATA_HOME/Trash/info"'))
        self.assertEqual(answer.returncode, 1, answer)
        self.assertIn("did not find the same", answer.stderr)

    def test_a_missed_limit_counts_only_when_asked(self):
        slow = self.stand_in(f'sleep 2; exec "{BRISKO}" "$@"')
        answer = self.answer("--only=walk", brisko=slow)
        self.assertEqual(answer.returncode, 0, answer)
        self.assertIn("MISSED", answer.stdout)
        self.assertEqual(self.answer("--only=walk", "--strict", brisko=slow).returncode, 1)

    def test_a_program_that_fails_is_reported_in_its_own_words(self):
        answer = self.answer("--only=walk", brisko=self.stand_in("echo no such thing >&2; exit 4"))
        self.assertEqual(answer.returncode, 1, answer)
        self.assertIn("brisko ended with 4: no such thing", answer.stderr)

    def test_a_folder_of_somebody_else_is_left_alone(self):
        os.mkdir(self.scratch)
        with open(os.path.join(self.scratch, "kept.txt"), "w", encoding="ascii") as file:
            file.write("kept")
        answer = self.answer("--only=walk")
        self.assertEqual(answer.returncode, 1, answer)
        self.assertEqual(os.listdir(self.scratch), ["kept.txt"])

    def test_no_home_but_its_own_is_seen(self):
        seen = os.path.join(self.root, "seen")
        spy = self.stand_in(f'env > "{seen}"; exec "{BRISKO}" "$@"')
        self.assertEqual(self.answer("--only=walk", brisko=spy).returncode, 0)
        with open(seen, encoding="utf-8") as lines:
            environment = dict(line.rstrip("\n").split("=", 1) for line in lines if "=" in line)
        for name in ("HOME", "TMPDIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"):
            self.assertTrue(environment[name].startswith(os.path.realpath(self.root) + "/bench/home of brisko"), name)


if __name__ == "__main__":
    unittest.main()
