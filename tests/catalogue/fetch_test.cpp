// SPDX-License-Identifier: GPL-3.0-or-later
// Fetching the numbers of all functions, in every component and both frames.
#include <cmath>
#include <complex>
#include <numbers>

#include "catalogue/expected_tables.h"
#include "catalogue/names.h"
#include "catalogue/selection.h"
#include "core/thrown_fault.h"
#include "support/program_test.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

constexpr std::int16_t kSteps[] = {0, 17, 512, 1024};
constexpr float kGround = 35.5F;

/// A number for each cell of each table, all different, of either sign and sizes 3 to 120. Exact in single
/// precision.
float Cell(int code, int step, int column, int part) {
    const int serial = ((step * 13 + column) * 2 + part) * 19 + code;
    const int sign = serial % 3 == 0 ? -1 : 1;
    return static_cast<float>(sign) * (3.0F + static_cast<float>(serial % 1867) / 16.0F);
}

class Fetch : public ProgramTest {
  protected:
    Fetch() {
        model.GroundAngleDeg = kGround;
        for (const std::int16_t step : kSteps) Fill_Row(step);
    }

    void Fill_Row(int step) {
        for (int i = 0; i < 8; ++i) tables.Theta(step, i) = Cell(1, step, i, 0);
        for (int i = 0; i < 5; ++i) tables.Omega(step, i) = Cell(2, step, i, 0);
        for (int i = 0; i < 5; ++i) tables.Alpha(step, i) = Cell(3, step, i, 0);
        for (int i = 0; i < 11; ++i)
            for (int part = 0; part < 2; ++part) {
                tables.PointVel(step, i, part) = Cell(4, step, i, part);
                tables.PointAcc(step, i, part) = Cell(5, step, i, part);
                tables.PointPos(step, i, part) = Cell(6, step, i, part);
            }
        for (int i = 0; i < 2; ++i) tables.VelRatio(step, i) = Cell(7, step, i, 0);
        for (int i = 0; i < 2; ++i) tables.MechAdv(step, i) = Cell(8, step, i, 0);
        for (int i = 0; i < 7; ++i) tables.TorqueTable(step, i) = Cell(9, step, i, 0);
        for (int i = 0; i < 13; ++i)
            for (int part = 0; part < 2; ++part) tables.ForceTable(step, i, part) = Cell(10, step, i, part);
        if (step <= 512)
            for (int i = 0; i < 4; ++i) tables.FFTTable(step, i) = Cell(14, step, i, 0);
        tables.FlywheelTorque(step) = Cell(18, step, 0, 0);
    }

    void Set(std::string_view name, std::int16_t k, std::int16_t part) {
        Set_Selection(program->catalogue, selections, name, k);
        selections.SelComp(k) = part;
    }
    float Fetched(std::int16_t step, std::int16_t k) {
        float value = kUntouched;
        Select_Variable(*program, step, k, value);
        return value;
    }
    /// Fetches part of a velocity of A that is stored as (x, y).
    float Part_Of(float x, float y, std::int16_t part) {
        tables.PointVel(0, 0, 0) = x;
        tables.PointVel(0, 0, 1) = y;
        Set("Veloc I 2,3", 1, part);
        return Fetched(0, 1);
    }

    static constexpr float kUntouched = -4711;
    Selections& selections = program->selections;
};

/// Degrees by the exact pi, from -90 to below 270.
double Degrees(std::complex<double> vector) {
    const double degrees = std::arg(vector) * 180 / std::numbers::pi;
    return degrees < -90 ? degrees + 360 : degrees;
}

std::complex<double> Turned(std::complex<double> vector, double degrees) {
    return vector * std::polar(1.0, degrees * std::numbers::pi / 180);
}

/// Column of the link that a function's point belongs to; of the crank for what belongs to no point.
int Link_Column(int column, bool watt) {
    constexpr int kWatt[] = {0, 2, 1, 3, 5, 4};
    if (column < 0 || column > 5) return 0;
    return column == 3 && !watt ? 1 : kWatt[column];
}

bool Is_Vector(int code) {
    return code == 4 || code == 5 || code == 6 || code == 10;
}

std::complex<double> Expected_Vector(const ExpectedFunction& row, int step, bool local, int turning_column) {
    const std::complex<double> stored(Cell(row.code, step, row.column, 0),
                                      Cell(row.code, step, row.column, 1));
    const auto global = Turned(stored, kGround);
    return local ? Turned(global, -double(Cell(1, step, turning_column, 0))) : global;
}

double Expected_Number(const ExpectedFunction& row, int step, int part) {
    if (row.code == 14) return Cell(14, step, part, 0);
    if (row.code == 18) return Cell(18, step, 0, 0);
    return Cell(row.code, step, row.stage >= 0 ? row.stage : row.column, 0);
}

double Expected_Part(std::complex<double> vector, int part) {
    const double parts[] = {vector.real(), vector.imag(), std::abs(vector), Degrees(vector)};
    return parts[part];
}

TEST_F(Fetch, GivesEveryComponentOfEveryFunctionInBothFramesForBothChains) {
    int fetched = 0;
    for (const char* chain : {"W", "S"}) {
        model.LinkageType = chain;
        const bool watt = model.LinkageType == "W";
        Change_Catalog_Labels(program->catalogue, chain);
        for (const ExpectedFunction& row : Expected_Functions())
            for (const std::int16_t coords : {std::int16_t{0}, std::int16_t{2}, std::int16_t{-1}})
                for (std::int16_t part = 0; part < 4; ++part)
                    for (const std::int16_t step : kSteps) {
                        if (row.code == 14 && step > 512) continue;
                        SCOPED_TRACE(std::string(chain) + " " + std::string(row.name) + " " +
                                     std::to_string(coords) + " " + std::to_string(part));
                        selections.LocalCoords = coords;
                        selections.SelIndex(2) = 0;
                        selections.SelCurrent = 2;
                        Set(program->catalogue.CatalogName(row.number), 2, part);
                        if (Is_Vector(row.code)) {
                            // Forces 0 to 5 share their index with a point, and turn with its link.
                            const auto vector =
                                Expected_Vector(row, step, coords != 0, Link_Column(row.column, watt));
                            // A turn is rounded to single radians: 240 degrees by 1.2e-7, which moves a
                            // vector of 170 by 2e-5; two turns, then the store.
                            const double expected = Expected_Part(vector, part);
                            ASSERT_NEAR(Fetched(step, 2), expected, 1e-4);
                        } else {
                            ASSERT_EQ(Fetched(step, 2), Expected_Number(row, step, part));
                        }
                        ++fetched;
                    }
    }
    EXPECT_EQ(fetched, 2 * 3 * 4 * (65 * 4 + 3));
}

TEST_F(Fetch, GivesMagnitudeAndAngleOfVectorsAndLeavesBothForAllElse) {
    model.LinkageType = "S";
    for (const ExpectedFunction& row : Expected_Functions())
        for (const std::int16_t coords : {std::int16_t{0}, std::int16_t{2}}) {
            SCOPED_TRACE(row.name);
            selections.LocalCoords = coords;
            selections.SelIndex(3) = 0;
            selections.SelCurrent = 3;
            Set(row.name, 3, 0);
            float magnitude = kUntouched, angle = kUntouched;
            Select_PolarVariable(*program, 17, 3, magnitude, angle);
            if (Is_Vector(row.code)) {
                const auto vector = Expected_Vector(row, 17, coords != 0, Link_Column(row.column, false));
                EXPECT_NEAR(magnitude, std::abs(vector), 1e-4);
                EXPECT_NEAR(angle, Degrees(vector), 1e-4);
            } else {
                EXPECT_EQ(magnitude, kUntouched);
                EXPECT_EQ(angle, kUntouched);
            }
        }
}

TEST_F(Fetch, TurnsWithTheLinkOfTheCurrentSelectionAndNotOfItsOwn) {
    model.LinkageType = "W";
    selections.LocalCoords = 2;
    Set("Veloc I 3,4", 1, 0);
    Set("Veloc I 5,6", 2, 0);
    selections.SelCurrent = 2;
    const ExpectedFunction& row = Expected_Functions()[18];
    ASSERT_EQ(row.name, "Veloc I 3,4");
    EXPECT_NEAR(Fetched(17, 1), Expected_Vector(row, 17, true, 5).real(), 1e-4);
    selections.SelCurrent = 0;  // never used: its index is 0
    EXPECT_NEAR(Fetched(17, 1), Expected_Vector(row, 17, true, 0).real(), 1e-4);
    selections.LocalCoords = 0;
    EXPECT_NEAR(Fetched(17, 1), Expected_Vector(row, 17, false, 0).real(), 1e-4);
}

TEST_F(Fetch, CutsSmallComponentsBeforeThePolarForm) {
    model.GroundAngleDeg = 0;
    EXPECT_EQ(Part_Of(0.00009F, 3, 0), 0);
    EXPECT_EQ(Part_Of(-0.00009F, 3, 0), 0);
    EXPECT_EQ(Part_Of(3, -0.00009F, 1), 0);
    EXPECT_EQ(Part_Of(0.00011F, 3, 0), 0.00011F);
    EXPECT_EQ(Part_Of(3, -0.00011F, 1), -0.00011F);
    EXPECT_EQ(Part_Of(0.00009F, 3, 3), 90) << "a vertical vector: 1.570796327 is 90 degrees exactly";
    EXPECT_EQ(Part_Of(-0.00009F, 3, 2), 3);
}

TEST_F(Fetch, OfAVectorBelowTheToleranceIsZeroInSizeAndAngle) {
    for (std::int16_t part = 0; part < 4; ++part) EXPECT_EQ(Part_Of(0.00005F, -0.00009F, part), 0) << part;
    float magnitude = kUntouched, angle = kUntouched;
    Select_PolarVariable(*program, 0, 1, magnitude, angle);
    EXPECT_EQ(magnitude, 0);
    EXPECT_EQ(angle, 0);
}

TEST_F(Fetch, DoesNotCutNumbersThatAreNoVector) {
    tables.Theta(0, 1) = 0.00005F;
    Set("Theta3", 1, 2);
    EXPECT_EQ(Fetched(0, 1), 0.00005F);
}

TEST_F(Fetch, MeasuresAnglesFromMinus90To270Degrees) {
    model.GroundAngleDeg = 0;
    EXPECT_NEAR(Part_Of(-1, -1, 3), 225, 1e-4);
    EXPECT_NEAR(Part_Of(1, -1, 3), -45, 1e-4);
    EXPECT_NEAR(Part_Of(-1, 0, 3), 180, 1e-4);
    EXPECT_NEAR(Part_Of(0, -1, 3), -90, 1e-4);
}

TEST_F(Fetch, TurnsTheFirstCouplerPointWithLink3ThoughItsPickOpensNoFrame) {
    for (const char* chain : {"W", "S"}) {
        model.LinkageType = chain;
        selections.LocalCoords = 2;
        selections.SelCurrent = 1;
        Set("Cpler Pt-1", 1, 0);
        EXPECT_FALSE(selections.SelVector);
        const ExpectedFunction& row = Expected_Functions()[29];
        EXPECT_NEAR(Fetched(17, 1), Expected_Vector(row, 17, true, 1).real(), 1e-4);
    }
}

TEST_F(Fetch, OfACodeThatIsNotInUseLeavesTheValue) {
    for (const int code : {0, 11, 12, 13, 15, 16, 17, 19, -1}) {
        selections.SelTable(1) = static_cast<std::int16_t>(code);
        EXPECT_EQ(Fetched(0, 1), kUntouched) << code;
    }
}

TEST_F(Fetch, OutsideATableIsFault9ForTheCaller) {
    Set("Theta2", 1, 2);
    Expect_Thrown(9, "", [&] { (void)Fetched(1025, 1); });
    Expect_Thrown(9, "", [&] { (void)Fetched(-1, 1); });
    selections.SelIndex(1) = 8;
    Expect_Thrown(9, "", [&] { (void)Fetched(0, 1); });
    Set("Veloc I 2,3", 1, 4);
    Expect_Thrown(9, "", [&] { (void)Fetched(0, 1); });
    Set("V-Ratio-1", 1, 2);
    selections.SelStage(1) = 2;
    Expect_Thrown(9, "", [&] { (void)Fetched(0, 1); });
    Set("Current FFT", 1, 3);
    EXPECT_EQ(Fetched(512, 1), Cell(14, 512, 3, 0));
    Expect_Thrown(9, "", [&] { (void)Fetched(513, 1); });
    selections.SelTable(7) = 1;
    Expect_Thrown(9, "", [&] { (void)Fetched(0, 7); });
    selections.SelCurrent = 7;
    Set("Theta2", 1, 2);
    Expect_Thrown(9, "", [&] { (void)Fetched(0, 1); });
}

TEST_F(Fetch, OfAPolarVectorReportsItsFaultAndLeavesBothValues) {
    Set("Veloc I 2,3", 1, 0);
    float magnitude = kUntouched, angle = kUntouched;
    Select_PolarVariable(*program, 1025, 1, magnitude, angle);
    Expect_Fault(9, "Select_PolarVariable");
    EXPECT_EQ(magnitude, kUntouched);
    EXPECT_EQ(angle, kUntouched);
}

}  // namespace
}  // namespace kervol
