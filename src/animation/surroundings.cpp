// SPDX-License-Identifier: GPL-3.0-or-later
#include "animation/surroundings.h"

#include <algorithm>
#include <cctype>

#include "animation/frame.h"
#include "core/arithmetic.h"
#include "core/report.h"

namespace kervol {
namespace {

void Widen(AnimationState& state, float value) {
    state.PlotMax = std::max(state.PlotMax, value);
    state.PlotMin = std::min(state.PlotMin, value);
}

std::string Upper_Case(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

/// A quarter of the average link, which counts O4-D whatever the chain.
double Window_Margin(const LinkageModel& model) {
    double sum = 0;
    for (int link = 1; link <= 7; ++link) sum += model.LinkTable(link);
    return 0.25 * (sum / 7);
}

/// No position stands at a row whose point is at exactly (0, 0).
bool Has_Position(const Program& program, std::int16_t step, int point) {
    const auto& position = program.tables.PointPos(step, point);
    return !Is_Zero(position(0)) || !Is_Zero(position(1));
}

UserPoint First_Path_Point(const Program& program, int point) {
    for (std::int16_t step = 0; step <= program.model.NumSteps; ++step)
        if (Has_Position(program, step, point)) return User_Position(program, step, point);
    return {};
}

}  // namespace

void Autoscale6(Program& program) {
    Procedure(program, "Autoscale6", [&] {
        const LinkageModel& model = program.model;
        AnimationState& state = program.animation;
        const std::string hide_links = Upper_Case(model.HideLinks);

        const auto& start = program.tables.PointPos(0, 2);
        state.PlotMin = state.PlotMax = start(0);
        if (model.NumSteps >= 0) Widen(state, start(1));
        for (int point = hide_links == "Y" ? 2 : 0; point <= 5; ++point) {
            for (std::int16_t step = 0; step <= model.NumSteps; ++step) {
                const UserPoint position = User_Position(program, step, point);
                Widen(state, position.x);
                Widen(state, position.y);
            }
        }
        if (hide_links == "N") {
            const UserPoint O6 = Pivot_O6(model);
            Widen(state, O6.x);
            Widen(state, O6.y);
            Widen(state, 0);
        }
        const double margin = Window_Margin(model);
        state.PlotMin = Single(state.PlotMin - margin);
        state.PlotMax = Single(state.PlotMax + margin);
    });
}

void Drawpivots(Program& program, Picture& picture) {
    Procedure(program, "Drawpivots", [&] {
        const LinkageModel& model = program.model;
        const AnimationState& state = program.animation;
        const Colour blue = state.colours.blue;
        UpwardPen pen(picture, state.PlotY0);
        for (const UserPoint pivot : {UserPoint{}, Pivot_O4(model), Pivot_O6(model)}) {
            pen.Circle(pivot, state.RadiusPivot, blue);
            pen.Circle(pivot, state.RadiusSmall, blue);
        }
        if (model.CalcMode != 4) return;
        // Deliberate: both signs are turned, since the centre is given in the cam's frame.
        const UserPoint cam = {-model.CamCentreX, -model.CamCentreY};
        pen.Circle(cam, model.CamBaseRadius, blue);
        pen.Circle(cam, state.RadiusPivot, blue);
    });
}

void Axes(Program& program, Picture& picture) {
    Procedure(program, "Axes", [&] {
        const AnimationState& state = program.animation;
        const double low = state.PlotMin, high = state.PlotMax, y0 = state.PlotY0;
        picture.Line(0.9 * low, y0, 0.9 * high, y0, state.colours.black);
        picture.Line(0, 0.9 * (y0 - low), 0, 0.9 * (y0 - high), state.colours.black);
    });
}

void DrawCouplerCurve(Program& program, int which, Picture& picture) {
    Procedure(program, "DrawCouplerCurve", [&] {
        AnimationState& state = program.animation;
        const Colour cyan = state.colours.cyan;
        const int point = which > 0 ? 5 : 2;
        UpwardPen pen(picture, state.PlotY0);
        pen.Set_Point(First_Path_Point(program, point), cyan);
        bool restart = false;
        for (std::int16_t step = 0; step <= program.model.NumSteps; ++step) {
            if (!program.tables.StepValid(step)) {
                restart = true;
                continue;
            }
            const UserPoint path = User_Position(program, step, point);
            state.PathX = path.x;
            state.PathY = path.y;
            if (restart) pen.Set_Point(path, cyan);
            restart = false;
            if (Has_Position(program, step, point)) pen.Line_To(path, cyan);
        }
    });
}

void Draw_Coupler_Curves(Program& program, Picture& picture) {
    if (program.model.ShowCoupler != "Y") return;
    DrawCouplerCurve(program, 0, picture);
    DrawCouplerCurve(program, 1, picture);
}

}  // namespace kervol
