// SPDX-License-Identifier: GPL-3.0-or-later
// What must hold for every linkage: loops close, the two assemblies mirror each other, a row depends on
// nothing but its own crank state.
#include <algorithm>
#include <cmath>
#include <complex>
#include <numeric>

#include "kinematics/kinematics_fixture.h"

namespace kervol {
namespace {

using Complex = std::complex<double>;

constexpr int kLinkages = 3000;
constexpr int kPositions = 20;
constexpr double kToggle = 1e-3;
constexpr double kClosure = 1e-5;  // of the longest link

class Laws : public KinematicsTest, public ::testing::WithParamInterface<const char*> {
  protected:
    bool Is_Watt() const { return model.LinkageType == "W"; }

    /// A length laid along an angle of the row, user frame.
    Complex Along(double length, int column, double offset = 0) const {
        return std::polar(length, tables.Theta(0, column) * RadiansPerDegree + offset);
    }

    /// A point of the row, local frame.
    Complex Point(int point) const { return {tables.PointPos(0, point, 0), tables.PointPos(0, point, 1)}; }

    double Sine_Between(int coupler, int output) const {
        return std::abs(
            std::sin((double(tables.Theta(0, coupler)) - tables.Theta(0, output)) * RadiansPerDegree));
    }

    bool Near_Toggle() const { return std::min(Sine_Between(1, 2), Sine_Between(4, 5)) < kToggle; }

    void Expect_Closed_By_Angles(double tolerance) const {
        const Complex O4(model.O4X, model.O4Y), O6(model.O6X, model.O6Y);
        EXPECT_LT(std::abs(Along(model.Link2, 0) + Along(model.Link3, 1) - Along(model.Link4, 2) - O4),
                  tolerance);
        const Complex start = Is_Watt() ? O4 + Along(model.LinkO4D, 2, model.Delta4)
                                        : Along(model.Link2, 0) + Along(model.CouplerAC, 1, model.Delta3);
        EXPECT_LT(std::abs(start + Along(model.Link5, 4) - Along(model.Link6, 5) - O6), tolerance);
        const Complex by_column3 =
            Is_Watt() ? O4 + Along(model.LinkO4D, 3) : Along(model.Link2, 0) + Along(model.CouplerAC, 3);
        EXPECT_LT(std::abs(start - by_column3), tolerance);
    }

    void Expect_Distance(Complex from, Complex to, double length, double tolerance) const {
        EXPECT_NEAR(std::abs(to - from), length, tolerance);
    }

    void Expect_Closed_By_Points(double tolerance) const {
        const Complex O2(0, 0), O4(model.Link1, 0), O6(model.O6LocalX, model.O6LocalY);
        Expect_Distance(O2, Point(0), model.Link2, tolerance);
        Expect_Distance(Point(0), Point(1), model.Link3, tolerance);
        Expect_Distance(O4, Point(1), model.Link4, tolerance);
        Expect_Distance(Point(0), Point(2), model.CouplerAC, tolerance);
        Expect_Distance(Point(3), Point(4), model.Link5, tolerance);
        Expect_Distance(O6, Point(4), model.Link6, tolerance);
        Expect_Distance(Point(3), Point(5), model.Coupler2Length, tolerance);
        if (Is_Watt())
            Expect_Distance(O4, Point(3), model.LinkO4D, tolerance);
        else
            Expect_Distance(Point(2), Point(3), 0, 0);
    }
};

TEST_P(Laws, BothLoopsCloseByTabulatedAnglesAndPoints) {
    RandomLinkages random(31415);
    int solved = 0, left_out = 0;
    for (int linkage = 0; linkage < kLinkages && !HasFailure(); ++linkage) {
        random.Next(model, GetParam());
        for (int position = 0; position < kPositions && !HasFailure(); ++position) {
            SCOPED_TRACE("linkage " + std::to_string(linkage) + " position " + std::to_string(position));
            Solve(0, random.Between(-360, 360));
            if (!tables.StepValid(0)) continue;
            ++solved;
            if (Near_Toggle()) {
                ++left_out;
                continue;
            }
            const double longest = Longest_Link(model);
            Expect_Closed_By_Angles(kClosure * longest);
            Expect_Closed_By_Points(kClosure * longest);
        }
    }
    EXPECT_GT(solved, kLinkages * kPositions / 10);
    EXPECT_LT(left_out, solved / 100);
    RecordProperty("solved", solved);
    RecordProperty("left_out", left_out);
}

/// Bisects the crank angle between a position that assembles and one that does not.
TEST_P(Laws, LoopsCloseUpToTheLimitOfTheTravelAndFewOfThesePositionsAreLeftOut) {
    RandomLinkages random(161803);
    int limits = 0, checked = 0, left_out = 0;
    for (int linkage = 0; linkage < kLinkages && !HasFailure(); ++linkage) {
        random.Next(model, GetParam());
        float inside = random.Between(-180, 180), outside = random.Between(-180, 180);
        Solve(0, outside);
        if (tables.StepValid(0)) continue;
        Solve(0, inside);
        if (!tables.StepValid(0)) continue;
        ++limits;
        for (int halving = 0; halving < 12 && !HasFailure(); ++halving) {
            const float middle = (inside + outside) / 2;
            Solve(0, middle);
            (tables.StepValid(0) ? inside : outside) = middle;
            if (!tables.StepValid(0)) continue;
            if (Near_Toggle()) {
                ++left_out;
                continue;
            }
            ++checked;
            Expect_Closed_By_Angles(kClosure * Longest_Link(model));
            Expect_Closed_By_Points(kClosure * Longest_Link(model));
        }
    }
    EXPECT_GT(limits, 100);
    EXPECT_LT(left_out, checked / 20);
    RecordProperty("checked", checked);
    RecordProperty("left_out", left_out);
}

TEST_P(Laws, CrossedIsOpenMirroredInTheLineFromAToO4) {
    RandomLinkages random(271828);
    int solved = 0;
    for (int linkage = 0; linkage < kLinkages && !HasFailure(); ++linkage) {
        random.Next(model, GetParam());
        model.Theta2Rad = random.Between(-4, 4);
        const float degrees = random.Between(-180, 180);
        model.OpenSign1 = -1;
        Solve(0, degrees);
        if (!tables.StepValid(0)) continue;
        const Complex A = Point(0), open = Point(1);
        model.OpenSign1 = 1;
        // Stage 2 hangs from the other assembly now and need not close.
        model.LinkageType = "";
        Solve(0, degrees);
        ASSERT_TRUE(tables.StepValid(0));
        ++solved;
        const Complex O4(model.Link1, 0), crossed = Point(1);
        EXPECT_EQ(Point(0), A);
        const Complex line = (O4 - A) / std::abs(O4 - A);
        const Complex mirrored = A + line * std::conj((open - A) / line);
        EXPECT_LT(std::abs(mirrored - crossed), kClosure * Longest_Link(model));
        EXPECT_GT(std::abs(open - crossed), 0);
    }
    EXPECT_GT(solved, kLinkages / 10);
}

TEST_P(Laws, CrossedStage2IsOpenMirroredInTheLineFromItsStartToO6) {
    RandomLinkages random(141421);
    int solved = 0;
    for (int linkage = 0; linkage < kLinkages && !HasFailure(); ++linkage) {
        random.Next(model, GetParam());
        const float degrees = random.Between(-180, 180);
        model.OpenSign2 = -1;
        Solve(0, degrees);
        if (!tables.StepValid(0)) continue;
        ++solved;
        const Complex start = Point(3), open = Point(4), B = Point(1);
        model.OpenSign2 = 1;
        Solve(0, degrees);
        ASSERT_TRUE(tables.StepValid(0));
        EXPECT_EQ(Point(1), B) << "Stage 1 does not follow the assembly of Stage 2";
        const Complex O6(model.O6LocalX, model.O6LocalY);
        const Complex line = (O6 - start) / std::abs(O6 - start);
        const Complex mirrored = start + line * std::conj((open - start) / line);
        EXPECT_LT(std::abs(mirrored - Point(4)), kClosure * Longest_Link(model));
    }
    EXPECT_GT(solved, kLinkages / 10);
}

constexpr int kRows = 37;

/// The kinematic cells of rows 0 to kRows - 1 as bytes, so that even the sign of a zero counts.
std::string Bits(const ResultTables& tables) {
    std::string bits;
    const auto add = [&](const auto& row) { bits.append(reinterpret_cast<const char*>(&row), sizeof row); };
    for (int row = 0; row < kRows; ++row) {
        add(tables.StepValid(row));
        add(tables.Theta(row));
        add(tables.Omega(row));
        add(tables.Alpha(row));
        add(tables.PointPos(row));
        add(tables.PointVel(row));
        add(tables.PointAcc(row));
        add(tables.VelRatio(row));
        add(tables.MechAdv(row));
    }
    return bits;
}

class OrderOfRows : public Laws {
  protected:
    std::string Solve_In_Order(const std::vector<int>& order) {
        model.NumSteps = kRows - 1;
        Clear_Tables(*program);
        for (const int row : order) Solve(static_cast<std::int16_t>(row), -180.0 + 10.0 * row);
        return Bits(tables);
    }
};

TEST_P(OrderOfRows, DoesNotChangeABitOfAnyRow) {
    RandomLinkages random(577215);
    std::vector<int> forward(kRows);
    std::iota(forward.begin(), forward.end(), 0);
    const std::vector<int> backward(forward.rbegin(), forward.rend());
    int mixed = 0;
    for (int linkage = 0; linkage < 200 && !HasFailure(); ++linkage) {
        SCOPED_TRACE("linkage " + std::to_string(linkage));
        random.Next(model, GetParam());
        std::vector<int> shuffled = forward;
        for (std::size_t i = shuffled.size() - 1; i > 0; --i)
            std::swap(shuffled[i], shuffled[random.Below(i + 1)]);

        const std::string expected = Solve_In_Order(forward);
        const auto valid = std::count(tables.StepValid.begin(), tables.StepValid.begin() + kRows, true);
        if (valid > 0 && valid < kRows) ++mixed;
        EXPECT_TRUE(Solve_In_Order(backward) == expected);
        EXPECT_TRUE(Solve_In_Order(shuffled) == expected);
    }
    EXPECT_GT(mixed, 10) << "linkages of which some rows fail and some do not";
}

INSTANTIATE_TEST_SUITE_P(Chains, Laws, ::testing::Values("W", "S"));
INSTANTIATE_TEST_SUITE_P(Chains, OrderOfRows, ::testing::Values("W", "S"));

}  // namespace
}  // namespace kervol
