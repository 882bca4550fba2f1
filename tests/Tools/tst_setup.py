#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""How ./run gets a machine ready, with stand-ins for the system's own programs: nothing is installed here."""

import os
import shutil
import stat
import subprocess
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
PACKAGES = "# a comment\nfirst   the first\n\nsec++nd  the second, with a name that is no pattern\n"


class SetUp(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.root = scratch.name
        self.programs = os.path.join(self.root, "programs")
        self.log = os.path.join(self.root, "log")
        for folder in ("tools", "packages", "programs", "tmp"):
            os.mkdir(os.path.join(self.root, folder))
        for name in ("run", "tools/setup.sh", "CMakePresets.json"):
            shutil.copy(os.path.join(ROOT, name), os.path.join(self.root, name))
        with open(os.path.join(self.root, "packages", "run.txt"), "w", encoding="utf-8") as file:
            file.write(PACKAGES)
        self.installed = os.path.join(self.root, "installed")
        self.install("first", "sec++nd")
        # What dpkg-query answers comes from one file; a package that was removed but for its settings is none.
        self.program("dpkg-query", f'cat "{self.installed}"\necho "config-files sec++nd"\nexit 1')
        self.program("apt-get", 'case "$*" in *--simulate*) exit "${APT_KNOWS:-0}" ;; esac\n'
                     'case "$*" in *" install "*) exit "${APT_INSTALLS:-0}" ;; esac')
        self.program("id", "echo 0")
        self.program("cmake", 'case "$1" in --preset) mkdir -p build/release/bin; : > build/release/build.ninja ;;\n'
                     '*) exit "${BUILDS:-0}" ;; esac')
        self.program("ninja", 'echo "${NINJA:-ninja: no work to do.}"', logged=False)
        self.brisko()
        self.font = os.path.join(self.root, "symbols/node_modules/framework7-icons/fonts/Framework7Icons-Regular.ttf")
        os.makedirs(os.path.dirname(self.font))
        self.plant(os.path.join(self.root, "symbols", "package-lock.json"))
        self.plant(self.font)

    @staticmethod
    def plant(path):
        with open(path, "w", encoding="utf-8"):
            pass

    def program(self, name, body, logged=True):
        path = os.path.join(self.programs, name)
        with open(path, "w", encoding="utf-8") as file:
            file.write("#!/bin/bash\n" + (f'echo "{name} $*" >> "{self.log}"\n' if logged else "") + body + "\n")
        os.chmod(path, 0o755)

    def brisko(self):
        folder = os.path.join(self.root, "build", "release", "bin")
        os.makedirs(folder)
        path = os.path.join(folder, "brisko")
        with open(path, "w", encoding="utf-8") as file:
            file.write('#!/bin/bash\necho "brisko in $PWD:" "$@"\nexit 7\n')
        os.chmod(path, stat.S_IRWXU)

    def install(self, *names):
        with open(self.installed, "w", encoding="utf-8") as file:
            file.writelines(f"installed {name}\n" for name in names)

    def run_it(self, *arguments, **environment):
        path = f"{self.programs}:{environment.pop('PATH', '/usr/bin:/bin')}"
        answer = subprocess.run([os.path.join(self.root, "run"), *arguments], cwd="/", capture_output=True, text=True,
                                stdin=subprocess.DEVNULL, check=False,
                                env={"PATH": path, "TMPDIR": os.path.join(self.root, "tmp"), **environment})
        return answer

    def calls(self):
        if not os.path.exists(self.log):
            return []
        with open(self.log, encoding="utf-8") as file:
            return [line.strip() for line in file]

    def apt_calls(self):
        return [line.split("300 ")[1] for line in self.calls() if line.startswith("apt-get")]

    def test_an_equipped_machine_is_left_alone_in_silence(self):
        first = self.run_it("scan", "all", "--json")
        second = self.run_it("scan", "all", "--json")
        self.assertEqual((second.returncode, second.stdout, second.stderr), (7, "brisko in /: scan all --json\n", ""))
        self.assertEqual(first.stdout, second.stdout)
        self.assertEqual(self.apt_calls(), [])
        self.assertEqual([line for line in self.calls() if line.startswith("cmake")], ["cmake --preset release"])

    def test_fetches_the_symbol_font_once(self):
        os.remove(self.font)
        self.program("npm", f'mkdir -p "{os.path.dirname(self.font)}"; : > "{self.font}"')
        first = self.run_it("--version")
        self.run_it("--version")
        self.assertEqual((first.returncode, first.stdout), (7, "brisko in /: --version\n"), first.stderr)
        self.assertIn("Fetching the symbol font", first.stderr)
        self.assertEqual([line.split()[:2] for line in self.calls() if line.startswith("npm")], [["npm", "ci"]])

    def test_a_font_that_cannot_be_fetched_ends_it_with_the_tools_words(self):
        os.remove(self.font)
        self.program("npm", 'echo "the digest differs"; exit 1')
        answer = self.run_it("--version")
        self.assertEqual((answer.returncode, answer.stdout), (1, ""))
        self.assertIn("the digest differs", answer.stderr)

    def test_says_which_packages_are_missing_and_why_and_installs_those(self):
        self.install("first")
        answer = self.run_it("--version")
        self.assertEqual((answer.returncode, answer.stdout), (7, "brisko in /: --version\n"), answer.stderr)
        self.assertIn("  sec++nd  the second, with a name that is no pattern\n", answer.stderr)
        self.assertNotIn("the first", answer.stderr)
        self.assertEqual(self.apt_calls(), ["install --simulate sec++nd",
                                            "install -y --no-install-recommends sec++nd"])

    def test_fetches_the_lists_only_when_a_package_is_not_in_them(self):
        self.install()
        answer = self.run_it("--version", APT_KNOWS="100")
        self.assertEqual(answer.returncode, 7, answer.stderr)
        self.assertEqual(self.apt_calls(), ["install --simulate first sec++nd", "update",
                                            "install -y --no-install-recommends first sec++nd"])

    def test_an_installation_that_fails_ends_it_with_the_systems_words(self):
        self.install("first")
        self.program("apt-get", 'echo "no space left"; exit 100')
        answer = self.run_it("--version")
        self.assertEqual((answer.returncode, answer.stdout), (1, ""))
        self.assertIn("no space left", answer.stderr)

    def test_a_user_without_sudo_is_told_the_command(self):
        self.install("first")
        self.program("id", "echo 1000")
        answer = self.run_it("--version", PATH=self.without_sudo())
        self.assertEqual((answer.returncode, answer.stdout), (1, ""))
        self.assertIn("apt-get install -y --no-install-recommends sec++nd", answer.stderr)
        self.assertEqual(self.apt_calls(), [])

    def without_sudo(self):
        """The system's programs, but for sudo."""
        folder = os.path.join(self.root, "system")
        os.mkdir(folder)
        for name in ("bash", "env", "dirname", "readlink", "sed", "sort", "comm", "awk", "cat", "grep"):
            os.symlink(shutil.which(name), os.path.join(folder, name))
        return folder

    def test_a_user_whose_sudo_would_ask_without_a_terminal_is_told_the_command(self):
        self.install("first")
        self.program("id", "echo 1000")
        self.program("sudo", "exit 1")
        answer = self.run_it("--version")
        self.assertEqual((answer.returncode, answer.stdout), (1, ""))
        self.assertIn("apt-get install -y --no-install-recommends sec++nd", answer.stderr)
        self.assertEqual(self.apt_calls(), [])

    def test_a_user_with_sudo_installs_with_it(self):
        self.install("first")
        self.program("id", "echo 1000")
        self.program("sudo", '[ "$1" = -n ] || "$@"')
        answer = self.run_it("--version")
        self.assertEqual(answer.returncode, 7, answer.stderr)
        self.assertEqual(self.apt_calls()[-1], "install -y --no-install-recommends sec++nd")
        self.assertTrue(any(line.startswith("sudo env") for line in self.calls()), self.calls())

    def test_without_a_display_and_a_command_it_says_so_and_scans(self):
        answer = self.run_it()
        self.assertEqual((answer.returncode, answer.stdout), (7, "brisko in /: scan all\n"))
        self.assertIn("no display", answer.stderr)

    def test_with_a_display_it_opens_the_window(self):
        for display in ({"DISPLAY": ":0"}, {"WAYLAND_DISPLAY": "wayland-0"}):
            answer = self.run_it(**display)
            self.assertEqual(answer.stdout, "brisko in /:\n", display)

    def test_arguments_arrive_as_they_are(self):
        answer = self.run_it("remove", "a  b", "*", "")
        self.assertEqual(answer.stdout, "brisko in /: remove a  b * \n")

    def test_a_build_that_fails_ends_it(self):
        answer = self.run_it("--version", NINJA="[1/2] something to do", BUILDS="3")
        self.assertEqual((answer.returncode, answer.stdout), (1, ""))
        self.assertIn("Failed (exit 3)", answer.stderr)

    def test_leaves_nothing_in_the_temporary_folder(self):
        self.run_it("--version", NINJA="[1/2] something to do")
        self.assertEqual(os.listdir(os.path.join(self.root, "tmp")), [])


if __name__ == "__main__":
    unittest.main()
