#!/usr/bin/env python3
"""The checker of function lengths finds the function over its limit and passes a source without one,
reading past what only looks like a function's braces.

Usage: check_function_length_test.py PATH_TO_CHECKER
"""
import os
import subprocess
import sys
import tempfile
import types
import unittest

CHECKER = sys.argv.pop(1) if len(sys.argv) > 1 else os.path.join(
    os.path.dirname(__file__), "..", "..", "tools", "check-function-length")
# The checker is a command without a .py ending: its code is read into a module of its own.
checker = types.ModuleType("check_function_length")
with open(CHECKER, encoding="utf-8") as source:
    exec(compile(source.read(), CHECKER, "exec"), checker.__dict__)

SAMPLES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "function_length")
LONG = os.path.join(SAMPLES, "long_function.cpp")
SHORT = os.path.join(SAMPLES, "short_functions.cpp")


def run(*args):
    done = subprocess.run([sys.executable, CHECKER, *args], capture_output=True, text=True)
    return done.returncode, done.stdout, done.stderr


def read(path):
    with open(path, encoding="utf-8") as f:
        return f.read()


def lengths(text):
    """{name: length} of the functions of a source."""
    return {name: length for name, _, length in checker.functions_of(text)}


class TheSamples(unittest.TestCase):
    def test_the_sample_with_a_long_function_fails_naming_it(self):
        status, out, _ = run(LONG)
        self.assertEqual(status, 1)
        self.assertEqual(out.splitlines(),
                         [f"{os.path.normpath(LONG)}:18: Ledger::addUp is 81 lines, over the limit of 80"])

    def test_the_sample_without_one_passes(self):
        self.assertEqual(run(SHORT), (0, "ok\n", ""))

    def test_a_function_of_exactly_the_limit_passes_and_one_line_less_does_not(self):
        self.assertEqual(run("--limit", "81", LONG)[0], 0)
        status, out, _ = run("--limit", "79", SHORT)
        self.assertEqual(status, 1)
        self.assertIn("short_functions.cpp:119: addUp is 80 lines, over the limit of 79", out)

    def test_a_folder_is_searched_for_sources(self):
        status, out, _ = run(SAMPLES)
        self.assertEqual(status, 1)
        self.assertEqual(len(out.splitlines()), 1)
        self.assertIn("long_function.cpp:18:", out)

    def test_a_path_that_cannot_be_read(self):
        status, _, err = run(os.path.join(SAMPLES, "missing.cpp"))
        self.assertEqual(status, 2)
        self.assertIn("missing.cpp: cannot be read", err)

    def test_the_samples_are_read_whole(self):
        self.assertEqual(lengths(read(SHORT)), {"Ledger": 1, "addUp": 80})
        self.assertEqual(lengths(read(LONG)), {"shortOne": 1, "Ledger::addUp": 81})


class WhatCounts(unittest.TestCase):
    def test_from_the_opening_brace_to_the_closing_one(self):
        self.assertEqual(lengths("int f() { return 1; }\n"), {"f": 1})
        self.assertEqual(lengths("int f(int a,\n      int b)\n{\n    return a + b;\n}\n"), {"f": 3})

    def test_braces_in_strings_comments_and_characters_do_not_count(self):
        text = ('void f() {\n'
                '    const char* a = "}";  // }\n'
                '    /* } */ char b = \'}\';\n'
                '    const char* c = "\\"}";\n'
                '}\n'
                'void g() {\n}\n')
        self.assertEqual(lengths(text), {"f": 5, "g": 2})

    def test_a_raw_string_and_a_digit_separator(self):
        text = 'void f() {\n    auto s = R"x(}\n")} )x";\n    int n = 1\'000;\n}\nvoid g() {}\n'
        self.assertEqual(lengths(text), {"f": 5, "g": 1})

    def test_preprocessor_lines_hold_no_braces(self):
        text = "#define OPEN {\n#define BLOCK(x) \\\n    {\n#if 0\n#endif\nvoid f() {\n}\n"
        self.assertEqual(lengths(text), {"f": 2})

    def test_a_lambda_counts_toward_its_function(self):
        text = "void f() {\n    auto g = [](int n) {\n        return n;\n    };\n    g(1);\n}\n"
        self.assertEqual(checker.functions_of(text), [("f", 1, 6)])

    def test_a_lambda_outside_any_function_is_measured_alone(self):
        text = ('const std::map<std::string, Draw> all = {\n'
                '    {"open", [](Painter& p) {\n        p.draw();\n    }},\n'
                '    {"save", [](Painter& p, int side) { p.fill(side); }},\n'
                '};\n'
                'const auto twice = [](int n) {\n    return 2 * n;\n};\n')
        self.assertEqual(checker.functions_of(text), [("lambda", 2, 3), ("lambda", 5, 1), ("lambda", 7, 3)])

    def test_namespaces_classes_and_tables_are_not_functions(self):
        text = ('namespace a {\nnamespace {\n'
                'struct S {\n    int x() const { return 1; }\n};\n'
                'class C : public S {\npublic:\n    C() = default;\n    void y();\n};\n'
                'enum class E { One, Two };\n'
                'const int kTable[] = {\n    1,\n    2,\n};\n'
                '}  // namespace\n'
                'extern "C" {\nint z(void) { return 0; }\n}\n'
                'void C::y() {\n}\n'
                '}  // namespace a\n')
        self.assertEqual(lengths(text), {"x": 1, "z": 1, "C::y": 2})

    def test_a_constructor_with_member_initializers_in_braces(self):
        text = ("Form::Form(int a)\n    : Base(a),\n      list_{1, 2},\n      name_(\"{\") {\n"
                "    start();\n}\n")
        self.assertEqual(checker.functions_of(text), [("Form::Form", 1, 3)])

    def test_operators_and_a_return_type_with_parentheses(self):
        text = ("bool operator<(const A& a, const A& b) { return a.x < b.x; }\n"
                "std::function<void(int)> maker() {\n    return {};\n}\n"
                "int Caller::operator()(int n) const {\n    return n;\n}\n")
        self.assertEqual(lengths(text), {"operator<": 1, "maker": 3, "Caller::operator()": 3})


class WithATree(unittest.TestCase):
    def test_only_cpp_files_of_a_folder_are_read(self):
        long_text = "void f() {\n" + "    step();\n" * 90 + "}\n"
        with tempfile.TemporaryDirectory() as folder:
            os.makedirs(os.path.join(folder, "inner"))
            for name in ("inner/long.cpp", "long.h", "notes.txt"):
                with open(os.path.join(folder, name), "w") as f:
                    f.write(long_text)
            status, out, _ = run(folder)
        self.assertEqual(status, 1)
        self.assertEqual(len(out.splitlines()), 1)
        self.assertIn(os.path.join("inner", "long.cpp") + ":1: f is 92 lines", out)


if __name__ == "__main__":
    unittest.main()
