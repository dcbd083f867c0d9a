// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of tests on the Dynamics screen: its columns by name, and a calculated linkage.
#pragma once

#include <string>
#include <vector>

#include "screens/screens_fixture.h"

namespace kervol {

/// A column of the table whose fields hold an array of the model as it is.
struct MassPropColumn {
    const char* name;
    LinkFields MassPropScreen::*fields;
    LinkArray LinkageModel::*values;
    int first_link;
};

class MassPropTest : public ScreensTest {
  protected:
    MassPropTest() {
        Calculate_In_Mode(3);
        port.trace.clear();
    }

    static const std::vector<MassPropColumn>& Columns() {
        static const std::vector<MassPropColumn> columns = {
            {"txt_Mass", &MassPropScreen::txt_Mass, &LinkageModel::LinkMass, 2},
            {"txt_Inertia", &MassPropScreen::txt_Inertia, &LinkageModel::LinkInertia, 2},
            {"txt_MagForce", &MassPropScreen::txt_MagForce, &LinkageModel::ForceMag, 3},
            {"txt_AngForce", &MassPropScreen::txt_AngForce, &LinkageModel::ForceAngle, 3},
            {"txt_DistP", &MassPropScreen::txt_DistP, &LinkageModel::ForcePointDist, 3},
            {"txt_AngP", &MassPropScreen::txt_AngP, &LinkageModel::ForcePointAngle, 3},
            {"txt_Torque", &MassPropScreen::txt_Torque, &LinkageModel::LinkTorque, 3},
            {"txt_Frict", &MassPropScreen::txt_Frict, &LinkageModel::LinkFriction, 3},
        };
        return columns;
    }

    void Open() { port.Show_Screen(ScreenId::frm_MassProp, Modality::Modal); }
    void Solve() { screen.cmd_Solve.click(); }
    void Open_And_Solve() {
        Open();
        Solve();
    }
    static TextField& At(LinkFields& fields, int link) { return fields.at(static_cast<std::size_t>(link)); }

    /// Which of the buttons are on: of Solve, Matrix, Next, Back, Print, Copy.
    std::string Buttons_On() const {
        std::string on;
        const std::pair<const Button*, const char*> buttons[] = {
            {&screen.cmd_Solve, "Solve"}, {&screen.cmd_Matrix, "Matrix"}, {&screen.cmd_Done, "Next"},
            {&screen.cmd_Cancel, "Back"}, {&screen.cmd_Print, "Print"},   {&screen.cmd_Copy, "Copy"}};
        for (const auto& [button, name] : buttons)
            if (button->enabled) on += (on.empty() ? "" : " ") + std::string(name);
        return on;
    }

    static constexpr const char* kOnlySolve = "Solve Back";
    static constexpr const char* kAllOn = "Solve Matrix Next Back Print Copy";

    MassPropScreen& screen = screens->frm_MassProp;
};

}  // namespace kervol
