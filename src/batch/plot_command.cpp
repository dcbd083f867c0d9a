// SPDX-License-Identifier: GPL-3.0-or-later
// The command that plots chosen output functions.
#include <algorithm>
#include <array>
#include <charconv>
#include <memory>
#include <optional>
#include <string_view>

#include "batch/commands.h"
#include "batch/picture_options.h"
#include "catalogue/catalogue_table.h"
#include "core/picture_list.h"
#include "plots/plot_sheets.h"

namespace kervol {
namespace {

/// Pixels of the page that plots are laid out on; a file may have more.
constexpr double kPageWidth = 1000;

struct Arguments {
    Source source;
    FunctionOptions functions;
    std::string style = "annotated";
    std::optional<std::int16_t> windows;
    std::string size = "1000x700";
    PictureFile file;
};

struct PixelSize {
    int width = 0, height = 0;
};

/// The number that the text is as a whole; 0 for anything else.
int Whole_Number(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? number : 0;
}

/// Of "WIDTHxHEIGHT"; nothing for anything else.
std::optional<PixelSize> Pixel_Size(std::string_view text) {
    const std::size_t cross = std::min(text.find('x'), text.size());
    const PixelSize size = {Whole_Number(text.substr(0, cross)),
                            Whole_Number(text.substr(std::min(cross + 1, text.size())))};
    const auto fits = [](int side) { return side >= LeastSide && side <= LargestSide; };
    return fits(size.width) && fits(size.height) ? std::optional(size) : std::nullopt;
}

/// What `frm_PlotType` would have been asked for.
enum PlotPick : std::int16_t { OneWindow = 1, TwoWindows = 2, FourWindows = 3, Polar = 4 };

/// As many windows as functions where each has its own; nothing where that cannot be.
std::optional<std::int16_t> Windows_For(const Arguments& arguments, std::int16_t functions) {
    const bool aligned = arguments.style == "aligned";
    const std::int16_t windows = arguments.windows.value_or(aligned ? functions : std::int16_t{1});
    const bool one = windows == 1 && !aligned;
    const bool each = (windows == 2 || windows == 4) && windows == functions;
    return one || each ? std::optional(windows) : std::nullopt;
}

Sheet Annotated(Program& program, const SlotLabels& labels, std::int16_t windows, PageSize page) {
    ChartView form;
    // A fresh form of the window program has these.
    form.chk_HGrid.on = form.chk_VGrid.on = form.chk_Line.on = true;
    program.selections.PlotTypePick = windows == 1 ? OneWindow : (windows == 2 ? TwoWindows : FourWindows);
    Plot_Setup(program, form, windows);
    if (windows == 1)
        MultiPlot(program, form, labels);
    else
        Plot(program, form, labels, windows);
    return Chart_Sheet(form, static_cast<std::size_t>(windows), page);
}

Sheet Aligned(Program& program, const SlotLabels& labels, std::int16_t windows, PageSize page) {
    OwnPlotView form;
    std::array<PictureList, OwnPlotView::Plots> pictures;
    std::array<const PictureList*, OwnPlotView::Plots> lists{};
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        form.pct_Plot[i] = &pictures[i];
        lists[i] = &pictures[i];
    }
    program.selections.PlotTypePick = windows == 2 ? TwoWindows : FourWindows;
    MyPlotSetup(program, form, windows);
    MyPlot(program, form, labels, windows);
    return Own_Plot_Sheet(form, windows, 0, std::span(lists).first(static_cast<std::size_t>(windows)), page);
}

Sheet Polar_Plot(Program& program, const SlotLabels& labels, PageSize page) {
    PolarPlotView form;
    PictureList picture;
    form.pct_Plot[0] = &picture;
    form.chk_Vectors.on = form.chk_Envelope.on = true;
    program.selections.PlotTypePick = Polar;
    MyPolarPlotSetup(program, form);
    MyPolarPlot(program, form, labels);
    return Polar_Plot_Sheet(form, picture, page);
}

/// What is wrong with the choice for this style; empty if nothing is.
std::string Objection(const Program& program, const Arguments& arguments) {
    const Selections& selections = program.selections;
    if (arguments.style == "polar")
        return selections.NumSelected == 1 && selections.SelVector ? std::string()
                                                                   : "a polar plot shows one vector function";
    if (Windows_For(arguments, selections.NumSelected)) return {};
    return arguments.style == "aligned"
               ? "aligned plots show two or four functions, each in its own window"
               : "two windows need two functions and four windows four; one window takes up to four";
}

int Draw_Plot(Console& console, const Arguments& arguments) {
    BatchRun run(Answer::Ignore);
    if (!Take_Model(run, arguments.source)) return console.Close(run);
    run.Calculate();
    if (run.Outcome() == GivenUp) return console.Close(run);

    Program& program = run.program();
    SlotLabels labels;
    std::string objection = Choose_And_Compute(run, arguments.functions, labels);
    if (objection.empty()) objection = Objection(program, arguments);
    if (!objection.empty()) return console.Complain(WrongUse, objection);

    Selections& selections = program.selections;
    selections.SelCount = selections.NumSelected;
    const PixelSize size = *Pixel_Size(arguments.size);
    const PageSize page = {kPageWidth, kPageWidth * size.height / size.width};
    program.plots.PlotCount = Windows_For(arguments, selections.NumSelected).value_or(1);
    Sheet sheet = arguments.style == "polar"     ? Polar_Plot(program, labels, page)
                  : arguments.style == "aligned" ? Aligned(program, labels, program.plots.PlotCount, page)
                                                 : Annotated(program, labels, program.plots.PlotCount, page);
    sheet.pixels = size.width / kPageWidth;
    if (program.plots.WindowFailed) return console.Complain(GivenUp, run.port().messages.back().box.text);
    return Put_Picture(console, run, sheet, arguments.file);
}

void Check_Arguments(Arguments& arguments) {
    Require_Source_And_Functions(arguments.source, arguments.functions);
    if (arguments.windows && arguments.style == "polar")
        throw CLI::ValidationError("a polar plot has one window; leave --windows out");
}

std::string Size_Objection(const std::string& text) {
    return Pixel_Size(text) ? ""
                            : "\"" + text + "\" is no WIDTHxHEIGHT of " + std::to_string(LeastSide) + " to " +
                                  std::to_string(LargestSide) + " pixels each";
}

}  // namespace

Command Plot_Command(CLI::App& app) {
    const auto arguments = std::make_shared<Arguments>();
    CLI::App& command = *app.add_subcommand("plot", "Calculate a model and plot chosen functions");
    Add_Source_Options(command, arguments->source);
    Add_Function_Options(command, arguments->functions,
                         "frame of vectors; a local one turns with the point's link");
    command
        .add_option("--style", arguments->style,
                    "annotated charts, aligned plots of two or four functions, or a polar plot of one vector")
        ->check(CLI::IsMember({"annotated", "aligned", "polar"}))
        ->type_name("STYLE")
        ->capture_default_str();
    command
        .add_option("--windows", arguments->windows,
                    "one for all functions, or as many as functions: 1, 2 or 4 "
                    "[annotated 1, aligned as many as functions]")
        ->check(CLI::IsMember({1, 2, 4}))
        ->type_name("N");
    command.add_option("--size", arguments->size, "pixels of the picture")
        ->check(Size_Objection)
        ->type_name("WIDTHxHEIGHT")
        ->capture_default_str();
    Add_Picture_File(command, arguments->file);
    command.callback([arguments] { Check_Arguments(*arguments); });
    return {&command, [arguments](Console& console) { return Draw_Plot(console, *arguments); }};
}

}  // namespace kervol
