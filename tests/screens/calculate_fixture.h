// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of tests on the Calculate button of the Input screen.
#pragma once

#include "screens/screens_fixture.h"

namespace kervol {

class CalculateTest : public ScreensTest {
  protected:
    static constexpr const char* kAll = "Next Step Animate Reset Print ReDraw";

    void Expect_Done() {
        EXPECT_TRUE(model.DataCalculated);
        EXPECT_FALSE(model.DataFromFile);
        EXPECT_FALSE(model.DynamicsCalculated);
        EXPECT_TRUE(model.NewData);
        EXPECT_EQ(input.hsc_step.maximum, model.NumSteps);
        EXPECT_EQ(port.pointer, Pointer::Default);
        EXPECT_TRUE(home.mnu_Save.enabled);
        EXPECT_TRUE(home.cmd_Print.enabled);
    }
};

}  // namespace kervol
