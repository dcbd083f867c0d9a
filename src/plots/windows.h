// SPDX-License-Identifier: GPL-3.0-or-later
// World windows, axes and ticks of the plots that the program draws itself. World y runs upward. All lines
// are black.
#pragma once

#include <cstdint>
#include <string>

#include "core/program.h"
#include "core/table.h"

namespace kervol {

/// Room that the window of a stacked plot leaves around its data.
struct PlotMargins {
    std::int16_t plots;  ///< `PlotCount`
    double left, right;  ///< in ranges of the abscissa
    double top, bottom;  ///< of the window, in limits

    /// Where a part of the range stands between the picture's left edge and its right one.
    double Across(double part) const { return (left + part) / (1 + left + right); }
    /// Where a multiple of the limit stands between the picture's top and its bottom.
    double Down(double limits) const { return (top - limits) / (top + bottom); }
};
/// Of 2 or 4 plots; nothing for any other number.
const PlotMargins* Margins_Of(std::int16_t plots);

/// Clears the picture and sets the window of one of 2 or 4 stacked plots (`PlotCount`): the range from Xlo to
/// Xhi and twice the limit, with room for the labels. A limit of 0 becomes 0.0001. `base` becomes the sum of
/// both y bounds. A window that the picture refuses sets `WindowFailed`, with a warning that names the
/// function; it is clear otherwise.
void SetWindow(Program& program, Picture& picture, float& limit, float Xlo, float Xhi,
               const std::string& function, float& base);

/// The same for a polar plot: twice the limit both ways. Does not clear the picture.
void SetPolarWindow(Program& program, Picture& picture, float& limit, const std::string& function,
                    float& base);

/// Largest absolute value of data(first) to data(last).
void CartesianMax(Program& program, const Table<float, StepRows>& data, std::int16_t first, std::int16_t last,
                  float& result);

/// The x axis at y = 0; the y axis at Xlo.
void CartesianAxes(Program& program, Picture& picture, float limit, float Xlo, float Xhi);
void PolarAxes(Program& program, Picture& picture, float limit);

/// 24 ticks from Xlo on and one at Xhi, which may lie below it.
void XticMarks(Program& program, Picture& picture, float limit, float Xlo, float Xhi);
/// From -limit to one division beyond the limit.
void YticMarks(Program& program, Picture& picture, float limit, int divisions, float Xlo, float Xhi);
/// Of each value one tick on the horizontal axis, then one on the vertical one.
void PolarTicmarks(Program& program, Picture& picture, float limit, int divisions);

/// The three quarter marks within the range, and Xhi.
void Vertical_lines(Program& program, Picture& picture, float limit, float Xlo, float Xhi);

}  // namespace kervol
