// SPDX-License-Identifier: GPL-3.0-or-later
// The transform of the function of selection 1: which samples it takes, what it makes of them, what it
// leaves.
#include "fourier/transform.h"

#include <cmath>

#include "catalogue/selection.h"
#include "fourier/literal_transform.h"
#include "support/compare.h"
#include "support/program_test.h"

namespace kervol {
namespace {

/// The samples stand in the angle of link 3, at steps 1 to N; step 0 holds what must not count.
class TransformTest : public ProgramTest {
  protected:
    TransformTest() {
        Set_Selection(program->catalogue, program->selections, "Theta3", 1);
        EXPECT_EQ(program->selections.SelIndex(1), 1);
    }

    void Transform(const std::vector<float>& samples) {
        tables.Theta(0, 1) = Poison;
        for (std::size_t i = 0; i < samples.size(); ++i)
            tables.Theta(static_cast<std::ptrdiff_t>(i) + 1, 1) = samples[i];
        FFT_Compute(*program, static_cast<std::int16_t>(samples.size()));
    }
    float Cell(int row, int column) const { return tables.FFTTable(row, column); }

    FourierState& fourier = program->fourier;
};

/// What a row without a part of its own may hold for signals of some 10,000: the constant of the full turn is
/// off by 1.3e-10, at harmonic 512 some 4e-7 of a signal, and each of up to 1024 cuts loses 1e-5.
constexpr double kRemainder = 0.03;

TEST_F(TransformTest, OfAConstantIsItsMeanAlone) {
    for (const int N : {1, 2, 4, 5, 36, 360, 1024}) {
        Transform(std::vector<float>(static_cast<std::size_t>(N), 25000));
        EXPECT_FLOAT_EQ(Cell(0, 0), 25000) << N;
        EXPECT_EQ(Cell(0, 1), 0) << N;
        EXPECT_FLOAT_EQ(Cell(0, 2), 25000) << N;
        EXPECT_EQ(Cell(0, 3), 0) << N;
        for (int row = 1; row < fourier.FFTHalf; ++row)
            for (int column = 0; column <= 2; ++column) EXPECT_NEAR(Cell(row, column), 0, kRemainder) << N;
    }
}

TEST_F(TransformTest, OfACosineIsItsAmplitudeAtItsCycles) {
    for (const int N : {36, 37, 360, 1024})
        for (const int cycles : {1, 2, 7}) {
            Transform(Cosine(N, cycles, 30000));
            for (int row = 0; row < fourier.FFTHalf; ++row) {
                EXPECT_NEAR(Cell(row, 2), row == cycles ? 30000 : 0, kRemainder) << N << ", " << row;
                EXPECT_NEAR(Cell(row, 0), row == cycles ? 30000 : 0, kRemainder) << N << ", " << row;
            }
        }
}

TEST_F(TransformTest, OfASineIsNegativeImaginary) {
    Transform(Cosine(36, 5, 2, -90));
    EXPECT_NEAR(Cell(5, 0), 0, 1e-4);
    EXPECT_NEAR(Cell(5, 1), -2, 1e-4);
    EXPECT_NEAR(Cell(5, 2), 2, 1e-4);
}

TEST_F(TransformTest, KeepsTheEnergyOfASignal) {
    // The mean of the squares is the squared mean and half the squared amplitudes; an odd number of samples
    // has no harmonic of its own in the middle.
    const std::vector<float> samples = Noise(361, 3, 10000);
    double energy = 0;
    for (const float x : samples) energy += double(x) * x / 361;
    Transform(samples);
    double of_spectrum = double(Cell(0, 2)) * Cell(0, 2);
    for (int row = 1; row < fourier.FFTHalf; ++row) of_spectrum += double(Cell(row, 2)) * Cell(row, 2) / 2;
    EXPECT_NEAR(of_spectrum, energy, 1e-6 * energy);
}

TEST_F(TransformTest, FillsHalfAsManyRowsAsThereAreSamplesRoundedUp) {
    const int cases[][2] = {{0, 0},   {1, 1},   {2, 1},      {4, 2},     {5, 3},
                            {36, 18}, {37, 19}, {1023, 512}, {1024, 512}};
    for (const auto& [N, half] : cases) {
        tables.FFTTable.Fill(Poison);
        Transform(Noise(N, 1));
        EXPECT_EQ(fourier.FFTHalf, half) << N;
        for (int row = std::max(half, 1); row <= MaxHarmonics; ++row)
            for (int column = 0; column <= 3; ++column)
                ASSERT_EQ(Cell(row, column), Poison) << N << ", " << row;
        EXPECT_NE(Cell(std::max(half, 1) - 1, 0), Poison) << N;
    }
}

TEST_F(TransformTest, OfNothingIsNothing) {
    Transform(Noise(36, 1));
    Transform({});
    EXPECT_EQ(fourier.FFTHalf, 0);
    for (int column = 0; column <= 3; ++column) EXPECT_EQ(Cell(0, column), 0);
}

TEST_F(TransformTest, OfOneSampleIsThatSample) {
    Transform({-4});
    EXPECT_EQ(Cell(0, 0), -4);
    EXPECT_EQ(Cell(0, 1), 0);
    EXPECT_EQ(Cell(0, 2), 4);
    EXPECT_EQ(Cell(0, 3), 0);
}

TEST_F(TransformTest, OfFourSamplesByHand) {
    // 1, 2, 3, 5: the mean 2.75, harmonic 1 of (1 - 3) / 4 and -(2 - 5) / 4, twice.
    Transform({1, 2, 3, 5});
    EXPECT_EQ(Cell(0, 0), 2.75F);
    EXPECT_NEAR(Cell(1, 0), -1, 1e-6);
    EXPECT_NEAR(Cell(1, 1), 1.5, 1e-6);
    EXPECT_NEAR(Cell(1, 2), std::sqrt(3.25), 1e-6);
    // atan(0.75 / -0.5) is -56.31 degrees, and is doubled too.
    EXPECT_NEAR(Cell(1, 3), 2 * std::atan(-1.5) * 57.29577950560105, 1e-4);
}

TEST_F(TransformTest, APhaseStaysWithinARightAngleBeforeItIsDoubled) {
    for (int degrees = -180; degrees <= 180; degrees += 15) {
        Transform(Cosine(36, 3, 2, degrees));
        EXPECT_LE(std::abs(Cell(3, 3)), 180.001) << degrees;
        if (degrees % 90 == 0) continue;  // one of the two sums is a remainder there
        EXPECT_NEAR(Cell(3, 3),
                    2 * std::atan(std::tan(degrees * 0.017453292519943295)) / 0.017453292519943295, 1e-3)
            << degrees;
    }
}

TEST_F(TransformTest, APhaseOfAnImaginaryNumberIsARightAngleOfEitherSign) {
    // Samples whose real sum is cut: harmonic 1 of (0, 1, 0, -1) and of its opposite is imaginary alone.
    for (const float sign : {1.0F, -1.0F}) {
        Transform({0, sign, 0, -sign});
        EXPECT_EQ(Cell(1, 0), 0);
        EXPECT_NEAR(Cell(1, 1), -sign, 1e-6);
        EXPECT_FLOAT_EQ(Cell(1, 3), 180) << "twice 1.570796327 by 57.29577950560105";
    }
}

TEST_F(TransformTest, LeavesTheFirstStepOut) {
    Transform({7, 7, 7, 7});
    EXPECT_FLOAT_EQ(Cell(0, 0), 7);
}

TEST_F(TransformTest, IsTheLiteralLoopBitByBitForTheFunctionsOfTheExamples) {
    int entries = 0, differences = 0;
    for (const Signal& signal : Example_Signals()) {
        Transform(signal.samples);
        const int differing = Differences(Stored_Spectrum(*program), Literal_Transform(signal.samples));
        EXPECT_EQ(differing, 0) << signal.name;
        entries += 4 * fourier.FFTHalf;
        differences += differing;
    }
    EXPECT_GT(entries, 4 * 18 * 65 * 4);
    std::cout << differences << " of " << entries << " entries differ from the literal loop\n";
}

TEST_F(TransformTest, IsTheLiteralLoopBitByBitForCosinesAndNoiseOfEverySize) {
    int entries = 0, differences = 0;
    for (const int N : {2, 3, 4, 5, 7, 36, 72, 100, 180, 359, 360, 512, 720, 1023, 1024}) {
        std::vector<Signal> signals = {{"cosine", Cosine(N, 1, 1)},
                                       {"turned cosine", Cosine(N, 2, 1000, 33)},
                                       {"constant", std::vector<float>(static_cast<std::size_t>(N), 0.1F)}};
        for (const double size : {0.01, 1.0, 1e6}) signals.push_back({"noise", Noise(N, 11, size)});
        for (const Signal& signal : signals) {
            Transform(signal.samples);
            const int differing = Differences(Stored_Spectrum(*program), Literal_Transform(signal.samples));
            EXPECT_EQ(differing, 0) << signal.name << " of " << N;
            entries += 4 * fourier.FFTHalf;
            differences += differing;
        }
    }
    std::cout << differences << " of " << entries << " entries differ from the literal loop\n";
}

TEST_F(TransformTest, KeepsTheSumsBeforeTheyAreDoubled) {
    Transform({1, 2, 3, 5});
    EXPECT_EQ(fourier.FFTTiny, 1e-5F);
    for (int column = 0; column <= 3; ++column) {
        EXPECT_EQ(float(fourier.FFTWork(1, column)), Cell(0, column));
        EXPECT_EQ(float(2 * fourier.FFTWork(2, column)), Cell(1, column));
    }
}

TEST_F(TransformTest, OfMoreSamplesThanStepsIsAFault) {
    tables.FFTTable.Fill(Poison);
    FFT_Compute(*program, 1025);
    Expect_Fault(9, "FFT_Compute");
    EXPECT_EQ(Cell(0, 0), Poison);
}

TEST_F(TransformTest, OfALocalFramesVectorFaultsUnderItsOwnName) {
    program->selections.SelCurrent = 7;
    Transform({1, 2});
    Expect_Fault(9, "FFT_Compute");
}

TEST_F(TransformTest, ClearsRowsUpToTheLast) {
    tables.FFTTable.Fill(Poison);
    FFT_Clear_Table(*program, 36);
    for (int column = 0; column <= 3; ++column) {
        EXPECT_EQ(Cell(0, column), 0);
        EXPECT_EQ(Cell(36, column), 0);
        EXPECT_EQ(Cell(37, column), Poison);
    }
    fourier.FFTWork.Fill(1);
    FFT_Clear_Work(*program, 36);
    EXPECT_EQ(fourier.FFTWork(36, 3), 0);
    EXPECT_EQ(fourier.FFTWork(37, 0), 1);
}

TEST_F(TransformTest, ClearsTheWholeTableForASweepLongerThanIt) {
    tables.FFTTable.Fill(Poison);
    FFT_Clear_Table(*program, 1024);
    for (int row = 0; row <= 512; ++row) EXPECT_EQ(Cell(row, 3), 0);
}

TEST_F(TransformTest, OfAFunctionByNameTakesItsUnitAndComponent) {
    model.NumSteps = 4;
    model.GroundAngleDeg = 0;
    const float x[] = {9, 1, 2, 3, 5};
    for (int step = 0; step <= 4; ++step) {
        tables.ForceTable(step, 0, 0) = -1;
        tables.ForceTable(step, 0, 1) = x[step];
    }
    Transform_Function(*program, "Force 32", "Y");
    EXPECT_TRUE(fourier.FFTReady);
    EXPECT_EQ(fourier.FFTUnit, model.UnitText(10));
    EXPECT_EQ(Cell(0, 0), 2.75F);
    Transform_Function(*program, "Force 32", "X");
    EXPECT_EQ(Cell(0, 0), -1);
    // A text that is no name leaves the function, and takes the component.
    Transform_Function(*program, "", "Y");
    EXPECT_EQ(Cell(0, 0), 2.75F);
    EXPECT_FALSE(program->selections.SelVector);
}

}  // namespace
}  // namespace kervol
