// SPDX-License-Identifier: GPL-3.0-or-later
// Speeds and accelerations against the derivatives of the positions, and the Stage 2 of a Stephenson chain,
// whose speeds are not derivatives, against its own formulas.
#include <algorithm>
#include <cmath>
#include <complex>
#include <optional>
#include <vector>

#include "kinematics/examples.h"
#include "kinematics/kinematics_fixture.h"
#include "kinematics/stage1.h"
#include "kinematics/stage2.h"

namespace kervol {
namespace {

using Complex = std::complex<double>;

constexpr int kLinkages = 3000;
constexpr int kPositions = 8;
/// A crank angle that is a multiple of this step is exact in single precision, and so is its neighbour.
constexpr double kStep = 1.0 / 4096;
/// Nearer to a toggle the positions bend too sharply within a step for differences to be exact.
constexpr double kToggle = 0.2;

/// Angles first, then the coordinates of points.
struct Positions {
    std::vector<double> values;
    std::size_t angles = 0;

    double Change(const Positions& to, std::size_t i) const {
        const double change = to.values[i] - values[i];
        return i < angles ? std::remainder(change, 2 * std::acos(-1)) : change;
    }
};

void Add(Positions& positions, const PointMotion& point) {
    positions.values.push_back(point.position.x);
    positions.values.push_back(point.position.y);
}

/// All moving angles and points, Stage 2 of a Watt chain included; nothing at or near a toggle.
std::optional<Positions> Positions_At(LinkageModel model, double theta2) {
    model.Theta2Rad = static_cast<float>(theta2);
    const auto stage1 = Solve_Stage1(model);
    if (!stage1 || std::abs(std::sin(stage1->theta3 - stage1->theta4)) < kToggle) return std::nullopt;
    Positions positions{{stage1->theta3, stage1->theta4}, 2};
    if (model.LinkageType != "W") {
        for (const auto& point : {stage1->A, stage1->B, stage1->C}) Add(positions, point);
        return positions;
    }
    const auto stage2 = Solve_Watt(model, *stage1);
    if (!stage2 || std::abs(std::sin(stage2->theta5 - stage2->theta6)) < kToggle) return std::nullopt;
    positions.values.insert(positions.values.end(), {stage2->theta5, stage2->theta6});
    positions.angles = 4;
    for (const auto& point : {stage1->A, stage1->B, stage1->C, stage2->start, stage2->end, stage2->coupler2})
        Add(positions, point);
    return positions;
}

/// Derivatives by the crank angle from five positions.
struct Derivatives {
    std::vector<double> first, second;
};

std::optional<Derivatives> Derive(const LinkageModel& model, double theta2, double step) {
    std::vector<Positions> at;
    for (int i = -2; i <= 2; ++i) {
        auto positions = Positions_At(model, theta2 + i * step);
        if (!positions) return std::nullopt;
        at.push_back(std::move(*positions));
    }
    Derivatives derivatives;
    for (std::size_t i = 0; i < at[2].values.size(); ++i) {
        const double back2 = at[2].Change(at[0], i), back1 = at[2].Change(at[1], i);
        const double next1 = at[2].Change(at[3], i), next2 = at[2].Change(at[4], i);
        derivatives.first.push_back((8 * (next1 - back1) - (next2 - back2)) / (12 * step));
        derivatives.second.push_back((16 * (next1 + back1) - (next2 + back2)) / (12 * step * step));
    }
    return derivatives;
}

/// The cells of row 0 in the order of `Positions`.
std::vector<double> Cells(const Table<float, 5>& links, const Table<float, 11, 2>& points, bool watt) {
    std::vector<double> cells;
    for (int column = 1; column <= (watt ? 4 : 2); ++column) cells.push_back(links(column));
    for (int point = 0; point < (watt ? 6 : 3); ++point)
        for (int axis = 0; axis < 2; ++axis) cells.push_back(points(point, axis));
    return cells;
}

double Largest(const std::vector<double>& values) {
    double largest = 0;
    for (const double value : values) largest = std::max(largest, std::abs(value));
    return largest;
}

bool Agree(const std::vector<double>& left, const std::vector<double>& right) {
    for (std::size_t i = 0; i < left.size(); ++i)
        if (std::abs(left[i] - right[i]) > 3e-6 * Largest(left)) return false;
    return true;
}

/// Derivatives that a step of twice the size confirms: near a toggle, or where the half tangent is
/// ill-conditioned, differences are not exact.
std::optional<Derivatives> Confirmed_Derivatives(const LinkageModel& model, double theta2) {
    const auto narrow = Derive(model, theta2, kStep), wide = Derive(model, theta2, 2 * kStep);
    if (!narrow || !wide) return std::nullopt;
    if (!Agree(narrow->first, wide->first) || !Agree(narrow->second, wide->second)) return std::nullopt;
    return narrow;
}

/// Compares with what the derivatives give, against the largest of them.
void Expect_Same(const std::vector<double>& cells, const std::vector<double>& expected) {
    ASSERT_EQ(cells.size(), expected.size());
    const double tolerance = 1e-5 * Largest(expected);
    for (std::size_t i = 0; i < cells.size(); ++i) EXPECT_NEAR(cells[i], expected[i], tolerance) << i;
}

class Motion : public KinematicsTest, public ::testing::WithParamInterface<const char*> {
  protected:
    /// Row 0 at a crank angle in radians; false where the whole linkage does not assemble.
    bool Solve_At(double theta2) {
        model.Theta2Rad = static_cast<float>(theta2);
        Answer response = Answer::Ignore;
        Calculate(*program, 0, response);
        return tables.StepValid(0);
    }
};

double Exact_Angle(RandomLinkages& random) {
    return std::round(random.Between(-3, 3) / kStep) * kStep;
}

TEST_P(Motion, IsTheDerivativeOfThePositions) {
    RandomLinkages random(662607);
    const bool watt = std::string_view(GetParam()) == "W";
    int solved = 0, checked = 0;
    for (int linkage = 0; linkage < kLinkages && !HasFailure(); ++linkage) {
        random.Next(model, GetParam());
        for (int position = 0; position < kPositions && !HasFailure(); ++position) {
            SCOPED_TRACE("linkage " + std::to_string(linkage) + " position " + std::to_string(position));
            const double theta2 = Exact_Angle(random);
            if (!Solve_At(theta2)) continue;
            ++solved;
            const auto derivatives = Confirmed_Derivatives(model, theta2);
            if (!derivatives) continue;
            ++checked;
            const double w = model.Omega2, al = model.Alpha2;
            std::vector<double> speeds, accelerations;
            for (std::size_t i = 0; i < derivatives->first.size(); ++i) {
                speeds.push_back(w * derivatives->first[i]);
                accelerations.push_back(w * w * derivatives->second[i] + al * derivatives->first[i]);
            }
            Expect_Same(Cells(tables.Omega(0), tables.PointVel(0), watt), speeds);
            Expect_Same(Cells(tables.Alpha(0), tables.PointAcc(0), watt), accelerations);
        }
    }
    EXPECT_GT(checked, kLinkages * kPositions / 10);
    EXPECT_GT(checked, solved * 9 / 10) << "positions left out for standing near a toggle";
    RecordProperty("solved", solved);
    RecordProperty("checked", checked);
}

INSTANTIATE_TEST_SUITE_P(Chains, Motion, ::testing::Values("W", "S"));

class Stephenson : public Motion {
  protected:
    /// Calls `check` with random solved positions and their numbers in double precision.
    template <class Check>
    int For_Random_Positions(std::uint32_t seed, Check&& check) {
        RandomLinkages random(seed);
        int solved = 0;
        for (int linkage = 0; linkage < kLinkages && !HasFailure(); ++linkage) {
            random.Next(model, "S");
            while (!Solve_At(random.Between(-3, 3)) && random.Below(8) != 0) continue;
            if (!tables.StepValid(0)) continue;
            const auto stage1 = Solve_Stage1(model);
            const auto stage2 = Solve_Stephenson(model, *stage1);
            ++solved;
            SCOPED_TRACE("linkage " + std::to_string(linkage));
            check(*stage1, *stage2);
        }
        return solved;
    }

    Complex Velocity(int point) const { return {tables.PointVel(0, point, 0), tables.PointVel(0, point, 1)}; }
    Complex Acceleration(int point) const {
        return {tables.PointAcc(0, point, 0), tables.PointAcc(0, point, 1)};
    }
    Complex Along(double length, int column) const {
        return std::polar(length,
                          (double(tables.Theta(0, column)) - model.GroundAngleDeg) * RadiansPerDegree);
    }
};

TEST_F(Stephenson, AccelerationsOfStage2SatisfyTheDifferentiatedLoopWithTheTabulatedSpeeds) {
    const int solved = For_Random_Positions(299792, [&](const Stage1&, const Stage2&) {
        const auto turning = [&](double length, int theta, int link) {
            const double w = tables.Omega(0, link), al = tables.Alpha(0, link);
            return Along(length, theta) * Complex(-w * w, al);
        };
        const Complex link5 = turning(model.Link5, 4, 3), link6 = turning(model.Link6, 5, 4);
        const double largest = std::abs(Acceleration(3)) + std::abs(link5) + std::abs(link6);
        EXPECT_LT(std::abs(Acceleration(3) + link5 - link6), 1e-5 * largest);
        EXPECT_LT(std::abs(Acceleration(4) - link6), 1e-5 * largest);
    });
    EXPECT_GT(solved, kLinkages / 10);
}

TEST_F(Stephenson, SpeedsOfStage2FollowTheirOwnFormulas) {
    const int solved = For_Random_Positions(602214, [&](const Stage1& stage1, const Stage2& stage2) {
        const auto [VCx, VCy] = stage1.C.velocity;
        const double p = -model.Link5 * std::sin(stage2.theta5), q = -model.Link6 * std::sin(stage2.theta6);
        const double r = model.Link5 * std::cos(stage2.theta5), s = -model.Link6 * std::cos(stage2.theta6);
        const double omega6 = (r * VCx / p - VCy) / (s - r * q / p);
        const double omega5 = (-q * omega6 - VCx) / p;
        const double largest = std::abs(omega5) + std::abs(omega6);
        EXPECT_NEAR(stage2.omega6, omega6, 1e-9 * largest);
        EXPECT_NEAR(stage2.omega5, omega5, 1e-9 * largest);
        EXPECT_EQ(tables.Omega(0, 3), static_cast<float>(stage2.omega5));
        EXPECT_EQ(tables.Omega(0, 4), static_cast<float>(stage2.omega6));
    });
    EXPECT_GT(solved, kLinkages / 10);
}

/// Slopes of theta6 by time from positions a wider step apart: point C is taken in single precision there.
std::optional<double> Slope_Of_Theta6(LinkageModel model) {
    constexpr double kWide = 1.0 / 256;
    std::vector<double> theta6;
    const double middle = model.Theta2Rad;
    for (const int i : {-2, -1, 1, 2}) {
        model.Theta2Rad = static_cast<float>(middle + i * kWide);
        const auto stage1 = Solve_Stage1(model);
        if (!stage1) return std::nullopt;
        const auto stage2 = Solve_Stephenson(model, *stage1);
        if (!stage2) return std::nullopt;
        theta6.push_back(stage2->theta6);
    }
    const auto change = [&](std::size_t from, std::size_t to) {
        return std::remainder(theta6[to] - theta6[from], 2 * std::acos(-1));
    };
    return model.Omega2 * (8 * change(1, 2) - change(0, 3)) / (12 * kWide);
}

TEST_F(Stephenson, SpeedsOfStage2AreNotTheDerivativeOfThePositions) {
    int compared = 0, differ = 0;
    For_Random_Positions(667430, [&](const Stage1& stage1, const Stage2& stage2) {
        const double toggle1 = std::abs(std::sin(stage1.theta3 - stage1.theta4));
        const double toggle2 = std::abs(std::sin(stage2.theta5 - stage2.theta6));
        const auto slope = Slope_Of_Theta6(model);
        if (!slope || toggle1 < 0.4 || toggle2 < 0.4) return;
        // The loop differentiated once: VC + w5 i L5 = w6 i L6, solved for w6 along link 5.
        const Complex VC(stage1.C.velocity.x, stage1.C.velocity.y);
        const Complex direction5 = std::polar(1.0, stage2.theta5);
        const Complex link6 = std::polar(double(model.Link6), stage2.theta6);
        const double derivative = std::real(VC / direction5) / std::real(Complex(0, 1) * link6 / direction5);
        const double size = std::abs(derivative) + std::abs(model.Omega2);
        EXPECT_NEAR(*slope, derivative, 2e-2 * size) << "the differences and the loop agree";
        ++compared;
        if (std::abs(stage2.omega6 - derivative) > 5e-2 * size) ++differ;
    });
    EXPECT_GT(compared, 100);
    EXPECT_GT(differ, compared / 2);
}

TEST_F(Stephenson, SpeedsOfTheDwellExampleDifferFromTheSlopeOfItsThetaColumn) {
    Load_Example(model, *Find_Example("hoeken"));
    ASSERT_EQ(Count_Angle_Steps(*program), Refusal::None);
    Answer response = Answer::None;
    Run_Sweep(*program, 3, response);
    int differ = 0;
    for (int row = 1; row < model.NumSteps; ++row) {
        const double slope = (double(tables.Theta(row + 1, 5)) - tables.Theta(row - 1, 5)) /
                             (2.0 * model.ThetaStepDeg) * model.Omega2;
        if (std::abs(slope - tables.Omega(row, 4)) > 0.05) ++differ;
    }
    EXPECT_GT(differ, 10);
}

TEST_F(Stephenson, CouplerPoint1AndPoint3AreTheSameNumbers) {
    For_Random_Positions(137035, [&](const Stage1&, const Stage2&) {
        EXPECT_EQ(tables.PointPos(0, 2), tables.PointPos(0, 3));
        EXPECT_EQ(tables.PointVel(0, 2), tables.PointVel(0, 3));
        EXPECT_EQ(tables.PointAcc(0, 2), tables.PointAcc(0, 3));
    });
}

}  // namespace
}  // namespace kervol
