// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of the tests that draw: a linkage whose rows were made up by hand, a picture that records, and
// words for what must stand in it.
#pragma once

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <ostream>
#include <vector>

#include "animation/linkage_drawing.h"
#include "animation/stepping.h"
#include "animation/surroundings.h"
#include "headless/recording_picture.h"
#include "support/program_test.h"

namespace kervol {

/// A point of the picture, whose y axis points down.
struct At {
    double x, y;
};

/// Values of `CalcMode`.
using Modes = std::initializer_list<std::int16_t>;

inline void PrintTo(const Drawn& drawn, std::ostream* out) {
    static constexpr const char* kKinds[] = {"Clear", "Scale", "Background", "Line", "Circle", "Point"};
    *out << kKinds[static_cast<int>(drawn.kind)] << "(" << drawn.x1 << ", " << drawn.y1 << ", " << drawn.x2
         << ", " << drawn.y2 << ") in " << int(drawn.colour.red) << "," << int(drawn.colour.green) << ","
         << int(drawn.colour.blue);
}

class AnimationTest : public ProgramTest {
  protected:
    static constexpr Colour kBlue = {0, 0, 255}, kBlack = {0, 0, 0}, kGreen = {0, 255, 0},
                            kCyan = {0, 255, 255}, kWhite = {255, 255, 255}, kMagenta = {255, 0, 255};
    static constexpr double kSmall = 1, kCoupler = 2, kPivot = 3;

    AnimationTest() {
        view.Picture1 = &picture;
        settings.hsc_speed.maximum = 32767;
        settings.txt_Cycles.text = "1";
        settings.chk_Showlinks.on = true;
        model.HideLinks = "N";
        model.ShowTrace = "N";
        model.ShowPoints = "N";
        model.StepMode = "Y";
        AnimationState& state = program->animation;
        state.colours = {.red = {},
                         .green = kGreen,
                         .blue = kBlue,
                         .purple = {},
                         .white = kWhite,
                         .black = kBlack,
                         .cyan = kCyan,
                         .yellow = {},
                         .grey = {},
                         .magenta = kMagenta};
        state.LinkColour = kMagenta;
        state.PlotMin = -10;
        state.PlotMax = 20;
        state.PlotY0 = 10;
        state.RadiusSmall = float(kSmall);
        state.RadiusCoupler = float(kCoupler);
        state.RadiusPivot = float(kPivot);
    }

    /// The pivots, given in the local frame: O4 on its x axis.
    void Put_Pivots(float O4, float O6X, float O6Y) {
        model.Link1 = O4;
        model.O4O6X = O6X - O4;
        model.O4O6Y = O6Y;
    }

    /// Turns the ground link.
    void Turn_Ground(float degrees) {
        model.GroundAngleDeg = degrees;
        model.GroundAngle = static_cast<float>(degrees * RadiansPerDegree);
    }

    void Put_Point(std::int16_t step, int point, float x, float y) {
        tables.PointPos(step, point, 0) = x;
        tables.PointPos(step, point, 1) = y;
    }

    /// All six points of a row that assembled, in one place.
    void Put_All_Points(std::int16_t step, float x, float y) {
        for (int point = 0; point <= 5; ++point) Put_Point(step, point, x, y);
        tables.StepValid(step) = true;
    }

    static Drawn Line(At from, At to, Colour colour) {
        return {Drawn::Kind::Line, from.x, from.y, to.x, to.y, colour};
    }
    static Drawn Circle(At centre, double radius, Colour colour) {
        return {Drawn::Kind::Circle, centre.x, centre.y, radius, 0, colour};
    }
    static Drawn Dot(At point, Colour colour) { return {Drawn::Kind::Point, point.x, point.y, 0, 0, colour}; }

    /// A line through all these points.
    static std::vector<Drawn> Chain(std::initializer_list<At> points, Colour colour) {
        std::vector<Drawn> lines;
        for (const At* point = points.begin(); point + 1 != points.end(); ++point)
            lines.push_back(Line(point[0], point[1], colour));
        return lines;
    }

    static std::vector<Drawn> Joined(std::initializer_list<std::vector<Drawn>> lists) {
        std::vector<Drawn> all;
        for (const auto& list : lists) all.insert(all.end(), list.begin(), list.end());
        return all;
    }

    /// What was drawn since the last call must be this, in this order. Coordinates may be off by the
    /// tolerance where sines and cosines made them.
    void Expect_Drawn(const std::vector<Drawn>& expected, double tolerance = 0) {
        const std::vector<Drawn> drawn = std::move(picture.drawn);
        picture.drawn.clear();
        EXPECT_EQ(drawn.size(), expected.size());
        for (std::size_t i = 0; i < std::min(drawn.size(), expected.size()); ++i) {
            Drawn near = drawn[i];
            Snap(near.x1, expected[i].x1, tolerance);
            Snap(near.y1, expected[i].y1, tolerance);
            Snap(near.x2, expected[i].x2, tolerance);
            Snap(near.y2, expected[i].y2, tolerance);
            EXPECT_EQ(near, expected[i]) << "drawing number " << i;
        }
    }

    RecordingPicture picture;
    LinkageView view;
    AnimationSettings settings;

  private:
    static void Snap(double& value, double target, double tolerance) {
        if (std::abs(value - target) <= tolerance) value = target;
    }
};

/// What turned coordinates may be off by: pi has ten digits, and results are single precision.
inline constexpr double kTurned = 1e-5;

}  // namespace kervol
