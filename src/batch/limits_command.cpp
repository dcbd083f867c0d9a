// SPDX-License-Identifier: GPL-3.0-or-later
// The command that tells how far the crank can be turned.
#include <array>
#include <memory>

#include "batch/command_options.h"
#include "batch/commands.h"
#include "batch/json_writer.h"
#include "core/arithmetic.h"
#include "core/report.h"
#include "study/limits.h"

namespace kervol {
namespace {

constexpr std::array<const char*, 3> kMisfitNames = {"too short", "too long", "in line"};

struct Arguments {
    Source source;
    bool json = false;
    std::string output;
};

void Put_Number(JsonWriter& json, const char* name, double value) {
    json.Member(name, Single(value));
}

void Put_Range(JsonWriter& json, const CrankRange& range) {
    Put_Number(json, "From", range.from);
    Put_Number(json, "To", range.to);
}

void Put_Obstacle(JsonWriter& json, const LinkageModel& model, const Obstacle& obstacle) {
    json.Begin_Object();
    json.Member("Cause", kMisfitNames.at(static_cast<std::size_t>(obstacle.why)));
    Put_Range(json, obstacle.range);
    Put_Number(json, "Reach", obstacle.reach);
    Put_Number(json, "Distance", obstacle.distance);
    Put_Number(json, "At", obstacle.at);
    json.Member("Text", Obstacle_Text(model, obstacle));
    json.End_Object();
}

void Put_Transmission(JsonWriter& json, const char* name, const std::optional<Transmission>& transmission) {
    if (!transmission) return;
    json.Key(name);
    json.Begin_Object();
    Put_Number(json, "Angle", transmission->angle);
    Put_Number(json, "At", transmission->crank);
    json.End_Object();
}

/// A list of objects, each written by `put`.
template <class Items, class Put>
void Put_List(JsonWriter& json, const char* name, const Items& items, Put&& put) {
    json.Key(name);
    json.Begin_List();
    for (const auto& item : items) put(item);
    json.End_List();
}

void Put_Stage(JsonWriter& json, const LinkageModel& model, const StageLimits& stage) {
    json.Begin_Object();
    Put_List(json, "Usable", stage.usable, [&](const CrankRange& range) {
        json.Begin_Object();
        Put_Range(json, range);
        json.End_Object();
    });
    Put_List(json, "Obstacles", stage.obstacles,
             [&](const Obstacle& obstacle) { Put_Obstacle(json, model, obstacle); });
    Put_List(json, "DeadCentres", stage.dead_centres, [&](const DeadCentre& dead) {
        json.Begin_Object();
        Put_Number(json, "At", dead.crank);
        Put_Number(json, "Output", dead.output);
        json.End_Object();
    });
    Put_Transmission(json, "LeastTransmission", stage.least);
    Put_Transmission(json, "GreatestTransmission", stage.greatest);
    Put_Transmission(json, "LeastTransmissionInDrive", stage.least_driven);
    json.End_Object();
}

std::string Limits_Json(const LinkageModel& model, const Limits& limits) {
    JsonWriter json;
    json.Begin_Object();
    Put_List(json, "Stages", limits.stages, [&](const StageLimits& stage) { Put_Stage(json, model, stage); });
    Put_List(json, "Warnings", limits.warnings, [&](const std::string& warning) { json.Value(warning); });
    json.End_Object();
    return json.Text() + "\n";
}

int Tell_Limits(Console& console, const Arguments& arguments) {
    BatchRun run(Answer::Ignore);
    Take_Model(run, arguments.source);
    if (run.Outcome() != Done) return console.Close(run);
    const LinkageModel& model = run.program().model;
    std::string text;
    const bool found = Procedure(run.program(), "Find_Limits", [&] {
        const Limits limits = Find_Limits(model);
        text = arguments.json ? Limits_Json(model, limits) : Limits_Text(model, limits);
    });
    return found ? console.Put_Out(run, text, arguments.output) : console.Close(run);
}

}  // namespace

Command Limits_Command(CLI::App& app) {
    const auto arguments = std::make_shared<Arguments>();
    CLI::App& command =
        *app.add_subcommand("limits", "Tell how far the crank can be turned, and what stands in the way");
    Add_Source_Options(command, arguments->source);
    command.add_flag("--json", arguments->json, "as one JSON object");
    Add_Output_Option(command, arguments->output, "write there instead of to standard output");
    command.callback([arguments] { Require_One_Source(arguments->source); });
    return {&command, [arguments](Console& console) { return Tell_Limits(console, *arguments); }};
}

}  // namespace kervol
