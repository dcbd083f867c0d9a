# SPDX-License-Identifier: GPL-3.0-or-later
"""Reads and writes the files of KERVOL. One file, nothing beside the standard library; Python 3.9 or later.

    import kervol
    model = kervol.Model.read("my.kvl")
    model.Link2 = 2.5
    model.write("longer.kvl")
    tables = kervol.solve("longer.kvl", dynamics=True)
    print(max(row[0] for row in tables["TorqueTable"]))

Fields have the names of the program. Numbers are single precision there: what is written is the shortest
decimal that reads back to the same single, as the program writes it.
"""

import json
import math
import os
import shutil
import struct
import subprocess
from fractions import Fraction

IDENTITY = "KERVOL for Windows"
VERSION = "7.0"
RELEASE = "2.2"
MAX_STEPS = 1024
DRIVE_ROWS = 361


class FormatError(ValueError):
    """A file is not what it should be; the text says where."""


# Numbers as texts


def single(value):
    """The single-precision number nearest to a value."""
    try:
        rounded = struct.unpack("<f", struct.pack("<f", value))[0]
    except OverflowError:
        raise FormatError("%r is too large for a single" % (value,)) from None
    if not math.isfinite(rounded):
        raise FormatError("%r is no number that a file can hold" % (value,))
    return rounded


def _digits(value):
    """Digits and exponent of the shortest decimal that reads back to the positive single, and of those the
    nearest: value is about digits * 10**exponent."""
    exact = Fraction(value)
    for precision in range(1, 10):
        mantissa, exponent = ("%.*e" % (precision - 1, value)).split("e")
        nearest = int(mantissa.replace(".", ""))
        power = int(exponent) - (precision - 1)
        # At a power of two a decimal on the wider side may read back where the nearest one does not.
        candidates = sorted(
            (nearest - 1, nearest, nearest + 1),
            key=lambda digits: abs(digits * Fraction(10) ** power - exact),
        )
        for digits in candidates:
            if digits > 0 and _reads_back(digits, power, value):
                return str(digits), power
    raise AssertionError("nine digits always read back")


def _reads_back(digits, power, value):
    try:
        return struct.unpack("<f", struct.pack("<f", float("%de%d" % (digits, power))))[0] == value
    except OverflowError:
        return False


def plain_number(value):
    """The text of a number: fixed form from 1E-04 to below 1E+07, else exponent form."""
    value = single(value)
    sign = "-" if math.copysign(1, value) < 0 else ""
    size = abs(value)
    if size == 0:
        return sign + "0"
    digits, power = _digits(size)
    stripped = digits.rstrip("0")
    power += len(digits) - len(stripped)
    digits = stripped
    if single(1e-4) <= size < 1e7:
        if power >= 0:
            # A whole number in fixed form is written in full, not as its shortest digits.
            return sign + str(int(size))
        digits = digits.rjust(1 - power, "0")
        return sign + digits[:power] + "." + digits[power:]
    exponent = power + len(digits) - 1
    mantissa = digits[0] + ("." + digits[1:] if len(digits) > 1 else "")
    return "%s%sE%s%02d" % (sign, mantissa, "-" if exponent < 0 else "+", abs(exponent))


def _number(piece):
    """The value of a text that is a plain decimal as a whole."""
    text = piece.lstrip("+-")
    allowed = set("0123456789.eE+-")
    if not piece or not set(piece) <= allowed or not text[:1].isdigit() and not text[:1] == ".":
        raise FormatError("%r is no number" % piece)
    try:
        return float(piece)
    except ValueError:
        raise FormatError("%r is no number" % piece) from None


def _decoded(data):
    """UTF-8, whose bytes that are not valid are Windows-1252."""
    text = data.decode("utf-8", errors="surrogateescape")
    if not any("\udc80" <= char <= "\udcff" for char in text):
        return text
    table = {}
    for byte in range(0x80, 0x100):
        try:
            table[0xDC00 + byte] = bytes([byte]).decode("cp1252")
        except UnicodeDecodeError:
            table[0xDC00 + byte] = chr(byte)
    return text.translate(table)


class _Reader:
    """Values of a positional file, one after the other: pieces end at commas and line ends outside quotes."""

    def __init__(self, path):
        self.path = path
        with open(path, "rb") as file:
            data = file.read()
        if data.startswith(b"\xef\xbb\xbf"):
            data = data[3:]
        self._text = _decoded(data)
        self._at = 0

    @property
    def at_end(self):
        return self._at >= len(self._text)

    def fail(self, words):
        before = self._text[: self._at].replace("\r\n", "\n").replace("\r", "\n")
        raise FormatError("%s, line %d: %s" % (self.path, before.count("\n") + 1, words))

    def text(self):
        self._begin()
        if self._text[self._at] == '"':
            self._at += 1
            value = self._until('"')
            self._until(",\r\n")
        else:
            value = self._until(",\r\n").rstrip(" \t")
        self._end()
        return value

    def number(self):
        self._begin()
        start = self._at
        piece = self._until(",\r\n \t")
        try:
            value = single(_number(piece))
        except FormatError as error:
            self._at = start
            self.fail(str(error))
        self._end()
        return value

    def integer(self, low=-32768, high=32767):
        self._begin()
        start = self._at
        piece = self._until(",\r\n \t")
        try:
            value = _number(piece)
            rounded = round(value)  # a half to the even neighbour
        except (FormatError, OverflowError) as error:
            self._at = start
            self.fail(str(error))
        if not low <= rounded <= high:
            self._at = start
            self.fail("%s is out of range" % piece)
        self._end()
        return rounded

    def flag(self):
        self._begin()
        start = self._at
        piece = self._until(",\r\n").rstrip(" \t")
        if piece not in ("#TRUE#", "#FALSE#"):
            self._at = start
            self.fail("%r is neither #TRUE# nor #FALSE#" % piece)
        self._end()
        return piece == "#TRUE#"

    def count(self, most):
        count = self.integer()
        if count > most:
            self.fail("%d steps are too many, there may be %d" % (count, most))
        return count

    def _begin(self):
        while not self.at_end and self._text[self._at] in " \t":
            self._at += 1
        if self.at_end:
            self.fail("the file ends here; a value is missing")

    def _until(self, ends):
        start = self._at
        while not self.at_end and self._text[self._at] not in ends:
            self._at += 1
        return self._text[start : self._at]

    def _end(self):
        while not self.at_end and self._text[self._at] in " \t":
            self._at += 1
        if self.at_end or self._text[self._at] not in ",\r\n":
            return
        self._at += 2 if self._text.startswith("\r\n", self._at) else 1


def _write(path, text):
    """Writes a file; what it held before stays beside it under its name with "~"."""
    data = text.encode("utf-8")
    if os.path.exists(path):
        if not os.path.isfile(path):
            raise OSError("%s is no regular file" % path)
        target = os.path.realpath(path)
        shutil.copy2(target, target + "~")
    with open(path, "wb") as file:
        file.write(data)


# Model files


def _layout():
    """Name, kind and index of each value of a model file behind its first two lines."""

    def plain(kind, names):
        return [(name, kind, None) for name in names.split()]

    def of_links(name, kind="number", links=range(3, 7)):
        return [(name, kind, link) for link in links]

    fields = plain("text", "ModelName UserName") + plain("integer", "DesignNumber")
    fields += plain("text", "DateText TimeText ModelTitle LinkageType Stage1Class Stage2Class")
    fields += plain("integer", "OpenCross1 OpenCross2")
    fields += plain("number", "Link2 Link3 Link4 Link1 LinkO4D Link5 Link6 O4O6Length O6LocalX O6LocalY")
    fields += plain("number", "CouplerAC Delta3Deg Coupler2Spare Delta4Deg Coupler2Length Delta5Deg")
    fields += plain("number", "TimeStart TimeEnd TimeStep Theta2One Omega2Start Alpha2Const")
    fields += plain("number", "ThetaMinDeg ThetaMaxDeg ThetaStepDeg")
    fields += plain("integer", "CalcMode UnitSystem")
    fields += plain("text", "ShowTrace StepMode HideLinks AngleRange") + plain("integer", "PrintStep")
    fields += plain("text", "ModelTitle ShowPoints ShowCoupler ReleaseText")
    fields += plain("long", "AnimDelay") + plain("integer", "AnimCycles NumSteps")
    fields += plain("reserved", "_") * 2
    for link in range(2, 7):
        fields += [("LinkMass", "number", link), ("LinkInertia", "number", link)]
        fields += [("LinkCG", "number", (link, 0)), ("LinkCG", "number", (link, 1))]
    for link in range(3, 7):
        fields += [("ForceMag", "number", link), ("ForceAngle", "number", link)]
    for name in "ForcePointDist ForcePointAngle LinkTorque LinkFriction".split():
        fields += of_links(name)
    fields += plain("number", "O4X O4Y O6X O6Y GroundAngleDeg GroundAngle")
    fields += plain("number", "DriveScale DriveArmLength DriveOffset")
    fields += plain("flag", "CamDriven LinkDriven") + plain("text", "DriveFileName")
    later = plain("number", "DriveArmLength CamBaseRadius CamRollerRadius DriveDatum CamCentreX CamCentreY")
    later += plain("flag", "TorqueImported") + plain("reserved", "_") * 97
    return fields, later


_COMMON, _RELEASE2 = _layout()
_ARRAYS = ("LinkMass", "LinkInertia", "ForceMag", "ForceAngle", "ForcePointDist", "ForcePointAngle",
           "LinkTorque", "LinkFriction")
_EMPTY = {"text": "", "number": 0.0, "integer": 0, "long": 0, "flag": False}


class Model:
    """A linkage as a model file holds it. Link arrays go by link number, so their entries 0 and 1 are unused;
    `LinkCG[k]` is distance and angle (radians). `Drive` has rows of angle, speed and acceleration in modes 4
    and 5, `Torque` a value for each step where `TorqueImported` is set.

    What follows from the geometry (`O4O6Length`, `O6LocalX`, `GroundAngle` ...) is derived anew by the program
    when it reads the file; `place_pivots` keeps it right here too.
    """

    def __init__(self):
        for name, kind, index in _COMMON + _RELEASE2:
            if kind != "reserved" and index is None:
                setattr(self, name, _EMPTY[kind])
        for name in _ARRAYS:
            setattr(self, name, [0.0] * 7)
        self.LinkCG = [[0.0, 0.0] for _ in range(7)]
        self.Drive = []
        self.Torque = []
        self.VersionText = VERSION
        self.ReleaseText = RELEASE
        self._reserved = {}

    @classmethod
    def read(cls, path):
        """Reads a model file (.kvl) of version 7."""
        reader = _Reader(path)
        identity = reader.text()
        if identity != IDENTITY:
            raise FormatError(
                '%s: the first line must be "%s"; kervol-batch convert reads older files' % (path, IDENTITY)
            )
        model = cls()
        model.VersionText = reader.text()
        model._read(reader, _COMMON, 0)
        if model.VersionText.startswith("7") and _leading_number(model.ReleaseText) >= 2:
            model._read(reader, _RELEASE2, len(_COMMON))
            model._read_rows(reader)
        return model

    def write(self, path):
        """Writes the model as the program does. Earlier content of the file stays under its name with "~"."""
        _write(path, self.text())

    def text(self):
        """The content of the model file."""
        lines = ['"%s"' % IDENTITY, '"%s"' % self.VersionText]
        for position, (name, kind, index) in enumerate(_COMMON + _RELEASE2):
            if kind == "reserved":
                lines.append('"%s"' % self._reserved.get(position, ""))
            else:
                lines.append(self._value_text(name, kind, index))
        if self.CalcMode > 3:
            self._check_rows(self.Drive, "Drive")
            lines += [",".join(plain_number(value) for value in row) for row in self.Drive]
        if self.TorqueImported:
            self._check_rows(self.Torque, "Torque")
            lines += [plain_number(value) for value in self.Torque]
        return "".join(line + "\r\n" for line in lines)

    def place_pivots(self, O4, O6):
        """Puts O4 and O6, as (x, y) in the user frame, with the ground link and angle that follow from them."""
        self.O4X, self.O4Y = O4
        self.O6X, self.O6Y = O6
        self.Link1 = math.hypot(*O4)
        self.GroundAngle = math.atan2(O4[1], O4[0])
        self.GroundAngleDeg = math.degrees(self.GroundAngle)
        self.O4O6Length = math.hypot(O6[0] - O4[0], O6[1] - O4[1])
        cosine, sine = math.cos(self.GroundAngle), math.sin(self.GroundAngle)
        self.O6LocalX = O6[0] * cosine + O6[1] * sine
        self.O6LocalY = O6[1] * cosine - O6[0] * sine

    def _read(self, reader, fields, start):
        for position, (name, kind, index) in enumerate(fields, start):
            if kind == "reserved":
                text = reader.text()
                if text:
                    self._reserved[position] = text
                continue
            if kind == "long":
                value = reader.integer(-(2**31), 2**31 - 1)
            else:
                value = getattr(reader, kind)()
            if isinstance(index, tuple):
                getattr(self, name)[index[0]][index[1]] = value
            elif index is not None:
                getattr(self, name)[index] = value
            else:
                setattr(self, name, value)
        self.AnimCycles = max(self.AnimCycles, 1)

    def _read_rows(self, reader):
        if self.CalcMode > 3:
            if self.NumSteps >= DRIVE_ROWS:
                reader.fail("%d steps are too many for a drive" % self.NumSteps)
            self.Drive = [[reader.number() for _ in range(3)] for _ in range(self.NumSteps + 1)]
        if self.TorqueImported:
            if self.NumSteps > MAX_STEPS:
                reader.fail("%d steps are too many" % self.NumSteps)
            self.Torque = [reader.number() for _ in range(self.NumSteps + 1)]

    def _value_text(self, name, kind, index):
        value = getattr(self, name)
        if isinstance(index, tuple):
            value = value[index[0]][index[1]]
        elif index is not None:
            value = value[index]
        if kind == "text":
            if '"' in value:
                raise FormatError("%s: a text in a model file cannot hold quotes" % name)
            return '"%s"' % value
        if kind == "flag":
            return "#TRUE#" if value else "#FALSE#"
        if kind == "number":
            return plain_number(value)
        if int(value) != value:
            raise FormatError("%s: %r is no whole number" % (name, value))
        return str(int(value))

    def _check_rows(self, rows, name):
        if len(rows) != max(self.NumSteps + 1, 0):
            raise FormatError("%s has %d rows; NumSteps of %d needs %d" %
                              (name, len(rows), self.NumSteps, self.NumSteps + 1))


def _leading_number(text):
    digits = ""
    for char in text.lstrip():
        if not (char.isdigit() or char == "." and "." not in digits):
            break
        digits += char
    return float(digits) if digits.strip(".") else 0.0


# Files between programs


class LinkMotion:
    """The motion of link 6 (.out): `time_start`, `time_end`, `time_step`, and `rows` of angle in degrees,
    speed in rad/s and acceleration in rad/s^2."""

    def __init__(self, times, rows):
        self.time_start, self.time_end, self.time_step = times
        self.rows = rows


def read_out(path):
    """Reads a link output file (.out)."""
    reader = _Reader(path)
    count = reader.count(MAX_STEPS)
    times = [reader.number() for _ in range(3)]
    for _ in range(12):
        reader.text()
    return LinkMotion(times, [[reader.number() for _ in range(3)] for _ in range(count + 1)])


def read_trq(path):
    """Reads a torque file (.trq): a value for each step."""
    reader = _Reader(path)
    count = reader.count(MAX_STEPS)
    return [reader.number() for _ in range(count + 1)]


# Tables


class Table:
    """A table from a file (.dat): the model's name, `functions`, `components`, `units` of its columns,
    `abscissa` for its rows (the crank angle, the time or the harmonic), and `columns`, a list of values each."""

    def __init__(self, model_name, functions, components, units, abscissa_name, abscissa, columns):
        self.model_name = model_name
        self.functions = functions
        self.components = components
        self.units = units
        self.abscissa_name = abscissa_name
        self.abscissa = abscissa
        self.columns = columns


def _shown_number(text):
    """The value of a number as tables show it: "1,234.500", "0.123 457", "1.23E+4"."""
    return _number(text.replace(",", "").replace(" ", "").rstrip("."))


_DAT_HEAD_LINES = 12


def read_dat(path):
    """Reads a table that the program wrote to a file (.dat)."""
    with open(path, "rb") as file:
        lines = [line.rstrip("\r") for line in _decoded(file.read()).split("\n")]
    if lines and not lines[-1]:
        lines.pop()
    heads = [line for line in lines if "\t" in line]
    if len(lines) <= _DAT_HEAD_LINES or len(heads) < 5 or not lines[0].startswith(IDENTITY):
        raise FormatError("%s: not a table of this program" % path)
    try:
        return _table(lines)
    except (FormatError, IndexError) as error:
        raise FormatError("%s: %s" % (path, error)) from None


def _table(lines):
    rest = lines[6:]
    filled = [line for line in rest if line]
    name, *functions = filled[0].split("\t")
    components = filled[1].split("\t")[1:]
    units = filled[2].split("\t")[1:]
    rows = [[_shown_number(cell) for cell in line.split("\t") if cell] for line in filled[3:]]
    count = max((len(row) - 1 for row in rows), default=0)
    if any(len(row) != count + 1 for row in rows):
        raise FormatError("the rows have different numbers of values")
    return Table(lines[0].split("\t")[1], functions[:count], components[:count], units[:count], name,
                 [row[0] for row in rows], [[row[k + 1] for row in rows] for k in range(count)])


def read_tables(path):
    """Reads the JSON that `kervol-batch tables` writes, as a dictionary of its tables by name."""
    with open(path, encoding="utf-8") as file:
        return _checked_tables(json.load(file), path)


def _checked_tables(tables, source):
    if not isinstance(tables, dict) or "NumSteps" not in tables or "Theta" not in tables:
        raise FormatError("%s: not the tables of kervol-batch" % source)
    return tables


class SolveError(RuntimeError):
    """kervol-batch could not solve a model; the text is its complaint, `code` its exit code."""

    def __init__(self, code, complaint):
        super().__init__(complaint)
        self.code = code


def solve(path, dynamics=False, flywheel=False, program="kervol-batch"):
    """Runs kervol-batch on a model file and gives its tables. Steps that do not assemble are no error: they
    are false in `StepValid`."""
    command = [program, "tables", os.fspath(path)]
    command += ["--dynamics"] if dynamics else []
    command += ["--flywheel"] if flywheel else []
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)
    if done.returncode not in (0, 3):
        raise SolveError(done.returncode, done.stderr.decode("utf-8", "replace").strip())
    return _checked_tables(json.loads(done.stdout.decode("utf-8")), path)
