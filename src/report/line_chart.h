// SPDX-License-Identifier: GPL-3.0-or-later
// Charts as SVG elements of a page: axes with round ticks, a grid, a legend. Colours and dashes are classes
// of the page's style, `c1` to `c6`, so that a chart follows the page into the dark and onto paper.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kervol {

struct Curve {
    std::string name;
    /// One for each abscissa; nothing leaves a gap.
    std::vector<std::optional<double>> values;
};

enum class ChartKind { Lines, Bars };

struct LineChart {
    std::string title;
    std::string x_label, y_label;
    std::vector<double> abscissae;
    std::vector<Curve> curves;  ///< up to six; of bars the first alone
    ChartKind kind = ChartKind::Lines;
    bool turns_x = false;  ///< abscissae are degrees: ticks at parts of a turn
    bool turns_y = false;  ///< values are degrees of directions: a jump by more than half a turn is a gap
};

std::string Chart_Svg(const LineChart& chart);

/// Round numbers within a range, apart by 1, 2 or 5 times a power of ten, or by 15, 30, 45 ... where degrees
/// of a turn are meant; at most `count` of them.
struct Ticks {
    double first, step;
    int count;

    double Value(int i) const { return first + i * step; }
};
Ticks Round_Ticks(double low, double high, int count, bool turns);

}  // namespace kervol
