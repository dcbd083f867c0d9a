// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/check_json.h"

#include "batch/json_writer.h"
#include "selfcheck/deviation_texts.h"
#include "selfcheck/self_check_summary.h"

namespace kervol {
namespace {

const char* Verdict_Name(Verdict verdict) {
    if (verdict == Verdict::Agrees) return "agrees";
    return verdict == Verdict::OnPurpose ? "on purpose" : "differs";
}

void Put_Difference(JsonWriter& json, const char* name, const LargestDifference& largest, bool is_residual) {
    json.Key(name);
    json.Begin_Object();
    json.Member("difference", largest.difference);
    json.Member("allowed", largest.allowed);
    json.Member("step", largest.step);
    if (!is_residual) {
        json.Member("tabulated", largest.tabulated);
        json.Member("expected", largest.expected);
    }
    json.End_Object();
}

void Put_Value(JsonWriter& json, const Quantity& quantity, const RowValues& values) {
    const Vec value = quantity.Of(values);
    if (!quantity.is_vector) return json.Value(value.x);
    json.Begin_List();
    json.Value(value.x);
    json.Value(value.y);
    json.End_List();
}

void Put_Steps(JsonWriter& json, const CheckedValue& check, const SelfCheck& result, const char* name,
               RowValues CheckedStep::*of) {
    json.Key(name);
    json.Begin_List();
    int left = check.quantity.needs_forces ? result.steps_with_forces : static_cast<int>(result.steps.size());
    for (const CheckedStep& row : result.steps)
        if (left-- > 0) Put_Value(json, check.quantity, row.*of);
    json.End_List();
}

void Put_Check(JsonWriter& json, const CheckedValue& check, const SelfCheck& result) {
    json.Begin_Object();
    json.Member("name", check.quantity.name);
    json.Member("unit", check.quantity.unit);
    json.Member("verdict", Verdict_Name(check.verdict));
    json.Member("steps_differing", check.steps_differing);
    Put_Difference(json, "from_rule", check.from_rule, check.quantity.is_residual);
    Put_Difference(json, "from_consistent", check.from_consistent, check.quantity.is_residual);
    if (check.verdict != Verdict::Agrees && !check.quantity.is_residual) {
        Put_Steps(json, check, result, "tabulated", &CheckedStep::tabulated);
        Put_Steps(json, check, result, "consistent", &CheckedStep::consistent);
    }
    json.End_Object();
}

void Put_Drive(JsonWriter& json, const char* name, const DriveNeeds& needs) {
    json.Key(name);
    json.Begin_Object();
    json.Member("peak_torque", needs.peak_torque);
    json.Member("peak_step", needs.peak_step);
    json.Member("rms_torque", needs.rms_torque);
    json.Member("mean_torque", needs.mean_torque);
    json.Member("peak_power", needs.peak_power);
    json.Member("mean_power", needs.mean_power);
    json.End_Object();
}

void Put_Deviations(JsonWriter& json, const LinkageModel& model, const SelfCheck& result) {
    json.Key("deviations");
    json.Begin_List();
    for (const DeviationEffect& effect : Applying_Deviations(model, result)) {
        json.Begin_Object();
        json.Member("name", Deviation_Name(effect.deviation));
        json.Member("title", Deviation_Title(effect.deviation));
        json.Member("text", Deviation_Text(effect.deviation, model, result));
        if (result.steps_with_forces > 0) {
            json.Member("torque_change", effect.torque_change);
            json.Member("step", effect.step);
        }
        json.End_Object();
    }
    json.End_List();
}

void Put_Powers(JsonWriter& json, const SelfCheck& result) {
    struct Power {
        const char* name;
        double RowValues::*value;
    };
    for (const Power& power :
         {Power{"drive_power", &RowValues::power}, Power{"kinetic_power", &RowValues::kinetic_power},
          Power{"load_power", &RowValues::load_power}}) {
        json.Key(power.name);
        json.Begin_List();
        for (int i = 0; i < result.steps_with_forces; ++i)
            json.Value(result.steps[static_cast<std::size_t>(i)].consistent.*power.value);
        json.End_List();
    }
}

}  // namespace

std::string Self_Check_Json(const LinkageModel& model, const SelfCheck& result) {
    JsonWriter json;
    json.Begin_Object();
    json.Member("title", model.ModelTitle);
    json.Member("LinkageType", model.LinkageType);
    json.Member("tables_hold", result.Tables_Hold());
    json.Member("complaint", Self_Check_Complaint(result));
    json.Member("steps_with_forces", result.steps_with_forces);
    json.Member("not_assembled", result.not_assembled);
    json.Key("left_out");
    json.Begin_List();
    for (const int step : result.left_out) json.Value(step);
    json.End_List();
    json.Key("steps");
    json.Begin_List();
    for (const CheckedStep& row : result.steps) json.Value(row.step);
    json.End_List();
    Put_Deviations(json, model, result);
    if (result.steps_with_forces > 0) {
        Put_Drive(json, "tabulated_drive", result.tabulated_drive);
        Put_Drive(json, "consistent_drive", result.consistent_drive);
        json.Member("torque_ways_differ", result.torque_ways_differ);
        Put_Powers(json, result);
    }
    json.Key("values");
    json.Begin_List();
    for (const CheckedValue& check : result.checks) Put_Check(json, check, result);
    json.End_List();
    json.End_Object();
    return json.Text() + "\n";
}

}  // namespace kervol
