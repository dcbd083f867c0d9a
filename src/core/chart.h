// SPDX-License-Identifier: GPL-3.0-or-later
// A chart as a store of properties: what plots put into it and what a toolkit draws. It scales its axes
// itself.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "core/controls.h"

namespace kervol {

/// One curve.
struct ChartSet {
    std::string LegendText;
    bool PatternedLines{};       ///< draw with the pattern, else solid
    std::int16_t PatternData{};  ///< number of the line pattern, from 0
    bool ThickLines{};
    std::vector<float> GraphData;  ///< y by point
    std::vector<float> XPosData;   ///< x by point; of a polar chart alone
    bool filled{};                 ///< values were put into it; a set without them is not drawn

    bool operator==(const ChartSet&) const = default;
};

/// Style of one part of the chart's texts.
struct ChartFont {
    std::int16_t FontSize = 100;  ///< percent of the usual size
    std::int16_t FontStyle{};
    std::int16_t FontFamily{};

    bool operator==(const ChartFont&) const = default;
};

/// Codes of `FontUse`: which texts a font is for.
namespace font_use {
inline constexpr std::int16_t GraphTitle = 0;
inline constexpr std::int16_t OtherTexts = 4;
}  // namespace font_use

/// Codes of `background`.
namespace chart_background {
inline constexpr std::int16_t Tinted = 1;
inline constexpr std::int16_t White = 15;
}  // namespace chart_background

/// All that is drawn of a chart.
struct ChartLook {
    std::int16_t DrawMode{};      ///< 2 once it has been loaded
    std::int16_t GridStyle{};     ///< 1 horizontal lines, 2 vertical ones, 3 both
    std::int16_t GraphStyle{};    ///< 2 lines, 4 sticks or fills, 6 both; 0 as 2
    bool sticks{};                ///< styles 4 and 6 draw a stick at each point, else they fill down to 0
    bool polar{};                 ///< a point stands at (`XPosData`, `GraphData`)
    std::int16_t TickEvery = 1;   ///< points from tick to tick
    std::int16_t LabelEvery = 1;  ///< points from label to label
    std::int16_t background = chart_background::White;
    std::string GraphTitle, BottomTitle;
    std::array<ChartFont, 5> fonts;      ///< by code of `font_use`
    std::vector<std::string> LabelText;  ///< x label by point
    std::vector<ChartSet> sets;          ///< `NumSets` of them, `NumPoints` points each

    bool operator==(const ChartLook&) const = default;
};

/// The control. Sets and points are counted from 1; `ThisSet` and `ThisPoint` say which one is meant.
class Chart : public Control {
  public:
    Chart();

    ChartLook look;
    Event click;

    std::int16_t ThisSet = 1;
    std::int16_t ThisPoint = 1;
    std::int16_t FontUse = font_use::GraphTitle;

    /// Sets and points that stay keep their values, new ones are empty and 0. Fault 5 for a number below 1.
    void Put_NumSets(int count);
    void Put_NumPoints(int count);
    int NumSets() const { return static_cast<int>(look.sets.size()); }
    int NumPoints() const { return static_cast<int>(look.LabelText.size()); }
    /// Empties the labels and puts all values to 0; numbers of sets and points stay.
    void Clear_Data();

    /// Of `ThisSet`, `ThisPoint`; fault 9 where there is none.
    void Put_GraphData(float y);
    void Put_XPosData(float x);
    void Put_LabelText(std::string text);
    /// The set `ThisSet`; fault 9 where there is none.
    ChartSet& Set();
    /// The font of `FontUse`; fault 9 where there is none.
    ChartFont& Font();
};

}  // namespace kervol
