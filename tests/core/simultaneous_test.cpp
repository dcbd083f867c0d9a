// SPDX-License-Identifier: GPL-3.0-or-later
// The elimination against one written out literally here, bit for bit, and its ends: singular columns, the
// last pivot, sizes outside.
#include "core/simultaneous.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "core/thrown_fault.h"
#include "support/program_test.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

using Random = std::mt19937_64;

struct System {
    int N = 0;
    SystemMatrix A;
    SystemVector B;
};

bool Same_Bits(double left, double right) {
    return std::bit_cast<std::uint64_t>(left) == std::bit_cast<std::uint64_t>(right);
}

bool Same_Bits(const System& left, const System& right) {
    for (int i = 0; i <= 15; ++i) {
        if (!Same_Bits(left.B(i), right.B(i))) return false;
        for (int j = 0; j <= 15; ++j)
            if (!Same_Bits(left.A(i, j), right.A(i, j))) return false;
    }
    return true;
}

/// Step by step in the stated order of evaluation, without a short cut. The result is Ierror.
int Eliminate_Literally(System& system) {
    auto& [N, A, B] = system;
    for (int k = 1; k <= N - 1; ++k) {
        double largest = 0.0;
        int pivot = 0;
        for (int i = k; i <= N; ++i) {
            if (std::fabs(A(i, k)) > largest) {
                largest = std::fabs(A(i, k));
                pivot = i;
            }
        }
        if (pivot == 0) return k;
        for (int j = k; j <= N; ++j) std::swap(A(k, j), A(pivot, j));
        std::swap(B(k), B(pivot));
        for (int i = k + 1; i <= N; ++i) {
            for (int j = k + 1; j <= N; ++j) {
                const double product = A(i, k) * A(k, j);
                const double quotient = product / A(k, k);
                A(i, j) = quotient - A(i, j);
            }
            const double product = B(k) * A(i, k);
            const double quotient = product / A(k, k);
            B(i) = quotient - B(i);
        }
    }
    if (std::fpclassify(A(N, N)) != FP_ZERO) B(N) = B(N) / A(N, N);
    for (int L = 2; L <= N; ++L) {
        const int i = N + 1 - L;
        double sum = B(i);
        for (int j = i + 1; j <= N; ++j) sum = sum - A(i, j) * B(j);
        B(i) = sum / A(i, i);
    }
    return 0;
}

System Drawn(int N, const std::function<double()>& draw) {
    System system{.N = N, .A = {}, .B = {}};
    for (int i = 1; i <= N; ++i) {
        for (int j = 1; j <= N; ++j) system.A(i, j) = draw();
        system.B(i) = draw();
    }
    return system;
}

System Given(const std::vector<std::vector<double>>& rows) {
    System system{.N = static_cast<int>(rows.size()), .A = {}, .B = {}};
    for (int i = 1; i <= system.N; ++i) {
        const std::vector<double>& row = rows[static_cast<std::size_t>(i) - 1];
        for (int j = 1; j <= system.N; ++j) system.A(i, j) = row[static_cast<std::size_t>(j) - 1];
        system.B(i) = row.back();
    }
    return system;
}

class Simultaneous : public ProgramTest {
  protected:
    int Solve(System& system) {
        std::int16_t Ierror = -77;
        SimQ(port, static_cast<std::int16_t>(system.N), system.A, system.B, Ierror);
        return Ierror;
    }

    void Expect_Singular_Box(int column) {
        Expect_Box("There is a zero value on diagonal in column " + std::to_string(column));
    }

    /// Solves the system both ways and compares all that is left behind. The result is Ierror.
    int Compare_With_Literal(System system, const std::string& what) {
        System literal = system;
        const int expected = Eliminate_Literally(literal);
        const int Ierror = Solve(system);
        EXPECT_EQ(Ierror, expected) << what;
        EXPECT_TRUE(Same_Bits(system, literal)) << what << ", N = " << system.N;
        if (expected != 0) Expect_Singular_Box(expected);
        return Ierror;
    }

    void Compare_Many(unsigned seed, const std::function<double(Random&)>& draw, const std::string& what) {
        Random random(seed);
        for (int N = 1; N <= 15; ++N) {
            for (int i = 0; i < 60 && !HasFailure(); ++i)
                Compare_With_Literal(Drawn(N, [&] { return draw(random); }), what);
        }
    }
};

TEST_F(Simultaneous, DenseSystemsEqualTheLiteralEliminationBitForBit) {
    Compare_Many(
        1, [](Random& random) { return std::uniform_real_distribution<>(-10.0, 10.0)(random); }, "dense");
}

TEST_F(Simultaneous, SystemsOfManyMagnitudesEqualTheLiteralEliminationBitForBit) {
    const auto draw = [](Random& random) {
        const double mantissa = std::uniform_real_distribution<>(-1.0, 1.0)(random);
        return std::ldexp(mantissa, std::uniform_int_distribution<>(-40, 40)(random));
    };
    Compare_Many(2, draw, "many magnitudes");
}

// Small integers give equal pivots, zero multipliers of both signs and singular columns.
TEST_F(Simultaneous, SmallIntegerSystemsEqualTheLiteralEliminationBitForBit) {
    const auto draw = [](Random& random) { return double(std::uniform_int_distribution<>(-2, 2)(random)); };
    Compare_Many(3, draw, "small integers");
}

TEST_F(Simultaneous, SparseSystemsEqualTheLiteralEliminationBitForBit) {
    const auto draw = [](Random& random) {
        if (std::uniform_int_distribution<>(0, 3)(random) != 0) return 0.0;
        return std::uniform_real_distribution<>(-10.0, 10.0)(random);
    };
    Compare_Many(4, draw, "sparse");
}

TEST_F(Simultaneous, SparseRegularSystemsEqualTheLiteralEliminationBitForBit) {
    Random random(5);
    int solved = 0;
    for (int i = 0; i < 600 && !HasFailure(); ++i) {
        System system = Drawn(1 + i % 15, [&] {
            const int value = std::uniform_int_distribution<>(-9, 3)(random);
            return value <= 0 ? 0.0 : double(value);
        });
        for (int k = 1; k <= system.N; ++k) system.A(k, system.N + 1 - k) = k % 2 == 0 ? 20.0 : -20.0;
        if (Compare_With_Literal(system, "sparse and regular") == 0) ++solved;
    }
    EXPECT_EQ(solved, 600);
}

TEST_F(Simultaneous, SolutionsSatisfyTheEquations) {
    Random random(6);
    for (int i = 0; i < 300; ++i) {
        System system =
            Drawn(1 + i % 15, [&] { return std::uniform_real_distribution<>(-1.0, 1.0)(random); });
        // Dominant entries keep the systems far from singular, so that rounding stays far below 1e-12.
        for (int k = 1; k <= system.N; ++k) system.A(k, 1 + (k + i) % system.N) += 20.0;
        const System given = system;
        EXPECT_EQ(Solve(system), 0);
        for (int row = 1; row <= system.N; ++row) {
            double left = 0.0;
            for (int j = 1; j <= system.N; ++j) left += given.A(row, j) * system.B(j);
            EXPECT_NEAR(left, given.B(row), 1e-12);
        }
    }
}

TEST_F(Simultaneous, SystemThatNeedsAnExchangeIsSolved) {
    System system = Given({{0, 2, 6}, {4, 1, 9}});
    EXPECT_EQ(Solve(system), 0);
    EXPECT_EQ(system.B(1), 1.5);
    EXPECT_EQ(system.B(2), 3.0);
}

TEST_F(Simultaneous, FirstOfEqualPivotsWins) {
    System system = Given({{-2, 1, 1}, {2, 3, 7}});
    EXPECT_EQ(Solve(system), 0);
    EXPECT_EQ(system.A(1, 1), -2.0);
    EXPECT_EQ(system.A(1, 2), 1.0);
    EXPECT_EQ(system.B(1), 0.5);
    EXPECT_EQ(system.B(2), 2.0);
}

TEST_F(Simultaneous, EliminatedColumnsAreNotExchanged) {
    System system = Given({{4, 0, 0, 4}, {1, 1, 0, 2}, {2, 8, 1, 11}});
    EXPECT_EQ(Solve(system), 0);
    EXPECT_EQ(system.A(2, 2), -8.0);  // row 3 went up, negated
    EXPECT_EQ(system.A(2, 1), 1.0);
    EXPECT_EQ(system.A(3, 1), 2.0);
    for (int i = 1; i <= 3; ++i) EXPECT_EQ(system.B(i), 1.0);
}

TEST_F(Simultaneous, RowAndColumnZeroStayAsTheyWere) {
    System system = Given({{2, 1, 5}, {1, 3, 10}});
    for (int i = 0; i <= 15; ++i) system.A(0, i) = system.A(i, 0) = 5.5;
    system.B(0) = 5.5;
    EXPECT_EQ(Solve(system), 0);
    for (int i = 0; i <= 15; ++i) {
        EXPECT_EQ(system.A(0, i), 5.5);
        EXPECT_EQ(system.A(i, 0), 5.5);
    }
    EXPECT_EQ(system.B(0), 5.5);
}

// The quotient is minus zero here, and minus zero less zero is minus zero: the solution is plus zero.
TEST_F(Simultaneous, SignsOfZerosAreThoseOfTheFullExpression) {
    System negative_pivot = Given({{-1, 1, 3}, {0, 1, 0}});
    EXPECT_EQ(Solve(negative_pivot), 0);
    EXPECT_TRUE(Same_Bits(negative_pivot.B(2), 0.0)) << "negative pivot";
    System negative_multiplier = Given({{1, 1, 3}, {-0.0, 1, 0}});
    EXPECT_EQ(Solve(negative_multiplier), 0);
    EXPECT_TRUE(Same_Bits(negative_multiplier.B(2), 0.0)) << "negative multiplier";
    System positive = Given({{1, 1, 3}, {0, 1, 0}});
    EXPECT_EQ(Solve(positive), 0);
    EXPECT_TRUE(Same_Bits(positive.B(2), -0.0)) << "all positive";
}

TEST_F(Simultaneous, OneUnknownIsDivided) {
    System system = Given({{4, 10}});
    EXPECT_EQ(Solve(system), 0);
    EXPECT_EQ(system.B(1), 2.5);
}

TEST_F(Simultaneous, OneUnknownWithAZeroCoefficientStaysAsItWas) {
    System system = Given({{0, 10}});
    EXPECT_EQ(Solve(system), 0);
    EXPECT_EQ(system.B(1), 10.0);
}

TEST_F(Simultaneous, ZeroLastPivotLeavesItsUnknownAndIsNoError) {
    System system = Given({{1, 1, 3}, {1, 1, 5}});
    EXPECT_EQ(Solve(system), 0);
    EXPECT_EQ(system.B(2), -2.0);
    EXPECT_EQ(system.B(1), 5.0);
}

TEST_F(Simultaneous, ZeroFirstColumnShowsItsNumber) {
    System system = Given({{0, 1, 3}, {0, 1, 5}});
    EXPECT_EQ(Solve(system), 1);
    Expect_Singular_Box(1);
    EXPECT_EQ(system.B(1), 3.0);
    EXPECT_EQ(system.B(2), 5.0);
}

TEST_F(Simultaneous, ZeroThirdColumnShowsThreeAndLeavesTheArraysHalfEliminated) {
    System system = Given({{1, 2, 0, 3, 1}, {2, 1, 0, 1, 2}, {1, 1, 0, 4, 3}, {3, 1, 0, 1, 4}});
    System literal = system;
    EXPECT_EQ(Eliminate_Literally(literal), 3);
    EXPECT_EQ(Solve(system), 3);
    Expect_Singular_Box(3);
    EXPECT_TRUE(Same_Bits(system, literal));
}

TEST_F(Simultaneous, LastColumnButOneIsTheLastThatIsTested) {
    Compare_With_Literal(Given({{1, 1, 0, 1}, {1, 1, 0, 2}, {1, 1, 5, 3}}), "equal columns");
    System system = Given({{1, 1, 0, 1}, {1, 1, 0, 2}, {1, 1, 5, 3}});
    EXPECT_EQ(Solve(system), 2);
    Expect_Singular_Box(2);
}

TEST_F(Simultaneous, SizesOutsideAreFaultsUnderItsOwnName) {
    for (const int N : {16, 0, -1, 32767}) {
        System system;
        system.A.Fill(1.0);
        std::int16_t Ierror = -77;
        Expect_Thrown(9, "SimQ",
                      [&] { SimQ(port, static_cast<std::int16_t>(N), system.A, system.B, Ierror); });
        EXPECT_EQ(Ierror, 1) << N;
    }
}

TEST_F(Simultaneous, SolutionBeyondTheRangeIsAFault) {
    System system = Given({{1e-300, 1e300}});
    Expect_Thrown(6, "SimQ", [&] { Solve(system); });
    System both = Given({{1e-300, 0, 1e300}, {0, 1, 1}});
    Expect_Thrown(6, "SimQ", [&] { Solve(both); });
}

// The product of multiplier and pivot row overflows. Divided by that infinity the second unknown would come
// out as 0 instead of 1e-200.
TEST_F(Simultaneous, OverflowWithinTheEliminationIsAFaultToo) {
    System system = Given({{1e200, 1e200, 2.0}, {1e200, 0, 1.0}});
    Expect_Thrown(6, "SimQ", [&] { Solve(system); });
}

}  // namespace
}  // namespace kervol
