// SPDX-License-Identifier: GPL-3.0-or-later
// The command that draws the linkage.
#include <memory>
#include <optional>

#include "animation/stepping.h"
#include "batch/commands.h"
#include "batch/picture_options.h"
#include "core/picture_list.h"
#include "headless/svg_picture.h"

namespace kervol {
namespace {

constexpr int kSide = 800;

struct Arguments {
    Source source;
    std::optional<std::int16_t> step;
    bool all = false;
    int side = kSide;
    PictureFile file;
};

/// Draws on the picture as the screens do, without one: the model says what is shown.
class LinkagePicture {
  public:
    LinkagePicture(Program& program, Picture& picture) : program_(program) {
        view_.Picture1 = &picture;
        view_.chk_autoscale.on = true;
        settings_.chk_Showlinks.on = program.model.HideLinks != "Y";
        program_.model.StepMode = "N";
    }

    /// Over the positions that stand.
    void Draw(std::int16_t step) {
        Step(program_, view_, settings_, step);
        program_.model.StepMode = "Y";
    }

  private:
    Program& program_;
    LinkageView view_;
    AnimationSettings settings_;
};

void Draw_Positions(Program& program, const Arguments& arguments, Picture& picture) {
    LinkagePicture linkage(program, picture);
    if (!arguments.all) return linkage.Draw(arguments.step.value_or(0));
    for (std::int16_t step = 0; step <= program.model.NumSteps; ++step)
        if (program.tables.StepValid(step)) linkage.Draw(step);
}

int Draw(Console& console, const Arguments& arguments) {
    BatchRun run(Answer::Ignore);
    if (!Take_Model(run, arguments.source)) return console.Close(run);
    run.Calculate();
    if (run.Outcome() == GivenUp || run.Outcome() == Failed) return console.Close(run);
    Program& program = run.program();
    const std::int16_t step = arguments.step.value_or(0), last = program.model.NumSteps;
    if (step > last)
        return console.Complain(WrongUse, "there is no step " + std::to_string(step) + "; the last one is " +
                                              std::to_string(last));
    if (!arguments.all && !program.tables.StepValid(step))
        return console.Complain(GivenUp, "step " + std::to_string(step) + " does not assemble");

    // Lines alone: this program writes them by itself.
    if (arguments.file.format == PictureFormat::Svg) {
        SvgPicture picture(arguments.side);
        Draw_Positions(program, arguments, picture);
        return console.Put_Out(run, picture.Text(), arguments.file.path);
    }
    PictureList picture;
    Draw_Positions(program, arguments, picture);
    Sheet sheet{.width = kSide, .height = kSide, .pixels = double(arguments.side) / kSide};
    sheet.drawings.push_back({.box = {0, 0, kSide, kSide},
                              .window = picture.Window(),
                              .background = picture.Background(),
                              .strokes = picture.Strokes()});
    return Put_Picture(console, run, sheet, arguments.file);
}

}  // namespace

Command Draw_Command(CLI::App& app) {
    const auto arguments = std::make_shared<Arguments>();
    CLI::App& command = *app.add_subcommand("draw", "Calculate a model and draw the linkage");
    Add_Source_Options(command, arguments->source);
    auto* step = command.add_option("--step", arguments->step, "the position of that step [0]")
                     ->check(CLI::Range(0, MaxSteps))
                     ->type_name("N");
    command.add_flag("--all", arguments->all, "all positions over each other")->excludes(step);
    command.add_option("--size", arguments->side, "pixels along a side of the picture")
        ->check(CLI::Range(LeastSide, LargestSide))
        ->type_name("N")
        ->capture_default_str();
    Add_Picture_File(command, arguments->file);
    command.callback([arguments] { Require_One_Source(arguments->source); });
    return {&command, [arguments](Console& console) { return Draw(console, *arguments); }};
}

}  // namespace kervol
