// SPDX-License-Identifier: GPL-3.0-or-later
// Pulses of a torque curve: what belongs to which, and what too many do.
#include "dynamics/flywheel.h"

#include <vector>

#include "support/compare.h"
#include "support/program_test.h"

namespace kervol {
namespace {

class Pulses : public ProgramTest {
  protected:
    /// Integrates the deviations, of which the first stands at step 0.
    void Integrate(const std::vector<float>& deviations, float DeltaX) {
        DeviationCurve D;
        for (std::size_t i = 0; i < deviations.size(); ++i) D(static_cast<std::ptrdiff_t>(i)) = deviations[i];
        Integrate_Pulses(D, static_cast<std::int16_t>(deviations.size() - 1), DeltaX, NegArea, PosArea,
                         NPulses, FirstSign);
    }

    void Expect_Areas(const PulseAreas& areas, const std::vector<float>& from_1) {
        for (int i = 1; i <= 10; ++i) {
            const auto index = static_cast<std::size_t>(i) - 1;
            EXPECT_EQ(areas(i), index < from_1.size() ? from_1[index] : 0.0F) << i;
        }
    }

    PulseAreas NegArea, PosArea;
    std::int16_t NPulses = 0, FirstSign = 0;
};

// By trapezoids of width 0.5: (2 + 4)/2, (4 - 2)/2, (-2 - 6)/2, (-6 + 2)/2 and (2 + 2)/2 give 1.5, 0.5, -2,
// -1 and 1. The first belongs to the positive side, 0.5 and -2 to the negative, -1 and 1 to the positive.
TEST_F(Pulses, AnIntervalThatChangesSignFallsToTheNewSign) {
    Integrate({100, 2, 4, -2, -6, 2, 2}, 0.5F);
    Expect_Areas(PosArea, {1.5F, 0});
    Expect_Areas(NegArea, {-1.5F});
    EXPECT_EQ(NPulses, 4);
    EXPECT_EQ(FirstSign, 1);
}

TEST_F(Pulses, TheIntervalFrom0To1IsLeftOut) {
    Integrate({5000, -1, -1, -1}, 1);
    Expect_Areas(NegArea, {-2});
    Expect_Areas(PosArea, {});
    EXPECT_EQ(FirstSign, -1);
    EXPECT_EQ(NPulses, 2) << "both counters start at one";
}

TEST_F(Pulses, ADeviationOfZeroIsPositive) {
    Integrate({0, 0, 0, 0}, 1);
    EXPECT_EQ(FirstSign, 1);
    EXPECT_EQ(NPulses, 2);
    Expect_Areas(PosArea, {});
    Integrate({0, -4, 0, 0}, 1);
    Expect_Areas(PosArea, {-2});
}

TEST_F(Pulses, FewerThanThreeStepsHaveNoInterval) {
    for (const std::vector<float>& few : {std::vector<float>{7}, {7, 8}}) {
        Integrate(few, 1);
        EXPECT_EQ(FirstSign, 0);
        EXPECT_EQ(NPulses, 2);
    }
}

TEST_F(Pulses, TheMeanOfATrapezoidIsRoundedBeforeItIsScaled) {
    // (1 + 2^-24) / 2 lies half way between two singles and becomes 0.5; three times the unrounded mean would
    // round to 1.5 + 2^-23.
    Integrate({0, 1, 5.9604645e-8F}, 3);
    Expect_Areas(PosArea, {1.5F});
}

TEST_F(Pulses, ClearsWhatAnEarlierCountCovers) {
    PosArea.Fill(50);
    NegArea.Fill(60);
    NPulses = 3;
    Integrate({0, 2, 2}, 1);
    EXPECT_EQ(PosArea(1), 2);
    EXPECT_EQ(PosArea(3), 0);
    EXPECT_EQ(PosArea(4), 50);
    EXPECT_EQ(NegArea(3), 0);
    EXPECT_EQ(NegArea(4), 60);
    EXPECT_EQ(PosArea(0), 50);
}

class FlywheelProcedure : public Pulses {
  protected:
    void Run(std::string_view mode, std::int16_t key, std::int16_t first = 0, std::int16_t last = 4) {
        Flywheel(*program, data, first, last, 1, 10, NegArea, PosArea, NPulses, FirstSign, key, mode);
    }
    Table<float, 5, 5> data;
};

TEST_F(FlywheelProcedure, TakesTheDeviationOfAColumnOrARowByItsMode) {
    const float column[] = {0, 11, 13, 9, 9}, row[] = {0, 7, 7, 7, 17};
    for (int i = 0; i < 5; ++i) {
        data(i, 2) = column[i];
        data(3, i) = row[i];
    }
    data(3, 2) = 9;  // where both cross: 1, 3, -1, -1 and -3, -1, -3, 7
    Run("I_Pointer", 2);
    EXPECT_EQ(FirstSign, 1);
    Expect_Areas(PosArea, {2});
    Expect_Areas(NegArea, {0});
    EXPECT_EQ(NegArea(1), 0);
    EXPECT_EQ(NPulses, 3);
}

TEST_F(FlywheelProcedure, TakesARowWhereThatIsItsMode) {
    const float row[] = {0, 7, 9, 7, 17};  // -3, -1, -3, 7: areas -2, -2 and 2
    for (int i = 0; i < 5; ++i) data(3, i) = row[i];
    Run("Pointer_I", 3);
    EXPECT_EQ(FirstSign, -1);
    Expect_Areas(NegArea, {-4});
    Expect_Areas(PosArea, {2});
}

TEST_F(FlywheelProcedure, AnyOtherModeHasNoDeviation) {
    data.Fill(500);
    Run("i_pointer", 0);
    EXPECT_EQ(FirstSign, 1);
    Expect_Areas(PosArea, {});
}

TEST_F(FlywheelProcedure, ACellOutsideTheDataIsItsFault) {
    Run("I_Pointer", 5);
    Expect_Fault(fault::Subscript, "Flywheel");
    EXPECT_EQ(NPulses, 0);
    EXPECT_EQ(FirstSign, 0);
}

TEST_F(FlywheelProcedure, TheEleventhPulseOfASignIsItsFault) {
    // Step 2 is the first positive one, step 3 the first negative; the eleventh positive is step 22.
    Table<float, 40, 1> wave;
    for (int i = 0; i < 40; ++i) wave(i, 0) = i % 2 == 0 ? 3 : -1;
    for (const std::int16_t last : {std::int16_t{21}, std::int16_t{22}}) {
        NPulses = 0;
        PosArea.Fill(0);
        NegArea.Fill(0);
        Flywheel(*program, wave, 0, last, 1, 0, NegArea, PosArea, NPulses, FirstSign, 0, "I_Pointer");
        EXPECT_EQ(FirstSign, 1);
        for (int i = 1; i <= 10; ++i) {
            EXPECT_EQ(PosArea(i), 1) << i;
            EXPECT_EQ(NegArea(i), 1) << i;
        }
        EXPECT_EQ(NPulses, last == 21 ? 21 : 0);
    }
    Expect_Fault(fault::Subscript, "Flywheel");
}

}  // namespace
}  // namespace kervol
