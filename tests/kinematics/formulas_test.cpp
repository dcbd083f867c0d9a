// SPDX-License-Identifier: GPL-3.0-or-later
// Every cell of a solved row against the equations written out a second time, over random linkages.
#include <algorithm>
#include <cmath>

#include "kinematics/kinematics_fixture.h"
#include "kinematics/reference.h"

namespace kervol {
namespace {

constexpr int kLinkages = 2000;
constexpr int kPositions = 24;
constexpr double kToggle = 1e-3;

/// Two units in the last place of angles from 256 to 512 degrees: one for the store, one for the wrap.
constexpr double kAngleRounding = 6.2e-5;

template <class Values>
double Largest(const Values& values) {
    double largest = 0;
    for (const double value : values) largest = std::max(largest, std::abs(value));
    return largest;
}

double Largest(const std::array<ReferenceVector, 6>& vectors) {
    double largest = 0;
    for (const auto& vector : vectors) largest = std::max(largest, Largest<ReferenceVector>(vector));
    return largest;
}

/// Half a unit in the last place of a single, and what double precision itself may lose against the largest
/// value of the group.
double Rounding(double value, double largest) {
    return 6e-8 * std::abs(value) + 1e-10 * largest;
}

class Formulas : public KinematicsTest, public ::testing::WithParamInterface<const char*> {
  protected:
    void Expect_Row(const ReferenceRow& row) {
        for (std::size_t i = 0; i < 8; ++i)
            EXPECT_NEAR(tables.Theta(0, Index(i)), row.Theta[i], kAngleRounding) << "Theta " << i;
        const double omega = Largest(row.Omega), alpha = Largest(row.Alpha);
        for (std::size_t i = 0; i < 5; ++i) {
            EXPECT_NEAR(tables.Omega(0, Index(i)), row.Omega[i], Rounding(row.Omega[i], omega)) << i;
            EXPECT_NEAR(tables.Alpha(0, Index(i)), row.Alpha[i], Rounding(row.Alpha[i], alpha)) << i;
        }
        for (std::size_t i = 0; i < 2; ++i) {
            // Where the output nearly stands, the reciprocal of its speed magnifies the rounding.
            const double advantage = row.MechAdv[i] * row.MechAdv[i];
            EXPECT_NEAR(tables.VelRatio(0, Index(i)), row.VelRatio[i],
                        Rounding(row.VelRatio[i], omega / std::abs(row.Omega[0])));
            EXPECT_NEAR(tables.MechAdv(0, Index(i)), row.MechAdv[i], Rounding(row.MechAdv[i], advantage));
        }
        Expect_Points(tables.PointPos(0), row.Pos, "PointPos");
        Expect_Points(tables.PointVel(0), row.Vel, "PointVel");
        Expect_Points(tables.PointAcc(0), row.Acc, "PointAcc");
    }

  private:
    static std::ptrdiff_t Index(std::size_t i) { return static_cast<std::ptrdiff_t>(i); }

    static void Expect_Points(const Table<float, 11, 2>& cells, const std::array<ReferenceVector, 6>& points,
                              const char* name) {
        const double largest = Largest(points);
        for (std::size_t point = 0; point < 6; ++point)
            for (std::size_t axis = 0; axis < 2; ++axis) {
                const double value = points[point][axis];
                EXPECT_NEAR(cells(Index(point), Index(axis)), value, Rounding(value, largest))
                    << name << " " << point << " " << axis;
            }
    }
};

TEST_P(Formulas, GiveEveryCellOfRandomLinkages) {
    RandomLinkages random(20240101);
    int solved = 0, failed = 0, left_out = 0;
    for (int linkage = 0; linkage < kLinkages && !HasFailure(); ++linkage) {
        random.Next(model, GetParam());
        model.AngleRange = linkage % 3 == 0 ? "abs" : linkage % 3 == 1 ? "180" : "free";
        for (int position = 0; position < kPositions && !HasFailure(); ++position) {
            SCOPED_TRACE("linkage " + std::to_string(linkage) + " position " + std::to_string(position));
            model.NumSteps = 0;
            Clear_Tables(*program);
            Solve(0, random.Between(-400, 400));
            const ReferenceRow row = Solve_By_Formulas(model);
            EXPECT_EQ(tables.StepValid(0), row.failed_stage == 0);
            if (row.failed_stage != 0) {
                ++failed;
            } else if (std::min(std::abs(row.toggle1), std::abs(row.toggle2)) < kToggle) {
                ++left_out;
            } else {
                ++solved;
                Expect_Row(row);
            }
        }
    }
    EXPECT_GT(solved, kLinkages * kPositions / 10);
    EXPECT_GT(failed, 0);
    EXPECT_LT(left_out, solved / 100);
    RecordProperty("solved", solved);
    RecordProperty("left_out", left_out);
}

INSTANTIATE_TEST_SUITE_P(Chains, Formulas, ::testing::Values("W", "S"));

}  // namespace
}  // namespace kervol
