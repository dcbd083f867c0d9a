// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of tests on plots: the functions of the tables' tests, pictures that keep what was drawn and may
// refuse a window, and drawings compared number by number.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <vector>

#include "catalogue/table_fixture.h"
#include "core/colours.h"
#include "headless/recording_picture.h"

#include <gtest/gtest.h>

namespace kervol {

/// Modes or counts to try one after another.
using Int16List = std::initializer_list<std::int16_t>;

/// A picture whose scale can be made to fail.
class FailingPicture : public RecordingPicture {
  public:
    void Set_Scale(double left, double top, double right, double bottom) override {
        if (failure) Raise(*failure);
        RecordingPicture::Set_Scale(left, top, right, bottom);
    }

    std::optional<std::int32_t> failure;
};

class PlotTest : public TableTest {
  protected:
    using Kind = Drawn::Kind;

    static constexpr Colour kBlack = {0, 0, 0}, kBlue = {0, 0, 255}, kGreen = {0, 255, 0};

    PlotTest() {
        model.Omega2 = 10;
        model.ThetaMinDeg = 0;
        model.ThetaMaxDeg = 360;
        model.TimeEnd = 10;
    }

    /// As the selection screens do with these functions in slots 1, 2, ...
    void Choose_Plots(std::initializer_list<SlotBoxes> choice) {
        Choose(choice);
        selections.SelCount = static_cast<std::int16_t>(choice.size());
    }
    void Choose_Spectrum_Plots() {
        Choose_Spectrum();
        selections.SelCount = 4;
    }

    static Drawn Black(double x1, double y1, double x2, double y2) {
        return {Kind::Line, x1, y1, x2, y2, kBlack};
    }
    static Drawn Line(double x1, double y1, double x2, double y2, Colour colour) {
        return {Kind::Line, x1, y1, x2, y2, colour};
    }
    static Drawn Point(double x, double y, Colour colour) { return {Kind::Point, x, y, 0, 0, colour}; }
    static Drawn Scale(double left, double top, double right, double bottom) {
        return {Kind::Scale, left, top, right, bottom};
    }

    /// The same strokes in the same order. Numbers may differ by the roundings of single precision, in which
    /// limits and samples are kept.
    static void Expect_Drawn(const std::vector<Drawn>& drawn, const std::vector<Drawn>& expected) {
        ASSERT_EQ(drawn.size(), expected.size());
        for (std::size_t i = 0; i < drawn.size(); ++i) {
            SCOPED_TRACE("stroke " + std::to_string(i));
            EXPECT_EQ(drawn[i].kind, expected[i].kind);
            EXPECT_EQ(drawn[i].colour, expected[i].colour);
            Expect_Close(drawn[i].x1, expected[i].x1);
            Expect_Close(drawn[i].y1, expected[i].y1);
            Expect_Close(drawn[i].x2, expected[i].x2);
            Expect_Close(drawn[i].y2, expected[i].y2);
        }
    }
    static void Expect_Close(double actual, double expected) {
        EXPECT_NEAR(actual, expected, 2e-6 * std::max(1e-2, std::abs(expected)));
    }
    static void Append(std::vector<Drawn>& drawn, const std::vector<Drawn>& more) {
        drawn.insert(drawn.end(), more.begin(), more.end());
    }

    Selections& selections = program->selections;
    PlotState& plots = program->plots;
};

}  // namespace kervol
