#!/usr/bin/env python3
"""The state reach check counts a file that calls program() or g() in its code, not one that names them
in a comment or a string, or calls a member of the same name, and fails above its ceiling.

Usage: check_state_reach_test.py PATH_TO_CHECKER
"""
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECKER = sys.argv.pop(1) if len(sys.argv) > 1 else os.path.join(
    os.path.dirname(__file__), "..", "..", "tools", "check-state-reach")

SOURCES = {
    "reaches.cpp": "void f() { program().desktop.tab(false); }\n",
    "helper.cpp": "Globals& g() { return program().g; }\n",
    "comment.cpp": "// program() is not called here\nconst char* k = \"g() and program()\";\n",
    "member.cpp": "void f(Runner& r) { r.program().desktop; x->g(); }\n",
    "qualified.h": "inline void f() { lw::program().ui.refresh(); }\n",
}


def run(folder, *args):
    done = subprocess.run([sys.executable, CHECKER, *args, folder], capture_output=True, text=True)
    return done.returncode, done.stdout


class CheckStateReach(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        for name, text in SOURCES.items():
            pathlib.Path(self.folder.name, name).write_text(text)

    def tearDown(self):
        self.folder.cleanup()

    def test_lists_the_files_that_call_a_door_in_code(self):
        code, out = run(self.folder.name)
        self.assertEqual(code, 0)
        listed = {pathlib.Path(line).name for line in out.splitlines()[:-1]}
        self.assertEqual(listed, {"reaches.cpp", "helper.cpp", "qualified.h"})
        self.assertIn("3 files reach", out)

    def test_fails_above_its_ceiling_and_passes_at_it(self):
        self.assertEqual(run(self.folder.name, "--max", "2")[0], 1)
        self.assertEqual(run(self.folder.name, "--max", "3")[0], 0)

    def test_a_missing_folder_is_an_error_of_its_own(self):
        self.assertEqual(run(os.path.join(self.folder.name, "none"))[0], 2)


if __name__ == "__main__":
    unittest.main()
