# SPDX-License-Identifier: GPL-3.0-or-later
"""Tests of kervol.py. Those that need the program take it from the variable KERVOL_BATCH."""

import math
import os
import random
import struct
import subprocess
import sys
import tempfile
import unittest

FOLDER = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, FOLDER)

import kervol  # noqa: E402

EXAMPLES = os.path.join(os.path.dirname(FOLDER), "examples")
BATCH = os.environ.get("KERVOL_BATCH")


def content(path):
    with open(path, "rb") as file:
        return file.read()


class InAFolder(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def file(self, name, data=None):
        path = os.path.join(self.folder, name)
        if data is not None:
            with open(path, "wb") as file:
                file.write(data)
        return path

    def batch(self, *words):
        if not BATCH:
            self.skipTest("KERVOL_BATCH names no program")
        subprocess.run([BATCH, *words], check=True, stdout=subprocess.DEVNULL)


class Numbers(unittest.TestCase):
    def test_are_the_shortest_that_read_back(self):
        cases = [
            (0.0, "0"), (-0.0, "-0"), (1.0, "1"), (-5, "-5"), (0.1, "0.1"), (0.003, "0.003"),
            (8.625, "8.625"), (5.385164737701416, "5.3851647"), (9999999, "9999999"), (1e7, "1E+07"),
            (1.5e-5, "1.5E-05"), (1e-4, "0.0001"), (9.999e-5, "9.999E-05"), (123456.789, "123456.79"),
            (3.4028235e38, "3.4028235E+38"), (1e-45, "1E-45"), (16777216, "1.6777216E+07"), (1000000, "1000000"),
        ]
        for value, text in cases:
            self.assertEqual(kervol.plain_number(value), text)

    def test_read_back_to_the_same_single(self):
        source = random.Random(7)
        for _ in range(3000):
            bits = source.getrandbits(32)
            value = struct.unpack("<f", struct.pack("<I", bits))[0]
            if math.isfinite(value):
                self.assertEqual(kervol.single(float(kervol.plain_number(value))), value)

    def test_that_no_file_can_hold_are_refused(self):
        for value in (math.inf, math.nan, 1e39):
            with self.assertRaises(kervol.FormatError):
                kervol.plain_number(value)


class ModelFiles(InAFolder):
    def test_of_the_program_are_written_byte_for_byte(self):
        for name in sorted(os.listdir(EXAMPLES)):
            path = os.path.join(EXAMPLES, name)
            written = self.file(name)
            kervol.Model.read(path).write(written)
            self.assertEqual(content(written), content(path), name)

    def test_have_their_fields_by_name(self):
        model = kervol.Model.read(os.path.join(EXAMPLES, "watt.kvl"))
        self.assertEqual(model.ModelTitle, "Kervol Watts Chain with Two Coupler Curves")
        self.assertEqual(model.LinkageType, "W")
        self.assertEqual((model.Link1, model.Link2, model.Link3), (9.375, 2, 8.625))
        self.assertEqual((model.O6X, model.O6Y), (14.375, 2))
        self.assertEqual(model.LinkCG[4], [3.5, 0])
        self.assertEqual(model.CalcMode, 3)
        self.assertIs(model.CamDriven, False)

    def test_keep_drive_and_torque_rows(self):
        model = kervol.Model.read(os.path.join(EXAMPLES, "watt.kvl"))
        model.CalcMode, model.NumSteps, model.TorqueImported = 5, 2, True
        model.Drive = [[0, 10, 0], [0.5, 10, -1.5e-7], [1, 10, 0]]
        model.Torque = [1, -2.25, 1e8]
        path = self.file("driven.kvl")
        model.write(path)
        self.assertTrue(content(path).endswith(b"0,10,0\r\n0.5,10,-1.5E-07\r\n1,10,0\r\n1\r\n-2.25\r\n1E+08\r\n"))
        again = kervol.Model.read(path)
        self.assertEqual(again.Torque, [1, -2.25, 1e8])
        self.assertEqual(again.Drive[2], [1, 10, 0])

    def test_with_the_wrong_number_of_rows_are_refused(self):
        model = kervol.Model()
        model.CalcMode, model.NumSteps, model.Drive = 4, 5, [[0, 0, 0]]
        with self.assertRaisesRegex(kervol.FormatError, "Drive has 1 rows; NumSteps of 5 needs 6"):
            model.text()

    def test_cannot_hold_quotes(self):
        model = kervol.Model()
        model.ModelTitle = 'a "b"'
        with self.assertRaises(kervol.FormatError):
            model.text()

    def test_keep_what_they_overwrite(self):
        path = self.file("a.kvl", b"older")
        kervol.Model.read(os.path.join(EXAMPLES, "watt.kvl")).write(path)
        self.assertEqual(content(path + "~"), b"older")

    def test_take_line_ends_and_encodings_of_other_systems(self):
        data = content(os.path.join(EXAMPLES, "watt.kvl")).replace(b"\r\n", b"\n")
        data = data.replace(b"Kervol Watts", b"M\xfcller \x93Watt\x94")
        model = kervol.Model.read(self.file("a.kvl", data))
        self.assertEqual(model.ModelTitle, "M\u00fcller \u201cWatt\u201d Chain with Two Coupler Curves")

    def test_that_are_cut_or_wrong_tell_the_line(self):
        lines = content(os.path.join(EXAMPLES, "watt.kvl")).split(b"\r\n")
        with self.assertRaisesRegex(kervol.FormatError, "line 51: the file ends here"):
            kervol.Model.read(self.file("cut.kvl", b"\r\n".join(lines[:50]) + b"\r\n"))
        for wrong in (b"two", b"", b"nan", b"0x10", b"1_0", b"1e99"):
            with self.assertRaisesRegex(kervol.FormatError, "line 14: "):
                kervol.Model.read(self.file("wrong.kvl", b"\r\n".join(lines[:13] + [wrong] + lines[14:])))
        with self.assertRaisesRegex(kervol.FormatError, "first line must be"):
            kervol.Model.read(self.file("other.kvl", b'"SOMETHING"\r\n"1"\r\n'))

    def test_have_the_ground_that_follows_from_the_pivots(self):
        model = kervol.Model()
        model.place_pivots((3, 4), (0, 10))
        self.assertAlmostEqual(model.Link1, 5)
        self.assertAlmostEqual(model.GroundAngleDeg, 53.13010235)
        self.assertAlmostEqual(model.O6LocalX, 8)
        self.assertAlmostEqual(model.O6LocalY, 6)


class FilesBetweenPrograms(InAFolder):
    def test_have_the_motion_of_link_6(self):
        text = " 1\r\n 0\r\n 5\r\n 0.05\r\n" + "\r\n" * 12 + " 10.5        -2            1E-05\r\n 11 3 -4\r\n"
        motion = kervol.read_out(self.file("a.out", text.encode()))
        self.assertEqual((motion.time_start, motion.time_end), (0, 5))
        self.assertEqual(motion.rows, [[10.5, -2, kervol.single(1e-5)], [11, 3, -4]])

    def test_have_a_torque_for_each_step(self):
        self.assertEqual(kervol.read_trq(self.file("a.trq", b"2\r\n1\r\n-2.5\r\n1E+08\r\n")), [1, -2.5, 1e8])

    def test_that_are_cut_or_too_long_are_refused(self):
        with self.assertRaisesRegex(kervol.FormatError, "line 3: the file ends here"):
            kervol.read_trq(self.file("cut.trq", b"2\r\n1\r\n"))
        with self.assertRaisesRegex(kervol.FormatError, "too many"):
            kervol.read_trq(self.file("long.trq", b"2000\r\n1\r\n"))


class Tables(InAFolder):
    def test_from_a_file_have_heads_and_columns(self):
        lines = [
            "KERVOL for Windows          File \tmine\t\tDesign #\t1", "me\t\t2026-11-21\t\t13:11", "",
            "   Selected Linkage Parameters", "   ", "", "Angle\tTheta3\tTorque 12\t\t\t", "",
            "Step\tMag\tMag\t\t\t", "", "Deg\tdegrees\tlb-in\t\t\t", "", "0.000\t51.162\t-1,021.750\t",
            "100.000\t32.208\t0.123 457\t",
        ]
        table = kervol.read_dat(self.file("a.dat", "".join(line + "\r\n" for line in lines).encode()))
        self.assertEqual(table.model_name, "mine")
        self.assertEqual(table.functions, ["Theta3", "Torque 12"])
        self.assertEqual(table.components, ["Mag", "Mag"])
        self.assertEqual(table.units, ["degrees", "lb-in"])
        self.assertEqual((table.abscissa_name, table.abscissa), ("Angle", [0, 100]))
        self.assertEqual(table.columns, [[51.162, 32.208], [-1021.75, 0.123457]])

    def test_that_are_none_are_refused(self):
        with self.assertRaises(kervol.FormatError):
            kervol.read_dat(self.file("a.dat", b"1\t2\t3\r\n"))
        with self.assertRaises(kervol.FormatError):
            kervol.read_tables(self.file("a.json", b"[1, 2]"))


class WithTheProgram(InAFolder):
    def test_numbers_are_written_alike(self):
        """A thousand singles of all sizes, powers of two among them, through both writers."""
        source = random.Random(3)
        model = kervol.Model.read(os.path.join(EXAMPLES, "watt.kvl"))
        model.ModelName, model.TorqueImported, model.NumSteps = "a", True, 1024
        exponents = [math.ldexp(1.0, power) for power in range(-149, 128)]
        while len(exponents) < 1025:
            value = struct.unpack("<f", struct.pack("<I", source.getrandbits(32)))[0]
            if math.isfinite(value):
                exponents.append(value)
        model.Torque = exponents
        first, second = self.file("a.kvl"), self.file("b.kvl")
        model.write(first)
        self.batch("convert", first, second)
        # The program derives the geometry anew when it reads, so only what does not follow is compared.
        self.assertEqual(content(first).split(b"\r\n")[214:], content(second).split(b"\r\n")[214:])

    def test_a_model_file_goes_there_and_back(self):
        first, second = self.file("a.kvl"), self.file("b.kvl")
        self.batch("example", "hoeken", "-o", first)
        kervol.Model.read(first).write(second)
        self.assertEqual(content(second), content(first))

    def test_link_motion_torque_and_table_are_those_of_the_tables(self):
        path = os.path.join(EXAMPLES, "watt.kvl")
        self.batch("tables", path, "--dynamics", "-o", self.file("a.json"))
        self.batch("export", path, "--link6", self.file("a.out"))
        self.batch("export", path, "--torque", self.file("a.trq"))
        self.batch("table", path, "--function", "Theta6", "Torque 12", "--format", "dat", "--every", "1",
                   "--decimals", "3", "-o", self.file("a.dat"))
        tables = kervol.read_tables(self.file("a.json"))
        motion, torque = kervol.read_out(self.file("a.out")), kervol.read_trq(self.file("a.trq"))
        table = kervol.read_dat(self.file("a.dat"))
        self.assertEqual(len(motion.rows), tables["NumSteps"] + 1)
        for step, row in enumerate(motion.rows):
            self.assertEqual(row[0], kervol.single(tables["Theta"][step][5]))
            self.assertEqual(row[1], kervol.single(tables["Omega"][step][4]))
            self.assertEqual(torque[step], kervol.single(tables["TorqueTable"][step][0]))
            self.assertAlmostEqual(table.columns[0][step], row[0], delta=0.00051)
            self.assertAlmostEqual(table.columns[1][step], torque[step], delta=0.00051)

    def test_a_changed_model_is_solved(self):
        if not BATCH:
            self.skipTest("KERVOL_BATCH names no program")
        model = kervol.Model.read(os.path.join(EXAMPLES, "watt.kvl"))
        model.Link2 = 1.5
        path = self.file("a.kvl")
        model.write(path)
        tables = kervol.solve(path, dynamics=True, program=BATCH)
        A = tables["PointPos"][9][0]
        self.assertAlmostEqual(math.hypot(*A), 1.5, places=6)
        self.assertTrue(all(tables["StepValid"]))
        with self.assertRaises(kervol.SolveError) as caught:
            kervol.solve(self.file("none.kvl"), program=BATCH)
        self.assertEqual(caught.exception.code, 2)

    def test_the_example_runs(self):
        if not BATCH:
            self.skipTest("KERVOL_BATCH names no program")
        done = subprocess.run([sys.executable, os.path.join(FOLDER, "example.py")], check=True,
                              stdout=subprocess.PIPE, env={**os.environ, "KERVOL_BATCH": BATCH})
        lines = done.stdout.decode().splitlines()
        self.assertEqual(len(lines), 6)
        self.assertEqual(lines[3].split()[0], "2")


if __name__ == "__main__":
    unittest.main()
