// SPDX-License-Identifier: GPL-3.0-or-later
// The command that writes the moving linkage as a picture file.
#include <algorithm>
#include <cctype>
#include <cmath>
#include <filesystem>
#include <memory>

#include "animation/linkage_svg.h"
#include "animation/real_time.h"
#include "batch/command_options.h"
#include "batch/commands.h"
#include "batch/linkage_gif.h"
#include "core/markup_text.h"
#include "core/report.h"

namespace kervol {
namespace {

/// Seconds between positions that a viewer shows: browsers draw no more than 60 a second, and take a GIF's
/// delay below two hundredths for a tenth.
constexpr double kSvgApart = 1.0 / 60, kGifApart = 0.02;

struct Animation {
    Source source;
    std::string file;
    double speed = 1;
    int size = 600;
};

std::string Extension(const std::string& file) {
    std::string extension = std::filesystem::path(file).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension;
}

std::string Check_Extension(const std::string& file) {
    const std::string extension = Extension(file);
    return extension == ".svg" || extension == ".gif" ? "" : "the file's name must end in .svg or .gif";
}

std::string Told(const TimedCycle& cycle, const std::string& file) {
    std::string text = std::to_string(cycle.rows.size()) + " position" + (cycle.rows.size() == 1 ? "" : "s");
    if (cycle.seconds > 0) text += ", a cycle in " + Fixed_Number(cycle.seconds) + " s";
    if (cycle.speed > 0)
        text += std::abs(cycle.speed - 1) < 5e-4
                    ? ", real time"
                    : ", " + Fixed_Number(cycle.speed, cycle.speed < 0.1 ? 5 : 3) + " times real time";
    return "The animation (" + text + ") was written to " + file + "\n";
}

int Animate(Console& console, const Animation& wish) {
    BatchRun run(Answer::Ignore);
    if (!Take_Model(run, wish.source)) return console.Close(run);
    Program& program = run.program();
    const bool stood = Start_Standing_Crank(program.model);
    run.Calculate();
    if (run.Outcome() == GivenUp) return console.Close(run);

    const bool gif = Extension(wish.file) == ".gif";
    TimedCycle cycle;
    std::string text;
    const bool drawn = Procedure(program, "Animate", [&] {
        cycle = Timed_Cycle(program, wish.speed, gif ? kGifApart : kSvgApart);
        text =
            gif ? Moving_Gif(program, cycle, wish.size) : Moving_Svg(program, cycle, wish.size, SvgUse::File);
    });
    if (!drawn) return console.Close(run);
    if (cycle.rows.empty())
        return console.Complain(GivenUp,
                                "no position of this linkage assembles, so there is nothing to see; "
                                "check the lengths and pivots");
    if (stood) cycle.speed = 0;
    const int code = console.Put_Out(run, text, wish.file);
    return code == Failed || console.Print(Told(cycle, wish.file)) ? code : Failed;
}

}  // namespace

Command Animate_Command(CLI::App& app) {
    const auto wish = std::make_shared<Animation>();
    CLI::App& command = *app.add_subcommand(
        "animate", "Calculate a model and write a picture in which it moves, over and over");
    command.footer(
        "It runs in real time: a step of angle takes the time that the crank needs at its speed (Omega2), a\n"
        "step of time itself. A crank without speed takes 4 s for its range; no cycle is shown in less than\n"
        "half a second. Steps that do not assemble are passed over.");
    Add_Source_Options(command, wish->source);
    Add_Output_Option(command, wish->file, "file to write (.svg for pages, .gif for slides)")
        ->required()
        ->check(Check_Extension);
    command.add_option("--speed", wish->speed, "times real time, 0.1 for ten times slower")
        ->check(CLI::Range(0.0001, 10000.0))
        ->type_name("X")
        ->capture_default_str();
    command.add_option("--size", wish->size, "pixels of the longer side")
        ->check(CLI::Range(64, 4096))
        ->type_name("N")
        ->capture_default_str();
    command.callback([wish] { Require_One_Source(wish->source); });
    return {&command, [wish](Console& console) { return Animate(console, *wish); }};
}

}  // namespace kervol
