// SPDX-License-Identifier: GPL-3.0-or-later
// Every cell that a run of the forces writes, bit for bit against the formulas; what it leaves alone; how it
// ends.
#include "dynamics/solve_forces.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

#include "dynamics/dynamics_fixture.h"
#include "dynamics/reference_forces.h"

namespace kervol {
namespace {

constexpr int kCGPoint = 6;

bool Same_Bits(float left, float right) {
    return std::bit_cast<std::uint32_t>(left) == std::bit_cast<std::uint32_t>(right);
}

class SolveForces : public DynamicsTest {
  protected:
    /// Marks everything that a run writes, on rows 0 to `last`.
    void Poison_Results(int last) {
        for (int row = 0; row <= std::min(last, MaxSteps); ++row) {
            tables.ForceTable(row).Fill(Poison);
            tables.TorqueTable(row).Fill(Poison);
            for (int point = kCGPoint; point <= 10; ++point) {
                tables.PointVel(row, point).Fill(Poison);
                tables.PointAcc(row, point).Fill(Poison);
            }
        }
    }

    void Expect_CG_Rows(int row, const ReferenceForces& expected) {
        for (int i = 0; i < 5; ++i)
            for (int part = 0; part < 2; ++part) {
                EXPECT_TRUE(Same_Bits(tables.PointVel(row, kCGPoint + i, part), expected.velocity[i][part]));
                EXPECT_TRUE(
                    Same_Bits(tables.PointAcc(row, kCGPoint + i, part), expected.acceleration[i][part]));
            }
    }

    void Expect_Results(int row, const ReferenceForces& expected) {
        for (int entry = 0; entry < 13; ++entry)
            for (int part = 0; part < 2; ++part)
                EXPECT_TRUE(Same_Bits(tables.ForceTable(row, entry, part), expected.force[entry][part]))
                    << "entry " << entry << ": " << tables.ForceTable(row, entry, part) << " for "
                    << expected.force[entry][part];
        for (int column = 0; column < 6; ++column)
            EXPECT_TRUE(Same_Bits(tables.TorqueTable(row, column), expected.torque[column]))
                << "column " << column;
        EXPECT_EQ(tables.TorqueTable(row, 6), Poison);
    }

    void Expect_Forces_Untouched(int row) {
        for (const auto& entry : tables.ForceTable(row))
            for (const float value : entry) EXPECT_EQ(value, Poison) << row;
        for (const float value : tables.TorqueTable(row)) EXPECT_EQ(value, Poison) << row;
    }

    void Expect_CG_Untouched(int row) {
        for (int point = kCGPoint; point <= 10; ++point)
            for (int part = 0; part < 2; ++part) {
                EXPECT_EQ(tables.PointVel(row, point, part), Poison) << row;
                EXPECT_EQ(tables.PointAcc(row, point, part), Poison) << row;
            }
    }

    void Expect_Singular(int column, int step) {
        Expect_Box("There is a zero value on diagonal in column " + std::to_string(column));
        Expect_Box("Error in Computing Simultaneous Equations at step    " + std::to_string(step),
                   Icon::Question);
    }

    /// The same assembled position on rows 0 to `last`, with loads.
    void Put_Rows(int last) {
        RandomLinkages random(4711);
        Put_Random_Position(random, "W");
        while (Boxes_Left() > 0) Take_Box();  // of positions that did not assemble
        model.GroundAngle = model.GroundAngleDeg = 0;
        for (int row = 1; row <= last; ++row) {
            tables.Theta(row) = tables.Theta(0);
            tables.Omega(row) = tables.Omega(0);
            tables.Alpha(row) = tables.Alpha(0);
            tables.PointVel(row) = tables.PointVel(0);
            tables.PointAcc(row) = tables.PointAcc(0);
        }
        model.NumSteps = static_cast<std::int16_t>(last);
        Poison_Results(last + 1);
    }

    /// All links in one line: their forces along it cannot be told apart.
    void Flatten_Row(int row) {
        tables.Theta(row).Fill(0);
        for (int link = 2; link <= NumLinks; ++link) model.LinkCG(link, 1) = 0;
    }
};

class EveryChain : public SolveForces, public ::testing::WithParamInterface<const char*> {};

TEST_P(EveryChain, GivesTheFormulasBitForBitAndStopsAtASingularStep) {
    constexpr std::int16_t kLast = 7;
    RandomLinkages random(20240);
    int solved = 0, singular = 0;
    for (int linkage = 0; linkage < 400 && !HasFailure(); ++linkage) {
        SCOPED_TRACE("linkage " + std::to_string(linkage));
        random.Next(model, GetParam());
        for (std::int16_t row = 0; row <= kLast; ++row) Solve_Position(random, row);
        while (Boxes_Left() > 0) Take_Box();  // of positions that do not assemble
        Put_Random_Link_Data(random);
        model.TorqueImported = linkage % 3 == 0;
        for (int row = 0; row <= kLast; ++row) tables.Torque21Imported(row) = random.Between(-50, 50);
        model.NumSteps = kLast;
        Poison_Results(kLast + 1);

        const int count = Solve_Forces(*program);
        for (int row = 0; row <= kLast && !HasFailure(); ++row) {
            SCOPED_TRACE("row " + std::to_string(row));
            const ReferenceForces expected = Forces_By_Formulas(model, tables, row);
            Expect_CG_Rows(row, expected);
            if (expected.Ierror == 0) {
                Expect_Results(row, expected);
                ++solved;
                continue;
            }
            ++singular;
            EXPECT_EQ(count, row);
            Expect_Singular(expected.Ierror, row);
            for (int rest = row; rest <= kLast; ++rest) Expect_Forces_Untouched(rest);
            for (int rest = row + 1; rest <= kLast; ++rest) Expect_CG_Untouched(rest);
            break;
        }
        EXPECT_EQ(Boxes_Left(), 0U);
        Expect_Forces_Untouched(kLast + 1);
        Expect_CG_Untouched(kLast + 1);
    }
    EXPECT_GT(solved, 1000);
    RecordProperty("solved", solved);
    RecordProperty("singular", singular);
}

INSTANTIATE_TEST_SUITE_P(Chains, EveryChain, ::testing::Values("W", "S"));

TEST_F(SolveForces, OnePositionIsOneRow) {
    Put_Rows(0);
    EXPECT_EQ(Solve_Forces(*program), 1);
    Expect_Results(0, Forces_By_Formulas(model, tables, 0));
    Expect_Forces_Untouched(1);
    Expect_CG_Untouched(1);
}

TEST_F(SolveForces, FillsTheTablesToTheirLastRow) {
    Put_Rows(MaxSteps);
    EXPECT_EQ(Solve_Forces(*program), MaxSteps + 1);
    Expect_Results(MaxSteps, Forces_By_Formulas(model, tables, MaxSteps));
}

TEST_F(SolveForces, ARowBeyondTheTablesIsAFaultBehindTheLastOne) {
    Put_Rows(MaxSteps);
    model.NumSteps = MaxSteps + 1;
    model.DynamicsCalculated = false;
    EXPECT_EQ(Solve_Forces(*program), MaxSteps + 1);
    Expect_Fault(fault::Subscript, "Solve_Forces");
    EXPECT_FALSE(model.DynamicsCalculated);
}

TEST_F(SolveForces, NoStepsAreACompleteRun) {
    Put_Rows(0);
    model.NumSteps = -1;
    EXPECT_EQ(Solve_Forces(*program), 0);
    EXPECT_TRUE(model.DynamicsCalculated);
    Expect_Forces_Untouched(0);
}

TEST_F(SolveForces, ACompleteRunSetsAndVoidsTheFlagsAndNothingElseOfTheModel) {
    Put_Rows(3);
    model.DynamicsCalculated = false;
    model.FlywheelCalculated = true;
    const LinkageModel before = model;
    Solve_Forces(*program);
    EXPECT_TRUE(model.DynamicsCalculated);
    EXPECT_FALSE(model.FlywheelCalculated);
    const std::vector<std::string> written = {"DynamicsCalculated", "FlywheelCalculated"};
    EXPECT_EQ(Differing_Fields(before, model), written);
}

TEST_F(SolveForces, WritesNoOtherTable) {
    Put_Rows(3);
    const auto before = std::make_unique<ResultTables>(tables);
    Solve_Forces(*program);
    EXPECT_TRUE(tables.StepValid == before->StepValid);
    EXPECT_TRUE(tables.Theta == before->Theta);
    EXPECT_TRUE(tables.Omega == before->Omega);
    EXPECT_TRUE(tables.Alpha == before->Alpha);
    EXPECT_TRUE(tables.PointPos == before->PointPos);
    EXPECT_TRUE(tables.VelRatio == before->VelRatio);
    EXPECT_TRUE(tables.MechAdv == before->MechAdv);
    EXPECT_TRUE(tables.FlywheelTorque == before->FlywheelTorque);
    EXPECT_TRUE(tables.FFTTable == before->FFTTable);
    EXPECT_TRUE(tables.Torque21Imported == before->Torque21Imported);
    for (int row = 0; row <= 3; ++row)
        for (int point = 0; point < kCGPoint; ++point) {
            EXPECT_TRUE(tables.PointVel(row, point) == before->PointVel(row, point));
            EXPECT_TRUE(tables.PointAcc(row, point) == before->PointAcc(row, point));
        }
}

// With all links along x no moment holds a force along x. Links 2 to 6 have five equations along x for seven
// unknowns: columns 1, 3 and 5 use up those of links 2, 3 and 4, of which F14x is the next.
TEST_F(SolveForces, ASingularStepEndsTheRunAndEarlierStepsKeepTheirResults) {
    Put_Rows(5);
    Flatten_Row(3);
    model.DynamicsCalculated = false;
    model.FlywheelCalculated = true;
    EXPECT_EQ(Solve_Forces(*program), 3);
    Expect_Singular(7, 3);
    for (int row = 0; row < 3; ++row) Expect_Results(row, Forces_By_Formulas(model, tables, row));
    for (int row = 3; row <= 5; ++row) Expect_Forces_Untouched(row);
    Expect_CG_Rows(3, Forces_By_Formulas(model, tables, 3));
    for (int row = 4; row <= 5; ++row) Expect_CG_Untouched(row);
    EXPECT_FALSE(model.DynamicsCalculated);
    EXPECT_TRUE(model.FlywheelCalculated);
}

TEST_F(SolveForces, AStepThatDidNotAssembleIsSolvedLikeAnyOther) {
    Put_Rows(2);
    tables.StepValid(1) = false;
    EXPECT_EQ(Solve_Forces(*program), 3);
    Expect_Results(1, Forces_By_Formulas(model, tables, 1));
}

TEST_F(SolveForces, AnUnknownChainHasNoCoefficients) {
    Put_Rows(1);
    model.LinkageType = "X";
    EXPECT_EQ(Solve_Forces(*program), 0);
    Expect_Singular(1, 0);
    for (int row = 1; row <= 15; ++row)
        for (int column = 1; column <= 15; ++column)
            EXPECT_EQ(program->matrix.lbl_A(row, column).caption, "0.000");
    Expect_Forces_Untouched(0);
}

TEST_F(SolveForces, AFaultKeepsTheCellsAlreadyWritten) {
    Put_Rows(2);
    tables.Omega(1, 3) = 3e38F;
    EXPECT_EQ(Solve_Forces(*program), 1);
    Expect_Fault(fault::Overflow, "Solve_Forces");
    Expect_CG_Untouched(1);  // the square of the speed comes first

    Put_Rows(2);
    tables.Omega(1, 3) = 1e19F;
    model.LinkCG(5, 0) = 1e20F;
    model.LinkCG(5, 1) = 0;
    tables.Theta(1, 4) = 90;
    EXPECT_EQ(Solve_Forces(*program), 1);
    Expect_Fault(fault::Overflow, "Solve_Forces");
    EXPECT_NE(tables.PointVel(1, 8, 1), Poison);
    EXPECT_EQ(tables.PointVel(1, 9, 0), Poison);
    EXPECT_EQ(tables.PointVel(1, 10, 0), Poison);
    EXPECT_EQ(tables.PointAcc(1, 6, 0), Poison);
    Expect_Forces_Untouched(1);
    Expect_Forces_Untouched(2);
    Expect_Results(0, Forces_By_Formulas(model, tables, 0));
}

TEST_F(SolveForces, AResultTooLargeForASingleKeepsTheEntriesStoredBeforeIt) {
    Put_Rows(0);
    Clear_Link_Data();
    model.Link6 = 0.25F;  // turned by a torque, it bears four times as much force
    model.LinkTorque(6) = 3.4e38F;
    Solve_Forces(*program);
    Expect_Fault(fault::Overflow, "Solve_Forces");
    const ReferenceForces expected = Forces_By_Formulas(model, tables, 0);
    bool too_large = false;
    for (const auto& [entry, index] :
         {std::pair(F12, 1), {F32, 3}, {F43, 5}, {F14, 7}, {F54, 10}, {F65, 12}, {F16, 14}})
        for (int part = 0; part < 2; ++part) {
            too_large = too_large || std::abs(expected.X[index + part]) > std::numeric_limits<float>::max();
            EXPECT_EQ(tables.ForceTable(0, entry, part),
                      too_large ? Poison : static_cast<float>(expected.X[index + part]));
        }
    EXPECT_TRUE(too_large);
    EXPECT_EQ(tables.ForceTable(0, Shaking, 0), Poison);
    EXPECT_EQ(tables.TorqueTable(0, 0), Poison);
}

TEST_F(SolveForces, AnImportedTorqueReplacesThatOfLink6StepByStep) {
    Put_Rows(2);
    Clear_Link_Data();
    model.TorqueImported = true;
    model.LinkTorque(6) = 77;
    const float torques[] = {5, -8, 0.25F};
    for (int row = 0; row <= 2; ++row) tables.Torque21Imported(row) = torques[row];
    Solve_Forces(*program);
    for (int row = 0; row <= 2; ++row) EXPECT_EQ(tables.TorqueTable(row, 5), torques[row]);
    EXPECT_EQ(model.LinkTorque(6), 0.25F);
    // The same linkage under another torque: forces follow in proportion, -8 / 5.
    EXPECT_NEAR(tables.TorqueTable(1, 0) / tables.TorqueTable(0, 0), -1.6, 1e-6);
}

TEST_F(SolveForces, WithoutAnImportTheTorqueOfLink6IsItsOwn) {
    Put_Rows(0);
    Clear_Link_Data();
    model.LinkTorque(6) = 77;
    tables.Torque21Imported(0) = 5;
    Solve_Forces(*program);
    EXPECT_EQ(tables.TorqueTable(0, 5), 77);
    EXPECT_EQ(model.LinkTorque(6), 77);
}

TEST_F(SolveForces, FrictionOfLinks4And6HasNoEffect) {
    Put_Rows(0);
    Solve_Forces(*program);
    const auto force = tables.ForceTable(0);
    const auto torque = tables.TorqueTable(0);
    model.LinkFriction(4) += 100;
    model.LinkFriction(6) += 100;
    Solve_Forces(*program);
    EXPECT_TRUE(tables.ForceTable(0) == force);
    EXPECT_TRUE(tables.TorqueTable(0) == torque);
}

class RunDynamics : public SolveForces {};

TEST_F(RunDynamics, ResolvesTheForcesFirst) {
    Put_Rows(0);
    model.ForceX.Fill(Poison);
    model.ForceY.Fill(Poison);
    model.ForceMag(4) = 6;
    model.ForceAngle(4) = 30;
    EXPECT_EQ(Run_Dynamics(*program), 1);
    EXPECT_NEAR(model.ForceX(4), 5.196152, 1e-6);
    EXPECT_NEAR(model.ForceY(4), 3, 1e-6);
    Expect_Results(0, Forces_By_Formulas(model, tables, 0));
}

TEST_F(RunDynamics, LeavesNoTorqueOnLink6BehindAnImportedOne) {
    Put_Rows(0);
    model.TorqueImported = true;
    tables.Torque21Imported(0) = 9;
    Run_Dynamics(*program);
    EXPECT_EQ(tables.TorqueTable(0, 5), Forces_By_Formulas(model, tables, 0).torque[5]);
    EXPECT_EQ(model.LinkTorque(6), 0);
}

TEST_F(RunDynamics, SetsItsFlagEvenWhereTheRunStopped) {
    Put_Rows(2);
    Flatten_Row(1);
    model.DynamicsCalculated = false;
    model.FlywheelCalculated = true;
    EXPECT_EQ(Run_Dynamics(*program), 1);
    Expect_Singular(7, 1);
    EXPECT_TRUE(model.DynamicsCalculated);
    EXPECT_TRUE(model.FlywheelCalculated) << "only a complete run voids it";
}

}  // namespace
}  // namespace kervol
