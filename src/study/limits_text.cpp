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

/// Names of the two links of a stage and of the distance that they span.
struct LoopNames {
    std::string coupler;
    std::string output;
    std::string distance;
};

LoopNames Loop_Names(const LinkageModel& model, int stage) {
    if (stage == 1) return {"link 3", "link 4", "A-O4"};
    return {"link 5", "link 6", model.LinkageType == "S" ? "C-O6" : "D-O6"};
}

std::string Transmission_Text(const Transmission& transmission) {
    return Degrees(transmission.angle) + " deg at " + Crank_Degrees(transmission.crank) + " deg";
}

/// Whether one of the ranges holds all crank angles of the drive.
bool Holds_All(const std::vector<CrankRange>& ranges, const CrankRange& drive) {
    return std::any_of(ranges.begin(), ranges.end(), [&](const CrankRange& range) {
        if (Is_Full_Turn(range)) return true;
        const double turns = std::floor((drive.from - range.from) / kTurn) * kTurn;
        return drive.to - turns <= range.to;
    });
}

/// The drive as it was entered.
std::string Drive_Name(const LinkageModel& model, const CrankRange& drive) {
    if (model.CalcMode == 1) return "The position at " + Plain_Number(model.Theta2One) + " deg";
    if (model.CalcMode == 2) return "The drive over time, " + Degrees(drive.Width()) + " deg of the crank,";
    return "The drive from " + Plain_Number(model.ThetaMinDeg) + " to " + Plain_Number(model.ThetaMaxDeg) +
           " deg";
}

using Warnings = std::vector<std::string>;

void Warn_Of_Range(Warnings& warnings, const LinkageModel& model, const std::vector<CrankRange>& usable) {
    if (!Is_Full_Turn(usable.front())) warnings.emplace_back("The crank cannot make a full turn.");
    const auto drive = Driven_Range(model);
    if (drive && !Holds_All(usable, *drive))
        warnings.push_back(Drive_Name(model, *drive) + " leaves the usable range.");
}

void Warn_Of_Stage(Warnings& warnings, const LinkageModel& model, const StageLimits& found, int stage) {
    const auto drive = Driven_Range(model);
    const std::string name = "Stage " + std::to_string(stage);
    const auto& least = drive ? found.least_driven : found.least;
    if (least && least->angle < kPoorTransmission)
        warnings.push_back("The transmission angle of " + name + " falls to " + Transmission_Text(*least) +
                           "; below " + Plain_Number(kPoorTransmission) +
                           " deg the pin forces grow and play is felt.");
    if (std::any_of(found.obstacles.begin(), found.obstacles.end(),
                    [](const Obstacle& each) { return each.why == Misfit::InLine; }))
        warnings.push_back(name +
                           " passes a position where its links stand in line: it may go on in either "
                           "assembly.");
}

}  // namespace

std::string Obstacle_Text(const LinkageModel& model, const Obstacle& obstacle) {
    const LoopNames names = Loop_Names(model, obstacle.stage);
    const std::string &coupler = names.coupler, &output = names.output;
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
    const auto& usable = limits.stages.back().usable;
    if (usable.empty()) return {"The linkage cannot be assembled at any position of the crank."};
    Warnings warnings;
    Warn_Of_Range(warnings, model, usable);
    int number = 0;
    for (const StageLimits& stage : limits.stages) Warn_Of_Stage(warnings, model, stage, ++number);
    return warnings;
}

std::vector<NamedText> Stage_Lines(const LinkageModel& model, const StageLimits& found, int stage) {
    std::vector<NamedText> lines;
    if (found.usable.empty()) lines.push_back({"Usable", "nowhere"});
    for (const CrankRange& range : found.usable) lines.push_back({"Usable", Range_Text(range)});
    for (const Obstacle& obstacle : found.obstacles) {
        const std::string why = ": " + Obstacle_Text(model, obstacle);
        if (obstacle.why == Misfit::InLine)
            lines.push_back({"Indeterminate", "at " + Crank_Degrees(obstacle.at) + " deg" + why});
        else
            lines.push_back({"Does not close", Range_Text(obstacle.range) + why});
    }
    for (const DeadCentre& dead : found.dead_centres)
        lines.push_back({"Dead centre", "at " + Crank_Degrees(dead.crank) +
                                            " deg: " + Loop_Names(model, stage).output + " turns back at " +
                                            Crank_Degrees(dead.output) + " deg"});
    if (!found.least) return lines;
    lines.push_back({"Acute transmission angle",
                     Transmission_Text(*found.least) + " to " + Transmission_Text(*found.greatest)});
    const auto drive = Driven_Range(model);
    if (found.least_driven && drive && !Is_Full_Turn(*drive))
        lines.push_back({"Least in the drive", Transmission_Text(*found.least_driven)});
    return lines;
}

std::string Limits_Text(const LinkageModel& model, const Limits& limits) {
    std::ostringstream out;
    out << (model.ModelTitle.empty() ? model.ModelName : model.ModelTitle)
        << "\n\nCrank angles as entered, in degrees. The transmission angle is the acute one between coupler "
           "and output.\n";
    int number = 0;
    for (const StageLimits& stage : limits.stages) {
        out << "\nStage " << ++number << '\n';
        for (const NamedText& line : Stage_Lines(model, stage, number))
            out << "  " << std::left << std::setw(kLabelWidth) << line.name << line.text << '\n';
    }
    if (!limits.warnings.empty()) out << "\nHeed\n";
    for (const std::string& warning : limits.warnings) out << "  " << warning << '\n';
    return out.str();
}

}  // namespace kervol
