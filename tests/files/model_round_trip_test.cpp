// SPDX-License-Identifier: GPL-3.0-or-later
// A model that is written and read back is the same model, and gives the same bytes when written again.
#include <bit>
#include <cmath>
#include <random>

#include "core/geometry.h"
#include "core/mathematics.h"
#include "core/units.h"
#include "files/model_file.h"
#include "files/sample_lines.h"
#include "kinematics/examples.h"
#include "kinematics/sweep.h"
#include "support/compare.h"
#include "support/program_test.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

class RoundTrip : public ProgramTest {
  protected:
    /// Writes the model, without a trace of it in the test's boxes.
    std::string Written(Program& writer) {
        OutputFile file(folder / "model.kvl");
        EXPECT_TRUE(Writefile(writer, file));
        return Content_Of(folder / "model.kvl");
    }
    std::string Written() {
        const std::string content = Written(*program);
        Take_Box();
        return content;
    }
    void Read(Program& reader, const std::string& content) {
        ValueReader file(content);
        EXPECT_EQ(Readfile(reader, file), ReadEnd::Whole);
    }

    TemporaryFolder folder;
};

/// Brings all that follows from the stored fields up to date, as it is in every model that was edited or
/// read.
void Derive_All(LinkageModel& model) {
    Set_Angle(model.Delta3Deg, model.Delta3, model.Delta3Text);
    Set_Angle(model.Delta4Deg, model.Delta4, model.Delta4Text);
    Set_Angle(model.Delta5Deg, model.Delta5, model.Delta5Text);
    Set_Angle(model.ThetaMinDeg, model.ThetaMin, model.ThetaMinText);
    Set_Angle(model.ThetaMaxDeg, model.ThetaMax, model.ThetaMaxText);
    Set_Angle(model.ThetaStepDeg, model.ThetaStep, model.ThetaStepText);
    Rotate(model.O4X, model.O4Y, model.GroundAngleDeg, -1, model.O4LocalX, model.O4LocalY);
    Derive_Geometry(model);
    Set_Open_Signs(model);
    Put_Units(model);
}

TEST_F(RoundTrip, AModelReadBackDiffersOnlyInBeingReadFromAFile) {
    Put_Sample(*program);
    Derive_All(model);
    const std::string content = Written();

    RecordingPort reader_port;
    const auto reader = std::make_unique<Program>(reader_port);
    reader->model = model;
    Poison_All(*reader, Model_Lines());
    Read(*reader, content);
    EXPECT_THAT(Differing_Fields(reader->model, model), ElementsAre("DataFromFile"));
    EXPECT_TRUE(reader->model.DataFromFile);
    EXPECT_EQ(Written(*reader), content);
}

TEST_F(RoundTrip, TheFieldsThatTheFileDoesNotHoldKeepTheirValues) {
    Put_Sample(*program);
    Derive_All(model);
    const std::string content = Written();
    const LinkageModel written = model;

    // Not in the file: the program's own release data, the path, words of the classification, components that
    // are worked out later, the working state, settings that start with each run, and most flags.
    model.ProgramDate = model.CaptionTail = model.ModelPath = "kept";
    model.StageText.Fill("kept");
    model.O6O4AngleDeg = model.O6O4Angle = 1234;
    for (LinkArray* array : {&model.ForceX, &model.ForceY}) array->Fill(1234);
    for (float* value : {&model.Theta2Rad, &model.Omega2, &model.Alpha2, &model.CurrentTime, &model.Theta3Rad,
                         &model.Theta4Rad, &model.Theta5Rad, &model.Theta6Rad, &model.Omega3Now,
                         &model.Omega4Now, &model.Omega5Now, &model.Omega6Now, &model.Alpha3Now,
                         &model.Alpha4Now, &model.Alpha5Now, &model.Alpha6Now, &model.CoefFluct})
        *value = 1234;
    model.AnimWait = 1234;
    model.FlywheelCalculated = model.DataSaved = model.SomeStepFailed = true;
    model.NewData = !model.NewData;
    Read(*program, content);
    Take_Box();
    EXPECT_THAT(Differing_Fields(model, written),
                UnorderedElementsAre(
                    "ProgramDate", "CaptionTail", "ModelPath", "StageText", "O6O4AngleDeg", "O6O4Angle",
                    "ForceX", "ForceY", "Theta2Rad", "Omega2", "Alpha2", "CurrentTime", "Theta3Rad",
                    "Theta4Rad", "Theta5Rad", "Theta6Rad", "Omega3Now", "Omega4Now", "Omega5Now", "Omega6Now",
                    "Alpha3Now", "Alpha4Now", "Alpha5Now", "Alpha6Now", "CoefFluct", "AnimWait",
                    "FlywheelCalculated", "DataSaved", "SomeStepFailed", "NewData", "DataFromFile"));
}

TEST_F(RoundTrip, LinkDataOfLinksThatTheFileDoesNotHoldStay) {
    const std::string content = Written();
    model.LinkMass.Fill(5);
    model.LinkTorque.Fill(5);
    model.LinkCG.Fill(5);
    Read(*program, content);
    Take_Box();
    EXPECT_THAT(std::vector<float>(model.LinkMass.begin(), model.LinkMass.end()),
                ElementsAre(5, 5, 0.003F, 0.01F, 0.006F, 0.02F, 0.01F));
    EXPECT_THAT(std::vector<float>(model.LinkTorque.begin(), model.LinkTorque.end()),
                ElementsAre(5, 5, 5, 0, 0, 0, 0));
    EXPECT_EQ(model.LinkCG(1, 1), 5);
    EXPECT_EQ(model.LinkCG(2, 0), 1);
}

TEST_F(RoundTrip, EveryExampleGivesTheSameBytesWhenWrittenAgain) {
    for (const Example& example : Examples()) {
        Load_Example(model, example);
        const std::string content = Written();
        const LinkageModel before = model;
        Poison_All(*program, Model_Lines());
        Read(*program, content);
        Take_Box();
        EXPECT_EQ(Written(), content) << example.name;
        LinkageModel after = model;
        // The examples spell the assembly in their own way, and were not read from a file.
        after.OpenCross1Text = before.OpenCross1Text;
        after.OpenCross2Text = before.OpenCross2Text;
        after.DataFromFile = before.DataFromFile;
        EXPECT_THAT(Differing_Fields(after, before), ElementsAre()) << example.name;
    }
}

TEST_F(RoundTrip, ADriveOfOneStepHasOneRow) {
    model.CalcMode = 4;
    model.NumSteps = 0;
    tables.DriveTheta(0) = 12.5F;
    tables.Omega(0, 0) = 2;
    tables.Alpha(0, 0) = -3;
    tables.DriveTheta(1) = 99;
    const std::string content = Written();
    const std::string tail = "\"\"\r\n12.5,2,-3\r\n";
    EXPECT_EQ(content.substr(content.size() - tail.size()), tail);

    Poison_Tables(tables);
    Read(*program, content);
    Take_Box();
    EXPECT_EQ(tables.DriveTheta(0), 12.5F);
    EXPECT_EQ(tables.DriveTheta(1), Poison);
}

TEST_F(RoundTrip, ADriveOf361RowsIsWrittenToItsEnd) {
    model.CalcMode = 4;
    model.NumSteps = 360;
    for (int i = 0; i <= 360; ++i) {
        tables.DriveTheta(i) = static_cast<float>(i) / 7;
        tables.Omega(i, 0) = static_cast<float>(-i) / 3;
        tables.Alpha(i, 0) = static_cast<float>(i) * 1E-6F;
    }
    const std::string content = Written();
    const auto drive = tables.DriveTheta;
    const auto omega = tables.Omega;
    const auto alpha = tables.Alpha;
    tables.DriveTheta.Fill(Poison);
    for (int i = 0; i <= 360; ++i) tables.Omega(i, 0) = tables.Alpha(i, 0) = Poison;
    Read(*program, content);
    Take_Box();
    EXPECT_EQ(tables.DriveTheta, drive);
    EXPECT_EQ(tables.Omega, omega);
    EXPECT_EQ(tables.Alpha, alpha);
    EXPECT_EQ(Written(), content);
}

TEST_F(RoundTrip, ImportedTorqueGoesUpToTheLastStepOfTheTables) {
    model.TorqueImported = true;
    model.NumSteps = 1024;
    for (int i = 0; i <= 1024; ++i) tables.Torque21Imported(i) = std::sin(static_cast<float>(i));
    const std::string content = Written();
    const auto torque = tables.Torque21Imported;
    tables.Torque21Imported.Fill(Poison);
    Read(*program, content);
    Take_Box();
    EXPECT_EQ(tables.Torque21Imported, torque);
    EXPECT_EQ(Written(), content);
}

/// Values of every kind, chosen by a seeded generator.
class RandomValues {
  public:
    explicit RandomValues(unsigned seed) : bits_(seed) {}

    int Int(int low, int high) { return std::uniform_int_distribution<int>(low, high)(bits_); }
    bool Flag() { return Int(0, 1) == 1; }
    /// Any finite bit pattern not larger than `limit`.
    float Bits(float limit = 3E38F) {
        for (;;) {
            const auto value = std::bit_cast<float>(static_cast<std::uint32_t>(bits_()));
            if (std::abs(value) <= limit) return value;
        }
    }
    std::string Text() {
        static const std::string kPieces[] = {"a",
                                              "Z",
                                              "7",
                                              " ",
                                              ",",
                                              ".",
                                              "#",
                                              "\r\n",
                                              "\n",
                                              "\t",
                                              "'",
                                              "\\",
                                              "/",
                                              "\xC3\xBC",
                                              "\xE2\x82\xAC",
                                              "\xF0\x9F\x94\xA7"};
        std::string text;
        for (int length = Int(0, 12); length > 0; --length) text += kPieces[Int(0, 15)];
        return text;
    }

  private:
    std::mt19937 bits_;
};

void Put_Random_Values(Program& program, RandomValues& random) {
    LinkageModel& model = program.model;
    for (const SampleLine& line : Model_Lines()) {
        if (const auto* text = std::get_if<std::string LinkageModel::*>(&line.place))
            model.** text = random.Text();
        if (const auto* count = std::get_if<std::int16_t LinkageModel::*>(&line.place))
            model.** count = static_cast<std::int16_t>(random.Int(-32768, 32767));
        if (const auto* number = std::get_if<float LinkageModel::*>(&line.place))
            model.** number = random.Bits();
        if (const auto* flag = std::get_if<bool LinkageModel::*>(&line.place)) model.** flag = random.Flag();
        if (const auto* link = std::get_if<LinkPlace>(&line.place))
            (model.*link->array)(link->link) = random.Bits();
        if (const auto* cg = std::get_if<CGPlace>(&line.place))
            model.LinkCG(cg->link, cg->part) = random.Bits();
    }
    model.AnimDelay = random.Int(-2147483647, 2147483647);
    // Pivots as large as these still have a distance in single precision.
    for (float* pivot : {&model.O4X, &model.O4Y, &model.O6LocalX, &model.O6LocalY})
        *pivot = random.Bits(1E37F);
    model.AnimCycles = static_cast<std::int16_t>(random.Int(1, 32767));
    model.CalcMode = static_cast<std::int16_t>(random.Int(1, 5));
    model.UnitSystem = static_cast<std::int16_t>(random.Int(-1, 7));
    model.NumSteps = static_cast<std::int16_t>(random.Int(-2, model.CalcMode > 3 ? 360 : 1024));
    for (int i = 0; i <= 360; ++i) program.tables.DriveTheta(i) = random.Bits();
    for (int i = 0; i <= MaxSteps; ++i) {
        program.tables.Omega(i, 0) = random.Bits();
        program.tables.Alpha(i, 0) = random.Bits();
        program.tables.Torque21Imported(i) = random.Bits();
    }
}

TEST_F(RoundTrip, RandomModelsComeBackFieldByFieldAndByteByByte) {
    RandomValues random(77);
    for (int trial = 0; trial < 200; ++trial) {
        SCOPED_TRACE(trial);
        Put_Random_Values(*program, random);
        Derive_All(model);
        const std::string content = Written();
        const LinkageModel written = model;
        Poison_All(*program, Model_Lines());
        Read(*program, content);
        Take_Box();
        LinkageModel read = model;
        read.DataFromFile = written.DataFromFile;
        ASSERT_THAT(Differing_Fields(read, written), ElementsAre());
        ASSERT_EQ(Written(), content);
    }
}

}  // namespace
}  // namespace kervol
