// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of the three tables: a few functions with numbers that can be worked out by head.
#pragma once

#include <array>
#include <string>

#include "catalogue/slots.h"
#include "support/program_test.h"

namespace kervol {

class TableTest : public ProgramTest {
  protected:
    /// A Watt chain driven by angles from 0 by 10 degrees in 37 steps; at step s "Theta3" is s + 0.25,
    /// "Omega4" is -1000 s, the velocity of A is (3 s, 4 s), all in "in". Every 10th step is printed with 3
    /// decimals.
    TableTest() {
        model.CalcMode = 3;
        model.NumSteps = 36;
        model.PrintStep = 10;
        model.ModelName = "four";
        model.UserName = "Ann";
        model.DesignNumber = 7;
        model.TimeStart = 1;
        model.TimeStep = 0.25F;
        model.GroundAngleDeg = 0;
        for (int step = 0; step <= 1024; ++step) {
            const auto s = static_cast<float>(step);
            tables.Theta(step, 0) = 10 * s;
            tables.Theta(step, 1) = s + 0.25F;
            tables.Omega(step, 2) = -1000 * s;
            tables.PointVel(step, 0, 0) = 3 * s;
            tables.PointVel(step, 0, 1) = 4 * s;
        }
    }

    /// Confirms the functions in slots 1, 2, ...
    void Choose(std::initializer_list<SlotBoxes> choice) {
        labels = {};
        std::size_t slot = 0;
        for (SlotBoxes boxes : choice) {
            Confirm_Slot(program->catalogue, program->selections, boxes, static_cast<std::int16_t>(slot + 1));
            labels.lbl_Function.at(slot).caption = boxes.variable;
            labels.lbl_Component.at(slot).caption = boxes.component;
            ++slot;
        }
        program->selections.NumSelected = static_cast<std::int16_t>(slot);
    }

    /// Makes "Current FFT" the function of all four slots: (n, 2 n, 3 n, 4 n) at harmonic n.
    void Choose_Spectrum() {
        for (int n = 0; n <= 512; ++n)
            for (int part = 0; part < 4; ++part)
                program->tables.FFTTable(n, part) = static_cast<float>(n * (part + 1));
        program->fourier.FFTFunctionName = "Omega4";
        program->fourier.FFTUnit = "rad/sec";
        program->fourier.NumHarmonics = 3;
        model.PrintStep = 1;
        Choose({{"Current FFT", "X"}, {"Current FFT", "Y"}, {"Current FFT", "Mag"}, {"Current FFT", "Ang"}});
    }

    SlotLabels labels;
};

}  // namespace kervol
