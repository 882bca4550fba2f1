#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""tools/lint really parses the language that the program is written in, and refuses what it is there to refuse."""

import json
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
TOOL = os.path.join(ROOT, "tools", "lint")
CLEAN = """// SPDX-License-Identifier: MIT
#include <coroutine>
#include <expected>
#include <string>
#include <system_error>

struct Task {
    struct promise_type {
        Task get_return_object() { return {}; }
        std::suspend_never initial_suspend() noexcept { return {}; }
        std::suspend_never final_suspend() noexcept { return {}; }
        void return_void() {}
        void unhandled_exception() {}
    };
};

std::expected<std::string, std::error_code> name(bool known)
{
    if (known)
        return "Brisko";
    return std::unexpected(std::make_error_code(std::errc::no_such_file_or_directory));
}

Task wait(std::string text)
{
    co_await std::suspend_never{};
    text.clear();
}
"""


class Lint(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.root = os.path.realpath(scratch.name)
        self.build = os.path.join(self.root, "build")
        os.makedirs(os.path.join(self.root, "src", "Models"))
        os.mkdir(self.build)
        for name in (".clang-tidy", ".clang-format"):
            shutil.copy(os.path.join(ROOT, name), self.root)
        self.source = os.path.join(self.root, "src", "Models", "Planted.cpp")

    def write(self, path, text):
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)

    def answer(self, text, *more):
        self.write(self.source, text)
        commands = [{"directory": self.build, "file": source,
                     "command": f"/usr/bin/c++ -I{self.root}/src -Wall -Wshadow -std=c++23 -c {source}"}
                    for source in (self.source, *more)]
        self.write(os.path.join(self.build, "compile_commands.json"), json.dumps(commands))
        answer = subprocess.run([sys.executable, TOOL, "--root", self.root, "--build", self.build],
                                capture_output=True, text=True, check=False)
        return answer.returncode, answer.stdout + answer.stderr

    def refuses(self, text, words):
        status, said = self.answer(text)
        self.assertEqual(status, 1, said)
        self.assertIn(words, said)

    def test_reads_qml(self):
        folder = os.path.join(self.root, "src", "Components")
        os.mkdir(folder)
        self.write(os.path.join(folder, "Planted.qml"), "import QtQuick\nItem {\n    width: 3\n}\n")
        self.assertNotIn("-- qml", self.answer(CLEAN)[1])
        self.write(os.path.join(folder, "Planted.qml"), "import QtQuick\nItem {\n    width 3\n}\n")
        code, said = self.answer(CLEAN)
        self.assertEqual(code, 1)
        self.assertIn("-- qml", said)

    def test_parses_what_the_program_is_written_in(self):
        self.assertEqual(self.answer(CLEAN), (0, "lint: nothing to say\n"))

    def test_refuses_code_that_does_not_parse(self):
        self.refuses(CLEAN + "int broken(\n", "clang-diagnostic-error")

    def test_refuses_what_is_used_after_a_move(self):
        self.refuses(CLEAN + """
#include <utility>
std::string twice(std::string text)
{
    std::string moved = std::move(text);
    return moved + text;
}
""", "bugprone-use-after-move")

    def test_refuses_a_reference_into_a_coroutine(self):
        self.refuses(CLEAN + """
Task dangling(const std::string &text)
{
    co_await std::suspend_never{};
    (void)text.size();
}
""", "cppcoreguidelines-avoid-reference-coroutine-parameters")

    def test_refuses_a_fault_in_a_header_of_ours(self):
        self.write(os.path.join(self.root, "src", "Models", "Planted.h"),
                   "// SPDX-License-Identifier: MIT\n#pragma once\nstruct Planted {\n    Planted(int value);\n};\n")
        self.refuses(CLEAN.replace("#include <coroutine>", '#include "Models/Planted.h"\n\n#include <coroutine>'),
                     "google-explicit-constructor")

    def test_refuses_a_function_of_more_than_sixty_lines(self):
        lines = "".join(f"    total += {number};\n" for number in range(61))
        self.refuses(CLEAN + f"\nint total()\n{{\n    int total = 0;\n{lines}    return total;\n}}\n",
                     "readability-function-size")

    def test_a_folder_may_have_rules_of_its_own(self):
        lines = "".join(f"    total += {number};\n" for number in range(61))
        self.write(os.path.join(self.root, "src", "Models", ".clang-tidy"),
                   "InheritParentConfig: true\nChecks: -readability-function-size\n")
        text = CLEAN + f"\nint total()\n{{\n    int total = 0;\n{lines}    return total;\n}}\n"
        self.assertEqual(self.answer(text)[0], 0)

    def test_sources_of_one_folder_are_looked_at_together_and_alone(self):
        second = os.path.join(self.root, "src", "Models", "Second.cpp")
        clash = ("\nnamespace {\nint helper()\n{\n    return 1;\n}\n} // namespace\n\n"
                 "int use%s()\n{\n    return helper();\n}\n")
        self.write(second, "// SPDX-License-Identifier: MIT\n" + clash % "Second")
        self.assertEqual(self.answer(CLEAN + clash % "First", second)[0], 0)
        self.write(second, "// SPDX-License-Identifier: MIT\nstruct Second {\n    Second(int value);\n};\n")
        status, said = self.answer(CLEAN, second)
        self.assertEqual(status, 1)
        self.assertIn("Second.cpp:3", said)
        self.assertNotIn("together.cpp", said)

    def test_refuses_careless_spacing(self):
        self.refuses(CLEAN + "\nint  spaced( );\n", "clang-format-violations")

    def test_refuses_a_careless_script(self):
        self.write(os.path.join(self.root, "run"), "#!/bin/bash\n# SPDX-License-Identifier: MIT\nrm $1\n")
        self.refuses(CLEAN, "SC2086")

    def test_refuses_an_arrow_that_points_up(self):
        os.mkdir(os.path.join(self.root, "src", "State"))
        self.write(os.path.join(self.root, "src", "State", "Planted.h"),
                   "// SPDX-License-Identifier: MIT\n#pragma once\n")
        self.refuses(CLEAN.replace("#include <coroutine>", '#include "State/Planted.h"\n\n#include <coroutine>'),
                     "Models may not include State/Planted.h")

    def test_a_build_without_sources_of_ours_is_no_success(self):
        self.write(self.source, CLEAN)
        self.write(os.path.join(self.build, "compile_commands.json"), "[]")
        answer = subprocess.run([sys.executable, TOOL, "--root", self.root, "--build", self.build],
                                capture_output=True, text=True, check=False)
        self.assertEqual(answer.returncode, 1, answer)


if __name__ == "__main__":
    unittest.main()
