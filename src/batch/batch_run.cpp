// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/batch_run.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "core/fault.h"
#include "core/model_questions.h"
#include "dynamics/solve_forces.h"
#include "files/model_file.h"
#include "kinematics/examples.h"
#include "startup/launch.h"

namespace kervol {
namespace {

/// How to mend a fault, of any procedure where none is named.
struct RemedyEntry {
    std::int32_t number;
    std::string_view text;
    std::string_view procedure = {};
};

constexpr std::string_view kTooManyPulses =
    "the crank torque has more pulses than the table holds, ten of each sign; reduce the range to one cycle";

constexpr std::string_view kTooManyRows =
    "a drive has at most 361 rows, counted up to 360, and mass data at most those of links 2 to 6";

std::string_view Remedy(const ReportedFault& fault) {
    static constexpr auto kRemedies = std::to_array<RemedyEntry>({
        {fault::Subscript, kTooManyPulses, "Flywheel"},
        {fault::Subscript, kTooManyPulses, "Crank_Torque_Areas"},
        {fault::Subscript, kTooManyRows, "Read_Cam_Data"},
        {fault::Subscript, kTooManyRows, "Import_Linkage_Data"},
        {fault::Overflow, "a number there is too large"},
        {fault::Subscript, "there are more rows than the tables hold; reduce the number of steps"},
        {fault::DivisionByZero,
         "a length of 0, or a position without a direction; check the lengths and pivots"},
        {fault::TypeMismatch, "a number or #TRUE# or #FALSE# belongs there; mend that line"},
        {fault::BadFileNameOrNumber, "check the name"},
        {fault::FileNotFound, "check the name"},
        {fault::DeviceIO, "check the device"},
        {fault::DiskFull, "make room, then write again"},
        {fault::InputPastEnd, "the file is cut there; complete it, or save the model again"},
        {fault::PermissionDenied, "check your rights to the file"},
        {fault::PathFileAccess, "name a plain file, not a folder or device"},
        {fault::PathNotFound, "check the folder"},
    });
    const auto* found = std::find_if(kRemedies.begin(), kRemedies.end(), [&](const RemedyEntry& entry) {
        return entry.number == fault.number &&
               (entry.procedure.empty() || entry.procedure == fault.procedure);
    });
    return found == kRemedies.end() ? "check the model" : found->text;
}

}  // namespace

BatchRun::BatchRun(Answer on_failure) : program_(std::make_unique<Program>(port_)) {
    port_.answer = [on_failure](const MessageBox& box) {
        return box.buttons == Buttons::AbortRetryIgnore ? on_failure : Answer::None;
    };
    Start_Fresh(*program_);
    program_->model.StartingUp = false;
}

bool BatchRun::Open(const std::string& path) {
    source_ = path;
    Clear_Tables(*program_);
    read_ = Open_Model(*program_, path);
    return read_.end == ReadEnd::Cut || read_.end == ReadEnd::Whole;
}

bool BatchRun::Load(const std::string& name) {
    source_ = "example " + name;
    const Example* example = Find_Example(name);
    if (example == nullptr) return false;
    Load_Example(program_->model, *example);
    return true;
}

bool BatchRun::Import_Drive(const std::string& path, ReadReport (*import)(Program&, const std::string&)) {
    read_ = import(*program_, path);
    if (read_.end == ReadEnd::Refused) refusal_ = port_.messages.back().box.text;
    if (Outcome() == Done) return true;
    source_ = path;
    return false;
}

void BatchRun::Calculate() {
    end_ = Calculate_Model(*program_);
}

void BatchRun::Add_Dynamics() {
    if (end_ == CalculationEnd::Done) solved_steps_ = Run_Dynamics(*program_);
}

void BatchRun::Take_Fluctuation(float coefficient) {
    if (!Take_Coef_Fluct(program_->model, coefficient)) port_.Show_Message({FluctuationRefused});
}

void BatchRun::Add_Flywheel() {
    if (solved_steps_) Size_Flywheel(*program_, flywheel_);
}

bool BatchRun::Forces_Stopped() const {
    return solved_steps_ && *solved_steps_ <= program_->model.NumSteps;
}

ExitCode BatchRun::Outcome() const {
    if (read_.end != ReadEnd::Whole || !program_->faults.entries.empty()) return Failed;
    if (end_ != CalculationEnd::Done) return GivenUp;
    if (program_->model.SomeStepFailed) return SomeFailed;
    return Forces_Stopped() ? GivenUp : Done;
}

std::string BatchRun::Complaint() const {
    if (Outcome() == Done) return {};
    std::string reason = program_->faults.entries.empty() ? Reading_Complaint() : Fault_Complaint();
    if (reason.empty()) reason = Calculation_Complaint();
    return source_ + ": " + reason;
}

std::string BatchRun::Write_Complaint(const std::string& path) const {
    const ReportedFault& fault = program_->faults.entries.back();
    return path + ": " + std::string(Fault_Description(fault.number)) + ": " + std::string(Remedy(fault));
}

std::string BatchRun::Reading_Complaint() const {
    if (read_.end == ReadEnd::Whole) return {};
    if (read_.end == ReadEnd::Refused) return refusal_;
    return "no model stands behind the first two lines; save the model again";
}

std::string BatchRun::Fault_Complaint() const {
    const auto& faults = program_->faults.entries;
    const ReportedFault& first = faults.front();
    std::string text;
    if (read_.end != ReadEnd::Whole && read_.line > 0) text += "line " + std::to_string(read_.line) + ": ";
    text += Fault_Description(first.number);
    if (read_.end == ReadEnd::Whole) text += " in " + first.procedure;
    if (faults.size() > 1) text += ", the first of " + std::to_string(faults.size()) + " faults";
    return text + ": " + std::string(Remedy(first));
}

std::string BatchRun::Calculation_Complaint() const {
    const LinkageModel& model = program_->model;
    if (end_ == CalculationEnd::Refused) return "refused: " + port_.messages.back().box.text;
    if (end_ == CalculationEnd::Abandoned)
        return "given up at the first position that does not assemble; --on-failure ignore goes on";
    if (end_ == CalculationEnd::NoMode)
        return "refused: drive mode " + std::to_string(model.CalcMode) +
               " is none of 1 to 5; mend line 39 of the file";
    if (!model.SomeStepFailed) return Forces_Complaint();
    int failed = 0;
    for (int step = 0; step <= Last_Step(model); ++step)
        if (!program_->tables.StepValid(step)) ++failed;
    if (failed == 0) return "a position beyond the end of the range did not assemble; all steps did";
    return std::to_string(failed) + " of " + std::to_string(model.NumSteps + 1) +
           " steps do not assemble and are zero" + (Forces_Stopped() ? "; " + Forces_Complaint() : "") +
           "; \"kervol-batch info\" lists them";
}

std::string BatchRun::Forces_Complaint() const {
    return "the force equations of step " + std::to_string(*solved_steps_) +
           " have no solution, so there are no forces from there on";
}

}  // namespace kervol
