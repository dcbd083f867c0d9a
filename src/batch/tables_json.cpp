// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/tables_json.h"

#include <array>
#include <variant>

#include "batch/json_writer.h"
#include "core/model_fields.h"
#include "core/model_questions.h"

namespace kervol {
namespace {

constexpr std::array<std::string_view, 4> kIconNames = {"none", "exclamation", "information", "question"};
constexpr std::array<std::string_view, 4> kButtonNames = {"OK", "OKCancel", "YesNo", "AbortRetryIgnore"};

void Put_Model(JsonWriter& json, const LinkageModel& model) {
    json.Key("model");
    json.Begin_Object();
    for (const ModelField& field : Model_Fields()) {
        json.Key(field.name);
        std::visit([&](auto member) { json.Value(model.*member); }, field.member);
    }
    json.End_Object();
}

void Put_Messages(JsonWriter& json, const RecordingPort& port) {
    json.Key("messages");
    json.Begin_List();
    for (const auto& [box, answer] : port.messages) {
        json.Begin_Object();
        json.Member("text", box.text);
        json.Member("icon", kIconNames.at(static_cast<std::size_t>(box.icon)));
        json.Member("buttons", kButtonNames.at(static_cast<std::size_t>(box.buttons)));
        json.Member("answer", static_cast<int>(answer));
        json.End_Object();
    }
    json.End_List();
}

/// Rows 0 to `last` of a table of steps.
template <class StepTable>
void Put_Rows(JsonWriter& json, std::string_view name, const StepTable& table, int last) {
    json.Key(name);
    json.Begin_List();
    for (int step = 0; step <= last; ++step) json.Value(table(step));
    json.End_List();
}

void Put_Flywheel(JsonWriter& json, const CrankTorqueAreas& areas) {
    json.Key("Flywheel");
    json.Begin_Object();
    json.Member("Average", areas.Average);
    json.Member("FirstSign", areas.FirstSign);
    json.Member("PosArea", areas.PosArea);
    json.Member("NegArea", areas.NegArea);
    json.Member("NPulses", areas.NPulses);
    json.Key("Text");
    json.Begin_List();
    for (const std::string& line : areas.Text) json.Value(line);
    json.End_List();
    json.End_Object();
}

}  // namespace

std::string Tables_Json(const Program& program, const RecordingPort& port, const FurtherTables& further) {
    const LinkageModel& model = program.model;
    const ResultTables& tables = program.tables;
    const int last = Last_Step(model);

    JsonWriter json;
    json.Begin_Object();
    json.Member("ProgramTitle", model.ProgramTitle);
    json.Member("VersionText", model.VersionText);
    Put_Model(json, model);
    Put_Messages(json, port);
    json.Member("NumSteps", model.NumSteps);
    json.Member("DataCalculated", model.DataCalculated);
    json.Member("SomeStepFailed", model.SomeStepFailed);
    json.Member("Stage1Class", model.Stage1Class);
    json.Member("Stage2Class", model.Stage2Class);
    Put_Rows(json, "StepValid", tables.StepValid, last);
    Put_Rows(json, "Theta", tables.Theta, last);
    Put_Rows(json, "Omega", tables.Omega, last);
    Put_Rows(json, "Alpha", tables.Alpha, last);
    Put_Rows(json, "PointPos", tables.PointPos, last);
    Put_Rows(json, "PointVel", tables.PointVel, last);
    Put_Rows(json, "PointAcc", tables.PointAcc, last);
    Put_Rows(json, "VelRatio", tables.VelRatio, last);
    Put_Rows(json, "MechAdv", tables.MechAdv, last);
    if (further.dynamics) {
        Put_Rows(json, "ForceTable", tables.ForceTable, last);
        Put_Rows(json, "TorqueTable", tables.TorqueTable, last);
    }
    if (further.flywheel != nullptr) {
        Put_Rows(json, "FlywheelTorque", tables.FlywheelTorque, last);
        Put_Flywheel(json, *further.flywheel);
    }
    if (further.spectrum) {
        json.Member("FFTHalf", program.fourier.FFTHalf);
        Put_Rows(json, "FFTTable", tables.FFTTable, program.fourier.FFTHalf - 1);
    }
    json.End_Object();
    return json.Text() + "\n";
}

}  // namespace kervol
