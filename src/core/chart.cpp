// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/chart.h"

#include <algorithm>
#include <utility>

#include "core/fault.h"

namespace kervol {
namespace {

template <class Values>
auto& Entry(Values& values, std::int16_t number) {
    if (number < 1 || static_cast<std::size_t>(number) > values.size()) Raise(9);
    return values[static_cast<std::size_t>(number) - 1];
}

std::size_t Count(int count) {
    if (count < 1) Raise(5);
    return static_cast<std::size_t>(count);
}

}  // namespace

Chart::Chart() {
    Put_NumSets(1);
    Put_NumPoints(1);
}

void Chart::Put_NumSets(int count) {
    ChartSet empty;
    empty.GraphData.resize(look.LabelText.size());
    empty.XPosData.resize(look.LabelText.size());
    look.sets.resize(Count(count), empty);
}

void Chart::Put_NumPoints(int count) {
    const std::size_t points = Count(count);
    look.LabelText.resize(points);
    for (ChartSet& set : look.sets) {
        set.GraphData.resize(points);
        set.XPosData.resize(points);
    }
}

void Chart::Clear_Data() {
    std::fill(look.LabelText.begin(), look.LabelText.end(), std::string());
    for (ChartSet& set : look.sets) {
        std::fill(set.GraphData.begin(), set.GraphData.end(), 0.0F);
        std::fill(set.XPosData.begin(), set.XPosData.end(), 0.0F);
        set.filled = false;
    }
}

void Chart::Put_GraphData(float y) {
    Entry(Set().GraphData, ThisPoint) = y;
    Set().filled = true;
}

void Chart::Put_XPosData(float x) {
    Entry(Set().XPosData, ThisPoint) = x;
}

void Chart::Put_LabelText(std::string text) {
    Entry(look.LabelText, ThisPoint) = std::move(text);
}

ChartSet& Chart::Set() {
    return Entry(look.sets, ThisSet);
}

ChartFont& Chart::Font() {
    if (FontUse < 0 || static_cast<std::size_t>(FontUse) >= look.fonts.size()) Raise(9);
    return look.fonts[static_cast<std::size_t>(FontUse)];
}

}  // namespace kervol
