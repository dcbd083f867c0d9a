// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of the unit systems, and that they are texts and nothing more.
#include "core/units.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/thrown_fault.h"
#include "support/compare.h"
#include "support/program_test.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

using UnitTable = Table<std::string, 19>;

/// Entries 1 to 18.
using Texts = std::array<const char*, 18>;

constexpr Texts kInch = {"degrees", "rad/sec", "rad/sec^2", "in/sec",    "in/sec^2", "in",
                         "ratio",   "ratio",   "lb-in",     "lb",        "lb",       "lb-in",
                         "lb",      "bl",      "in-lb-s^2", "rad/sec^3", "in/sec^3", "lb-in"};
constexpr Texts kFoot = {"degrees", "rad/sec", "rad/sec^2", "ft/sec",    "ft/sec^2", "ft",
                         "ratio",   "ratio",   "lb-ft",     "lb",        "lb",       "lb-ft",
                         "lb",      "sl",      "ft-lb-^2",  "rad/sec^3", "ft/sec^3", "lb-ft"};
constexpr Texts kMetre = {"degrees", "rad/sec", "rad/sec^2", "m/sec",     "m/sec^2", "m",
                          "ratio",   "ratio",   "N-m",       "N",         "N",       "N-m",
                          "N",       "kg",      "kg-m^2",    "rad/sec^3", "m/sec^3", "N-m"};
constexpr Texts kCentimetre = {"degrees", "rad/sec", "rad/sec^2", "cm/sec",    "cm/sec^2", "cm",
                               "ratio",   "ratio",   "dyn-cm",    "dyn",       "dyn",      "dyn-cm",
                               "dyn",     "g",       "g-cm^2",    "rad/sec^3", "cm/sec^3", "dyn-cm"};
constexpr Texts kMillimetre = {"degrees", "rad/sec", "rad/sec^2", "mm/sec",    "mm/sec^2", "mm",
                               "ratio",   "ratio",   "kN-mm",     "kN",        "kN",       "kN-mm",
                               "kN",      "kg",      "kg-mm^2",   "rad/sec^3", "mm/sec^3", "kN-mm"};
/// Of a system that there is none of: length, force, mass and inertia are empty.
constexpr Texts kNone = {"degrees", "rad/sec", "rad/sec^2", "/sec", "/sec^2", "", "ratio",     "ratio",  "-",
                         "",        "",        "-",         "",     "",       "", "rad/sec^3", "/sec^3", "-"};

void Expect_System(std::int16_t system, const Texts& texts) {
    UnitTable table;
    table.Fill("old");
    Put_Units(system, table, 18);
    EXPECT_EQ(table(0), "old");
    for (int i = 1; i <= 18; ++i)
        EXPECT_EQ(table(i), texts.at(static_cast<std::size_t>(i) - 1)) << system << ", " << i;
}

TEST(PutUnits, GivesTheTextsOfEachSystem) {
    Expect_System(1, kInch);
    Expect_System(2, kFoot);
    Expect_System(3, kMetre);
    Expect_System(4, kCentimetre);
    Expect_System(5, kMillimetre);
}

TEST(PutUnits, OutsideTheSystemsLeavesLengthForceMassAndInertiaEmpty) {
    for (const int system : {0, 6, -1, 32767, -32768})
        Expect_System(static_cast<std::int16_t>(system), kNone);
}

TEST(PutUnits, CopiesTheFirstEntriesAlone) {
    UnitTable table;
    table.Fill("old");
    Put_Units(3, table, 5);
    EXPECT_EQ(table(0), "old");
    EXPECT_EQ(table(1), "degrees");
    EXPECT_EQ(table(5), "m/sec^2");
    for (int i = 6; i <= 18; ++i) EXPECT_EQ(table(i), "old") << i;
}

TEST(PutUnits, CopiesNothingForACountBelowOne) {
    UnitTable table;
    table.Fill("old");
    Put_Units(3, table, 0);
    Put_Units(3, table, -5);
    for (int i = 0; i <= 18; ++i) EXPECT_EQ(table(i), "old") << i;
}

TEST(PutUnits, FaultsBehindTheLastEntry) {
    UnitTable table;
    EXPECT_EQ(Thrown([&] { Put_Units(1, table, 19); }).number, 9);
    EXPECT_EQ(table(18), "lb-in");
}

TEST(PutUnits, OfTheModelGoesToTheEntryBehindItsCount) {
    LinkageModel model;
    model.UnitSystem = 4;
    model.UnitCount = 5;
    Put_Units(model);
    EXPECT_EQ(model.UnitText(6), "cm");
    EXPECT_EQ(model.UnitText(7), "");
    model.UnitCount = 17;
    Put_Units(model);
    EXPECT_EQ(model.UnitText(18), "dyn-cm");
}

class Units : public ProgramTest {};

TEST_F(Units, SwitchingTheSystemLeavesEveryNumberAsItWas) {
    const LinkageModel before = model;
    model.UnitSystem = 3;
    Put_Units(model);
    EXPECT_EQ(Differing_Fields(before, model), (std::vector<std::string>{"UnitSystem", "UnitText"}));
    model.UnitSystem = 1;
    Put_Units(model);
    EXPECT_EQ(Differing_Fields(before, model), std::vector<std::string>{});
}

TEST_F(Units, SystemZeroLeavesTheTextsOfTheModelEmpty) {
    model.UnitSystem = 0;
    Put_Units(model);
    for (int i = 1; i <= 18; ++i)
        EXPECT_EQ(model.UnitText(i), kNone.at(static_cast<std::size_t>(i) - 1)) << i;
}

}  // namespace
}  // namespace kervol
