#!/usr/bin/env python3
"""The figures: complete, sound files, and refused where a routine no longer bears them out.

    figures_test.py PROGRAM    the program `figures`, built for this machine as a host of libtrelvin.so
"""
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as xml

root = pathlib.Path(__file__).resolve().parents[2]
program = sys.argv.pop(1)
svg = "{http://www.w3.org/2000/svg}"


def draw(folder, **environment):
    return subprocess.run(
        [program, folder], env={**os.environ, **environment}, capture_output=True, text=True)


class Figures(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.scratch.cleanup)
        cls.folder = pathlib.Path(cls.scratch.name)
        result = draw(cls.folder)
        assert result.returncode == 0, result.stderr
        cls.files = {file.stem: file.read_bytes() for file in cls.folder.glob("*.svg")}

    def test_every_outline_routine_has_one(self):
        header = (root / "include/trelvin/sections.h").read_text()
        routines = set(re.findall(r"TRELVIN_ROUTINE (trvsec_\w+)", header))
        self.assertEqual({f"outline-{routine}" for routine in routines},
                         {name for name in self.files if name.startswith("outline-")})

    def test_dimensions_have_the_letters_of_the_header(self):
        header = (root / "include/trelvin/sections.h").read_text()
        for routine, arguments in re.findall(r"TRELVIN_ROUTINE (trvsec_\w+)\((.*?)\bq\b", header, re.S):
            letters = set(re.findall(r"Trv\w*In (\w+)", arguments))
            drawn = xml.fromstring(self.files[f"outline-{routine}"])
            texts = {text.text for text in drawn.iter(svg + "text")}
            self.assertLessEqual(letters, texts, routine)

    def test_are_named_for_those_who_do_not_see_them(self):
        ids = []
        for name, content in self.files.items():
            figure = xml.fromstring(content)
            ids += [element.get("id") for element in figure.iter() if element.get("id")]
            self.assertEqual(figure.get("role"), "img", name)
            self.assertTrue(figure.get("viewBox"), name)
            for part in ("title", "desc"):
                self.assertTrue(figure.find(svg + part).text, name)
                self.assertIn(figure.find(svg + part).get("id"), figure.get("aria-labelledby").split())
        self.assertEqual(len(ids), len(set(ids)), "an id stands twice, as on a page with both figures")

    def test_have_the_same_bytes_again(self):
        with tempfile.TemporaryDirectory() as again:
            draw(again)
            for name, content in self.files.items():
                self.assertEqual(content, (pathlib.Path(again) / f"{name}.svg").read_bytes(), name)

    def test_no_routine_can_fail_unnoticed(self):
        symbols = subprocess.run(["nm", "-D", "-u", program], capture_output=True, text=True, check=True)
        routines = re.findall(r" U (trv\w+)", symbols.stdout)
        self.assertGreater(len(routines), 40)
        for routine in routines:
            idle = self.folder / f"{routine}.so"  # a routine of that name that writes nothing
            subprocess.run(["cc", "-shared", "-fPIC", "-x", "c", "-", "-o", idle], check=True, text=True,
                           input=f"void {routine}(void) {{}}")
            result = draw(self.folder, LD_PRELOAD=str(idle))
            self.assertEqual(result.returncode, 1, routine)
            self.assertIn("the routines no longer give what it shows", result.stderr, routine)


if __name__ == "__main__":
    unittest.main()
