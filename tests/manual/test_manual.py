# SPDX-License-Identifier: GPL-3.0-or-later
"""The manual against the program: what it prints, its functions, its files, its commands and its boxes.

    KERVOL_BATCH=build/release/src/kervol-batch python3 -m unittest discover -s tests/manual
"""

import html
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
MANUAL = ROOT / "docs" / "manual"
BATCH = Path(os.environ["KERVOL_BATCH"]).resolve()


def page(name):
    return (MANUAL / name).read_text(encoding="utf-8")


def run(command, folder):
    """What a command prints, on both of its outputs, line by line without blanks at the ends."""
    environment = dict(
        os.environ,
        PATH="%s:%s" % (BATCH.parent, os.environ["PATH"]),
        LC_ALL="C.UTF-8",
        PYTHONPATH=str(ROOT / "python"),
        PYTHONDONTWRITEBYTECODE="1",
        KERVOL_PYTHON=str(ROOT / "python"),
        KERVOL_BATCH=str(BATCH),
    )
    done = subprocess.run(
        command, shell=isinstance(command, str), cwd=folder, env=environment, check=False, text=True,
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
    )
    return done.returncode, [line.rstrip() for line in done.stdout.splitlines()]


def fits(expected, printed):
    """Whether the lines are those; a line "..." stands for any number of them."""
    if not expected:
        return not printed
    if expected[0] == "...":
        return any(fits(expected[1:], printed[start:]) for start in range(len(printed) + 1))
    return bool(printed) and expected[0] == printed[0] and fits(expected[1:], printed[1:])


def steps_of(text):
    """The commands and programs of a page in their order, each with the lines that it is said to print."""
    for kind, block, output in re.findall(r"```(console|python)\n(.*?)```(?:\n\n```text\n(.*?)```)?", text, re.S):
        if kind == "python":
            yield [sys.executable, "-c", block], output.splitlines()
            continue
        for step in re.split(r"^\$ ", block, flags=re.M)[1:]:
            command, *lines = step.splitlines()
            yield command, lines


class Recipes(unittest.TestCase):
    def check(self, name):
        with tempfile.TemporaryDirectory() as folder:
            for model in (ROOT / "examples").glob("*.kvl"):
                shutil.copy(model, folder)
            for command, expected in steps_of(page(name)):
                with self.subTest(command=command):
                    code, printed = run(command, folder)
                    self.assertEqual(code, 0, printed)
                    expected = [line.rstrip() for line in expected]
                    self.assertTrue(fits(expected, printed), "printed\n" + "\n".join(printed[:40]))

    def test_of_the_first_design_print_what_they_say(self):
        self.check("ten-minutes.md")

    def test_of_the_command_line_print_what_they_say(self):
        self.check("batch.md")

    def test_of_design_studies_print_what_they_say(self):
        self.check("studies.md")

    def test_of_python_print_what_they_say(self):
        self.check("python.md")

    def test_show_every_command(self):
        _, usage = run("kervol-batch --help", ROOT)
        commands = re.findall(r"^  ([a-z]+) {4,}", "\n".join(usage).split("Subcommands:")[1], re.M)
        self.assertGreater(len(commands), 15)
        for command in commands:
            self.assertRegex(page("batch.md"), r"\$ (.*; do )?kervol-batch %s\b" % command)


class Functions(unittest.TestCase):
    def test_are_all_told_under_their_numbers_and_units(self):
        for example, other in (("watt", "hoeken"), ("hoeken", "watt")):
            _, lines = run("kervol-batch functions --example %s" % example, ROOT)
            listed = re.findall(r"^  (\S.{12})  (Mag|X Y Mag Ang) +(\S.*?)(?:  .*)?$", "\n".join(lines), re.M)
            self.assertEqual(len(listed), 66)
            rows = re.findall(r"^\| (\d+) \| (.*?) \| (.*?) \| (\S.*?) \|", page("functions.md"), re.M)
            self.assertEqual([int(row[0]) for row in rows], list(range(1, 67)))
            for (name, _, unit), (number, names, _, told) in zip(listed, rows):
                with self.subTest(number=number, chain=example):
                    self.assertIn("`%s`" % name.strip(), names)
                    lengths = unit.replace("lb-in", "torque").replace("in/sec", "length/sec")
                    lengths = {"in": "length", "lb": "force", "as transformed": "as the function"}.get(lengths, lengths)
                    self.assertEqual(told, lengths)


def value_of(text):
    if text.startswith('"'):
        return text.strip('"')
    return {"#TRUE#": True, "#FALSE#": False}.get(text) if text.startswith("#") else float(text)


class ModelFile(unittest.TestCase):
    def rows(self):
        return re.findall(r"^\| (\d+) \| (`[^`]+`|\(reserved\)) \| (\w+) \|", page("formats.md"), re.M)

    def test_has_each_line_in_its_place(self):
        rows = self.rows()
        self.assertEqual([int(row[0]) for row in rows], list(range(1, 118)))
        kinds = {"text": '"', "flag": "#"}
        for example in ("watt", "hoeken"):
            lines = (ROOT / "examples" / (example + ".kvl")).read_text(encoding="utf-8").splitlines()
            self.assertEqual(len(lines), 214)
            with tempfile.TemporaryDirectory() as folder:
                name = os.path.join(folder, "tables.json")
                run(["kervol-batch", "tables", str(ROOT / "examples" / (example + ".kvl")), "-o", name], ROOT)
                model = json.loads(Path(name).read_text(encoding="utf-8"))["model"]
            for (number, field, kind), line in zip(rows, lines):
                with self.subTest(line=number, field=field):
                    self.assertEqual(line[0] in '"#', kind in kinds)
                    self.assertTrue(kind not in kinds or line.startswith(kinds[kind]))
                    if field == "(reserved)":
                        self.assertEqual(line, '""')
                        continue
                    value = model
                    for step in re.findall(r"\w+", field):
                        value = value[int(step) if step.isdigit() else step]
                    # These a calculation finds anew.
                    if field not in ("`Stage1Class`", "`Stage2Class`", "`Alpha2Const`", "`NumSteps`"):
                        self.assertEqual(value, value_of(line))


class Boxes(unittest.TestCase):
    def words(self, text):
        return re.sub(r"\W+", " ", text).strip().lower()

    def test_are_told_with_their_beginnings(self):
        """Each text that the sources show in a box, by its first words."""
        told = self.words(page("troubleshooting.md"))
        shown = []
        for source in sorted((ROOT / "src").rglob("*.cpp")):
            text = re.sub(r'"\s*\n\s*"', "", source.read_text(encoding="utf-8"))
            calls = r'(?:Show_Message\(\s*\{|Refuse\(program, |Warn\(screens, (?:std::string\()?|Ask_For\(screens, )"((?:[^"\\]|\\.)*)"'
            texts = re.findall(calls, text)
            texts += re.findall(r'constexpr (?:const char\*|auto|std::string_view) k\w+ =\s*"((?:[^"\\]|\\.)*\.)"', text)
            shown += [(source.name, words) for words in texts if "/batch/" not in str(source) and " " in words]
        self.assertGreater(len(shown), 30)
        for source, text in shown:
            first = " ".join(self.words(re.sub(r"\\[nr]", " ", text)).split()[:5])
            with self.subTest(source=source, text=text):
                self.assertTrue(first in told, "is not told")


class Pages(unittest.TestCase):
    def test_are_built_without_a_fault(self):
        with tempfile.TemporaryDirectory() as folder:
            code, lines = run([str(ROOT / "scripts" / "manual"), folder], ROOT)
            self.assertEqual(code, 0, lines)
            listed = [name.strip() for name in page("pages.txt").splitlines() if name.strip()]
            for name in listed:
                text = (Path(folder) / name).with_suffix(".html").read_text(encoding="utf-8")
                self.assertIn("<h1", text)
                self.assertNotIn(".md", html.unescape(re.sub(r">[^<]*<", "><", text)))

    def test_with_a_link_to_nowhere_are_refused(self):
        with tempfile.TemporaryDirectory() as folder:
            copy = Path(folder)
            (copy / "scripts").mkdir()
            shutil.copy(ROOT / "scripts" / "manual", copy / "scripts")
            shutil.copytree(MANUAL, copy / "docs" / "manual")
            with open(copy / "docs" / "manual" / "index.md", "a", encoding="utf-8") as index:
                index.write("\n[a](gone.md) [b](formats.md#gone) ![](pictures/home.png) ![c](pictures/gone.png)\n")
            code, lines = run([str(copy / "scripts" / "manual"), str(copy / "out")], copy)
            self.assertEqual(code, 1)
            self.assertEqual(len(lines), 4, lines)
            self.assertFalse((copy / "out").exists())


if __name__ == "__main__":
    unittest.main()
