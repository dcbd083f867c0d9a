// SPDX-License-Identifier: GPL-3.0-or-later
// Shapes of the result tables and what clearing them zeroes, cell by cell.
#include "core/result_tables.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "core/thrown_fault.h"
#include "support/compare.h"
#include "support/program_test.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

static_assert(std::is_same_v<decltype(ResultTables::StepValid), Table<bool, 1025>>);
static_assert(std::is_same_v<decltype(ResultTables::Theta), Table<float, 1025, 8>>);
static_assert(std::is_same_v<decltype(ResultTables::Omega), Table<float, 1025, 5>>);
static_assert(std::is_same_v<decltype(ResultTables::Alpha), Table<float, 1025, 5>>);
static_assert(std::is_same_v<decltype(ResultTables::PointPos), Table<float, 1025, 11, 2>>);
static_assert(std::is_same_v<decltype(ResultTables::PointVel), Table<float, 1025, 11, 2>>);
static_assert(std::is_same_v<decltype(ResultTables::PointAcc), Table<float, 1025, 11, 2>>);
static_assert(std::is_same_v<decltype(ResultTables::VelRatio), Table<float, 1025, 2>>);
static_assert(std::is_same_v<decltype(ResultTables::MechAdv), Table<float, 1025, 2>>);
static_assert(std::is_same_v<decltype(ResultTables::ForceTable), Table<float, 1025, 13, 2>>);
static_assert(std::is_same_v<decltype(ResultTables::TorqueTable), Table<float, 1025, 7>>);
static_assert(std::is_same_v<decltype(ResultTables::FlywheelTorque), Table<float, 1025>>);
static_assert(std::is_same_v<decltype(ResultTables::FFTTable), Table<float, 513, 4>>);
static_assert(std::is_same_v<decltype(ResultTables::DriveTheta), Table<float, 361>>);
static_assert(std::is_same_v<decltype(ResultTables::Torque21Imported), Table<float, 1025>>);

/// Cells of a table, or of a row of one, that hold the value.
int Count(float cell, float value) {
    return cell >= value && cell <= value ? 1 : 0;
}
template <class T, std::size_t... N>
int Count(const Table<T, N...>& table, float value) {
    int count = 0;
    for (const auto& element : table) count += Count(element, value);
    return count;
}

class ClearTables : public ProgramTest {
  protected:
    ClearTables() {
        Poison_Tables(tables);
        tables.StepValid.Fill(true);
        model.TorqueImported = true;
    }

    /// The first rows hold nothing but zeros, the others what they held.
    template <class Cleared>
    static void Expect_Cleared(const Cleared& table, int rows, const char* name) {
        const auto total = static_cast<int>(sizeof(Cleared) / sizeof(float));
        const int cleared = total / static_cast<int>(Cleared::Size()) * rows;
        EXPECT_EQ(Count(table, 0.0F), cleared) << name;
        EXPECT_EQ(Count(table, Poison), total - cleared) << name;
        for (int row = 0; row < rows; ++row)
            ASSERT_EQ(Count(table(row), Poison), 0) << name << ", row " << row;
    }

    void Expect_All_Cleared(int rows) {
        Expect_Cleared(tables.Theta, rows, "Theta");
        Expect_Cleared(tables.Omega, rows, "Omega");
        Expect_Cleared(tables.Alpha, rows, "Alpha");
        Expect_Cleared(tables.PointPos, rows, "PointPos");
        Expect_Cleared(tables.PointVel, rows, "PointVel");
        Expect_Cleared(tables.PointAcc, rows, "PointAcc");
        Expect_Cleared(tables.VelRatio, rows, "VelRatio");
        Expect_Cleared(tables.MechAdv, rows, "MechAdv");
        Expect_Cleared(tables.Torque21Imported, rows, "Torque21Imported");
    }

    void Expect_Others_Untouched() {
        EXPECT_EQ(Count(tables.ForceTable, Poison), 1025 * 13 * 2);
        EXPECT_EQ(Count(tables.TorqueTable, Poison), 1025 * 7);
        EXPECT_EQ(Count(tables.FlywheelTorque, Poison), 1025);
        EXPECT_EQ(Count(tables.FFTTable, Poison), 513 * 4);
        EXPECT_EQ(Count(tables.DriveTheta, Poison), 361);
        for (const bool valid : tables.StepValid) ASSERT_TRUE(valid);
    }

    void Clear_With(int steps) {
        model.NumSteps = static_cast<std::int16_t>(steps);
        Clear_Tables(*program);
    }
};

TEST_F(ClearTables, ZeroesRowsZeroToNumStepsOfTheKinematicTablesAndTheImportedTorque) {
    Clear_With(36);
    Expect_All_Cleared(37);
    EXPECT_FALSE(model.TorqueImported);
    Expect_Others_Untouched();
}

TEST_F(ClearTables, OfNoStepsZeroesTheFirstRow) {
    Clear_With(0);
    Expect_All_Cleared(1);
    EXPECT_FALSE(model.TorqueImported);
    Expect_Others_Untouched();
}

TEST_F(ClearTables, OfANegativeCountClearsTheFlagAlone) {
    for (const int steps : {-1, -32768}) {
        model.TorqueImported = true;
        Clear_With(steps);
        EXPECT_FALSE(model.TorqueImported);
        Expect_All_Cleared(0);
        Expect_Others_Untouched();
    }
}

TEST_F(ClearTables, OfTheHighestCountZeroesEveryTableToItsLastElement) {
    Clear_With(1024);
    Expect_All_Cleared(1025);
    EXPECT_FALSE(model.TorqueImported);
    Expect_Others_Untouched();
}

TEST_F(ClearTables, BeyondTheHighestCountZeroesAllRows) {
    for (const int steps : {1025, 32767}) {
        model.TorqueImported = true;
        Poison_Tables(tables);
        Clear_With(steps);
        EXPECT_FALSE(model.TorqueImported);
        Expect_All_Cleared(1025);
        Expect_Others_Untouched();
    }
}

TEST_F(ClearTables, ChangesNoFieldOfTheModelButItsFlag) {
    const LinkageModel before = model;
    Clear_Tables(*program);
    EXPECT_EQ(Differing_Fields(before, model), std::vector<std::string>{"TorqueImported"});
}

TEST(ResultTables, FaultBehindTheirLastStep) {
    const auto tables = std::make_unique<ResultTables>();
    const auto fault = [](auto body) { return Thrown(body).number; };
    EXPECT_EQ(fault([&] { (void)tables->StepValid(1025); }), 9);
    EXPECT_EQ(fault([&] { (void)tables->Theta(1025, 0); }), 9);
    EXPECT_EQ(fault([&] { (void)tables->Theta(1024, 8); }), 9);
    EXPECT_EQ(fault([&] { (void)tables->Omega(-1, 0); }), 9);
    EXPECT_EQ(fault([&] { (void)tables->PointPos(1024, 10, 1); }), 0);
    EXPECT_EQ(fault([&] { (void)tables->PointPos(1024, 11, 0); }), 9);
    EXPECT_EQ(fault([&] { (void)tables->PointPos(1024, 10, 2); }), 9);
    EXPECT_EQ(fault([&] { (void)tables->DriveTheta(360); }), 0);
    EXPECT_EQ(fault([&] { (void)tables->DriveTheta(361); }), 9);
    EXPECT_EQ(fault([&] { (void)tables->FFTTable(513, 0); }), 9);
}

}  // namespace
}  // namespace kervol
