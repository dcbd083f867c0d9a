// SPDX-License-Identifier: GPL-3.0-or-later
#include "animation/stepping.h"

#include <cmath>
#include <string>
#include <utility>

#include "animation/linkage_drawing.h"
#include "animation/surroundings.h"
#include "core/arithmetic.h"
#include "core/header.h"
#include "core/number_text.h"
#include "core/report.h"

namespace kervol {
namespace {

/// Deliberate: from the upper bound alone, not from the window's extent.
void Set_Radii(AnimationState& state) {
    const double size = std::abs(double(state.PlotMax));
    state.RadiusSmall = Single(0.015 * size);
    state.RadiusCoupler = Single(0.012 * size);
    state.RadiusPivot = Single(0.03 * size);
}

void Put_Step_Texts(LinkageView& view, const char* label, std::string number, const char* unit) {
    view.lbl_StepLabel.caption = label;
    view.lbl_StepNumber.caption = std::move(number);
    view.lbl_StepUnit.caption = unit;
}

/// Angle of the crank in the modes that are told by it, else the time. A mode that does not exist, as a file
/// may hold it, leaves the texts.
void Put_Step_Number(const Program& program, LinkageView& view, std::int16_t step) {
    const LinkageModel& model = program.model;
    if (model.CalcMode == 1 || model.CalcMode == 3)
        Put_Step_Texts(view, "Theta2", FNRoundStr(program.tables.Theta(step, 0), 1), "deg");
    if (model.CalcMode == 2 || model.CalcMode == 4 || model.CalcMode == 5)
        Put_Step_Texts(view, "Time", FNRoundStr(step * double(model.TimeStep) + model.TimeStart, 2), "sec");
}

}  // namespace

void Check_Parameters(Program& program, const AnimationSettings& settings) {
    Procedure(program, "Check_Parameters", [&] {
        LinkageModel& model = program.model;
        model.AnimDelay = 32767 - settings.hsc_speed.value;
        model.AnimCycles = Int16(std::floor(Val(settings.txt_Cycles.text)));
        model.HideLinks = settings.chk_Showlinks.on ? "N" : "Y";
        model.ShowTrace = settings.chk_Trace.on ? "Y" : "N";
    });
}

void Animate_Setup(Program& program, LinkageView& view, const AnimationSettings& settings) {
    Procedure(program, "Animate_Setup", [&] {
        AnimationState& state = program.animation;
        Picture& picture = *view.Picture1;
        state.colours = NamedColours;
        Check_Parameters(program, settings);
        if (program.model.StepMode == "N") picture.Clear();
        if (view.chk_autoscale.on) Autoscale6(program);
        Set_Radii(state);
        state.LinkColour = state.colours.magenta;
        picture.Set_Scale(state.PlotMin, state.PlotMin, state.PlotMax, state.PlotMax);
        picture.Set_Background(state.colours.white);
        view.lbl_Header.caption = Put_Header(program.model);
        state.PlotY0 = Single(double(state.PlotMin) + state.PlotMax);
    });
}

void Step(Program& program, LinkageView& view, const AnimationSettings& settings, std::int16_t step) {
    Procedure(program, "Step", [&] {
        Animate_Setup(program, view, settings);
        for (Label* label : {&view.lbl_StepLabel, &view.lbl_StepUnit, &view.lbl_StepNumber})
            label->visible = true;
        Put_Step_Number(program, view, step);

        Picture& picture = *view.Picture1;
        Drawpivots(program, picture);
        Axes(program, picture);
        Draw_Coupler_Curves(program, picture);
        Drawsub6(program, step, picture, NumLinks);
        program.animation.LinkColour = program.animation.colours.magenta;
        if (step == program.model.NumSteps) Drawsub6(program, step, picture, NumLinks);
        Drawpivots(program, picture);
        Axes(program, picture);
    });
}

void Step_Setup(Program& program, LinkageView& view, const AnimationSettings& settings, bool& busy) {
    Procedure(program, "Step_Setup", [&] {
        LinkageModel& model = program.model;
        std::int16_t& current = program.animation.CurrentStep;
        model.StepMode = "Y";
        busy = true;
        view.hsc_step.maximum = model.NumSteps;
        const auto draw = [&] { Step(program, view, settings, current); };
        const auto put_bar = [&] { Put_Value(view.hsc_step, current); };
        if (current > model.NumSteps || model.CalcMode == 1) current = 0;
        switch (model.CalcMode) {
            case 3:
                draw();
                put_bar();
                break;
            case 2:
            case 4:
            case 5:
                put_bar();
                draw();
                break;
            default:
                break;
        }
        if (model.CalcMode > 1) current = Int16(current + 1.0);
    });
    busy = false;
}

void Step_Reset(Program& program, LinkageView& view, const AnimationSettings& settings) {
    Procedure(program, "Step_Reset", [&] {
        Step(program, view, settings, 0);
        Put_Value(view.hsc_step, 0);
        program.animation.CurrentStep = 1;
    });
}

}  // namespace kervol
