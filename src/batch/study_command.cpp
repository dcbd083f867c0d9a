// SPDX-License-Identifier: GPL-3.0-or-later
// The command that solves every combination of values for some fields of a model.
#include <charconv>
#include <memory>
#include <thread>

#include "batch/command_options.h"
#include "batch/commands.h"
#include "catalogue/names.h"
#include "core/report.h"
#include "files/output_file.h"
#include "headless/recording_port.h"
#include "study/study_run.h"

namespace kervol {
namespace {

/// Text that is held back before it goes to the file.
constexpr std::size_t kHeldBack = 1 << 16;
/// More rows than these would have to be held in memory.
constexpr std::uint64_t kMostPlaces = 1'000'000;
constexpr unsigned kMostJobs = 1024;

struct Arguments {
    Source source;
    std::vector<std::string> variations;
    std::vector<std::string> measures;
    std::string shard = "1/1";
    std::string output;
    StudyOptions options;
};

/// Answers boxes without keeping them: a study may have millions.
class SilentPort : public RecordingPort {
  public:
    Answer Show_Message(const MessageBox& box) override {
        return box.buttons == Buttons::AbortRetryIgnore ? Answer::Ignore : box.preset;
    }
};

std::string Grouped(std::uint64_t number) {
    std::string digits = std::to_string(number);
    for (std::size_t i = digits.size(); i > 3; i -= 3) digits.insert(i - 3, ",");
    return digits;
}

/// "I/N"
std::string Parse_Shard(const std::string& text, StudyOptions& options) {
    const std::size_t slash = std::min(text.find('/'), text.size() - 1);
    const auto number = [&](std::size_t from, std::size_t to, std::uint64_t& value) {
        const auto read = std::from_chars(text.data() + from, text.data() + to, value);
        return read.ec == std::errc() && read.ptr == text.data() + to;
    };
    const bool right = !text.empty() && number(0, slash, options.shard) &&
                       number(slash + 1, text.size(), options.shards) && options.shard >= 1 &&
                       options.shard <= options.shards;
    return right ? "" : "--shard \"" + text + "\" is not I/N with I from 1 to N, as in 3/8";
}

/// Reads what is to be varied and measured; returns what is wrong with it.
std::string Make_Plan(const Program& program, Arguments& arguments, StudyPlan& plan) {
    std::string objection = Parse_Shard(arguments.shard, arguments.options);
    for (const std::string& text : arguments.variations) {
        if (!objection.empty()) return objection;
        Variation variation;
        objection = variation.Parse(text);
        for (const Variation& other : plan.variations)
            if (other.Field() == variation.Field() && objection.empty())
                objection = "\"" + variation.Field() + "\" is varied twice";
        plan.variations.push_back(std::move(variation));
    }
    for (const std::string& text : arguments.measures) {
        if (!objection.empty()) return objection;
        objection = plan.measures.emplace_back().Parse(text, program);
    }
    if (objection.empty() && !plan.Combinations())
        objection = "there are more combinations than can be counted; take coarser steps";
    return objection;
}

std::string Progress_Text(const StudyProgress& progress) {
    const double seconds = std::max(progress.time.count(), 1e-3);
    const double share = static_cast<double>(progress.done) / static_cast<double>(progress.combinations);
    const auto rate = static_cast<std::uint64_t>(static_cast<double>(progress.steps) / seconds / 1000);
    std::string text = Grouped(progress.done) + " of " + Grouped(progress.combinations) + " combinations, " +
                       Grouped(rate) + ",000 steps/s";
    if (share > 0) text += ", " + Grouped(static_cast<std::uint64_t>(seconds / share - seconds)) + " s left";
    return text;
}

/// The study into the file, or to standard output. False after a fault, which is reported.
bool Write_Study(Console& console, Program& program, const StudyPlan& plan, const Arguments& arguments,
                 StudyProgress& progress) {
    return Procedure(program, "Write_Study", [&] {
        std::unique_ptr<OutputFile> file;
        if (!arguments.output.empty()) file = std::make_unique<OutputFile>(arguments.output);
        std::size_t held_back = 0;
        StudySurroundings surroundings;
        surroundings.make_port = [] { return std::make_unique<SilentPort>(); };
        surroundings.write = [&](std::string_view text) {
            if (!file) {
                if (!console.Print(std::string(text))) Raise(fault::DeviceIO);
                return;
            }
            file->Write(text);
            held_back += text.size();
            if (held_back < kHeldBack) return;
            file->Flush();
            held_back = 0;
        };
        if (console.Is_Terminal())
            surroundings.progress = [&](const StudyProgress& now) {
                console.Show_Progress(Progress_Text(now));
            };
        progress = Run_Study(plan, program, arguments.options, surroundings);
        if (file) file->Close();
    });
}

int Run_Study_Command(Console& console, Arguments& arguments) {
    BatchRun run(Answer::Ignore);
    Take_Model(run, arguments.source);
    if (run.Outcome() != Done) return console.Close(run);
    Program& program = run.program();
    Change_Catalog_Labels(program.catalogue, program.model.LinkageType);
    StudyPlan plan;
    const std::string objection = Make_Plan(program, arguments, plan);
    if (!objection.empty()) return console.Complain(WrongUse, objection);
    StudyProgress progress;
    const bool written = Write_Study(console, program, plan, arguments, progress);
    console.Show_Progress({});
    if (arguments.output.empty()) return written ? Done : Failed;
    if (!written) return console.Complain(Failed, run.Write_Complaint(arguments.output));
    const std::string failed =
        progress.failed == 0 ? "" : ", " + Grouped(progress.failed) + " of which failed,";
    return console.Print(Grouped(progress.done) + " combinations" + failed + " were written to " +
                         arguments.output + "\n")
               ? Done
               : Failed;
}

}  // namespace

Command Study_Command(CLI::App& app) {
    const auto arguments = std::make_shared<Arguments>();
    StudyOptions& options = arguments->options;
    options.jobs = std::max(1U, std::thread::hardware_concurrency());
    CLI::App& command =
        *app.add_subcommand("study", "Solve every combination of values for some fields and measure it");
    Add_Source_Options(command, arguments->source);
    command.add_option("--vary", arguments->variations, "a field and its values, the first varies slowest")
        ->required()
        ->take_all()
        ->expected(1)
        ->type_name("FIELD=FROM:TO:STEP");
    command
        .add_option("--measure", arguments->measures,
                    "max, min, range, mean, rms or peak of a function, as in max(Omega6) or "
                    "rms(\"F Shaking\":Mag), or dwell(Theta6, 1 degree)")
        ->required()
        ->take_all()
        ->expected(1)
        ->type_name("EXPR");
    command.add_option("--top", options.top, "only the N best by the first measure, best first")
        ->check(CLI::Range(std::uint64_t{1}, kMostPlaces))
        ->type_name("N");
    command.add_flag("--least", options.least_is_best, "with --top: the least value is the best");
    command.add_option("--jobs", options.jobs, "solvers at the same time, else one for each processor")
        ->check(CLI::Range(1U, kMostJobs))
        ->type_name("N");
    command
        .add_option("--shard", arguments->shard,
                    "only the I-th of N stretches; joined in order they are the whole")
        ->type_name("I/N");
    Add_Output_Option(command, arguments->output, "write there instead of to standard output");
    command.callback([arguments] {
        Require_One_Source(arguments->source);
        if (arguments->options.least_is_best && arguments->options.top == 0)
            throw CLI::ValidationError("--least orders the rows of --top; name that too");
    });
    return {&command, [arguments](Console& console) { return Run_Study_Command(console, *arguments); }};
}

}  // namespace kervol
