#!/usr/bin/env python3
"""The checker of the K-1 code list finds each kind of fault and passes a sound list.

Usage: check_k1help_inf_test.py PATH_TO_CHECKER
"""
import os
import sys
import tempfile
import types
import unittest

CHECKER = sys.argv.pop(1) if len(sys.argv) > 1 else os.path.join(
    os.path.dirname(__file__), "..", "..", "tools", "check-k1help-inf")
# The checker is a command without a .py ending: its code is read into a module of its own.
checker = types.ModuleType("check_k1help_inf")
with open(CHECKER, encoding="utf-8") as source:
    exec(compile(source.read(), CHECKER, "exec"), checker.__dict__)

HEADING = "; Codes as the 2024 Instructions for Schedule K-1 of Forms 1041, 1065 and 1120-S give them.\n"


def sound_sections(replace=None):
    """Every section with two codes; `replace` maps a section to its own lines."""
    text = ""
    for section in checker.SECTIONS:
        lines = (replace or {}).get(section, ["A|First purpose {Form 1}|", "ZZ|Other items {statement}|\tX"])
        text += f"[{section}]\n" + "".join(line + "\n" for line in lines) + "\n"
    return text


class CheckK1Help(unittest.TestCase):
    def problems(self, text):
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "K1Help.inf")
            with open(path, "wb") as f:
                f.write(text.encode("latin-1"))
            return checker.check(path)

    def assertOneProblem(self, text, words):
        found = self.problems(text)
        self.assertEqual(len(found), 1, found)
        self.assertIn(words, found[0])

    def test_a_sound_list_passes(self):
        self.assertEqual(self.problems(HEADING + sound_sections()), [])

    def test_the_shipped_list_passes(self):
        self.assertEqual(checker.check(os.path.join(os.path.dirname(CHECKER), "..", "data", "K1Help.inf")), [])

    def test_a_list_without_the_year_of_its_instructions(self):
        self.assertOneProblem("; Codes of the current instructions.\n" + sound_sections(), "year")

    def test_a_line_of_fewer_or_more_than_three_parts(self):
        for line in ("B|Second purpose {Form 2}", "B second purpose", "B|Second {Form 2}|more|parts"):
            with self.subTest(line=line):
                text = HEADING + sound_sections({"K1-1065-Box11": ["A|First {Form 1}|", line]})
                self.assertOneProblem(text, "instead of three")

    def test_a_section_just_over_the_buffer_and_one_that_fits_exactly(self):
        def section_of(size):
            lines, used = [], 0
            for n in range(26):
                code = chr(ord("A") + n)
                line = f"{code}|Purpose number {n:02d} {{Form {n}}}|"
                lines.append(line)
                used += len(line) + 1
            # Stretch the last line to reach the size wanted.
            lines[-1] = lines[-1][:-2] + "x" * (size - used) + lines[-1][-2:]
            return lines
        fits = section_of(checker.ROOM)
        self.assertEqual(sum(len(line) + 1 for line in fits), 2047)
        self.assertEqual(self.problems(HEADING + sound_sections({"K1-1065-Box15": fits})), [])
        self.assertOneProblem(HEADING + sound_sections({"K1-1065-Box15": section_of(2048)}), "over the 2047")

    def test_a_code_twice(self):
        text = HEADING + sound_sections({"K1-1041-Box13": ["A|First {Form 1}|", "A|Second {Form 2}|"]})
        self.assertOneProblem(text, "code A also on line")

    def test_two_codes_with_the_same_words(self):
        text = HEADING + sound_sections({"K1-1120S-Box13": [
            "P|Cooperative's unused credit {Form 3468}|", "Q|cooperative's  unused credit {Form 3800}|"]})
        self.assertOneProblem(text, "same words as code P")

    def test_codes_out_of_list_order(self):
        text = HEADING + sound_sections({"K1-1065-Box20": ["AA|Double {Form 1}|", "B|Single {Form 2}|"]})
        self.assertOneProblem(text, "out of list order")

    def test_an_override_mark_without_its_tab(self):
        text = HEADING + sound_sections({"K1-1065-Box20": ["A|Words {statement}|X"]})
        self.assertOneProblem(text, "a tab and X")

    def test_a_purpose_without_where_to_read_more(self):
        text = HEADING + sound_sections({"K1-1065-Box20": ["A|Words only|"]})
        self.assertOneProblem(text, "where to read more")

    def test_an_unknown_a_missing_and_a_doubled_section(self):
        self.assertOneProblem(HEADING + sound_sections() + "[K1-1065-Box99]\nA|X {Y}|\n", "no coded box")
        without = sound_sections().replace("[K1-1065-Box14]\n", "[K1-1065-Box13]\n", 1)
        found = self.problems(HEADING + without)
        self.assertTrue(any("[K1-1065-Box14] missing" in p for p in found), found)
        self.assertTrue(any("[K1-1065-Box13] twice" in p for p in found), found)

    def test_a_character_outside_plain_ascii(self):
        text = HEADING + sound_sections({"K1-1065-Box11": ["A|Caf\xe9 {Form 1}|"]})
        self.assertOneProblem(text, "plain ASCII")


if __name__ == "__main__":
    unittest.main()
