// SPDX-License-Identifier: GPL-3.0-or-later
// The readable summary of a model.
#include "batch/summary.h"

#include <cmath>
#include <sstream>
#include <utility>

#include "batch/command_run.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

/// What stands behind a label at the start of a line.
std::string Value_Of(const std::string& text, const std::string& label) {
    const std::size_t at = text.find("\n  " + label + "  ");
    if (at == std::string::npos) return "no line " + label;
    const std::size_t value = text.find_first_not_of(' ', at + label.size() + 3);
    return text.substr(value, text.find('\n', value) - value);
}

TEST(Summary, TellsTitleChainLengthsClassesAndDrive) {
    const CommandRun run = Batch({"info", "--example", "watt"});
    EXPECT_EQ(run.code, 0);
    EXPECT_THAT(run.out, StartsWith("Kervol Watts Chain with Two Coupler Curves\n"));
    EXPECT_THAT(Value_Of(run.out, "Chain"), HasSubstr("Watt"));
    EXPECT_THAT(Value_Of(run.out, "Chain"), HasSubstr("Open"));
    EXPECT_EQ(Value_Of(run.out, "Link 1 (O2-O4)"), "9.375 in");
    EXPECT_EQ(Value_Of(run.out, "Link 2 (O2-A)"), "2 in");
    EXPECT_EQ(Value_Of(run.out, "Link 3 (A-B)"), "8.625 in");
    EXPECT_EQ(Value_Of(run.out, "Link 4 (O4-B)"), "7 in");
    EXPECT_EQ(Value_Of(run.out, "Link O4-D"), "8 in");
    EXPECT_EQ(Value_Of(run.out, "Link 5 (D-E)"), "7 in");
    EXPECT_EQ(Value_Of(run.out, "Link 6 (O6-E)"), "8 in");
    EXPECT_EQ(Value_Of(run.out, "Coupler A-C"), "6 in");
    EXPECT_EQ(Value_Of(run.out, "Angle Delta3"), "45 deg");
    EXPECT_EQ(Value_Of(run.out, "Angle Delta4"), "-30 deg");
    EXPECT_EQ(Value_Of(run.out, "Pivot O6"), "14.375, 2 in");
    EXPECT_EQ(Value_Of(run.out, "Stage 1"), "is Grashof");
    EXPECT_EQ(Value_Of(run.out, "Stage 2"), "is Grashof");
    EXPECT_EQ(Value_Of(run.out, "Drive"), "angle steps from 0 to 360 by 10 deg, 10 rad/s");
    EXPECT_EQ(Value_Of(run.out, "Steps"), "37");
    EXPECT_EQ(Value_Of(run.out, "Steps not assembled"), "none");
}

TEST(Summary, NamesTheLinksOfAStephensonChainInItsOwnWay) {
    const std::string text = Batch({"info", "--example", "hoeken"}).out;
    EXPECT_THAT(Value_Of(text, "Chain"), HasSubstr("Stephenson"));
    EXPECT_THAT(Value_Of(text, "Chain"), HasSubstr("Crossed"));
    EXPECT_EQ(Value_Of(text, "Link 5 (C-D)"), "112 in");
    EXPECT_EQ(Value_Of(text, "Link 6 (O6-D)"), "30 in");
    EXPECT_THAT(text, Not(HasSubstr("Link O4-D")));
    EXPECT_THAT(text, Not(HasSubstr("\n  Stage 2 "))) << "has no class";
    // 25 + 62.5 < 50 + 62.5.
    EXPECT_EQ(Value_Of(text, "Stage 1"), "is Grashof");
}

TEST(Summary, ListsTheRangeOfStepsThatDoNotAssemble) {
    const TemporaryFolder folder;
    const std::string path = Long_Crank_File(folder);
    const CommandRun run = Batch({"info", path});
    EXPECT_EQ(run.code, 3);
    EXPECT_EQ(Value_Of(run.out, "File"), path);
    EXPECT_EQ(Value_Of(run.out, "Stage 1"), "is Non - Grashof");
    EXPECT_EQ(Value_Of(run.out, "Steps not assembled"), "10 to 26");
    EXPECT_THAT(run.out, HasSubstr("does not assemble"));
}

TEST(Summary, TellsEachDriveWithItsOwnNumbers) {
    const TemporaryFolder folder;
    const struct {
        std::int16_t mode;
        const char* drive;
    } cases[] = {
        {1, "one position at 33.5 deg, 10 rad/s"},
        {2, "time steps from 0 to 1 by 0.05 s, starting at 33.5 deg, 10 rad/s, -5 rad/s^2"},
        {4, "cam s-v-a data of cam.sva"},
        {5, "linkage data of cam.sva"},
        {8, "none (mode 8)"},
    };
    for (const auto& [mode, drive] : cases) {
        const std::string path = Model_File(folder, "a.kvl", [&, m = mode](Program& program) {
            program.model.CalcMode = m;
            program.model.Theta2One = 33.5F;
            program.model.TimeEnd = 1;
            program.model.DriveFileName = "cam.sva";
            program.model.NumSteps = 3;
        });
        EXPECT_EQ(Value_Of(Batch({"info", path}).out, "Drive"), drive);
    }
}

TEST(Summary, ANegativeCountOfStepsIsNoStep) {
    const TemporaryFolder folder;
    const std::string path = Model_File(folder, "a.kvl", [](Program& program) {
        program.model.CalcMode = 0;
        program.model.NumSteps = -5;
    });
    const std::string text = Batch({"info", path}).out;
    EXPECT_EQ(Value_Of(text, "Steps"), "0");
    EXPECT_EQ(Value_Of(text, "Steps not assembled"), "none");
}

TEST(Summary, UsesTheUnitsOfTheModelAndItsNameWhereItHasNoTitle) {
    const TemporaryFolder folder;
    const std::string path = Model_File(folder, "untitled.kvl", [](Program& program) {
        program.model.ModelTitle = "";
        program.model.UnitSystem = 5;
    });
    const std::string text = Batch({"info", path}).out;
    EXPECT_THAT(text, StartsWith("untitled\n"));
    EXPECT_EQ(Value_Of(text, "Link 2 (O2-A)"), "2 mm");
}

/// The least and the greatest value of a line "L at step I to H at step J unit".
struct Extremes {
    double low = 0, high = 0;
    int low_step = -1, high_step = -1;
    std::string unit;
};
Extremes Extremes_Of(const std::string& text, const std::string& label) {
    Extremes extremes;
    std::string word;
    std::istringstream line(Value_Of(text, label));
    line >> extremes.low >> word >> word >> extremes.low_step >> word >> extremes.high >> word >> word >>
        extremes.high_step >> extremes.unit;
    return extremes;
}

TEST(Summary, TellsTheExtremesOfDrivingTorqueAndJointForces) {
    for (const char* example : {"watt", "double-dwell"}) {
        const std::string text = Batch({"info", "--example", example}).out;
        const auto tables = Batch({"tables", "--example", example, "--dynamics"}).Json();
        const bool watt = std::string(example) == "watt";
        const auto expect = [&](const std::string& label, const char* unit, auto&& value) {
            const Extremes shown = Extremes_Of(text, label);
            EXPECT_EQ(shown.unit, unit) << label;
            const std::size_t count = tables["StepValid"].size();
            std::size_t low = 0, high = 0;
            for (std::size_t step = 0; step < count; ++step) {
                if (value(step) < value(low)) low = step;
                if (value(step) > value(high)) high = step;
            }
            EXPECT_EQ(shown.low_step, static_cast<int>(low)) << label;
            EXPECT_EQ(shown.high_step, static_cast<int>(high)) << label;
            EXPECT_NEAR(shown.low, value(low), 1e-3 * std::abs(value(low))) << label;
            EXPECT_NEAR(shown.high, value(high), 1e-3 * std::abs(value(high))) << label;
        };
        expect("Driving torque", "lb-in",
               [&](std::size_t step) { return tables["TorqueTable"][step][0].get<double>(); });
        const std::pair<std::string, std::size_t> forces[] = {{"Force at O2", 5},
                                                              {"Force at A", 0},
                                                              {"Force at B", 1},
                                                              {"Force at O4", 6},
                                                              {"Force at O6", 10},
                                                              {"Shaking force", 7},
                                                              {watt ? "Force at D" : "Force at C", 8},
                                                              {watt ? "Force at E" : "Force at D", 9}};
        for (const auto& [label, entry] : forces)
            expect(label, "lb", [&, i = entry](std::size_t step) {
                const auto& force = tables["ForceTable"][step][i];
                return std::hypot(force[0].get<double>(), force[1].get<double>());
            });
    }
}

TEST(Summary, LeavesStepsThatDoNotAssembleOutOfTheExtremes) {
    const TemporaryFolder folder;
    const CommandRun run = Batch({"info", Long_Crank_File(folder)});
    EXPECT_EQ(Value_Of(run.out, "Forces not solved"), "from step 10 on");
    EXPECT_LT(Extremes_Of(run.out, "Driving torque").low_step, kFirstFailed);
    EXPECT_LT(Extremes_Of(run.out, "Driving torque").high_step, kFirstFailed);
}

TEST(Summary, SaysWhereNoForceCouldBeSolved) {
    const TemporaryFolder folder;
    const std::string path =
        Model_File(folder, "a.kvl", [](Program& program) { program.model.LinkageType = "X"; });
    const CommandRun run = Batch({"info", path});
    EXPECT_EQ(Value_Of(run.out, "Forces"), "none; no step that assembles could be solved");
}

TEST(Summary, HasNoForcesWhereTheMotionWasRefused) {
    const TemporaryFolder folder;
    const std::string path =
        Model_File(folder, "a.kvl", [](Program& program) { program.model.CalcMode = 0; });
    EXPECT_THAT(Batch({"info", path}).out, Not(HasSubstr("Force")));
}

TEST(Summary, ShowsAShortTableOfTheMotion) {
    const std::string text = Batch({"info", "--example", "watt"}).out;
    for (const char* column : {"Step", "Theta2", "Theta6", "Omega6"}) EXPECT_THAT(text, HasSubstr(column));
    EXPECT_THAT(text, HasSubstr("360.000"));
    EXPECT_LT(std::count(text.begin(), text.end(), '\n'), 50);
}

}  // namespace
}  // namespace kervol
