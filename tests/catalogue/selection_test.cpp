// SPDX-License-Identifier: GPL-3.0-or-later
// Turning names into selection records: functions, components, the column that a frame turns with.
#include "catalogue/selection.h"

#include "catalogue/expected_tables.h"
#include "catalogue/names.h"
#include "core/thrown_fault.h"
#include "support/program_test.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

class Selection : public ProgramTest {
  protected:
    Selection() {
        for (std::int16_t k = 0; k <= 6; ++k) {
            selections.SelIndex(k) = kOld;
            selections.SelStage(k) = kOld;
            selections.SelComp(k) = kOld;
        }
    }
    void Set(std::string_view name, std::int16_t k) {
        Set_Selection(program->catalogue, selections, name, k);
    }

    static constexpr std::int16_t kOld = -77;
    Selections& selections = program->selections;
};

TEST_F(Selection, TakesTablePlaceAndClassOfEveryFunction) {
    for (const ExpectedFunction& expected : Expected_Functions()) {
        SCOPED_TRACE(expected.name);
        selections.SelIndex(3) = kOld;
        selections.SelStage(3) = kOld;
        Set(expected.name, 3);
        EXPECT_EQ(selections.SelTable(3), expected.code);
        EXPECT_EQ(selections.SelIndex(3), expected.column == -1 ? kOld : expected.column);
        EXPECT_EQ(selections.SelStage(3), expected.stage == -1 ? kOld : expected.stage);
        EXPECT_EQ(selections.SelScalar, expected.kind == "scalar");
        EXPECT_EQ(selections.SelVector, expected.kind == "vector");
        EXPECT_EQ(selections.SelFFT, expected.number == 66);
    }
}

TEST_F(Selection, LeavesAllOtherSelectionsAndTheComponent) {
    Set("V-Ratio-2", 2);
    for (std::int16_t k = 0; k <= 6; ++k) {
        if (k == 2) continue;
        EXPECT_EQ(selections.SelTable(k), 0);
        EXPECT_EQ(selections.SelIndex(k), kOld);
        EXPECT_EQ(selections.SelStage(k), kOld);
    }
    EXPECT_EQ(selections.SelComp(2), kOld);
    EXPECT_EQ(selections.SelCompName(2), "");
}

TEST_F(Selection, OfATextThatIsNoNameClearsTheFlagsAlone) {
    for (const char* text : {"", "theta2", "Theta2 ", " Theta2", "Theta", "Veloc I 4,5", "Theta2\n"}) {
        Set("Force 12", 1);
        selections.SelScalar = selections.SelVector = selections.SelFFT = true;
        Set(text, 1);
        EXPECT_FALSE(selections.SelScalar || selections.SelVector || selections.SelFFT) << text;
        EXPECT_EQ(selections.SelTable(1), 10) << text;
        EXPECT_EQ(selections.SelIndex(1), 5) << text;
    }
}

TEST_F(Selection, TakesTheFirstOfTwoEqualNames) {
    program->catalogue.CatalogName(4) = "Force 12";
    Set("Force 12", 1);
    EXPECT_EQ(selections.SelTable(1), 1);
    EXPECT_EQ(selections.SelIndex(1), 4);
    EXPECT_TRUE(selections.SelScalar);
    EXPECT_FALSE(selections.SelVector);
}

TEST_F(Selection, ReadsTheSameForceUnderTheNameOfEitherChain) {
    Change_Catalog_Labels(program->catalogue, "W");
    Set("Force 54", 1);
    Change_Catalog_Labels(program->catalogue, "S");
    Set("Force 53", 2);
    EXPECT_EQ(selections.SelTable(1), selections.SelTable(2));
    EXPECT_EQ(selections.SelIndex(1), 8);
    EXPECT_EQ(selections.SelIndex(2), 8);
    Set("Force 54", 3);
    EXPECT_EQ(selections.SelTable(3), 0) << "a name of the other chain is none";
}

TEST_F(Selection, KeepsItsBoundsAndStoresTheTableFirst) {
    Expect_Thrown(9, "", [&] { Set("Theta3", 7); });
    EXPECT_EQ(selections.SelTable(7), 1);
    EXPECT_FALSE(selections.SelScalar);
    Set("Flywl Torque", 22);
    EXPECT_EQ(selections.SelTable(22), 18) << "has no column, so it goes as far as the tables' codes do";
    for (const std::int16_t k : {std::int16_t{-1}, std::int16_t{23}})
        Expect_Thrown(9, "", [&] { Set("Current FFT", k); });
    Set("no function", 99);
}

TEST_F(Selection, ComponentIsNumberedFromX) {
    const char* const names[] = {"X", "Y", "Mag", "Ang"};
    for (std::int16_t number = 0; number < 4; ++number) {
        Set_Component(program->catalogue, selections, names[number], 4);
        EXPECT_EQ(selections.SelComp(4), number);
        EXPECT_EQ(selections.SelCompName(4), names[number]);
    }
}

TEST_F(Selection, ComponentStaysWithATextThatIsNone) {
    Set_Component(program->catalogue, selections, "Y", 1);
    for (const char* text : {"", "x", "Magnitude", "X ", "Mag, Ang"}) {
        Set_Component(program->catalogue, selections, text, 1);
        EXPECT_EQ(selections.SelComp(1), 1) << text;
        EXPECT_EQ(selections.SelCompName(1), "Y") << text;
    }
}

TEST_F(Selection, ComponentOfSelection5IsAFaultBeforeAnythingIsStored) {
    Expect_Thrown(9, "", [&] { Set_Component(program->catalogue, selections, "X", 5); });
    EXPECT_EQ(selections.SelComp(5), kOld);
}

struct TurningLink {
    const char* chain;
    std::int16_t point, column;
};

TEST_F(Selection, TurnsWithTheLinkOfItsPoint) {
    constexpr std::int16_t kKept = 55;
    // clang-format off
    constexpr TurningLink kLinks[] = {
        {"W", 0, 0}, {"W", 1, 2}, {"W", 2, 1}, {"W", 3, 3}, {"W", 4, 5}, {"W", 5, 4},
        {"S", 0, 0}, {"S", 1, 2}, {"S", 2, 1}, {"S", 3, 1}, {"S", 4, 5}, {"S", 5, 4},
        {"W", 6, kKept}, {"S", 7, kKept}, {"W", 12, kKept}, {"S", -1, kKept}, {"?", 3, kKept},
    };
    // clang-format on
    selections.SelCurrent = 2;
    for (const auto& [chain, point, expected] : kLinks) {
        model.LinkageType = chain;
        selections.SelIndex(2) = point;
        std::int16_t column = kKept;
        Rotating_Column(model, selections, column);
        EXPECT_EQ(column, expected) << chain << " " << point;
    }
}

TEST_F(Selection, TurningLinkOfASelectionOutsideTheRecordIsFault9) {
    std::int16_t column = 3;
    for (const std::int16_t current : {std::int16_t{-1}, std::int16_t{7}}) {
        selections.SelCurrent = current;
        Expect_Thrown(9, "", [&] { Rotating_Column(model, selections, column); });
    }
    EXPECT_EQ(column, 3);
}

}  // namespace
}  // namespace kervol
