// SPDX-License-Identifier: GPL-3.0-or-later
#include "kinematics/examples.h"

#include <algorithm>
#include <array>

#include "core/geometry.h"
#include "kinematics/sweep.h"

namespace kervol {

std::span<const Example> Examples() {
    // clang-format off
    static constexpr auto kExamples = std::to_array<Example>({
        {.name = "watt",
         .ModelTitle = "Kervol Watts Chain with Two Coupler Curves",
         .LinkageType = "W",
         .Link2 = 2, .Link3 = 8.625F, .Link4 = 7, .Link1 = 9.375F,
         .LinkO4D = 8, .Link5 = 7, .Link6 = 8, .O6X = 14.375F, .O6Y = 2,
         .CouplerAC = 6, .Delta3Deg = 45, .Delta4Deg = -30, .Coupler2Length = 6, .Delta5Deg = 80,
         .OpenCross2 = 1, .OpenText = "OPEN",
         .Omega2Start = 10, .ThetaMinDeg = 0, .ThetaMaxDeg = 360, .ThetaStepDeg = 10},
        {.name = "roberts",
         .ModelTitle = "Watts 6-bar Chain with Roberts 4-bar SL as Stage 2",
         .LinkageType = "W",
         .Link2 = 0.2F, .Link3 = 0.42F, .Link4 = 0.5F, .Link1 = 0.6F,
         .LinkO4D = 1, .Link5 = 1, .Link6 = 1, .O6X = 2.6F, .O6Y = 0,
         .CouplerAC = 0, .Delta3Deg = 0, .Delta4Deg = -84, .Coupler2Length = 1, .Delta5Deg = -60,
         .OpenCross2 = 1, .OpenText = "Open",
         .Omega2Start = 20, .ThetaMinDeg = 0, .ThetaMaxDeg = 360, .ThetaStepDeg = 10},
        {.name = "hoeken",
         .ModelTitle = "Single Dwell Stephenson's Kervol with Hoeken's driver",
         .LinkageType = "S",
         .Link2 = 25, .Link3 = 62.5F, .Link4 = 62.5F, .Link1 = 50,
         .LinkO4D = {}, .Link5 = 112, .Link6 = 30, .O6X = 80, .O6Y = 11,
         .CouplerAC = 125, .Delta3Deg = 0, .Delta4Deg = {}, .Coupler2Length = 112, .Delta5Deg = 0,
         .OpenCross2 = 2, .OpenText = "Open",
         .Omega2Start = 10, .ThetaMinDeg = 180, .ThetaMaxDeg = 540, .ThetaStepDeg = 5},
        {.name = "double-dwell",
         .ModelTitle = "A Stephenson's Kervol that gives a Double-Dwell Motion",
         .LinkageType = "S",
         .Link2 = 2.5F, .Link3 = 8.64F, .Link4 = 7.4F, .Link1 = 6.05F,
         .LinkO4D = 0, .Link5 = 6.1F, .Link6 = 1, .O6X = 7.5F, .O6Y = 0.7F,
         .CouplerAC = 8.75F, .Delta3Deg = -8, .Delta4Deg = {}, .Coupler2Length = 6.05F, .Delta5Deg = 0,
         .OpenCross2 = 2, .OpenText = "Open",
         .Omega2Start = 10, .ThetaMinDeg = 30, .ThetaMaxDeg = 390, .ThetaStepDeg = 4},
    });
    // clang-format on
    return kExamples;
}

const Example* Find_Example(std::string_view name) {
    const auto examples = Examples();
    const auto found = std::find_if(examples.begin(), examples.end(),
                                    [&](const Example& example) { return example.name == name; });
    return found == examples.end() ? nullptr : &*found;
}

void Load_Example(LinkageModel& model, const Example& example) {
    model.ModelTitle = example.ModelTitle;
    model.LinkageType = example.LinkageType;
    model.Link2 = example.Link2;
    model.Link3 = example.Link3;
    model.Link4 = example.Link4;
    model.Link1 = example.Link1;
    model.O4X = model.O4LocalX = example.Link1;
    model.O4Y = model.O4LocalY = 0;
    model.LinkO4D = example.LinkO4D.value_or(model.LinkO4D);
    model.Link5 = example.Link5;
    model.Link6 = example.Link6;
    model.O6X = model.O6LocalX = example.O6X;
    model.O6Y = model.O6LocalY = example.O6Y;
    model.CouplerAC = example.CouplerAC;
    model.Coupler2Length = example.Coupler2Length;

    model.OpenCross1 = 1;
    model.OpenCross2 = example.OpenCross2;
    Set_Open_Signs(model);
    model.OpenCross1Text = example.OpenText;
    if (example.OpenCross2 == 1) model.OpenCross2Text = example.OpenText;

    model.Omega2Start = example.Omega2Start;
    model.Delta3Deg = example.Delta3Deg;
    model.Delta5Deg = example.Delta5Deg;
    model.ThetaMinDeg = example.ThetaMinDeg;
    model.ThetaMaxDeg = example.ThetaMaxDeg;
    model.ThetaStepDeg = example.ThetaStepDeg;
    Set_Angle(model.Delta3Deg, model.Delta3, model.Delta3Text);
    if (example.Delta4Deg) {
        model.Delta4Deg = *example.Delta4Deg;
        Set_Angle(model.Delta4Deg, model.Delta4, model.Delta4Text);
    }
    Set_Angle(model.Delta5Deg, model.Delta5, model.Delta5Text);
    Set_Range_Angles(model);
    Derive_Geometry(model);
}

}  // namespace kervol
