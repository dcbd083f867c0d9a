// SPDX-License-Identifier: GPL-3.0-or-later
// The commands `table` and `functions`.
#include "batch/output_table.h"

#include <array>
#include <cmath>
#include <filesystem>
#include <numbers>
#include <sstream>

#include "batch/batch_run.h"
#include "batch/command_run.h"
#include "catalogue/names.h"
#include "catalogue/tabulation.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

std::vector<std::string> Lines_Of(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

/// Numbers of a csv line, whose end must be CR LF.
std::vector<double> Numbers_Of(std::string line) {
    EXPECT_TRUE(line.ends_with('\r'));
    line.pop_back();
    std::vector<double> numbers;
    std::istringstream stream(line);
    for (std::string field; std::getline(stream, field, ',');) numbers.push_back(std::stod(field));
    return numbers;
}

CommandRun Table(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"table", "--example", "watt"});
    return Batch(arguments);
}

TEST(CsvTable, HasOneHeaderLineAndEveryStepInFullPrecision) {
    const CommandRun run =
        Table({"--function", "Theta4", "Veloc I 4,5:Ang", "Cpler Pt-1:Y", "V-Ratio-1", "--format", "csv"});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.err, "");
    const auto lines = Lines_Of(run.out);
    ASSERT_EQ(lines.size(), 38U);
    EXPECT_EQ(lines[0],
              "Angle (deg),Theta4 Mag (degrees),\"Veloc I 4,5 Ang (deg)\",Cpler Pt-1 Y (in),V-Ratio-1 Mag "
              "(ratio)\r");
    const auto json = Batch({"tables", "--example", "watt"}).Json();
    for (std::size_t step = 0; step <= 36; ++step) {
        const auto numbers = Numbers_Of(lines[step + 1]);
        ASSERT_EQ(numbers.size(), 5U);
        EXPECT_EQ(numbers[0], json["Theta"][step][0]);
        EXPECT_EQ(numbers[1], json["Theta"][step][2]);
        const double x = json["PointVel"][step][3][0], y = json["PointVel"][step][3][1];
        const double angle = std::atan2(y, x) * 180 / std::numbers::pi;
        EXPECT_NEAR(numbers[2], angle < -90 ? angle + 360 : angle, 1e-3);  // beside 0 in, few digits are left
        EXPECT_NEAR(numbers[3], json["PointPos"][step][2][1], 1e-6);
        EXPECT_EQ(numbers[4], json["VelRatio"][step][0]);
    }
}

TEST(CsvTable, TurnsEachVectorOfALocalFrameWithItsOwnLink) {
    const auto lines = Lines_Of(Table({"--function", "Veloc I 2,3:Ang", "--function", "Veloc I 3,4:X",
                                       "--function", "Veloc I 5,6:Y", "--frame", "local", "--format", "csv"})
                                    .out);
    const auto json = Batch({"tables", "--example", "watt"}).Json();
    for (std::size_t step = 0; step <= 36; ++step) {
        const auto numbers = Numbers_Of(lines[step + 1]);
        EXPECT_NEAR(numbers[1], 90, 1e-4) << "the crank turns counterclockwise, and the frame with it";
        const auto turned = [&](std::size_t point, std::size_t column) {
            const double angle = -double(json["Theta"][step][column]) * std::numbers::pi / 180;
            const double x = json["PointVel"][step][point][0], y = json["PointVel"][step][point][1];
            return std::array{x * std::cos(angle) - y * std::sin(angle),
                              x * std::sin(angle) + y * std::cos(angle)};
        };
        EXPECT_NEAR(numbers[2], turned(1, 2)[0], 2e-4);  // below 0.0001 it is cut
        EXPECT_NEAR(numbers[3], turned(4, 5)[1], 2e-4);
    }
}

TEST(CsvTable, OfATimeDriveCountsSeconds) {
    const TemporaryFolder folder;
    const std::string model = Model_File(folder, "time.kvl", [](Program& program) {
        program.model.CalcMode = 2;
        program.model.TimeStart = 1;
        program.model.TimeEnd = 2;
        program.model.TimeStep = 0.25F;
    });
    const auto lines = Lines_Of(Batch({"table", model, "--function", "Theta2", "--format", "csv"}).out);
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines[0], "Time (sec),Theta2 Mag (degrees)\r");
    EXPECT_THAT(lines[1], StartsWith("1,"));
    EXPECT_THAT(lines[2], StartsWith("1.25,"));
    EXPECT_THAT(lines[5], StartsWith("2,"));
}

/// The table of the same model as `Print_to_File` writes it.
std::string Written(const std::string& example, std::vector<SlotBoxes> choice, std::int16_t apart) {
    const auto path = std::string(KERVOL_EXAMPLES) + "/" + example + ".kvl";
    BatchRun run(Answer::Ignore);
    EXPECT_TRUE(run.Open(path));
    run.Calculate();
    Program& program = run.program();
    Change_Catalog_Labels(program.catalogue, program.model.LinkageType);
    program.model.PrintStep = apart;
    program.output.DecimalPlaces = 2;
    program.selections.NumSelected = static_cast<std::int16_t>(choice.size());
    SlotLabels labels;
    for (std::size_t slot = 0; slot < choice.size(); ++slot) {
        Confirm_Slot(program.catalogue, program.selections, choice[slot],
                     static_cast<std::int16_t>(slot + 1));
        labels.lbl_Function.at(slot).caption = choice[slot].variable;
        labels.lbl_Component.at(slot).caption = choice[slot].component;
    }
    std::string text;
    Print_to_File(program, labels, text);
    return text;
}

/// Without the second line, where the minute may have turned.
std::string Without_Clock(const std::string& text) {
    const std::size_t second = text.find('\n') + 1;
    return text.substr(0, second) + text.substr(text.find('\n', second) + 1);
}

TEST(DatTable, IsWhatTheProgramWrites) {
    const TemporaryFolder folder;
    for (const char* example : {"watt", "hoeken"}) {
        const auto path = std::string(KERVOL_EXAMPLES) + "/" + example + ".kvl";
        const CommandRun run = Batch({"table", path, "--function", "Theta3", "Veloc I 3,4:Ang", "--every",
                                      "7", "--decimals", "2", "--format", "dat", "-o", folder / "out.dat"});
        EXPECT_EQ(run.code, 0) << run.err;
        EXPECT_EQ(run.out, "");
        const std::string text = Content_Of(folder / "out.dat");
        EXPECT_EQ(Without_Clock(text),
                  Without_Clock(Written(example, {{"Theta3", ""}, {"Veloc I 3,4", "Ang"}}, 7)));
        EXPECT_THAT(text, HasSubstr(std::string("File \t") + example + "\t\tDesign #\t1\r\n"));
    }
}

TEST(TextTable, IsThePrintedPageWithTheStepsOfTheModel) {
    const auto lines = Lines_Of(Table({"--function", "Theta2"}).out);
    ASSERT_EQ(lines.size(), 9U + 4U);
    EXPECT_THAT(lines[0], HasSubstr("Page 1"));
    EXPECT_EQ(lines[6], "Deg           degrees");
    EXPECT_EQ(lines[9], "0.000         0.000");
    EXPECT_EQ(lines[12], "300.000       300.000");
}

TEST(TextTable, TakesStepsAndDecimals) {
    const auto lines = Lines_Of(Table({"--function", "Theta2", "--every", "18", "--decimals", "0"}).out);
    ASSERT_EQ(lines.size(), 9U + 3U);
    EXPECT_EQ(lines[10], "180.          180.");
}

TEST(TextTable, PartsPagesByFormFeeds) {
    const TemporaryFolder folder;
    const std::string model =
        Model_File(folder, "fine.kvl", [](Program& program) { program.model.ThetaStepDeg = 5; });
    const std::string text = Batch({"table", model, "--function", "Theta2", "--every", "1"}).out;
    EXPECT_EQ(std::count(text.begin(), text.end(), '\f'), 1);
    EXPECT_THAT(text.substr(text.find('\f') + 1), StartsWith("KERVOL for Windows"));
    EXPECT_THAT(text, HasSubstr("Page 2"));
}

TEST(Preset, GivesTheTableOfItsFunctions) {
    const std::string of_preset = Table({"--preset", "Theta3 and Theta4 Magnitudes", "--format", "csv"}).out;
    EXPECT_EQ(of_preset, Table({"--function", "Theta3", "Theta4:Mag", "--format", "csv"}).out);
    const CommandRun four = Table(
        {"--preset", "Velocity of Instant Center 4-5 -  X, Y, Mag, Ang Coordinates", "--format", "csv"});
    EXPECT_EQ(four.out, Table({"--function", "Veloc I 4,5:X", "Veloc I 4,5:Y", "Veloc I 4,5:Mag",
                               "Veloc I 4,5:Ang", "--format", "csv"})
                            .out);
    EXPECT_EQ(four.code, 0);
}

TEST(Choice, FollowsTheNamesOfTheChain) {
    EXPECT_EQ(Batch({"table", "--example", "hoeken", "--function", "Veloc I 3,5"}).code, 0);
    EXPECT_EQ(Batch({"table", "--example", "hoeken", "--function", "Veloc I 4,5"}).code, 1);
    EXPECT_EQ(Table({"--function", "Veloc I 4,5"}).code, 0);
    EXPECT_EQ(Table({"--function", "Veloc I 3,5"}).code, 1);
}

TEST(Choice, OfAVectorWithoutAComponentIsX) {
    EXPECT_EQ(Table({"--function", "Veloc CP-1", "--format", "csv"}).out,
              Table({"--function", "Veloc CP-1:X", "--format", "csv"}).out);
}

TEST(Choice, ThatIsWrongEndsWithExitCode1AndOneLine) {
    const TemporaryFolder folder;
    const struct {
        std::vector<std::string> arguments;
        const char* complaint;
    } cases[] = {
        {{}, "--function or --preset"},
        {{"--function", "Theta3", "--preset", "Theta3 and Theta4 Magnitudes"}, "--function or --preset"},
        {{"--function", "theta3"}, "\"theta3\" is no function"},
        {{"--function", ""}, "\"\" is no function"},
        {{"--function", ":X"}, "\"\" is no function"},
        {{"--function", "Theta3:x"}, "a component is X, Y, Mag or Ang"},
        {{"--function", "Veloc CP-1:"}, "a component is X, Y, Mag or Ang"},
        {{"--function", "Theta2", "Theta3", "Theta4", "Theta5", "Theta6"}, "four functions at most"},
        {{"--function", "Current FFT"}, "\"Current FFT\" needs results that are not there yet"},
        {{"--preset", "no title"}, "\"no title\" is no preset"},
        {{"--function", "Theta3", "--frame", "own"}, "--frame"},
        {{"--function", "Theta3", "--format", "xls"}, "--format"},
        {{"--function", "Theta3", "--every", "0"}, "--every"},
        {{"--function", "Theta3", "--every", "1025"}, "--every"},
        {{"--function", "Theta3", "--every", "1.5"}, "--every"},
        {{"--function", "Theta3", "--decimals", "7"}, "--decimals"},
        {{"--function", "Theta3", "--decimals", "-1"}, "--decimals"},
        {{"--function", "Theta3", "--every", "2", "--format", "csv"}, "leave --every"},
        {{"--function", "Theta3", "--decimals", "2", "--format", "csv"}, "leave --every"},
    };
    for (auto [arguments, complaint] : cases) {
        SCOPED_TRACE(::testing::PrintToString(arguments));
        arguments.insert(arguments.end(), {"-o", folder / "none"});
        const CommandRun run = Table(arguments);
        EXPECT_EQ(run.code, 1);
        EXPECT_EQ(run.out, "");
        Expect_One_Line(run.err);
        EXPECT_THAT(run.err, HasSubstr(complaint));
        EXPECT_FALSE(std::filesystem::exists(folder / "none"));
    }
    EXPECT_EQ(Batch({"table", "--function", "Theta3"}).code, 1) << "no model";
}

TEST(Table, TellsThatSomeStepsDoNotAssembleAndHasThemAsZeros) {
    const TemporaryFolder folder;
    const CommandRun run =
        Batch({"table", Long_Crank_File(folder), "--function", "Theta3", "--format", "csv"});
    EXPECT_EQ(run.code, 3);
    Expect_One_Line(run.err);
    EXPECT_EQ(Lines_Of(run.out).at(1 + kFirstFailed), "0,0\r");
}

TEST(Table, OfARefusedCalculationIsNotWritten) {
    const TemporaryFolder folder;
    const std::string model =
        Model_File(folder, "zero.kvl", [](Program& program) { program.model.ThetaStepDeg = 0; });
    const CommandRun run = Batch({"table", model, "--function", "Theta3"});
    EXPECT_EQ(run.code, 4);
    EXPECT_EQ(run.out, "");
    Expect_One_Line(run.err);
}

TEST(Table, OfAFileThatCannotBeReadIsExitCode2) {
    const TemporaryFolder folder;
    for (const auto& arguments :
         {std::vector<std::string>{"table", folder / "missing.kvl", "--function", "Theta3"},
          {"functions", folder / "missing.kvl"}}) {
        const CommandRun run = Batch(arguments);
        EXPECT_EQ(run.code, 2);
        EXPECT_EQ(run.out, "");
        Expect_One_Line(run.err);
    }
}

class ForceTables : public ::testing::Test {
  protected:
    ForceTables() : run_(Answer::Ignore) {
        run_.Load("watt");
        run_.Calculate();
        program.model.DynamicsCalculated = true;
        Change_Catalog_Labels(program.catalogue, "W");
        for (int step = 0; step <= 36; ++step) {
            program.tables.Theta(step, 0) = static_cast<float>(10 * step);
            program.tables.ForceTable(step, 8, 0) = static_cast<float>(3 * step);
            program.tables.ForceTable(step, 8, 1) = static_cast<float>(4 * step);
            program.tables.FlywheelTorque(step) = 0.5F;
        }
    }

    BatchRun run_;
    Program& program = run_.program();
    SlotLabels labels;
};

TEST_F(ForceTables, OfferTheirFunctionsOnceTheyAreCalculated) {
    EXPECT_EQ(Choose_Functions(program, {"Force 54:Mag", "Force 54"}, labels), "");
    const auto lines = Lines_Of(Table_Csv(program, labels));
    EXPECT_EQ(lines.at(0), "Angle (deg),Force 54 Mag (lb),Force 54 X (lb)\r");
    EXPECT_EQ(lines.at(8), "70,35,21\r");
    EXPECT_THAT(Choose_Functions(program, {"Flywl Torque"}, labels), HasSubstr("needs results"));
    program.model.FlywheelCalculated = true;
    labels = {};
    EXPECT_EQ(Choose_Functions(program, {"Flywl Torque:Y"}, labels), "");
    EXPECT_EQ(Lines_Of(Table_Csv(program, labels)).at(1), "0,0.5\r");
}

TEST_F(ForceTables, OfferTheirPresets) {
    EXPECT_EQ(Choose_Preset(program, "Force of Link 5 on 4  -  X, Y components", labels), "");
    EXPECT_EQ(Lines_Of(Table_Csv(program, labels)).at(37), "360,108,144\r");
}

TEST_F(ForceTables, OfferTheSpectrumOnceItIsThere) {
    program.fourier.FFTReady = true;
    program.fourier.NumHarmonics = 2;
    program.fourier.FFTUnit = "rad/sec";
    program.tables.FFTTable(2, 1) = 1.5F;
    EXPECT_EQ(Choose_Preset(program, "Current FFT - Real, Imag", labels), "");
    EXPECT_EQ(
        Table_Csv(program, labels),
        "Harmonic Number,Current FFT X (rad/sec),Current FFT Y (rad/sec)\r\n0,0,0\r\n1,0,0\r\n2,0,1.5\r\n");
    labels = {};
    EXPECT_EQ(Choose_Functions(program, {"Current FFT:Y"}, labels), "");
}

TEST_F(ForceTables, OfTooManyStepsAreWrittenToTheLastAndReported) {
    program.model.NumSteps = 1025;
    program.model.CalcMode = 2;
    EXPECT_EQ(Choose_Functions(program, {"Theta3"}, labels), "");
    EXPECT_EQ(Lines_Of(Table_Csv(program, labels)).size(), 1U + 1025U + 1U);
    EXPECT_EQ(run_.Outcome(), Failed);
    EXPECT_EQ(program.faults.entries.back(), (ReportedFault{9, "Table_Csv"}));
}

std::string Line_With(const std::string& text, const std::string& start) {
    for (const std::string& line : Lines_Of(text))
        if (line.starts_with(start)) return line;
    return "no line " + start;
}

TEST(Functions, AreListedWithComponentsUnitsAndNeeds) {
    const CommandRun run = Batch({"functions"});
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(Line_With(run.out, "  Theta2 "), "  Theta2         Mag           degrees");
    EXPECT_EQ(Line_With(run.out, "  Veloc I 4,5"), "  Veloc I 4,5    X Y Mag Ang   in/sec");
    EXPECT_EQ(Line_With(run.out, "  Accel CG 6"), "  Accel CG 6     X Y Mag Ang   in/sec^2         dynamics");
    EXPECT_EQ(Line_With(run.out, "  Torque 12 "), "  Torque 12      Mag           lb-in            dynamics");
    EXPECT_EQ(Line_With(run.out, "  Flywl"), "  Flywl Torque   Mag           lb-in            flywheel");
    EXPECT_EQ(Line_With(run.out, "  Current FFT "),
              "  Current FFT    X Y Mag Ang   as transformed   Fourier transform");
    // 66 functions, 92 presets; two headings and notes between.
    EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 66 + 92 + 3 + 2 + 2 * 3);
}

TEST(Functions, OfAModelHaveItsNamesAndUnits) {
    const TemporaryFolder folder;
    const std::string model = Model_File(folder, "si.kvl", [](Program& program) {
        program.model.LinkageType = "S";
        program.model.UnitSystem = 3;
    });
    const CommandRun run = Batch({"functions", model});
    EXPECT_EQ(run.code, 0) << run.err;
    EXPECT_EQ(Line_With(run.out, "  Veloc I 3,5"), "  Veloc I 3,5    X Y Mag Ang   m/sec");
    EXPECT_EQ(Line_With(run.out, "  Force 53"), "  Force 53       X Y Mag Ang   N                dynamics");
    EXPECT_THAT(run.out, Not(HasSubstr("Veloc I 4,5")));
}

TEST(Choice, OfForcesAndFlywheelHasThemComputed) {
    const auto json =
        nlohmann::json::parse(Batch({"tables", "--example", "watt", "--dynamics", "--flywheel"}).out);
    const CommandRun run =
        Batch({"table", "--example", "watt", "--function", "Torque 12", "Flywl Torque", "--format", "csv"});
    EXPECT_EQ(run.code, 0);
    const std::string row = run.out.substr(run.out.find("\r\n") + 2);
    std::istringstream cells(row.substr(0, row.find("\r\n")));
    std::string angle, torque, smooth;
    std::getline(cells, angle, ',');
    std::getline(cells, torque, ',');
    std::getline(cells, smooth);
    EXPECT_EQ(std::stof(torque), json["TorqueTable"][0][0].get<float>());
    EXPECT_EQ(std::stof(smooth), json["FlywheelTorque"][0].get<float>());
}

}  // namespace
}  // namespace kervol
