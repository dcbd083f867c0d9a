// SPDX-License-Identifier: GPL-3.0-or-later
// Extremes and means of stretches of single-precision tables. Indices are inclusive and checked.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/arithmetic.h"
#include "core/table.h"

namespace kervol {

/// Extremes of value(First) to value(Last). `IMax` and `IMin` keep what they held where the element at First
/// is the extreme of its kind.
template <class Value>
void Find_Extremes(Value&& value, std::int16_t First, std::int16_t Last, float& Max, float& Min,
                   std::int16_t& IMax, std::int16_t& IMin) {
    Max = value(First);
    Min = Max;
    for (int i = First; i <= Last; ++i) {
        const float element = value(i);
        if (element > Max) {
            Max = element;
            IMax = static_cast<std::int16_t>(i);
        }
        if (element < Min) {
            Min = element;
            IMin = static_cast<std::int16_t>(i);
        }
    }
}

/// Extremes of A(First) to A(Last).
template <std::size_t N>
void MaxMin1(const Table<float, N>& A, std::int16_t First, std::int16_t Last, float& Max, float& Min) {
    Routine("MaxMin1", [&] {
        std::int16_t unused = 0;
        Find_Extremes([&](int i) { return A(i); }, First, Last, Max, Min, unused, unused);
    });
}

/// Extremes of A(K, First) to A(K, Last) and where they stand.
template <std::size_t Rows, std::size_t Columns>
void MaxMin2(const Table<float, Rows, Columns>& A, std::int16_t K, std::int16_t First, std::int16_t Last,
             float& Max, float& Min, std::int16_t& IMax, std::int16_t& IMin) {
    Routine("MaxMin2",
            [&] { Find_Extremes([&](int i) { return A(K, i); }, First, Last, Max, Min, IMax, IMin); });
}

/// Extremes of A(First, K) to A(Last, K) and where they stand.
template <std::size_t Rows, std::size_t Columns>
void MaxMin2A(const Table<float, Rows, Columns>& A, std::int16_t K, std::int16_t First, std::int16_t Last,
              float& Max, float& Min, std::int16_t& IMax, std::int16_t& IMin) {
    Routine("MaxMin2A",
            [&] { Find_Extremes([&](int i) { return A(i, K); }, First, Last, Max, Min, IMax, IMin); });
}

/// Mean of value(First) to value(Last), summed in single precision; no elements leave the sum.
template <class Value>
float Find_Mean(Value&& value, int First, int Last) {
    float sum = 0.0F;
    for (int i = First; i <= Last; ++i) sum = Single(double(sum) + value(i));
    const int n = Last - First + 1;
    return n == 0 ? sum : Single(double(sum) / n);
}

/// Mean over First to Last, summed in single precision: of column K for the mode "I_Pointer", of row K for
/// "Pointer_I". Any other mode sums nothing; no elements leave the sum.
template <std::size_t Rows, std::size_t Columns>
void Average2(std::int16_t First, std::int16_t Last, const Table<float, Rows, Columns>& A,
              std::string_view Mode, std::int16_t K, float& Avg) {
    Routine("Average2", [&] {
        Avg = Find_Mean(
            [&](int i) {
                if (Mode == "I_Pointer") return A(i, K);
                return Mode == "Pointer_I" ? A(K, i) : 0.0F;
            },
            First, Last);
    });
}

/// Largest absolute extreme of two arrays over First to Last.
template <std::size_t NA, std::size_t NB>
void GlobalMax(const Table<float, NA>& A, const Table<float, NB>& B, std::int16_t First, std::int16_t Last,
               float& Max) {
    Routine("GlobalMax", [&] {
        float max_a, min_a, max_b, min_b;
        MaxMin1(A, First, Last, max_a, min_a);
        MaxMin1(B, First, Last, max_b, min_b);
        Max = std::abs(max_a);
        for (const float extreme : {min_a, max_b, min_b})
            if (std::abs(extreme) > Max) Max = std::abs(extreme);
    });
}

}  // namespace kervol
