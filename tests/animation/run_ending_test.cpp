// SPDX-License-Identifier: GPL-3.0-or-later
// One position of a run by itself, how long positions stand, how a run is stopped, and what a fault leaves.
#include <cstdint>

#include "animation/running_fixture.h"

#include <gmock/gmock.h>

namespace kervol {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// `Drawone` behind a set-up of its own.
class OnePosition : public Running {
  protected:
    OnePosition() { Set_Up(); }

    void Set_Up() {
        Animate_Setup(*program, view, settings);
        picture.drawn.clear();
    }
    bool Draw(std::int16_t row) { return Drawone(*program, row, picture); }
};

TEST_F(OnePosition, IsDrawnAndErasedAndThePathsAndPivotsAreRepainted) {
    EXPECT_FALSE(Draw(1));
    Expect_Run({Position(1), Position(1, kWhite), Paths(), Pivots()});
    EXPECT_EQ(program->animation.LinkColour, kWhite);
}

TEST_F(OnePosition, IsHeldBetweenItsTwoPasses) {
    for (const bool trace : {false, true}) {
        settings.chk_Trace.on = trace;
        Set_Up();
        DrawnList held;
        port.goes_on = [&] {
            held = picture.drawn;
            return true;
        };
        Draw(1);
        EXPECT_EQ(held, Position(1));
    }
    EXPECT_THAT(port.holds, SizeIs(2)) << "once a position, with trace as without";
}

TEST_F(OnePosition, UnderTraceStandsInBothPasses) {
    settings.chk_Trace.on = true;
    Set_Up();
    Draw(2);
    Expect_Run({Position(2), Position(2), Paths(), Pivots()});
    EXPECT_EQ(program->animation.LinkColour, kMagenta);
}

TEST_F(OnePosition, IsTracedByAnySettingOtherThanN) {
    for (const char* trace : {"Y", "", "n"}) {
        model.ShowTrace = trace;
        Draw(2);
        EXPECT_NE(program->animation.LinkColour, kWhite) << "\"" << trace << "\"";
    }
}

TEST_F(OnePosition, AtTheExactOriginIsNoneAndDrawsAndHoldsNothing) {
    Take_Position(2);
    for (const bool trace : {false, true}) {
        settings.chk_Trace.on = trace;
        Set_Up();
        EXPECT_TRUE(Draw(2));
        Expect_Run({});
    }
    EXPECT_THAT(port.holds, IsEmpty());
}

TEST_F(OnePosition, IsToldByTheFirstCouplerPointInBothCoordinates) {
    Put_Point(2, 2, 0, 1e-30F);
    EXPECT_FALSE(Draw(2));
    Put_Point(2, 2, 1e-30F, 0);
    EXPECT_FALSE(Draw(2));
    Put_Point(2, 2, 0, 0);
    EXPECT_TRUE(Draw(2)) << "the other points stand elsewhere";
    Take_Position(1);
    Put_Point(1, 2, 2, 2);
    EXPECT_FALSE(Draw(1)) << "the other points stand at the origin";
}

TEST_F(OnePosition, IsDrawnWithoutAskingWhetherItsRowAssembled) {
    tables.StepValid(1) = false;
    EXPECT_FALSE(Draw(1));
    EXPECT_THAT(port.holds, SizeIs(1));
}

TEST_F(OnePosition, BeyondTheTablesIsAFault) {
    EXPECT_FALSE(Draw(1025));
    Expect_Fault(9, "Drawone");
    Expect_Run({});
}

TEST_F(OnePosition, OfARunThatIsToEndIsErasedAllTheSame) {
    port.goes_on = [] { return false; };
    EXPECT_FALSE(Draw(1));
    Expect_Run({Position(1), Position(1, kWhite), Paths(), Pivots()});
    EXPECT_TRUE(program->animation.EndRun);
}

/// A position stands for `AnimWait` times `AnimDelay` / 4096 milliseconds.
class RunPace : public Running {
  protected:
    /// What each position of a run was held for.
    std::vector<double> Held(std::int16_t wait, int speed) {
        model.AnimWait = wait;
        settings.hsc_speed.value = speed;
        port.holds.clear();
        Run();
        return port.holds;
    }
};

TEST_F(RunPace, IsTheProductOfBothSettings) {
    // Multiples of 4096 rounds.
    EXPECT_THAT(Held(10, 32767 - 4096), ElementsAre(10, 10, 10, 10));
    EXPECT_THAT(Held(500, 32767 - 4096), Each(500.0));
    EXPECT_THAT(Held(10, 32767 - 8192), Each(20.0));
    EXPECT_THAT(Held(1, 32767 - 2048), Each(0.5));
    EXPECT_EQ(model.AnimDelay, 2048);
}

TEST_F(RunPace, OfAFreshProgramIsFortyMilliseconds) {
    EXPECT_EQ(model.AnimWait, 10);
    EXPECT_EQ(model.AnimDelay, 16383);
    const double fresh = 163830 / 4096.0;  // 39.998
    EXPECT_THAT(Held(10, 32767 - 16383), Each(fresh));
    EXPECT_NEAR(fresh, 40, 0.01);
}

TEST_F(RunPace, OfTheSlowestBarAndTheLargestItemIsFourSeconds) {
    EXPECT_THAT(Held(500, 0), Each(16383500 / 4096.0));
}

TEST_F(RunPace, IsNoneAtTheFastEndAndWithoutAMultiplier) {
    EXPECT_THAT(Held(500, 32767), ElementsAre(0, 0, 0, 0)) << "held all the same, so that it is seen";
    EXPECT_THAT(Held(0, 0), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(Held(-1, 0), ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(Held(-32768, 0), ElementsAre(0, 0, 0, 0));
}

TEST_F(RunPace, CannotOverflowFromTheControls) {
    EXPECT_THAT(Held(32767, 0), Each(32767 * 32767 / 4096.0));
    EXPECT_EQ(Boxes_Left(), 0U);
}

TEST_F(RunPace, IsTheSameForEveryPositionOfEveryCycleWithTraceToo) {
    settings.txt_Cycles.text = "3";
    EXPECT_THAT(Held(10, 32767 - 4096), SizeIs(12));
    EXPECT_THAT(port.holds, Each(10.0));
    settings.chk_Trace.on = true;
    EXPECT_THAT(Held(10, 32767 - 4096), SizeIs(12));
    EXPECT_THAT(port.holds, Each(10.0));
    settings.chk_Showlinks.on = false;
    EXPECT_THAT(Held(10, 32767 - 4096), SizeIs(12)) << "also where no link is seen";
}

TEST_F(RunPace, IsTakenFromTheControlsOnceForTheWholeRun) {
    settings.txt_Cycles.text = "2";
    port.goes_on = [this] {
        settings.hsc_speed.value = 0;
        settings.txt_Cycles.text = "9";
        return true;
    };
    EXPECT_THAT(Held(10, 32767 - 4096), SizeIs(8));
    EXPECT_THAT(port.holds, Each(10.0));
}

class StoppedRun : public Running {};

TEST_F(StoppedRun, LeavesTheNextPositionStandingAndClosesTheCycle) {
    settings.txt_Cycles.text = "3";
    Stop_After(2);
    Run();
    Expect_Run({Prepared(), Cycle({Passed(0), Passed(1), Position(2)})});
    EXPECT_THAT(port.holds, SizeIs(2));
    EXPECT_EQ(program->animation.LinkColour, kMagenta);
    EXPECT_EQ(program->animation.CurrentStep, 0);
}

TEST_F(StoppedRun, LooksTheSameAtItsEndUnderTraceAndWithHiddenLinks) {
    Stop_After(1);
    settings.chk_Trace.on = true;
    Run();
    Expect_Run({Prepared(), Cycle({Passed(0), Position(1)})});
    settings.chk_Showlinks.on = false;
    port.holds.clear();
    Run();
    Expect_Run({Prepared(), Cycle({Passed(0)})});
}

TEST_F(StoppedRun, LeavesTheNextRowThatAssembled) {
    Fail(1);
    path = Joined({Stretch({0}), Stretch({2, 3})});
    Stop_After(1);
    Run();
    Expect_Run({Prepared(), Cycle({Passed(0), Position(2)})});
}

TEST_F(StoppedRun, AtItsLastPositionLeavesThatOneAndBeginsNoFurtherCycle) {
    settings.txt_Cycles.text = "3";
    Stop_After(4);
    Run();
    Expect_Run({Prepared(), Whole_Cycle()});
}

TEST_F(StoppedRun, InALaterCycleEndsThatOne) {
    settings.txt_Cycles.text = "3";
    Stop_After(5);
    Run();
    Expect_Run({Prepared(), Whole_Cycle(), Cycle({Passed(0), Position(1)})});
}

TEST_F(StoppedRun, BeforeRowsThatAllFailedClosesTheCycle) {
    Fail(2);
    Fail(3);
    path = Stretch({0, 1});
    settings.txt_Cycles.text = "2";
    Stop_After(2);
    Run();
    Expect_Run({Prepared(), Cycle({Passed(0), Passed(1)})});
}

TEST_F(StoppedRun, BeforeARowWithoutAPositionLeavesTheRowBeforeIt) {
    Take_Position(2);
    path = Stretch({0, 1, 3});
    Stop_After(2);
    Run();
    Expect_Run({Prepared(), Cycle({Passed(0), Passed(1), Position(1)})});
}

TEST_F(StoppedRun, DoesNotStopTheNextOne) {
    Stop_After(1);
    Run();
    picture.drawn.clear();
    port.goes_on = nullptr;
    Run();
    Expect_Run({Prepared(), Whole_Cycle()});
}

TEST_F(StoppedRun, IsToldToBeginAndToEndOnce) {
    port.goes_on = [this] {
        EXPECT_THAT(port.runs, ElementsAre(true));
        return false;
    };
    settings.txt_Cycles.text = "3";
    Run();
    EXPECT_THAT(port.runs, ElementsAre(true, false));
}

TEST_F(StoppedRun, IsToldSoOfARunThatWasNotStoppedToo) {
    for (const char* cycles : {"1", "3", "0"}) {
        settings.txt_Cycles.text = cycles;
        port.runs.clear();
        Run();
        EXPECT_THAT(port.runs, ElementsAre(true, false)) << cycles << " cycles";
    }
}

class FaultyRun : public Running {
  protected:
    /// From the second position on the count of the delay does not fit.
    void Overflow_Delay() {
        port.goes_on = [this] {
            model.AnimDelay = 2000000000;
            return true;
        };
    }
};

TEST_F(FaultyRun, GoesOnBehindAFaultOfOnePosition) {
    Overflow_Delay();
    Run();
    for (int row = 1; row <= 3; ++row) Expect_Fault(6, "Drawone");
    // The fault comes behind the first pass.
    Expect_Run({Prepared(), Cycle({Passed(0), Position(1), Position(2), Position(3), Position(3)})});
    EXPECT_THAT(port.runs, ElementsAre(true, false));
}

TEST_F(FaultyRun, ShowsTheSameFaultOnceWhereThePortWantsItSo) {
    port.shows_repeated_faults = false;
    settings.txt_Cycles.text = "3";
    Overflow_Delay();
    Run();
    Expect_Fault(6, "Drawone");
    EXPECT_EQ(Boxes_Left(), 0U);
    Run();
    Expect_Fault(6, "Drawone");
    EXPECT_EQ(Boxes_Left(), 0U) << "each run shows its own";
}

TEST_F(FaultyRun, BeyondTheTablesEndsAndIsToldSo) {
    port.shows_repeated_faults = false;
    model.ShowCoupler = "N";
    model.NumSteps = 1025;
    settings.txt_Cycles.text = "3";
    Run();
    Expect_Fault(9, "Animate");
    EXPECT_EQ(Boxes_Left(), 0U);
    Expect_Run({Prepared(),
                {{Drawn::Kind::Clear}},
                Pivots(),
                Both_Axes(),
                Passed(0),
                Passed(1),
                Passed(2),
                Passed(3)});
    EXPECT_THAT(port.runs, ElementsAre(true, false));
}

TEST_F(FaultyRun, RunsEvenInAWindowThatWasRefused) {
    program->animation.PlotMin = program->animation.PlotMax = 0;
    Run();
    Expect_Fault(5, "Animate_Setup");
    EXPECT_THAT(port.holds, SizeIs(4));
    EXPECT_THAT(port.runs, ElementsAre(true, false));
}

}  // namespace
}  // namespace kervol
