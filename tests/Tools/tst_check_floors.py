#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""tools/check-floors refuses what it is there to refuse, and nothing else."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
TOOL = os.path.join(ROOT, "tools", "check-floors")
LICENCE = "// SPDX-License-Identifier: MIT\n"


class CheckFloors(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.root = scratch.name
        for top in ("src", "tests", "tools", "cmake"):
            shutil.copytree(os.path.join(ROOT, top), os.path.join(self.root, top),
                            ignore=shutil.ignore_patterns("__pycache__"))

    def plant(self, path, text, licence=LICENCE):
        whole = os.path.join(self.root, path)
        os.makedirs(os.path.dirname(whole), exist_ok=True)
        with open(whole, "w", encoding="utf-8") as file:
            file.write(licence + text)

    def answer(self):
        return subprocess.run([sys.executable, TOOL, "--root", self.root], capture_output=True, text=True, check=False)

    def refuses(self, place, words):
        answer = self.answer()
        self.assertEqual(answer.returncode, 1, answer)
        self.assertIn(f"{place}: ", answer.stdout)
        self.assertIn(words, answer.stdout)
        self.assertEqual(len(answer.stdout.splitlines()), 1, answer.stdout)

    def accepts(self):
        answer = self.answer()
        self.assertEqual((answer.returncode, answer.stdout, answer.stderr), (0, "", ""))

    def test_accepts_the_sources_as_they_are(self):
        self.accepts()

    def test_refuses_an_arrow_that_points_up(self):
        self.plant("src/Models/Planted.cpp", '\n#include "Support/Text.h"\n')
        self.refuses("src/Models/Planted.cpp:3", "Models may not include Support/Text.h")

    def test_refuses_the_state_in_a_service(self):
        self.plant("src/State/Planted.h", "#pragma once\n")
        self.plant("src/Services/Planted.cpp", '#  include "State/Planted.h"\n')
        self.refuses("src/Services/Planted.cpp:2", "Services may not include State/Planted.h")

    def test_accepts_an_arrow_that_points_down(self):
        self.plant("src/State/Planted.cpp", '#include "Services/ScanRules.h"\n#include "Models/FileURL.h"\n')
        self.accepts()

    def test_refuses_the_platforms_folder_outside_the_factory(self):
        self.plant("src/Platform/Linux/Planted.h", "#pragma once\n")
        self.plant("src/App/main.cpp", '#include "Platform/Linux/Planted.h"\n')
        self.accepts()
        self.plant("src/App/Planted.cpp", '#include "Platform/Linux/Planted.h"\n')
        self.refuses("src/App/Planted.cpp:2", "App may not include Platform/Linux/Planted.h")

    def test_lets_pages_reach_one_service_only(self):
        self.plant("src/Views/Planted.cpp", '#include "Services/AccessStore.h"\n')
        self.accepts()
        self.plant("src/Views/Planted.cpp", '#include "Services/JunkScanService.h"\n')
        self.refuses("src/Views/Planted.cpp:2", "Views may not include Services/JunkScanService.h")

    def test_refuses_drawing_below_the_window(self):
        for floor in ("Models", "Support", "Platform", "Services", "State", "CommandLine"):
            for header, module in (("QColor", "QtGui"), ("QtGui/QColor", "QtGui"), ("QtGui", "QtGui"),
                                   ("QWidget", "QtWidgets"), ("QtQuick/QQuickItem", "QtQuick")):
                with self.subTest(floor=floor, header=header):
                    path = f"src/{floor}/Planted.cpp"
                    self.plant(path, f"#include <{header}>\n")
                    self.refuses(f"{path}:2", f"{floor} may not use {header} of {module}")
                    os.remove(os.path.join(self.root, path))

    def test_format_may_not_draw_but_the_theme_beside_it_may(self):
        self.plant("src/Theme/Planted.cpp", "#include <QColor>\n")
        self.accepts()
        self.plant("src/Theme/FormatPlanted.cpp", "#include <QColor>\n")
        self.refuses("src/Theme/FormatPlanted.cpp:2", "Format may not use QColor of QtGui")

    def test_the_message_bus_belongs_to_linux(self):
        self.plant("src/Platform/Linux/Planted.cpp", "#include <QDBusConnection>\n#include <QtNetwork/QTcpSocket>\n")
        self.accepts()
        self.plant("src/Services/Planted.cpp", "#include <QDBusConnection>\n")
        self.refuses("src/Services/Planted.cpp:2", "Services may not use QDBusConnection of QtDBus")

    def test_pages_are_built_on_components_and_not_the_reverse(self):
        self.plant("src/Views/Planted.qml", "import QtQuick\nimport Brisko.Components\nimport Brisko.Pages\n")
        self.accepts()
        self.plant("src/Components/Planted.qml", "import QtQuick\nimport Brisko.Pages\n")
        self.refuses("src/Components/Planted.qml:3", "Components may not import Brisko.Pages")

    def test_refuses_foreign_controls_and_unknown_modules(self):
        self.plant("src/Components/Planted.qml", "import QtQuick.Controls\n")
        self.refuses("src/Components/Planted.qml:2", "imports QtQuick.Controls")
        self.plant("src/Components/Planted.qml", "import Brisko.Nowhere\n")
        self.refuses("src/Components/Planted.qml:2", "no module of ours")

    def test_refuses_to_ask_for_the_system_outside_platform(self):
        self.plant("src/Platform/Planted.cpp", "#ifdef __linux__\n#endif\n")
        self.accepts()
        for line in ("#ifdef Q_OS_MACOS", "#if defined(__APPLE__)", "  #  elif !defined(__linux__)",
                     "#ifndef Q_OS_LINUX"):
            for path in ("src/Services/Planted.cpp", "src/App/Planted.h", "tests/State/tst_Planted.cpp"):
                with self.subTest(line=line, path=path):
                    text = ("#pragma once\n" if path.endswith(".h") else "\n") + "#if 0\n" + line + "\n#endif\n"
                    self.plant(path, text)
                    self.refuses(f"{path}:4", "outside Platform")
                    os.remove(os.path.join(self.root, path))

    def test_refuses_a_source_without_its_licence(self):
        for path, first in (("src/Models/Planted.cpp", ""), ("tests/tst_planted.py", "#!/usr/bin/env python3\n"),
                            ("tools/planted", "#!/bin/sh\n"), ("src/Planted/CMakeLists.txt", "")):
            with self.subTest(path=path):
                self.plant(path, "\n# something else\n", licence=first)
                self.refuses(f"{path}:1", "does not begin with the licence line")
                os.remove(os.path.join(self.root, path))

    def test_refuses_careless_headers(self):
        self.plant("src/Models/Planted.h", "struct Planted {};\n")
        self.refuses("src/Models/Planted.h:1", "#pragma once")
        self.plant("src/Models/Planted.h", "#pragma once\nusing namespace std;\n")
        self.refuses("src/Models/Planted.h:3", "using namespace in a header")

    def test_refuses_a_folder_that_is_no_floor(self):
        self.plant("src/Helpers/Planted.cpp", "")
        self.refuses("src/Helpers/Planted.cpp:1", "no known floor")

    def test_an_empty_root_is_an_error_and_no_success(self):
        shutil.rmtree(self.root)
        os.mkdir(self.root)
        self.assertEqual(self.answer().returncode, 2)


if __name__ == "__main__":
    unittest.main()
