// SPDX-License-Identifier: GPL-3.0-or-later
// The linkage as SVG that moves by itself, without scripts: links, pins and coupler points run through the
// rows, paths and pivots stand.
#pragma once

#include <array>
#include <string>

#include "animation/fitted_view.h"
#include "animation/real_time.h"

namespace kervol {

enum class SvgUse {
    File,  ///< a whole file on a white ground
    Page,  ///< an element of a page, whose ground and colour of text it takes
};

/// One `svg` element; `size` is its longer side in pixels. A cycle of one row stands still; one without rows
/// shows the pivots alone.
std::string Moving_Svg(const Program& program, const TimedCycle& cycle, int size, SvgUse use);

/// Parts of such pictures. Coordinates are pixels of the view.

/// The opening tag of a picture of that size, its title and, for a file, its white ground.
std::string Svg_Start(const FittedView& view, const std::string& title, SvgUse use);
/// Both coupler paths, each in its colour; `attributes` go to all of them.
std::string Svg_Paths(const Program& program, const FittedView& view, const std::array<Colour, 2>& colours,
                      const std::string& attributes = "");
/// The fixed pivots with their signs and names, of a cam drive the cam too.
std::string Svg_Pivots(const LinkageModel& model, const FittedView& view);
/// "x,y x,y ...": the corners of a link.
std::string Svg_Corners(const LinkShape& shape, const FittedView& view);

}  // namespace kervol
