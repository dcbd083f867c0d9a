// SPDX-License-Identifier: GPL-3.0-or-later
// The command that writes a position of the linkage as a drawing.
#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "animation/link_shapes.h"
#include "batch/command_options.h"
#include "batch/commands.h"
#include "core/markup_text.h"
#include "core/model_questions.h"
#include "core/report.h"
#include "headless/dxf_writer.h"

namespace kervol {
namespace {

/// Signs and letters, as a part of the motion's extent.
constexpr double kPivotRadius = 0.015, kTextHeight = 0.025;
/// Colours of the layers LINK1 to LINK6, as numbers of the format.
constexpr std::array<int, NumLinks> kLinkColours = {8, 1, 5, 3, 6, 30};
constexpr std::array<int, 2> kCouplerColours = {4, 2};

struct Drawing {
    Source source;
    std::string file;
    std::optional<std::int16_t> step;
};

DxfPoint At(UserPoint point) {
    return {point.x, point.y};
}

std::string Link_Layer(int link) {
    return "LINK" + std::to_string(link);
}

/// The sides of a polygon once round; a bar has one.
void Put_Sides(DxfWriter& file, const LinkShape& shape) {
    const auto& corners = shape.corners;
    const std::size_t sides = corners.size() > 2 ? corners.size() : 1;
    for (std::size_t i = 0; i < sides; ++i)
        file.Line(Link_Layer(shape.link), At(corners[i]), At(corners[(i + 1) % corners.size()]));
}

void Put_Links(DxfWriter& file, const Program& program, std::int16_t step) {
    for (int link = 1; link <= (Has_Stage2(program.model) ? NumLinks : 4); ++link)
        file.Add_Layer(Link_Layer(link), kLinkColours.at(static_cast<std::size_t>(link) - 1));
    Put_Sides(file, {1, Fixed_Pivots(program.model)});
    for (const LinkShape& shape : Link_Shapes(program, step)) Put_Sides(file, shape);
}

void Put_Pivots(DxfWriter& file, const Program& program, std::int16_t step) {
    static constexpr std::array<const char*, 3> kNames = {"O2", "O4", "O6"};
    const Extent extent = Motion_Extent(program);
    const double size = std::max(extent.Width(), extent.Height());
    file.Add_Layer("PIVOTS", 7);
    file.Add_Layer("PINS", 7);
    const auto pivots = Fixed_Pivots(program.model);
    for (std::size_t i = 0; i < pivots.size(); ++i) {
        const DxfPoint pivot = At(pivots[i]);
        file.Circle("PIVOTS", pivot, kPivotRadius * size);
        file.Point("PIVOTS", pivot);
        file.Text("PIVOTS", {pivot.x + 1.5 * kPivotRadius * size, pivot.y - 2 * kTextHeight * size},
                  kTextHeight * size, kNames.at(i));
    }
    for (const UserPoint joint : Moving_Joints(program, step)) file.Point("PINS", At(joint));
    const LinkageModel& model = program.model;
    if (model.CalcMode != 4) return;
    file.Add_Layer("CAM", 8);
    file.Circle("CAM", {-double(model.CamCentreX), -double(model.CamCentreY)}, model.CamBaseRadius);
    file.Circle("CAM", At(Link_Shapes(program, step).front().corners.back()), model.CamRollerRadius);
}

void Put_Coupler_Curves(DxfWriter& file, const Program& program) {
    for (const int number : {1, 2}) {
        if (number == 2 && !Has_Stage2(program.model)) continue;
        const std::string layer = "COUPLER" + std::to_string(number);
        file.Add_Layer(layer, kCouplerColours.at(static_cast<std::size_t>(number) - 1));
        for (const Path& run : Coupler_Path(program, number)) {
            std::vector<DxfPoint> points;
            for (const UserPoint point : run) points.push_back(At(point));
            if (points.size() > 1) file.Polyline(layer, points);
        }
    }
}

std::string Dxf_Text(const Program& program, std::int16_t step) {
    const LinkageModel& model = program.model;
    DxfWriter file;
    file.Comment(model.ModelTitle);
    file.Comment("Step " + std::to_string(step) + ", crank at " +
                 Fixed_Number(program.tables.Theta(step, 0), 3) + " deg, lengths in " + model.UnitText(6));
    Put_Links(file, program, step);
    Put_Pivots(file, program, step);
    Put_Coupler_Curves(file, program);
    return file.Finished();
}

/// The step that was asked for, else the first that assembled; nothing where it did not.
std::optional<std::int16_t> Chosen_Step(const Program& program, std::optional<std::int16_t> wished) {
    for (std::int16_t step = 0; step <= Last_Step(program.model); ++step)
        if (program.tables.StepValid(step) && wished.value_or(step) == step) return step;
    return {};
}

int Draw(Console& console, const Drawing& wish) {
    BatchRun run(Answer::Ignore);
    if (!Take_Model(run, wish.source)) return console.Close(run);
    run.Calculate();
    if (run.Outcome() == GivenUp) return console.Close(run);
    Program& program = run.program();
    const int last = Last_Step(program.model);
    if (wish.step && *wish.step > last)
        return console.Complain(WrongUse, "--step " + std::to_string(*wish.step) +
                                              ": the last step of this model is " + std::to_string(last));
    const auto step = Chosen_Step(program, wish.step);
    if (!step)
        return console.Complain(GivenUp, wish.step ? "step " + std::to_string(*wish.step) +
                                                         " does not assemble; choose another by --step"
                                                   : "no step of this model assembles; check the lengths "
                                                     "and pivots");
    std::string text;
    const bool drawn = Procedure(program, "Draw", [&] { text = Dxf_Text(program, *step); });
    if (!drawn) return console.Close(run);
    const int code = console.Put_Out(run, text, wish.file);
    const std::string told = "Step " + std::to_string(*step) + " was written to " + wish.file +
                             ", lengths in " + program.model.UnitText(6) + "\n";
    return code == Failed || console.Print(told) ? code : Failed;
}

}  // namespace

Command Dxf_Command(CLI::App& app) {
    const auto wish = std::make_shared<Drawing>();
    CLI::App& command = *app.add_subcommand(
        "dxf",
        "Calculate a model and write a position as a drawing (DXF R12), true to scale in the model's unit\n"
        "Layers: LINK1 (ground) to LINK6, PIVOTS, PINS (moving joints), COUPLER1 and COUPLER2 (whole "
        "curves),\n"
        "with a cam drive CAM.");
    Add_Source_Options(command, wish->source);
    command.add_option("--step", wish->step, "position to draw, else the first that assembles")
        ->check(CLI::Range(0, MaxSteps))
        ->type_name("N");
    Add_Output_Option(command, wish->file, "file to write (.dxf)")->required();
    command.callback([wish] { Require_One_Source(wish->source); });
    return {&command, [wish](Console& console) { return Draw(console, *wish); }};
}

}  // namespace kervol
