// SPDX-License-Identifier: GPL-3.0-or-later
#include "selfcheck/deviation_texts.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/arithmetic.h"
#include "core/number_text.h"

namespace kervol {
namespace {

bool Is_Solved(const SelfCheck& result) {
    return result.steps_with_forces > 0;
}

bool Any(const LinkArray& array) {
    return std::any_of(array.begin(), array.end(), [](float value) { return !Is_Zero(value); });
}

/// "Omega6 at step 3 is 4.1 rad/sec in the tables and 4.3 consistently."
std::string Largest_Text(const SelfCheck& result, std::string_view name) {
    const CheckedValue* check = Find_Check(result, name);
    if (check == nullptr) return {};
    const LargestDifference& largest = check->from_consistent;
    if (check->verdict == Verdict::Agrees) return " " + std::string(name) + " shows no difference.";
    return " " + std::string(name) + " differs most at step " + std::to_string(largest.step) + ": tables " +
           Four_Digits(largest.tabulated) + ", consistent " + Four_Digits(largest.expected) + " " +
           check->quantity.unit +
           (check->quantity.is_vector
                ? " (sizes), which lie " + Four_Digits(largest.difference) + " apart as vectors."
                : ".");
}

std::string Speeds_Text(const LinkageModel&, const SelfCheck& result) {
    return "In the speed equations of a Stephenson chain link 6 enters along x with the opposite sign, so "
           "Omega5, Omega6 and what follows from them are not the rates of the tabulated angles, and the "
           "accelerations of Stage 2 are solved with these speeds." +
           Largest_Text(result, "Omega6") + Largest_Text(result, "Alpha6") +
           " Tabulated speeds grow without limit where Theta5 plus Theta6, both from the ground link, come "
           "to "
           "a multiple of 180 degrees; the sine of that sum is least at step " +
           std::to_string(result.least_speed_step) + ", with " + Four_Digits(result.least_speed_sine) + ".";
}

std::string Alpha_Text(const LinkageModel& model, const SelfCheck& result) {
    const double given = model.CalcMode == 3 ? 0 : double(model.Alpha2Const);
    return "The drive turns the crank with an acceleration of " + Four_Digits(given) +
           " rad/sec^2; the accelerations are solved with " + Four_Digits(model.Alpha2) + "." +
           Largest_Text(result, "Alpha6");
}

std::string Link5_Text(const LinkageModel& model, const SelfCheck& result) {
    const std::string pin = model.LinkageType == "W" ? "D" : "C";
    return "Velocity and acceleration of this point are taken as if pin " + pin +
           ", from which it is measured, stood still; that of " + pin + " is left out." +
           Largest_Text(result, "Accel CG 5");
}

std::string ArmD_Text(const LinkageModel& model, const SelfCheck& result) {
    const std::string& unit = model.UnitText(6);
    return "In the moments on link 4 the force of link 5 is given an arm of Link6 = " +
           Plain_Number(model.Link6) + " " + unit + "; pin D lies at O4-D = " + Plain_Number(model.LinkO4D) +
           " " + unit + "." + Largest_Text(result, "Force 14");
}

std::string ArmC_Text(const LinkageModel& model, const SelfCheck& result) {
    return "In the moments on link 3 the force of link 5 is given an arm along link 3; pin C lies " +
           Plain_Number(model.Delta3Deg) + " degrees off that line, " + Plain_Number(model.CouplerAC) + " " +
           model.UnitText(6) + " from A." + Largest_Text(result, "Force 14");
}

std::string Friction_Text(const LinkageModel& model, const SelfCheck&) {
    return "Friction at the coupler points (" + Plain_Number(model.LinkFriction(3)) + " on link 3, " +
           Plain_Number(model.LinkFriction(5)) + " " + model.UnitText(10) +
           " on link 5) acts as a force through the centre of gravity: its moment about that point is left "
           "out.";
}

std::string Frame_Text(const LinkageModel& model, const SelfCheck&) {
    return "Directions of external forces count from the ground link O2-O4, which lies at " +
           Plain_Number(model.GroundAngleDeg) +
           " degrees. The consistent values take them as global angles, as the screen calls them. If you "
           "have "
           "entered them from the ground link, the tables are right and the rest of this difference is not.";
}

std::string Transmission_Text(const LinkageModel&, const SelfCheck& result) {
    return "Transmission angles are differences of tabulated angles. That of Stage 1 is folded at 90 degrees "
           "only after the value that its row held before; that of Stage 2 once, though its angles may lie "
           "more than 270 degrees apart. The consistent one is the acute angle between the "
           "two links, 0 to 90 degrees." +
           Largest_Text(result, "Trans Ang-1") + Largest_Text(result, "Trans Ang-2");
}

struct DeviationEntry {
    Deviation deviation;
    std::string_view name, title;
    std::string (*text)(const LinkageModel& model, const SelfCheck& result);
    bool (*applies)(const LinkageModel& model, const SelfCheck& result);
};

constexpr std::array<DeviationEntry, NumDeviations> kEntries = {{
    {Deviation::Stage2Speeds, "Stage2Speeds", "Speeds of Stage 2", Speeds_Text,
     [](const LinkageModel& m, const SelfCheck&) { return m.LinkageType == "S"; }},
    {Deviation::CrankAlpha, "CrankAlpha", "Acceleration of the crank", Alpha_Text,
     [](const LinkageModel& m, const SelfCheck&) {
         return m.CalcMode >= 1 && m.CalcMode <= 3 &&
                !Is_Same(m.Alpha2, m.CalcMode == 3 ? 0 : double(m.Alpha2Const));
     }},
    {Deviation::Link5CG, "Link5CG", "Centre of gravity of link 5", Link5_Text,
     [](const LinkageModel&, const SelfCheck& r) { return Is_Solved(r); }},
    {Deviation::ArmOfD, "ArmOfD", "Arm of the force at D", ArmD_Text,
     [](const LinkageModel& m, const SelfCheck& r) {
         return Is_Solved(r) && m.LinkageType == "W" && !Is_Same(m.Link6, m.LinkO4D);
     }},
    {Deviation::ArmOfC, "ArmOfC", "Arm of the force at C", ArmC_Text,
     [](const LinkageModel& m, const SelfCheck& r) {
         return Is_Solved(r) && m.LinkageType == "S" && !Is_Zero(m.Delta3) && !Is_Zero(m.CouplerAC);
     }},
    {Deviation::FrictionArm, "FrictionArm", "Moment of friction", Friction_Text,
     [](const LinkageModel& m, const SelfCheck& r) {
         return Is_Solved(r) && !(Is_Zero(m.LinkFriction(3)) && Is_Zero(m.LinkFriction(5)));
     }},
    {Deviation::ForceFrame, "ForceFrame", "Directions of external forces", Frame_Text,
     [](const LinkageModel& m, const SelfCheck& r) {
         return Is_Solved(r) && !Is_Zero(m.GroundAngleDeg) && Any(m.ForceMag);
     }},
    {Deviation::Transmission, "Transmission", "Transmission angles", Transmission_Text,
     [](const LinkageModel&, const SelfCheck& r) {
         return std::any_of(r.checks.begin(), r.checks.end(), [](const CheckedValue& check) {
             return check.quantity.name.starts_with("Trans Ang") && check.verdict == Verdict::OnPurpose;
         });
     }},
}};

constexpr bool Are_In_Order() {
    for (std::size_t i = 0; i < kEntries.size(); ++i)
        if (kEntries[i].deviation != AllDeviations[i]) return false;
    return true;
}
static_assert(Are_In_Order());

const DeviationEntry& Entry_Of(Deviation deviation) {
    return kEntries.at(static_cast<std::size_t>(deviation));
}

}  // namespace

std::string Four_Digits(double value) {
    return Short_Number(value, 4);
}

std::string_view Deviation_Name(Deviation deviation) {
    return Entry_Of(deviation).name;
}

std::string_view Deviation_Title(Deviation deviation) {
    return Entry_Of(deviation).title;
}

bool Applies(Deviation deviation, const LinkageModel& model, const SelfCheck& result) {
    return Entry_Of(deviation).applies(model, result);
}

std::vector<DeviationEffect> Applying_Deviations(const LinkageModel& model, const SelfCheck& result) {
    std::vector<DeviationEffect> applying;
    for (const DeviationEffect& effect : result.effects)
        if (Applies(effect.deviation, model, result)) applying.push_back(effect);
    return applying;
}

std::string Deviation_Text(Deviation deviation, const LinkageModel& model, const SelfCheck& result) {
    return Entry_Of(deviation).text(model, result);
}

std::string Effect_Text(const DeviationEffect& effect, const LinkageModel& model, const SelfCheck& result) {
    if (!Is_Solved(result) || effect.deviation == Deviation::Transmission) return {};
    if (effect.step < 0) return "The driving torque does not depend on it.";
    const double peak = std::abs(result.consistent_drive.peak_torque);
    std::string text = "By itself it changes the driving torque by up to " +
                       Four_Digits(std::abs(effect.torque_change)) + " " + model.UnitText(9) + ", at step " +
                       std::to_string(effect.step);
    if (!Is_Zero(peak))
        text += ", which is " + Four_Digits(100 * std::abs(effect.torque_change) / peak) +
                " % of the consistent peak";
    return text + ".";
}

const CheckedValue* Find_Check(const SelfCheck& result, std::string_view name) {
    const auto found = std::find_if(result.checks.begin(), result.checks.end(),
                                    [&](const CheckedValue& check) { return check.quantity.name == name; });
    return found == result.checks.end() ? nullptr : &*found;
}

}  // namespace kervol
