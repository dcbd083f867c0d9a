// SPDX-License-Identifier: GPL-3.0-or-later
// One number that a sweep is judged by: the greatest speed of a link, the length of a dwell.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/program.h"
#include "kinematics/depth.h"

namespace kervol {

/// What has to be computed beside the motion.
enum class Scope { Motion, Forces, Flywheel };

class Measure {
  public:
    /// Takes "KIND(FUNCTION)" or "KIND(FUNCTION:COMPONENT)", of a dwell "dwell(FUNCTION, TOLERANCE UNIT)",
    /// for the names of functions and units of that program. Names stand in quotes where they hold a comma.
    /// Returns what is wrong with it, empty if nothing is.
    std::string Parse(const std::string& text, const Program& program);

    const std::string& Text() const { return text_; }
    /// What the sweep has to yield.
    Depth Needed_Depth() const;
    Scope Needed_Scope() const;

    /// The measure of the tables, steps 0 to `NumSteps`, in the unit of the function; of a dwell in degrees
    /// of the crank. Uses selection 1. `series` is a place to work in. Raises the faults of
    /// `Select_Variable`.
    float Of(Program& program, std::vector<float>& series) const;

  private:
    enum class Kind { max, min, range, mean, rms, peak, dwell };
    struct KindName;

    std::string Parse_Function(const std::string& text, const Program& program);
    std::string Parse_Tolerance(const std::string& text, const Program& program);
    bool Is_Angle() const;

    std::string text_;
    Kind kind_ = Kind::max;
    std::int16_t number_ = 0;  ///< catalogue row
    std::int16_t component_ = 0;
    double tolerance_ = 0;
};

}  // namespace kervol
