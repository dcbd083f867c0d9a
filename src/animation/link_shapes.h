// SPDX-License-Identifier: GPL-3.0-or-later
// The linkage as shapes in the user frame, for pictures and drawings that leave the program.
#pragma once

#include <cstdint>
#include <vector>

#include "animation/frame.h"

namespace kervol {

/// A link as the polygon of its joints and coupler point; two corners are a bar.
struct LinkShape {
    int link;
    std::vector<UserPoint> corners;
};

/// Links 2 to 6 at a step, of a chain without Stage 2 links 2 to 4. Under a cam drive link 2 has the end of
/// the roller's arm as its last corner.
std::vector<LinkShape> Link_Shapes(const Program& program, std::int16_t step);

/// The moving joints at a step, each once.
std::vector<UserPoint> Moving_Joints(const Program& program, std::int16_t step);

/// O2, O4 and, where there is a Stage 2, O6.
std::vector<UserPoint> Fixed_Pivots(const LinkageModel& model);

using Path = std::vector<UserPoint>;

/// The path of coupler point 1 or 2 in runs of steps that assembled; a chain without Stage 2 has no point 2.
std::vector<Path> Coupler_Path(const Program& program, int coupler_point);

/// Bounds of all that is seen in the whole motion, pivots and cam included.
struct Extent {
    double left, bottom, right, top;

    double Width() const { return right - left; }
    double Height() const { return top - bottom; }
    void Widen(double x, double y);
};
Extent Motion_Extent(const Program& program);

}  // namespace kervol
