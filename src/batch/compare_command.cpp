// SPDX-License-Identifier: GPL-3.0-or-later
// The command that tells what is different in two models and what comes of it.
#include <algorithm>
#include <iomanip>
#include <memory>
#include <sstream>

#include "batch/command_options.h"
#include "batch/commands.h"
#include "batch/comparison.h"
#include "catalogue/names.h"
#include "core/arithmetic.h"
#include "core/markup_text.h"
#include "core/number_text.h"
#include "core/report.h"

namespace kervol {
namespace {

constexpr int kDigits = 5;

struct Comparison {
    std::string first, second, overlay;
};

/// All that can be known of a model.
void Compute(BatchRun& run) {
    run.Calculate();
    run.Add_Dynamics();
    run.Add_Flywheel();
    Change_Catalog_Labels(run.program().catalogue, run.program().model.LinkageType);
}

std::string Field_Lines(const std::vector<ChangedField>& fields) {
    if (fields.empty()) return "No field is different.\n";
    std::ostringstream out;
    out << "Changed fields\n\n  " << std::left << std::setw(20) << "Field" << std::setw(24) << "A"
        << " B\n";
    for (const ChangedField& field : fields)
        out << "  " << std::setw(20) << field.name << std::setw(24) << field.first << ' ' << field.second
            << '\n';
    return out.str();
}

std::string Function_Lines(const Program& first, const std::vector<FunctionChange>& changes) {
    std::ostringstream out;
    out << "Changes, B less A\n\n  " << std::left << std::setw(15) << "Function" << std::setw(11)
        << "Component" << std::right << std::setw(14) << "Largest" << std::setw(12) << "at Theta2"
        << std::setw(14) << "rms"
        << "  Unit\n";
    for (const FunctionChange& change : changes)
        out << "  " << std::left << std::setw(15) << change.function << std::setw(11) << change.component
            << std::right << std::setw(14) << Short_Number(change.largest, kDigits) << std::setw(12)
            << (Is_Zero(change.largest) ? "" : Fixed_Number(first.tables.Theta(change.step, 0), 1))
            << std::setw(14) << Short_Number(change.rms, kDigits) << "  " << change.unit << '\n';
    return out.str();
}

std::string Head(const Comparison& wish, const Program& first, const Program& second) {
    std::string text = "A  " + wish.first + "  " + first.model.ModelTitle + "\nB  " + wish.second + "  " +
                       second.model.ModelTitle + "\n";
    if (first.model.LinkageType != second.model.LinkageType)
        text += "The chains are different; functions have the names of A.\n";
    return text + "\n";
}

int Solved_Steps(const BatchRun& first, const BatchRun& second) {
    return std::min(first.solved_steps().value_or(0), second.solved_steps().value_or(0));
}

int Compare(Console& console, const Comparison& wish) {
    BatchRun first(Answer::Ignore), second(Answer::Ignore);
    if (!first.Open(wish.first)) return console.Close(first);
    if (!second.Open(wish.second)) return console.Close(second);
    Program &A = first.program(), &B = second.program();
    std::string text = Head(wish, A, B) + Field_Lines(Changed_Fields(A.model, B.model)) + "\n";
    for (BatchRun* run : {&first, &second}) {
        Compute(*run);
        if (!run->solved_steps()) return console.Close(*run);
    }
    StepPairs steps;
    std::string overlay;
    const bool compared = Procedure(A, "Compare", [&] {
        steps = Paired_Steps(A, B);
        text += steps.words + ".\n\n";
        if (steps.pairs.empty()) return;
        text += Function_Lines(A, Function_Changes(A, B, steps, Solved_Steps(first, second)));
        if (!wish.overlay.empty()) overlay = Overlay_Svg(A, B, steps.pairs.front());
    });
    BatchRun& told = first.Outcome() == Done ? second : first;
    // The picture first: whoever reads only the head of the text wants it all the same.
    const int code = overlay.empty() ? Done : console.Put_Out(told, overlay, wish.overlay);
    if (!console.Print(text)) return Failed;
    if (compared && steps.pairs.empty())
        return console.Complain(GivenUp,
                                wish.second + ": " + steps.words +
                                    ", so no function can be compared; give both models the same range");
    return overlay.empty() ? console.Close(told) : code;
}

}  // namespace

Command Compare_Command(CLI::App& app) {
    const auto wish = std::make_shared<Comparison>();
    CLI::App& command = *app.add_subcommand(
        "compare",
        "Calculate two models and tell what is different, field by field and function by function");
    command.footer(
        "Steps are compared one by one where both models have as many, else at the crank angles (of drives "
        "over\n"
        "time: the times) that both have. Changes of angles are taken the short way round.");
    command.add_option("A", wish->first, "model file (.kvl or .ikv)")->required()->type_name("");
    command.add_option("B", wish->second, "model file to compare with it")->required()->type_name("");
    Add_Output_Option(command, wish->overlay, "write both linkages and their coupler curves there (.svg)");
    return {&command, [wish](Console& console) { return Compare(console, *wish); }};
}

}  // namespace kervol
