// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of tests on the Fourier screen: a calculated linkage, and the hand that picks.
#pragma once

#include <string>

#include "screens/screens_fixture.h"

namespace kervol {

class FFTScreenTest : public ScreensTest {
  protected:
    FFTScreenTest() {
        // 36 steps of 10 degrees.
        Calculate_In_Mode(3);
        port.trace.clear();
    }

    void Open() { port.Show_Screen(ScreenId::frm_FFT, Modality::Modal); }
    /// Opens for a sweep of that many steps.
    void Open_With(int steps) {
        model.NumSteps = static_cast<std::int16_t>(steps);
        Open();
    }
    static void Pick(ComboBox& box, const char* text) {
        box.text = text;
        box.click();
    }
    void Open_And_Transform(const char* function = "Theta3") {
        Open();
        Pick(screen.cmb_Var1, function);
    }
    bool Table_Is_Clear() const {
        for (int row = 0; row <= 512; ++row)
            for (int column = 0; column <= 3; ++column)
                if (tables.FFTTable(row, column) < 0 || tables.FFTTable(row, column) > 0) return false;
        return true;
    }
    std::string Buttons_On() const {
        std::string on;
        if (screen.cmd_Done.enabled) on += "Next ";
        if (screen.cmd_Print.enabled) on += "Print ";
        if (screen.cmd_Copy.enabled) on += "Copy";
        return on;
    }

    static constexpr const char* kNoHarmonics = " Must set the number of harmonics to a value > 0";
    static constexpr const char* kNoFunction = " Please select a function for FFT calculation";

    FFTScreen& screen = screens->frm_FFT;
    FourierState& fourier = program->fourier;
};

}  // namespace kervol
