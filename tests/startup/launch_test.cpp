// SPDX-License-Identifier: GPL-3.0-or-later
// Program values, a fresh model, and the model that the command line names.
#include "startup/launch.h"

#include <memory>

#include "core/model_fields.h"
#include "files/model_file.h"
#include "support/compare.h"
#include "support/program_test.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr double kRadians = 3.141592654 / 180;

TEST(SetProgramValues, GivesTheIdentityOfTheProgram) {
    LinkageModel model;
    Set_Program_Values(model);
    EXPECT_EQ(model.ProgramTitle, "KERVOL for Windows");
    EXPECT_EQ(model.VersionText, "7.0");
    EXPECT_EQ(model.ProgramDate, "5/5/04");
    EXPECT_EQ(model.ReleaseText, "2.2");
    EXPECT_THAT(model.CaptionTail, HasSubstr("KERVOL for Windows"));
    EXPECT_THAT(model.CaptionTail, HasSubstr("7.0"));
    EXPECT_THAT(model.CaptionTail, HasSubstr("2.2"));
}

TEST(SetProgramValues, StartsWithoutAFile) {
    LinkageModel model;
    model.ModelPath = "earlier.kvl";
    Set_Program_Values(model);
    EXPECT_TRUE(model.StartingUp);
    EXPECT_EQ(model.ModelPath, "");
    EXPECT_EQ(model.ModelName, "Model_1");
    EXPECT_EQ(model.DesignNumber, 1);
    EXPECT_EQ(model.UnitSystem, 1);
}

/// A program whose every field was something else before `Initialize`.
class Initialized : public ::testing::Test {
  protected:
    Initialized() : program(std::make_unique<Program>(port)), model(program->model) {
        for (const ModelField& field : Model_Fields())
            std::visit([&](auto member) { Disturb(model.*member); }, field.member);
        before = model;
        Initialize(*program);
    }

    static void Disturb(float& value) { value = Poison; }
    static void Disturb(std::int16_t& value) { value = -77; }
    static void Disturb(std::int32_t& value) { value = -77; }
    static void Disturb(bool& flag) { flag = true; }
    static void Disturb(std::string& text) { text = "before"; }
    template <class T, std::size_t... Dims>
    static void Disturb(Table<T, Dims...>& table) {
        for (std::ptrdiff_t i = 0; i < static_cast<std::ptrdiff_t>(table.Size()); ++i) Disturb(table(i));
    }

    RecordingPort port;
    std::unique_ptr<Program> program;
    LinkageModel& model;
    LinkageModel before;
};

TEST_F(Initialized, HasNothingCalculatedAndNewLists) {
    EXPECT_TRUE(model.NewData);
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_FALSE(model.DynamicsCalculated);
    EXPECT_FALSE(model.FlywheelCalculated);
}

TEST_F(Initialized, HasTheDefaultsOfTheDrive) {
    EXPECT_EQ(model.CalcMode, 3);
    EXPECT_EQ(model.Theta2One, 0);
    EXPECT_EQ(model.Omega2Start, 10);
    EXPECT_EQ(model.Alpha2Const, -5);
    EXPECT_EQ(model.TimeStart, 0);
    EXPECT_EQ(model.TimeEnd, 5);
    EXPECT_EQ(model.TimeStep, 0.05F);
    EXPECT_EQ(model.AngleRange, "abs");
    EXPECT_EQ(model.DesignNumber, 1);
    EXPECT_EQ(model.ModelPath, "");
    EXPECT_EQ(model.ModelName, "Model_1");
}

TEST_F(Initialized, HasTheAngleRangeOfTheFirstExample) {
    EXPECT_EQ(model.ThetaMinDeg, 0);
    EXPECT_EQ(model.ThetaMaxDeg, 360);
    EXPECT_EQ(model.ThetaStepDeg, 10);
    EXPECT_EQ(model.ThetaMinText, "0");
    EXPECT_EQ(model.ThetaMaxText, "360");
    EXPECT_EQ(model.ThetaStepText, "10") << "the example comes after the texts of the defaults";
    EXPECT_EQ(model.ThetaMin, 0);
    EXPECT_FLOAT_EQ(model.ThetaMax, static_cast<float>(360 * kRadians));
    EXPECT_FLOAT_EQ(model.ThetaStep, static_cast<float>(10 * kRadians));
    EXPECT_EQ(model.NumSteps, 36);
}

TEST_F(Initialized, HasTheGeometryOfTheFirstExample) {
    EXPECT_EQ(model.ModelTitle, "Kervol Watts Chain with Two Coupler Curves");
    EXPECT_EQ(model.LinkageType, "W");
    const float lengths[] = {model.Link1, model.Link2, model.Link3,     model.Link4,         model.LinkO4D,
                             model.Link5, model.Link6, model.CouplerAC, model.Coupler2Length};
    EXPECT_THAT(lengths, ElementsAre(9.375F, 2, 8.625F, 7, 8, 7, 8, 6, 6));
    const float pivots[] = {model.O4X,      model.O4Y,      model.O6X,      model.O6Y,
                            model.O4LocalX, model.O4LocalY, model.O6LocalX, model.O6LocalY};
    EXPECT_THAT(pivots, ElementsAre(9.375F, 0, 14.375F, 2, 9.375F, 0, 14.375F, 2));
    EXPECT_THAT((std::vector<float>{model.Delta3Deg, model.Delta4Deg, model.Delta5Deg}),
                ElementsAre(45, -30, 80));
    EXPECT_FLOAT_EQ(model.Delta3, static_cast<float>(45 * kRadians));
    EXPECT_FLOAT_EQ(model.Delta4, static_cast<float>(-30 * kRadians));
    EXPECT_FLOAT_EQ(model.Delta5, static_cast<float>(80 * kRadians));
    EXPECT_EQ(model.Delta3Text, "45");
    EXPECT_EQ(model.Delta4Text, "-30");
    EXPECT_EQ(model.Delta5Text, "80");
    EXPECT_FLOAT_EQ(model.O4O6Length, std::sqrt(29.0F));  // (5, 2)
    EXPECT_EQ(model.LinkTable(4), 7);
}

TEST_F(Initialized, IsOpenInBothStages) {
    EXPECT_EQ(model.OpenCross1, 1);
    EXPECT_EQ(model.OpenCross2, 1);
    EXPECT_EQ(model.OpenSign1, -1);
    EXPECT_EQ(model.OpenSign2, -1);
    EXPECT_EQ(model.OpenCross1Text, "OPEN");
    EXPECT_EQ(model.OpenCross2Text, "OPEN");
}

TEST_F(Initialized, HasTheDefaultsOfAnimationAndOutput) {
    EXPECT_EQ(model.AnimDelay, 16383);
    EXPECT_EQ(model.AnimCycles, 1);
    EXPECT_EQ(model.AnimWait, 10);
    EXPECT_EQ(model.PrintStep, 10);
    EXPECT_EQ(model.CoefFluct, 0.05F);
    EXPECT_EQ(model.ShowPoints, "N");
    EXPECT_EQ(model.ShowCoupler, "Y");
    EXPECT_EQ(model.UnitCount, 17);
}

TEST_F(Initialized, ZeroesTheLinkDataAndThenPutsTheDefaults) {
    const auto values = [](const auto& array) { return std::vector<float>(array.begin(), array.end()); };
    EXPECT_THAT(values(model.LinkMass), ElementsAre(0, 0, 0.003F, 0.01F, 0.006F, 0.02F, 0.01F));
    EXPECT_THAT(values(model.LinkInertia), ElementsAre(0, 0, 0.006F, 0.02F, 0.012F, 0.04F, 0.02F));
    std::vector<float> distances, angles;
    for (int link = 0; link <= 6; ++link) {
        distances.push_back(model.LinkCG(link, 0));
        angles.push_back(model.LinkCG(link, 1));
    }
    // Half of links 2, 4, 5, 6; of the coupler its point at 6 and 45 degrees.
    EXPECT_THAT(distances, ElementsAre(0, 0, 1, 6, 3.5F, 3.5F, 4));
    EXPECT_THAT(angles, ElementsAre(0, 0, 0, static_cast<float>(45 * 0.017453292522222223), 0, 0, 0));
    for (const LinkArray* array :
         {&model.ForceMag, &model.ForceAngle, &model.ForceX, &model.ForceY, &model.ForcePointDist,
          &model.ForcePointAngle, &model.LinkTorque, &model.LinkFriction})
        EXPECT_THAT(values(*array), ::testing::Each(0.0F));
}

TEST_F(Initialized, HasTheDateAndTimeOfTheClock) {
    // The minute may turn between the two looks at the clock.
    const DateAndTime now = port.Short_Date_And_Time();
    EXPECT_EQ(model.DateText.size(), now.date.size());
    EXPECT_EQ(model.TimeText.size(), now.time.size());
    EXPECT_NE(model.DateText, "before");
    EXPECT_NE(model.TimeText, "before");
}

TEST_F(Initialized, LeavesEverythingElseAlone) {
    const std::vector<std::string> kept = {
        "ProgramTitle", "VersionText", "ProgramDate", "ReleaseText", "CaptionTail", "UserName", "StageText",
        "Stage1Class", "Stage2Class", "Coupler2Spare", "GroundAngleDeg", "GroundAngle", "O6O4AngleDeg",
        "O6O4Angle", "CamDriven", "LinkDriven", "TorqueImported", "DriveFileName", "TorqueFileName",
        "DriveScale", "DriveOffset", "DriveDatum", "DriveArmLength", "CamBaseRadius", "CamRollerRadius",
        "CamCentreX", "CamCentreY", "Theta2Rad", "Omega2", "Alpha2", "CurrentTime", "Theta3Rad", "Theta4Rad",
        "Theta5Rad", "Theta6Rad", "Omega3Now", "Omega4Now", "Omega5Now", "Omega6Now", "Alpha3Now",
        "Alpha4Now", "Alpha5Now", "Alpha6Now", "UnitSystem", "UnitText", "StepMode", "ShowTrace", "HideLinks",
        "DataSaved", "SomeStepFailed", "Loading", "DataFromFile", "StartingUp",
        // Set, to what they were.
        "NewData"};
    std::vector<std::string> changed = Differing_Fields(model, before);
    std::vector<std::string> all;
    for (const ModelField& field : Model_Fields()) all.emplace_back(field.name);
    changed.insert(changed.end(), kept.begin(), kept.end());
    EXPECT_THAT(changed, ::testing::UnorderedElementsAreArray(all));
}

TEST_F(Initialized, GivesTheSameModelWhenItRunsAgain) {
    const LinkageModel first = model;
    Initialize(*program);
    model.DateText = first.DateText;
    model.TimeText = first.TimeText;
    EXPECT_THAT(Differing_Fields(model, first), IsEmpty());
}

TEST(StartFresh, PutsTheUnitsOfTheFirstSystem) {
    RecordingPort port;
    const auto program = std::make_unique<Program>(port);
    Start_Fresh(*program);
    EXPECT_EQ(program->model.UnitText(6), "in");
    EXPECT_EQ(program->model.UnitText(9), "lb-in");
    EXPECT_EQ(program->model.UnitText(18), "lb-in");
    EXPECT_EQ(program->model.UnitText(0), "");
    EXPECT_TRUE(program->model.StartingUp);
    EXPECT_THAT(port.messages, IsEmpty());
}

}  // namespace
}  // namespace kervol
