#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""How the crank's length changes the driving torque: varies Link2 of a model and tables the torque.

    python3 python/example.py [MODEL.kvl]

Without a model it takes the Watt example. kervol-batch is looked for in build/release and on the PATH, or is
named by the variable KERVOL_BATCH.
"""

import math
import os
import sys
import tempfile

import kervol

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))


def batch_program():
    built = os.path.join(ROOT, "build", "release", "src", "kervol-batch")
    return os.environ.get("KERVOL_BATCH") or (built if os.path.exists(built) else "kervol-batch")


def main(arguments):
    path = arguments[0] if arguments else os.path.join(ROOT, "examples", "watt.kvl")
    model = kervol.Model.read(path)
    length = model.Link2
    print("Link2      peak torque  rms torque  steps not assembled")
    with tempfile.TemporaryDirectory() as folder:
        varied = os.path.join(folder, "varied.kvl")
        for percent in (80, 90, 100, 110, 120):
            model.Link2 = length * percent / 100
            model.write(varied)
            tables = kervol.solve(varied, dynamics=True, program=batch_program())
            torques = [row[0] for row, valid in zip(tables["TorqueTable"], tables["StepValid"]) if valid]
            if not torques:
                print("%-10.4g no step assembles" % model.Link2)
                continue
            rms = math.sqrt(sum(torque * torque for torque in torques) / len(torques))
            failed = tables["StepValid"].count(False)
            print("%-10.4g %11.4g %11.4g  %d" % (model.Link2, max(map(abs, torques)), rms, failed))


if __name__ == "__main__":
    main(sys.argv[1:])
