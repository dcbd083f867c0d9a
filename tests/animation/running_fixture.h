// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of the tests of the animation's run: four rows, and the lists of what must be drawn of them, made
// from the settings and not by the program.
#pragma once

#include <string>

#include "animation/animation_fixture.h"
#include "animation/running.h"

namespace kervol {

using DrawnList = std::vector<Drawn>;

/// A Watt chain of rows 0 to 3. All points of a row stand at (row + 1, 2), so that a drawing tells its row.
class Running : public AnimationTest {
  protected:
    /// Of a window that ends at 20, in the precision in which they are kept.
    static constexpr double kPin = double(0.3F), kMark = double(0.24F), kPivotCircle = double(0.6F);
    static constexpr At kO2{0, 10}, kO4{6, 10}, kO6{7, 4};

    Running() {
        model.LinkageType = "W";
        model.CalcMode = 3;
        model.NumSteps = 3;
        model.ShowCoupler = "Y";
        Put_Pivots(6, 7, 6);
        for (std::int16_t row = 0; row <= 3; ++row) Put_All_Points(row, static_cast<float>(row + 1), 2);
    }

    static At Of_Row(int row) { return {row + 1.0, 8}; }

    void Fail(std::int16_t row) {
        Put_All_Points(row, 0, 0);
        tables.StepValid(row) = false;
    }
    /// The row counts as assembled, and its coupler point stands at the origin.
    void Take_Position(std::int16_t row) { Put_All_Points(row, 0, 0); }
    void Put_Cam() {
        model.CalcMode = 4;
        model.DriveArmLength = 5;
        model.CamRollerRadius = 1.5;
        model.CamCentreX = 4;
        model.CamCentreY = 3;
        model.CamBaseRadius = 2.5;
        for (std::int16_t row = 0; row <= 3; ++row) tables.Theta(row, 0) = 0;
        model.DriveDatum = 0;
    }

    void Run() { Animate(*program, view, settings); }
    /// The person asks for the end while this many positions have been held.
    void Stop_After(std::size_t positions) {
        port.goes_on = [this, positions] { return port.holds.size() < positions; };
    }

    DrawnList Pivots() const {
        DrawnList list;
        for (const At pivot : {kO2, kO4, kO6}) {
            list.push_back(Circle(pivot, kPivotCircle, kBlue));
            list.push_back(Circle(pivot, kPin, kBlue));
        }
        if (model.CalcMode != 4) return list;
        return Joined({list, {Circle({-4, 13}, 2.5, kBlue), Circle({-4, 13}, kPivotCircle, kBlue)}});
    }
    static DrawnList Both_Axes() {
        return {Line({-9, 10}, {18, 10}, kBlack), Line({0, 18}, {0, -9}, kBlack)};
    }
    /// A path that is begun at the first of these rows and runs through all of them.
    static DrawnList Stretch(std::initializer_list<int> rows) {
        At from = Of_Row(*rows.begin());
        DrawnList list = {Dot(from, kCyan)};
        for (const int row : rows) {
            list.push_back(Line(from, Of_Row(row), kCyan));
            from = Of_Row(row);
        }
        return list;
    }
    /// Both coupler points stand in one place.
    DrawnList Paths() const { return model.ShowCoupler == "Y" ? Joined({path, path}) : DrawnList{}; }
    DrawnList Bars_And_Pins(std::initializer_list<DrawnList> bars, At p, Colour colour, bool third) const {
        if (!settings.chk_Showlinks.on) return {};
        const Colour pins = settings.chk_Trace.on ? kBlack : colour;
        DrawnList list = Joined(bars);
        list.push_back(Circle(p, kPin, pins));
        list.push_back(Circle(p, kPin, pins));
        if (third) list.push_back(Circle(p, kMark, pins));
        return list;
    }
    DrawnList Position_At(At p, Colour colour) const {
        const DrawnList mark =
            model.ShowPoints == "Y" ? DrawnList{Dot(p, colour), Circle(p, kMark, kGreen)} : DrawnList{};
        DrawnList arm;
        if (model.CalcMode == 4)
            arm = Joined({{Circle({5, 10}, 1.5, colour), Circle({5, 10}, kPin, colour)},
                          Chain({kO2, {5, 10}, p}, colour)});
        // Under trace only the second coupler point keeps its pin.
        return Joined({Bars_And_Pins({Chain({kO2, p, p, kO4}, colour), Chain({p, p, p}, colour)}, p, colour,
                                     !settings.chk_Trace.on),
                       mark, arm,
                       Bars_And_Pins({Chain({kO4, p, p}, colour), Chain({p, p}, colour),
                                      Chain({p, p, p}, colour), Chain({p, kO6}, colour)},
                                     p, colour, true),
                       mark});
    }
    DrawnList Position(int row, Colour colour = kMagenta) const { return Position_At(Of_Row(row), colour); }
    /// A row that is drawn, held and erased, or under trace drawn twice.
    DrawnList Passed(int row) const {
        const Colour second = settings.chk_Trace.on ? kMagenta : kWhite;
        return Joined({Position(row), Position(row, second), Paths(), Pivots()});
    }
    static DrawnList Prepared() {
        return {{Drawn::Kind::Scale, -10, -10, 20, 20}, {Drawn::Kind::Background, 0, 0, 0, 0, kWhite}};
    }
    DrawnList Cycle(std::initializer_list<DrawnList> rows) const {
        return Joined({{{Drawn::Kind::Clear}},
                       Pivots(),
                       Both_Axes(),
                       Paths(),
                       Joined(rows),
                       Paths(),
                       Pivots(),
                       Both_Axes()});
    }
    DrawnList Whole_Cycle() const { return Cycle({Passed(0), Passed(1), Passed(2), Passed(3), Position(3)}); }
    /// The factor of the axes is not exact.
    void Expect_Run(std::initializer_list<DrawnList> parts) { Expect_Drawn(Joined(parts), 1e-9); }

    DrawnList path = Stretch({0, 1, 2, 3});
};

}  // namespace kervol
