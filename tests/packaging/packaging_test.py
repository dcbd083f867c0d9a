# SPDX-License-Identifier: GPL-3.0-or-later
"""The man page and the bash completion beside what kervol-batch itself says of its commands.

KERVOL_BATCH, KERVOL_MAN_PAGE and KERVOL_COMPLETION name the three files.
"""

import os
import re
import shutil
import subprocess
import tempfile
import unittest

PROGRAM = os.environ["KERVOL_BATCH"]
MAN_PAGE = os.environ["KERVOL_MAN_PAGE"]
COMPLETION = os.environ["KERVOL_COMPLETION"]


def output_of(*words, **more):
    return subprocess.run(words, capture_output=True, text=True, check=True, timeout=60, **more).stdout


def commands():
    listed = output_of(PROGRAM, "--help").split("Subcommands:\n")[1].split("\n\n")[0]
    return re.findall(r"^  ([a-z]+) ", listed, re.MULTILINE)


def entries(command):
    """The help of a command by option or argument, each with the lines that tell about it."""
    text = output_of(PROGRAM, *([command] if command else []), "--help")
    found = {}
    for block in re.split(r"\n(?=Positionals:|Options:|Subcommands:)", text)[1:]:
        if block.startswith("Subcommands:"):
            continue
        for entry in re.split(r"\n  (?=\S)", block.split("\n\n")[0])[1:]:
            found[entry.split()[0]] = entry
    return found


def options(command):
    return [name for head in entries(command) if head.startswith("-") for name in head.split(",")]


class TheHelpThatIsComparedWith(unittest.TestCase):
    """What the tests below find in it, so that a help of another shape does not silence them."""

    def test_has_the_commands_and_options_that_are_known_to_be_there(self):
        self.assertGreaterEqual(len(commands()), 17)
        self.assertEqual(options("dxf"), ["-h", "--help", "--example", "--step", "-o"])
        self.assertEqual(options(None), ["-h", "--help", "--version"])
        self.assertEqual([head for head in entries("convert") if not head.startswith("-")], ["OLD", "NEW"])


class ManPage(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        with open(MAN_PAGE, encoding="utf-8") as page:
            text = page.read().replace("\\-", "-")
        cls.text = text
        cls.chapters = dict(re.findall(r"^\.SH (.+)\n((?:(?!\.SH ).*\n)*)", text, re.MULTILINE))
        cls.sections = dict(re.findall(r"^\.SS (.+)\n((?:(?!\.SS ).*\n)*)", cls.chapters["COMMANDS"], re.MULTILINE))

    @staticmethod
    def options_in(text):
        return set(re.findall(r"(?<![\w-])--?[a-z][a-z0-9-]*", text)) - {"-batch"}

    def test_has_a_section_for_every_command_in_the_order_of_the_help(self):
        self.assertEqual(list(self.sections), commands())

    def test_names_the_options_that_a_command_has_and_no_others(self):
        for command in commands():
            with self.subTest(command):
                self.assertEqual(
                    self.options_in(self.sections[command]) | {"-h", "--help"}, set(options(command)))

    def test_tells_what_every_option_does(self):
        shared = self.chapters["OPTIONS"]
        for command in commands():
            for option in options(command):
                with self.subTest(command=command, option=option):
                    heads = re.findall(r"^\.TP\n(.*)", shared + self.sections[command], re.MULTILINE)
                    self.assertTrue(any(option in self.options_in(head) for head in heads))

    def test_tells_of_the_options_without_a_command(self):
        self.assertLessEqual(set(options(None)), self.options_in(self.chapters["OPTIONS"]))

    def test_names_every_choice_of_an_option(self):
        for command in commands():
            told = self.chapters["OPTIONS"] + self.sections[command]
            for head, entry in entries(command).items():
                for choice in re.findall(r"\{(.*?)\}", entry)[:1]:
                    for value in choice.split(","):
                        with self.subTest(command=command, entry=head, value=value):
                            self.assertRegex(told, r"(?<![\w-])" + re.escape(value) + r"(?![\w-])")

    def test_names_the_limits_of_numbers(self):
        for command in commands():
            for head, entry in entries(command).items():
                for low, high in re.findall(r" in \[(\S+) - (\S+)\]", entry):
                    if (head, high) == ("--step", "1024"):
                        continue  # the last step of the model is what counts
                    with self.subTest(command=command, entry=head):
                        self.assertIn(f"{low} to {high}", self.sections[command].replace("\n", " "))

    def test_names_the_exit_codes(self):
        codes = re.findall(r"^\.B (\d)$", self.chapters["EXIT STATUS"], re.MULTILINE)
        told = output_of(PROGRAM, "--help").split("Exit codes:")[1]
        self.assertEqual(codes, re.findall(r"\b(\d) ", told))


@unittest.skipUnless(shutil.which("bash"), "needs bash")
class Completion(unittest.TestCase):
    # `compopt` works within a completion alone.
    SCRIPT = r"""
        compopt() { :; }
        source "$1"
        shift
        COMP_WORDS=("$@")
        COMP_CWORD=$(($# - 1))
        _kervol_batch "$1" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
        [ ${#COMPREPLY[@]} -eq 0 ] || printf '%s\n' "${COMPREPLY[@]}"
    """

    def offered(self, *words, folder="."):
        done = subprocess.run(
            ["bash", "-c", self.SCRIPT, "bash", COMPLETION, PROGRAM, *words],
            capture_output=True, text=True, check=True, timeout=60, cwd=folder)
        self.assertEqual(done.stderr, "")
        return done.stdout.splitlines()

    def test_offers_the_commands(self):
        self.assertEqual(self.offered(""), commands())
        self.assertEqual(self.offered("ta"), ["tables", "table"])

    def test_offers_the_options_of_every_command(self):
        for command in commands():
            with self.subTest(command):
                self.assertEqual(sorted(self.offered(command, "-")), sorted(options(command)))
        self.assertEqual(sorted(self.offered("-")), sorted(options(None)))
        self.assertEqual(self.offered("study", "--example", "watt", "--me"), ["--measure"])

    def test_offers_the_choices_of_an_option(self):
        self.assertEqual(self.offered("info", "--example", ""), ["watt", "roberts", "hoeken", "double-dwell"])
        self.assertEqual(self.offered("table", "--frame", "l"), ["local"])
        self.assertEqual(self.offered("table", "--frame", "=", "g"), ["global"])
        self.assertEqual(self.offered("table", "--frame", "="), ["global", "local"])
        self.assertEqual(self.offered("example", "h"), ["hoeken"])
        self.assertEqual(self.offered("tables", "--component", ""), ["X", "Y", "Mag", "Ang"])

    def test_offers_nothing_for_a_number(self):
        self.assertEqual(self.offered("table", "--every", ""), [])

    def test_offers_functions_by_the_names_of_the_program(self):
        self.assertEqual(self.offered("table", "--function", "Trans"), ["Trans Ang-1", "Trans Ang-2"])
        self.assertEqual(self.offered("tables", "--fft", "'Torque L"),
                         ["Torque L3", "Torque L4", "Torque L5", "Torque L6"])
        self.assertEqual(self.offered("plot", "--function", "Omega3", "Cpler\\ Pt-2"), ["Cpler Pt-2"])
        listed = output_of(PROGRAM, "functions").split("\n\n")[1].splitlines()[1:]
        self.assertEqual(len(listed), 66)
        self.assertEqual(self.offered("table", "--function", ""), [line[2:16].rstrip() for line in listed])

    def test_offers_the_components_of_a_vector(self):
        self.assertEqual(self.offered("table", "--function", '"Veloc CP-1:'),
                         ["Veloc CP-1:X", "Veloc CP-1:Y", "Veloc CP-1:Mag", "Veloc CP-1:Ang"])
        self.assertEqual(self.offered("table", "--function", '"Omega3:'), [])
        self.assertEqual(self.offered("table", "--function", "Force\\ 12", ":"), ["X", "Y", "Mag", "Ang"])
        self.assertEqual(self.offered("table", "--function", "Force\\ 12", ":", "M"), ["Mag"])

    def test_offers_presets(self):
        self.assertEqual(self.offered("plot", "--preset", "Omega m"), ["Omega magnitudes for links 3, 4, 5, 6"])
        self.assertEqual(self.offered("plot", "--preset", "Current FFT - R"),
                         ["Current FFT - Real, Imag", "Current FFT - Real, Imag, Mag, Phase"])

    def test_offers_files_by_what_they_are_called(self):
        with tempfile.TemporaryDirectory() as folder:
            for name in ["a.kvl", "b b.kvl", "old.ikv", "cam.sva", "c.out", "t.trq", "p.png", "p.svg", "p.gif", "x.dxf"]:
                open(os.path.join(folder, name), "w").close()
            os.makedirs(os.path.join(folder, "folder.kvl"))

            def files(*words):
                return sorted(self.offered(*words, folder=folder))

            models = ["a.kvl", "b b.kvl", "folder.kvl", "old.ikv"]
            self.assertEqual(files("info", ""), models)
            self.assertEqual(files("convert", ""), models)
            self.assertEqual(files("limits", "--json", ""), models)
            self.assertEqual(files("draw", "--all", ""), models)
            self.assertEqual(files("table", "--function", "Omega3", "a"), ["a.kvl"])
            self.assertEqual(files("drive", "--sva", ""), ["cam.sva", "folder.kvl"])
            self.assertEqual(files("drive", "a.kvl", "--out", ""), ["c.out", "folder.kvl"])
            self.assertEqual(files("draw", "-o", "p"), ["p.png", "p.svg"])
            self.assertEqual(files("animate", "-o", "p"), ["p.gif", "p.svg"])
            self.assertEqual(files("dxf", "-o", ""), ["folder.kvl", "x.dxf"])
            self.assertEqual(files("info", "b\\ "), ["b b.kvl"])
            self.assertEqual(files("tables", "-o", "p"), ["p.gif", "p.png", "p.svg"])


if __name__ == "__main__":
    unittest.main()
