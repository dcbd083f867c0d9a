// SPDX-License-Identifier: GPL-3.0-or-later
#include "animation/running.h"

#include <algorithm>

#include "animation/linkage_drawing.h"
#include "animation/surroundings.h"
#include "core/arithmetic.h"
#include "core/report.h"

namespace kervol {
namespace {

/// Rounds of the delay's count in a millisecond.
constexpr double kRoundsPerMillisecond = 4096;

double Holding_Time(const LinkageModel& model) {
    const std::int32_t rounds = Int32(double(model.AnimWait) * model.AnimDelay);
    return std::max(rounds, 0) / kRoundsPerMillisecond;
}

/// A run from its first drawing to its last, whatever ends it.
class RunScope {
  public:
    explicit RunScope(Program& program) : program_(program) {
        program_.animation.EndRun = false;
        program_.port.Set_Running(true);
    }
    ~RunScope() { program_.port.Set_Running(false); }
    RunScope(const RunScope&) = delete;
    RunScope& operator=(const RunScope&) = delete;

  private:
    Program& program_;
};

/// A coupler point exactly at the origin means that there is none.
bool Has_Position(const ResultTables& tables, std::int16_t step) {
    const auto& point = tables.PointPos(step, 2);
    return !Is_Zero(point(0)) || !Is_Zero(point(1));
}

void Draw_Rows(Program& program, Picture& picture) {
    const LinkageModel& model = program.model;
    AnimationState& state = program.animation;
    for (std::int16_t step = 0; step <= model.NumSteps; ++step) {
        if (!program.tables.StepValid(step)) continue;
        if (state.EndRun && Has_Position(program.tables, step))
            return Drawsub6(program, step, picture, NumLinks);
        const bool no_position = Drawone(program, step, picture);
        state.LinkColour = state.colours.magenta;
        if (no_position && step > 0)
            Drawsub6(program, static_cast<std::int16_t>(step - 1), picture, NumLinks);
        if (no_position) return;
        if (step == model.NumSteps) Drawsub6(program, step, picture, NumLinks);
    }
}

void Run_Cycle(Program& program, Picture& picture) {
    picture.Clear();
    Drawpivots(program, picture);
    Axes(program, picture);
    Draw_Coupler_Curves(program, picture);
    Draw_Rows(program, picture);
    Draw_Coupler_Curves(program, picture);
    Drawpivots(program, picture);
    Axes(program, picture);
}

}  // namespace

bool Drawone(Program& program, std::int16_t step, Picture& picture) {
    bool no_position = false;
    Procedure(program, "Drawone", [&] {
        AnimationState& state = program.animation;
        const Colour links = state.colours.magenta;
        const Colour erased = program.model.ShowTrace == "N" ? state.colours.white : links;
        for (const bool erasing : {false, true}) {
            state.LinkColour = erasing ? erased : links;
            no_position = !Has_Position(program.tables, step);
            if (no_position) return;
            Drawsub6(program, step, picture, NumLinks);
            if (!erasing && !program.port.Hold_Picture(Holding_Time(program.model))) state.EndRun = true;
        }
        Draw_Coupler_Curves(program, picture);
        Drawpivots(program, picture);
    });
    return no_position;
}

void Animate(Program& program, LinkageView& view, const AnimationSettings& settings) {
    // A fault that comes with every row is one fault of the run.
    const SweepFaultScope faults(program);
    Procedure(program, "Animate", [&] {
        Animate_Setup(program, view, settings);
        program.animation.CurrentStep = 0;
        for (Label* label : {&view.lbl_StepLabel, &view.lbl_StepUnit, &view.lbl_StepNumber})
            label->visible = false;
        const RunScope run(program);
        for (int cycle = 1; cycle <= program.model.AnimCycles && !program.animation.EndRun; ++cycle)
            Run_Cycle(program, *view.Picture1);
    });
}

}  // namespace kervol
