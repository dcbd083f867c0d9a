// SPDX-License-Identifier: GPL-3.0-or-later
// How far the crank of a linkage can be turned: usable ranges, what stands in the way beyond them, dead
// centres, and how good the transmission is.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/model.h"
#include "core/named_text.h"

namespace kervol {

/// Crank angles in degrees, user frame, counterclockwise: `from` is 0 to below 360, `to` at most a turn on.
/// The ends are full hundredths of a degree on the usable side.
struct CrankRange {
    double from, to;

    double Width() const { return to - from; }
};

/// Why a loop does not close.
enum class Misfit {
    TooShort,  ///< coupler and output together do not span the distance between their far ends
    TooLong,   ///< one is longer than the other by more than that distance
    InLine,    ///< the links stand in line or a rate has no value: at this very angle alone
};

/// A range of the crank over which a stage does not close.
struct Obstacle {
    int stage;  ///< 1 or 2
    Misfit why;
    CrankRange range;
    double reach;     ///< sum or difference of the two lengths
    double distance;  ///< that which is farthest from the reach
    double at;        ///< crank angle of that distance
};

/// A crank position at which the output link of a stage stands still and turns back.
struct DeadCentre {
    double crank;   ///< degrees, user frame, 0 to below 360
    double output;  ///< angle of link 4 or 6, degrees, user frame, 0 to below 360
};

/// The acute angle between coupler and output, 0 to 90 degrees, and the crank angle of it.
struct Transmission {
    double angle;
    double crank;
};

struct StageLimits {
    std::vector<CrankRange> usable;  ///< this stage and the one before it close
    std::vector<Obstacle> obstacles;
    std::vector<DeadCentre> dead_centres;
    std::optional<Transmission> least, greatest;  ///< over the usable ranges
    std::optional<Transmission> least_driven;     ///< over the part of them that the drive of the model takes
};

struct Limits {
    std::vector<StageLimits> stages;    ///< Stage 1, and Stage 2 of a chain that has one
    std::vector<std::string> warnings;  ///< what a designer should heed, each one sentence
};

/// Tries all positions of the crank in the assembly of the open signs, with the very solution that
/// `Calculate` uses. Raises the fault of a model that has none at any position (a length of 0).
Limits Find_Limits(const LinkageModel& model);

/// Whether the range is all that the crank can turn.
bool Is_Full_Turn(const CrankRange& range);
/// Whether a crank angle lies in the range, whatever the turn.
bool Holds(const CrankRange& range, double crank);

/// The crank angles that the drive of the model takes, not rounded; nothing where the drive is imported,
/// whose positions are no part of the model.
std::optional<CrankRange> Driven_Range(const LinkageModel& model);

/// What a designer should heed in limits whose other members are complete.
std::vector<std::string> Limit_Warnings(const LinkageModel& model, const Limits& limits);

/// An obstacle in words, without its range: "links 3 and 4 together, 15.625 in, are too short for ...".
std::string Obstacle_Text(const LinkageModel& model, const Obstacle& obstacle);

/// What was found of a stage, 1 or 2, line by line.
std::vector<NamedText> Stage_Lines(const LinkageModel& model, const StageLimits& found, int stage);

/// The whole as lines of text.
std::string Limits_Text(const LinkageModel& model, const Limits& limits);

}  // namespace kervol
