// SPDX-License-Identifier: GPL-3.0-or-later
// The limits of a linkage in words.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <iomanip>
#include <sstream>
#include <string>
#include <vector>

#include "core/number_text.h"
#include "study/limits.h"

namespace kervol {
namespace {

constexpr int kLabelWidth = 26;
constexpr double kTurn = 360;
/// Below this designers look for another linkage: the pins carry several times the useful force.
constexpr double kPoorTransmission = 40;

std::string Fixed(double value, int decimals) {
    std::array<char, 64> text;
    const int length = std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
    return {text.data(), static_cast<std::size_t>(length)};
}

std::string Degrees(double value) {
    return Fixed(value, 2);
}

/// An angle within the turn, so that 359.996 is not shown as 360.00.
std::string Crank_Degrees(double value) {
    const double rounded = std::round(value * 100) / 100;
    return Degrees(rounded >= kTurn ? rounded - kTurn : rounded);
}

std::string Range_Text(const CrankRange& range) {
    if (Is_Full_Turn(range)) return "a full turn";
    return Degrees(range.from) + " to " + Crank_Degrees(range.to) + " deg" +
           (range.to >= kTurn ? " over 0" : "") + ", " + Degrees(range.Width()) + " deg wide";
}

std::string Length_Text(const LinkageModel& model, double length) {
    return Fixed(length, 3) + " " + model.UnitText(6);
}

/// Whether one of the ranges holds all crank angles between two.
bool Holds_Drive(const std::vector<CrankRange>& ranges, double low, double high) {
    return std::any_of(ranges.begin(), ranges.end(), [&](const CrankRange& range) {
        if (Is_Full_Turn(range)) return true;
        const double turns = std::floor((low - range.from) / kTurn) * kTurn;
        return high - turns <= range.to;
    });
}

void Put_Line(std::ostream& out, const std::string& label, const std::string& value) {
    out << "  " << std::left << std::setw(kLabelWidth) << label << value << '\n';
}

void Put_Stage(std::ostream& out, const LinkageModel& model, const StageLimits& stage, int number) {
    const LoopNames names = Loop_Names(model, number);
    out << "\nStage " << number << '\n';
    if (stage.usable.empty()) Put_Line(out, "Usable", "nowhere");
    for (const CrankRange& range : stage.usable) Put_Line(out, "Usable", Range_Text(range));
    for (const Obstacle& obstacle : stage.obstacles)
        Put_Line(out, obstacle.why == Misfit::InLine ? "Indeterminate" : "Does not close",
                 obstacle.why == Misfit::InLine
                     ? "at " + Crank_Degrees(obstacle.at) + " deg: " + Obstacle_Text(model, obstacle)
                     : Range_Text(obstacle.range) + ": " + Obstacle_Text(model, obstacle));
    for (const DeadCentre& dead : stage.dead_centres)
        Put_Line(out, "Dead centre",
                 "at " + Crank_Degrees(dead.crank) + " deg: " + names.output + " turns back at " +
                     Crank_Degrees(dead.output) + " deg");
    if (stage.least)
        Put_Line(out, "Transmission angle",
                 Degrees(stage.least->angle) + " deg at " + Crank_Degrees(stage.least->crank) + " deg to " +
                     Degrees(stage.greatest->angle) + " deg at " + Crank_Degrees(stage.greatest->crank) +
                     " deg");
}

}  // namespace

LoopNames Loop_Names(const LinkageModel& model, int stage) {
    if (stage == 1) return {"link 3", "link 4", "A-O4"};
    return {"link 5", "link 6", model.LinkageType == "S" ? "C-O6" : "D-O6"};
}

std::string Obstacle_Text(const LinkageModel& model, const Obstacle& obstacle) {
    const LoopNames names = Loop_Names(model, obstacle.stage);
    const std::string coupler = names.coupler, output = names.output;
    const std::string reach = Length_Text(model, obstacle.reach);
    const std::string extreme =
        Length_Text(model, obstacle.distance) + " at " + Crank_Degrees(obstacle.at) + " deg";
    switch (obstacle.why) {
        case Misfit::TooShort:
            return coupler + " and " + output + " together, " + reach + ", are too short for the distance " +
                   names.distance + ", which grows to " + extreme;
        case Misfit::TooLong: {
            const bool coupler_longer =
                obstacle.stage == 1 ? model.Link3 > model.Link4 : model.Link5 > model.Link6;
            return (coupler_longer ? coupler : output) + " is too long: it exceeds " +
                   (coupler_longer ? output : coupler) + " by " + reach + ", the distance " + names.distance +
                   " falls to " + extreme;
        }
        case Misfit::InLine:
            break;
    }
    return "the links of the stage stand in line";
}

std::vector<std::string> Limit_Warnings(const LinkageModel& model, const Limits& limits) {
    std::vector<std::string> warnings;
    const auto& usable = limits.stages.back().usable;
    if (usable.empty()) return {"The linkage cannot be assembled at any position of the crank."};
    if (!Is_Full_Turn(usable.front())) warnings.emplace_back("The crank cannot make a full turn.");
    if (model.CalcMode == 3 && !Holds_Drive(usable, model.ThetaMinDeg, model.ThetaMaxDeg))
        warnings.push_back("The drive from " + Plain_Number(model.ThetaMinDeg) + " to " +
                           Plain_Number(model.ThetaMaxDeg) + " deg leaves the usable range.");
    if (model.CalcMode == 1 && !Holds_Drive(usable, model.Theta2One, model.Theta2One))
        warnings.push_back("The position at " + Plain_Number(model.Theta2One) +
                           " deg is outside the usable range.");
    int number = 0;
    for (const StageLimits& stage : limits.stages) {
        ++number;
        if (stage.least && stage.least->angle < kPoorTransmission)
            warnings.push_back("The transmission angle of Stage " + std::to_string(number) + " falls to " +
                               Degrees(stage.least->angle) + " deg; below " +
                               Plain_Number(kPoorTransmission) +
                               " deg the pin forces grow and play is felt.");
        const bool in_line = std::any_of(stage.obstacles.begin(), stage.obstacles.end(),
                                         [](const Obstacle& o) { return o.why == Misfit::InLine; });
        if (in_line)
            warnings.push_back("Stage " + std::to_string(number) +
                               " passes a position where its links stand in line: it may go on in either "
                               "assembly.");
    }
    return warnings;
}

std::string Limits_Text(const LinkageModel& model, const Limits& limits) {
    std::ostringstream out;
    out << (model.ModelTitle.empty() ? model.ModelName : model.ModelTitle)
        << "\n\nCrank angles as entered, in degrees. The transmission angle is the acute one between coupler "
           "and "
           "output.\n";
    int number = 0;
    for (const StageLimits& stage : limits.stages) Put_Stage(out, model, stage, ++number);
    if (!limits.warnings.empty()) out << "\nHeed\n";
    for (const std::string& warning : limits.warnings) out << "  " << warning << '\n';
    return out.str();
}

}  // namespace kervol
