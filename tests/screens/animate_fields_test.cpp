// SPDX-License-Identifier: GPL-3.0-or-later
// The geometry, assembly and range on the Animation screen, and the recalculation behind them.
#include <cmath>

#include "screens/screens_fixture.h"
#include "support/compare.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* kAll = "Next Step Run Reset Print";
constexpr const char* kClockwise = "\n\nTo rotate CW from max to min, use a negative Omega2.";

class AnimateEdits : public ScreensTest {
  protected:
    AnimateEdits() { Open_Mode(3); }

    void Open_Mode(std::int16_t mode) {
        Animate_In_Mode(mode);
        Rows_Drawn();
        port.trace.clear();
    }
    TextField& Field(LinkField field) { return animate.txt_Linkout.at(field); }
    TextField& Range(std::size_t field) { return animate.txt_Initial.at(field); }
    void Enter_Range(std::string_view first, std::string_view last, std::string_view step) {
        Type(Range(0), first);
        Type(Range(1), last);
        Edit(Range(2), step);
    }
    std::vector<std::string> Range_Texts() { return {Range(0).text, Range(1).text, Range(2).text}; }

    /// How the flags stand before a recalculation, the other way round than it leaves them.
    void Turn_Flags() {
        model.DataCalculated = model.NewData = false;
        model.DataFromFile = model.DynamicsCalculated = true;
        home.mnu_Save.enabled = false;
        tables.Theta(1, 1) = Poison;
    }
    bool Is_Swept() const { return tables.Theta(1, 1) > Poison; }
    void Expect_Recalculated() {
        EXPECT_TRUE(Is_Swept());
        EXPECT_TRUE(model.DataCalculated);
        EXPECT_FALSE(model.DataFromFile);
        EXPECT_FALSE(model.DynamicsCalculated);
        EXPECT_TRUE(model.NewData);
        EXPECT_TRUE(home.mnu_Save.enabled);
        EXPECT_EQ(Animate_Outputs(), kAll);
        EXPECT_EQ(port.pointer, Pointer::Default);
    }
    void Expect_Not_Calculated() {
        EXPECT_FALSE(model.DataCalculated);
        EXPECT_FALSE(model.DynamicsCalculated);
        EXPECT_TRUE(model.NewData);
        EXPECT_FALSE(home.mnu_Save.enabled);
        EXPECT_EQ(port.pointer, Pointer::Default);
    }
    /// Length of Link 3 as the tables have it.
    double Coupler_In(int row) const {
        return std::hypot(double(tables.PointPos(row, 1, 0)) - tables.PointPos(row, 0, 0),
                          double(tables.PointPos(row, 1, 1)) - tables.PointPos(row, 0, 1));
    }
    /// On which side of the line from O4 to A point B stands.
    double Side_Of_B(int row) const {
        const auto x = [&](int point) { return double(tables.PointPos(row, point, 0)) - model.Link1; };
        const auto y = [&](int point) { return double(tables.PointPos(row, point, 1)); };
        return x(0) * y(1) - y(0) * x(1);
    }
};

class RecalcButton : public AnimateEdits {};

TEST_F(RecalcButton, SweepsTheEditedLinkageAndShowsTheSixthPosition) {
    Edit(Field(Field_Link3), "8.5");
    EXPECT_EQ(Animate_Outputs(), "");
    Turn_Flags();
    Move_Bar(animate.hsc_step, 20);
    Rows_Drawn();
    animate.hsc_step.maximum = 5;
    animate.cmd_Recalc.click();
    Expect_Recalculated();
    EXPECT_NEAR(Coupler_In(9), 8.5, 1e-4);
    EXPECT_EQ(Rows_Drawn().back(), 5);
    EXPECT_EQ(program->animation.CurrentStep, 6);
    EXPECT_EQ(animate.hsc_step.value, 5);
    EXPECT_EQ(animate.hsc_step.maximum, 36);
    EXPECT_EQ(animate.lbl_StepNumber.caption, "50.0");
    EXPECT_TRUE(animate.GeometryEdited) << "the design is another one still";
}

TEST_F(RecalcButton, WorksInEveryMode) {
    struct Case {
        std::int16_t mode, next;
    };
    // Three rows have no sixth position, and one position is not stepped to.
    for (const Case& one : {Case{1, 0}, Case{2, 6}, Case{3, 6}, Case{4, 1}, Case{5, 1}}) {
        Open_Mode(one.mode);
        Turn_Flags();
        tables.Theta(0, 1) = Poison;
        animate.cmd_Recalc.click();
        if (one.mode > 1) Expect_Recalculated();
        EXPECT_GT(tables.Theta(0, 1), Poison) << "mode " << one.mode;
        EXPECT_TRUE(model.DataCalculated);
        EXPECT_EQ(program->animation.CurrentStep, one.next) << "mode " << one.mode;
        EXPECT_EQ(Rows_Drawn().empty(), one.mode == 1) << "mode " << one.mode;
        EXPECT_EQ(model.CalcMode, one.mode);
    }
}

TEST_F(RecalcButton, SweepsAnImportedDriveAsItWasImported) {
    for (const std::int16_t mode : Int16List{4, 5}) {
        Open_Mode(mode);
        animate.cmd_Recalc.click();
        EXPECT_EQ(model.NumSteps, 2);
        EXPECT_EQ(tables.Omega(2, 0), 10);
        EXPECT_NEAR(tables.Theta(2, 0), 90, 1e-4);
    }
}

TEST_F(RecalcButton, AbandonedLeavesNothingCalculatedAndTheOutputsOff) {
    Put_Limited_Linkage();
    port.answers = {Answer::Ignore, Answer::Abort};
    Open_Mode(3);
    Take_Box();
    Edit(Field(Field_Link6), "10.5");
    Move_Bar(animate.hsc_step, 20);
    animate.hsc_step.maximum = 5;
    Turn_Flags();
    animate.cmd_Recalc.click();
    EXPECT_EQ(animate.hsc_step.value, 0) << "the bar is put back first";
    EXPECT_EQ(animate.hsc_step.maximum, 36);
    EXPECT_THAT(Take_Box().text, HasSubstr("of linkage cannot connect"));
    Expect_Not_Calculated();
    EXPECT_EQ(Animate_Outputs(), "");
    EXPECT_TRUE(animate.cmd_Recalc.enabled);
    EXPECT_TRUE(animate.cmd_Back.enabled);
    port.answers = {Answer::Ignore};
    Turn_Flags();
    animate.cmd_Recalc.click();
    Take_Box();
    Expect_Recalculated();
    EXPECT_TRUE(model.SomeStepFailed);
}

TEST_F(RecalcButton, OfACountBeyondTheTablesIsRefused) {
    Turn_Flags();
    model.NumSteps = 5000;
    animate.cmd_Recalc.click();
    Expect_Not_Calculated();
    EXPECT_FALSE(Is_Swept());
    EXPECT_EQ(Boxes_Left(), 0U);
}

class AnimateOptions : public AnimateEdits {};

TEST_F(AnimateOptions, CrossTheirStageAndRecalculate) {
    const double open = Side_Of_B(9);
    Turn_Flags();
    Choose(animate.opt_OpenCross1, 1);
    EXPECT_EQ(model.OpenCross1, 2);
    EXPECT_EQ(model.OpenSign1, 1);
    EXPECT_EQ(model.OpenCross1Text, "Crossed");
    EXPECT_EQ(model.OpenCross2, 1);
    Expect_Recalculated();
    EXPECT_LT(Side_Of_B(9) * open, 0) << "the mirror assembly";
    EXPECT_EQ(Rows_Drawn().back(), 5);
    EXPECT_EQ(program->animation.CurrentStep, 6);
    Choose(animate.opt_OpenCross1, 0);
    EXPECT_EQ(model.OpenCross1, 1);
    EXPECT_EQ(model.OpenSign1, -1);
    EXPECT_EQ(model.OpenCross1Text, "Open");
    EXPECT_GT(Side_Of_B(9) * open, 0);
}

TEST_F(AnimateOptions, OfTheSecondStageDoTheSame) {
    Turn_Flags();
    Choose(animate.opt_OpenCross2, 1);
    EXPECT_EQ(model.OpenCross1, 1);
    EXPECT_EQ(model.OpenCross2, 2);
    EXPECT_EQ(model.OpenSign2, 1);
    EXPECT_EQ(model.OpenCross2Text, "Crossed");
    Expect_Recalculated();
}

TEST_F(AnimateOptions, BringTheOutputsBackBehindAnEdit) {
    Edit(Field(Field_Link3), "8.5");
    EXPECT_EQ(Animate_Outputs(), "");
    Choose(animate.opt_OpenCross1, 1);
    EXPECT_EQ(Animate_Outputs(), kAll);
    EXPECT_NEAR(Coupler_In(9), 8.5, 1e-4);
}

TEST_F(AnimateOptions, AreHeldOffWhileAFileIsReadOrTheScreenIsFilled) {
    for (bool* guard : {&model.Loading, &animate.Filling}) {
        Turn_Flags();
        *guard = true;
        for (auto* options : {&animate.opt_OpenCross1, &animate.opt_OpenCross2}) {
            (*options)[0].on = false;
            (*options)[1].on = true;
            (*options)[1].click();
        }
        *guard = false;
        EXPECT_EQ(model.OpenCross1, 1);
        EXPECT_EQ(model.OpenCross2, 1);
        EXPECT_FALSE(Is_Swept());
        EXPECT_FALSE(model.DataCalculated);
    }
}

class AnimateGeometry : public AnimateEdits {};

TEST_F(AnimateGeometry, ACharacterTypedTurnsTheOutputsOffAndClearsThePicture) {
    animate_picture.Circle(0, 0, 1, {});
    Type(Field(Field_Link3), "8");
    EXPECT_EQ(Animate_Outputs(), "");
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_THAT(Standing_On(animate_picture), IsEmpty());
    EXPECT_EQ(model.Link3, 8.625F) << "not read yet";
    EXPECT_FALSE(animate.GeometryEdited);
    EXPECT_TRUE(animate.cmd_Recalc.enabled);
    EXPECT_TRUE(animate.cmd_Back.enabled);
}

TEST_F(AnimateGeometry, LeavingAFieldReadsItAndCalculatesNothing) {
    model.StepMode = "N";
    tables.Theta(1, 1) = Poison;
    Edit(Field(Field_Link3), "8");
    EXPECT_EQ(model.Link3, 8);
    EXPECT_EQ(model.LinkTable(3), 8);
    EXPECT_TRUE(animate.GeometryEdited);
    EXPECT_EQ(model.StepMode, "Y");
    EXPECT_FALSE(model.DataCalculated);
    EXPECT_FALSE(Is_Swept());
    EXPECT_EQ(Animate_Outputs(), "");
    EXPECT_THAT(Standing_On(animate_picture), IsEmpty());
}

TEST_F(AnimateGeometry, LeavingAFieldCountsAsAnEditWhetherItsTextChangedOrNot) {
    const LinkageModel before = model;
    Field(Field_Link3).lost_focus();
    EXPECT_TRUE(animate.GeometryEdited);
    EXPECT_THAT(Differing_Fields(model, before), ElementsAre("DataCalculated"));
}

TEST_F(AnimateGeometry, EnterReadsTheFieldToo) {
    Type(Field(Field_Link3), "8");
    Field(Field_Link3).enter();
    EXPECT_EQ(model.Link3, 8);
    EXPECT_TRUE(animate.GeometryEdited);
}

TEST_F(AnimateGeometry, ANegativeLengthIsTurnedPositiveWithAWarning) {
    Edit(Field(Field_Link5), "-4.5");
    Expect_Warning("This value must be positive.  Please redo.");
    EXPECT_EQ(model.Link5, 4.5F);
    EXPECT_EQ(Field(Field_Link5).text, "-4.5");
}

TEST_F(AnimateGeometry, ANumberTooLargeIsReported) {
    Edit(Field(Field_Link3), "1e60");
    Expect_Fault(6, "Get_Calc_Geometry");
    EXPECT_EQ(model.Link3, 8.625F);
}

class AnimateRange : public AnimateEdits {};

TEST_F(AnimateRange, OfAnglesIsCheckedStoredAndSweptAsItIsLeft) {
    Turn_Flags();
    model.StepMode = "N";
    Enter_Range("20", "120", "20");
    Expect_Recalculated();
    EXPECT_EQ(model.NumSteps, 5);
    EXPECT_EQ(model.StepMode, "Y");
    EXPECT_NEAR(tables.Theta(0, 0), 20, 1e-4);
    EXPECT_NEAR(tables.Theta(5, 0), 120, 1e-4);
    EXPECT_EQ(animate.hsc_step.maximum, 5);
    EXPECT_EQ(animate.hsc_step.value, 5);
    EXPECT_EQ(animate.lbl_StepNumber.caption, "120.0");
    EXPECT_FALSE(animate.GeometryEdited);
    EXPECT_EQ(Initial(2).text, "20") << "the Input screen follows";
}

TEST_F(AnimateRange, OfTimesIsSweptToo) {
    Open_Mode(2);
    Turn_Flags();
    Enter_Range("0.5", "2.5", "0.25");
    Expect_Recalculated();
    EXPECT_EQ(model.NumSteps, 8);
    EXPECT_EQ(animate.hsc_step.maximum, 8);
    EXPECT_EQ(animate.lbl_StepNumber.caption, "1.75");
}

TEST_F(AnimateRange, IsSweptAgainAtEnter) {
    Turn_Flags();
    Type(Range(2), "20");
    EXPECT_EQ(Animate_Outputs(), kAll) << "typing alone does nothing";
    Range(2).enter();
    Expect_Recalculated();
    EXPECT_EQ(model.NumSteps, 18);
}

TEST_F(AnimateRange, ThatIsRefusedIsPutBackAndTheOldOneSwept) {
    Turn_Flags();
    Enter_Range("370", "360", "10");
    Expect_Warning(std::string("Minimum angle must be smaller than maximum angle.") + kClockwise);
    EXPECT_THAT(Range_Texts(), ElementsAre("0", "360", "10"));
    Expect_Recalculated();
    EXPECT_EQ(model.NumSteps, 36);
    Enter_Range("0", "360", "-1");
    Expect_Warning(std::string("Cannot have a zero or negative step size") + kClockwise);
    EXPECT_THAT(Range_Texts(), ElementsAre("0", "360", "10"));
    Open_Mode(2);
    Turn_Flags();
    Enter_Range("6", "5", "0.05");
    Expect_Warning("Start time must be smaller than end time - will reset.");
    EXPECT_THAT(Range_Texts(), ElementsAre("0", "5", "0.05"));
    Expect_Recalculated();
    EXPECT_EQ(model.NumSteps, 100);
}

TEST_F(AnimateRange, ANegativeTimeStepIsKeptAsItsAbsoluteValue) {
    Open_Mode(2);
    Enter_Range("0", "1", "-0.1");
    Expect_Warning("Time steps must be positive - will reset");
    EXPECT_EQ(model.NumSteps, 10);
    EXPECT_EQ(Range(2).text, "0.1");
    EXPECT_TRUE(model.DataCalculated);
}

TEST_F(AnimateRange, OfTooManyAnglesIsNotSweptAndTakesTheFocus) {
    Turn_Flags();
    Edit(Range(2), "0.1");
    Expect_Warning("Your angle steps are too small - Have > 1024 Points - Increase Delta Theta");
    EXPECT_THAT(port.trace, Contains("focus frm_Animate.txt_Initial_2"));
    EXPECT_FALSE(Is_Swept());
    Expect_Not_Calculated();
    Turn_Flags();
    Edit(Range(2), "1");
    Expect_Recalculated();
    EXPECT_EQ(model.NumSteps, 360);
}

TEST_F(AnimateRange, OfTooManyTimesIsWarnedOfAndNotSwept) {
    Open_Mode(2);
    Turn_Flags();
    Edit(Range(2), "0.001");
    Expect_Warning("Your time steps are too small - Have > 1024 Points - Increase Delta Time");
    EXPECT_FALSE(Is_Swept());
    Expect_Not_Calculated();
    EXPECT_EQ(Boxes_Left(), 0U);
    Turn_Flags();
    Edit(Range(2), "0.01");
    Expect_Recalculated();
}

TEST_F(AnimateRange, OfASweepThatIsAbandonedIsStored) {
    Put_Limited_Linkage();
    port.answers = {Answer::Ignore};
    Open_Mode(3);
    Take_Box();
    Turn_Flags();
    port.answers = {Answer::Abort};
    Edit(Range(2), "5");
    Take_Box();
    EXPECT_EQ(model.ThetaStepDeg, 5);
    EXPECT_EQ(model.NumSteps, 72);
    Expect_Not_Calculated();
}

TEST_F(AnimateRange, EveryFieldRaisesItsEvents) {
    for (const TextField& field : animate.txt_Linkout) {
        EXPECT_TRUE(field.change);
        EXPECT_TRUE(field.lost_focus);
        EXPECT_TRUE(field.enter);
    }
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_FALSE(Range(i).change);
        EXPECT_TRUE(Range(i).lost_focus);
        EXPECT_TRUE(Range(i).enter);
    }
}

}  // namespace
}  // namespace kervol
