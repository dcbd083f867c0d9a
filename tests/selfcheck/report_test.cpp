// SPDX-License-Identifier: GPL-3.0-or-later
// What the report says, and which steps it covers.
#include <algorithm>
#include <cctype>
#include <sstream>

#include "selfcheck/self_check_text.h"
#include "selfcheck/selfcheck_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

class SelfCheckReport : public SelfCheckTest {
  protected:
    std::string Text(const SelfCheck& result) const { return Self_Check_Text(model, result); }

    /// One line, so that a sentence can be searched for.
    static std::string Joined(const std::string& text) {
        std::string line, word;
        std::istringstream words(text);
        while (words >> word) line += word + " ";
        return line;
    }
};

TEST_F(SelfCheckReport, HasItsPartsInOrderAndNoLineTooLong) {
    for (const char* example : {"watt", "roberts", "hoeken", "double-dwell"}) {
        const std::string text = Text(Check_Example(example));
        EXPECT_THAT(text, StartsWith("Self-check of " + model.ModelTitle + "\n"));
        std::size_t at = 0;
        for (const char* heading : {"\nIn short\n", "\nWhere the tables differ from rigid links on purpose\n",
                                    "\nThe drive\n", "\nStep by step\n", "\nAll values\n"}) {
            at = text.find(heading, at);
            EXPECT_NE(at, std::string::npos) << heading;
        }
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 120U) << line;
    }
}

TEST_F(SelfCheckReport, NumbersOfATableKeepClearOfEachOther) {
    for (const char* example : {"watt", "hoeken"}) {
        const std::string text = Text(Check_Example(example));
        int rows = 0;
        for (const char* table : {"\nStep by step\n", "\nAll values\n"}) {
            std::istringstream lines(text.substr(text.find(table)));
            std::string line;
            // The table ends where the text does, or the next heading's lines without numbers begin.
            while (std::getline(lines, line)) {
                const std::string numbers = line.substr(std::min<std::size_t>(line.size(), 25));
                if (numbers.find_first_of("0123456789") == std::string::npos) continue;
                ++rows;
                for (std::size_t i = 1; i + 1 < numbers.size(); ++i) {
                    const bool single = numbers[i] == ' ' && std::isdigit(numbers[i - 1]) != 0 &&
                                        (std::isdigit(numbers[i + 1]) != 0 || numbers[i + 1] == '-');
                    EXPECT_FALSE(single) << line;
                }
            }
        }
        EXPECT_GT(rows, 60);
    }
}

TEST_F(SelfCheckReport, TellsWhatAMotorNeeds) {
    const SelfCheck result = Check_Example("watt");
    const DriveNeeds& tables_say = result.tabulated_drive;
    EXPECT_EQ(tables_say.peak_torque, double(tables.TorqueTable(tables_say.peak_step, 0)));
    for (int step = 0; step <= model.NumSteps; ++step)
        EXPECT_LE(std::abs(tables.TorqueTable(step, 0)), std::abs(tables_say.peak_torque));
    EXPECT_THAT(Joined(Text(result)),
                HasSubstr("Size a motor on the consistent driving torque, not on the tabulated one"));
    model.LinkMass(5) = 0;
    EXPECT_THAT(Joined(Text(Check_Results(model, tables, Calculate_All()))),
                HasSubstr("A motor may be sized on the tabulated driving torque"));
}

// 37 steps from 0 to 360 degrees: the two ends are one position and count half each.
TEST_F(SelfCheckReport, MeansCountTheEndsOfAFullTurnOnce) {
    const SelfCheck result = Check_Example("watt");
    double sum = 0, squares = 0;
    for (int step = 0; step < 36; ++step) {
        const double ends = step == 0 ? 0.5 * (double(tables.TorqueTable(0, 0)) + tables.TorqueTable(36, 0))
                                      : double(tables.TorqueTable(step, 0));
        sum += ends;
        squares +=
            step == 0 ? 0.5 * (std::pow(tables.TorqueTable(0, 0), 2) + std::pow(tables.TorqueTable(36, 0), 2))
                      : ends * ends;
    }
    EXPECT_NEAR(result.tabulated_drive.mean_torque, sum / 36, 1e-12);
    EXPECT_NEAR(result.tabulated_drive.rms_torque, std::sqrt(squares / 36), 1e-12);
}

TEST_F(SelfCheckReport, LeavesOutStepsThatDoNotAssemble) {
    // See Long_Crank_File of the batch tests: rows 10 to 26 do not assemble.
    model.Link2 = 12;
    model.CalcMode = 3;
    port.answer = [](const MessageBox&) { return Answer::Ignore; };
    const int solved = Calculate_All();
    const SelfCheck result = Check_Results(model, tables, solved);
    EXPECT_EQ(result.not_assembled, 17);
    EXPECT_EQ(result.steps.size(), 20U);
    EXPECT_EQ(result.steps_with_forces, 10);
    EXPECT_EQ(Steps_With_Forces(model, tables), 10);
    EXPECT_TRUE(result.Tables_Hold());
    EXPECT_THAT(Joined(Text(result)),
                HasSubstr("20 steps compared, 17 left out that do not assemble; forces of 10 steps."));
}

TEST_F(SelfCheckReport, ComparesTheMotionAloneWhereNoForcesAreSolved) {
    Check_Example("watt");
    model.DynamicsCalculated = false;
    EXPECT_EQ(Steps_With_Forces(model, tables), 0);
    const SelfCheck result = Check_Results(model, tables, 0);
    EXPECT_EQ(Find(result, "Torque 12"), nullptr);
    EXPECT_NE(Find(result, "Omega6"), nullptr);
    EXPECT_TRUE(result.Tables_Hold());
    const std::string text = Text(result);
    EXPECT_THAT(Joined(text), HasSubstr("forces are not solved, so only the motion is compared."));
    EXPECT_THAT(text, Not(HasSubstr("The drive")));
}

TEST_F(SelfCheckReport, ComparesStage1AloneInAChainWithoutStage2) {
    model.LinkageType = "X";
    model.CalcMode = 3;
    const SelfCheck result = Check_Results(model, tables, Calculate_All());
    EXPECT_TRUE(result.Tables_Hold());
    EXPECT_NE(Find(result, "Omega4"), nullptr);
    EXPECT_EQ(Find(result, "Omega6"), nullptr);
    EXPECT_EQ(Find(result, "Torque 12"), nullptr);
    EXPECT_THAT(Joined(Text(result)), HasSubstr("there are no forces without a Stage 2."));
}

TEST_F(SelfCheckReport, SaysSoWhereThereIsNothingToCompare) {
    model.NumSteps = -5;
    const SelfCheck result = Check_Results(model, tables, 0);
    EXPECT_TRUE(result.checks.empty());
    EXPECT_THAT(Joined(Text(result)), HasSubstr("0 steps compared"));
    EXPECT_THAT(Text(result), HasSubstr("Nothing to compare: calculate first.\n"));
}

TEST_F(SelfCheckReport, ACrankAtRestNeedsATorqueAndNoPower) {
    Load_Example(model, *Find_Example("watt"));
    model.CalcMode = 3;
    model.Omega2Start = 0;
    model.LinkTorque(6) = 5;
    const SelfCheck result = Check_Results(model, tables, Calculate_All());
    EXPECT_TRUE(result.Tables_Hold());
    EXPECT_GT(std::abs(result.consistent_drive.peak_torque), 0.1);
    EXPECT_EQ(result.consistent_drive.peak_power, 0);
}

TEST_F(SelfCheckReport, AnImportedDriveAndTorqueAreTakenAsTheyStand) {
    Load_Example(model, *Find_Example("watt"));
    model.CalcMode = 5;
    model.NumSteps = 20;
    for (int step = 0; step <= 20; ++step) {
        tables.DriveTheta(step) = static_cast<float>(3 * step);
        tables.Omega(step, 0) = static_cast<float>(2 + step);
        tables.Alpha(step, 0) = static_cast<float>(9 - step);
    }
    Calculate_Model(*program);
    model.TorqueImported = true;
    for (int step = 0; step <= 20; ++step) tables.Torque21Imported(step) = static_cast<float>(step - 7);
    const SelfCheck result = Check_Results(model, tables, Run_Dynamics(*program));
    while (Boxes_Left() > 0) Take_Box();
    EXPECT_EQ(result.steps_with_forces, 21);
    EXPECT_EQ(Names(result, Verdict::Differs), "");
    EXPECT_EQ(Find(result, "Alpha6")->verdict, Verdict::Agrees);
}

TEST_F(SelfCheckReport, WarnsOfTheLabelsOfForceInMillimetres) {
    model.UnitSystem = 5;
    EXPECT_THAT(Text(Check_Example("watt")), HasSubstr("whatever the labels"));
    model.UnitSystem = 3;
    EXPECT_THAT(Text(Check_Example("watt")), Not(HasSubstr("whatever the labels")));
}

TEST_F(SelfCheckReport, ChangesNoTableAndNoModel) {
    Check_Example("double-dwell");
    const LinkageModel model_before = model;
    const auto tables_before = std::make_unique<ResultTables>(tables);
    Check_Results(model, tables, model.NumSteps + 1);
    EXPECT_EQ(model, model_before);
    EXPECT_TRUE(tables.Theta == tables_before->Theta && tables.Omega == tables_before->Omega &&
                tables.Alpha == tables_before->Alpha && tables.PointAcc == tables_before->PointAcc &&
                tables.ForceTable == tables_before->ForceTable &&
                tables.TorqueTable == tables_before->TorqueTable);
}

}  // namespace
}  // namespace kervol
