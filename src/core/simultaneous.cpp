// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/simultaneous.h"

#include <cmath>
#include <string>
#include <type_traits>
#include <utility>

#include "core/arithmetic.h"
#include "core/port.h"

namespace kervol {
namespace {

// Columns and sizes below are plain integers or, for the full size, constants known to the compiler, which
// then lays each column out without loops.
constexpr int kFullSize = 15;
template <int value>
using Constant = std::integral_constant<int, value>;

/// Row of the largest absolute value in column k from row k down, the first of equal ones; 0 if all are
/// exactly 0.
template <class Column, class Size>
int Pivot_Row(const SystemMatrix& A, Column k, Size N) {
    int best = 0;
    double largest = 0.0;
    for (int i = k; i <= N; ++i) {
        const double size = std::abs(A(i, k));
        const bool larger = size > largest;
        largest = larger ? size : largest;
        best = larger ? i : best;
    }
    return best;
}

template <class Column, class Size>
void Exchange_Rows(SystemMatrix& A, SystemVector& B, Column k, int pivot, Size N) {
    if (pivot == k) return;
    auto& row = A(k);
    auto& other = A(pivot);
    for (int j = k; j <= N; ++j) std::swap(row(j), other(j));
    std::swap(B(k), B(pivot));
}

/// Sets each a[j] behind column k to f(p[j]) - a[j], for two different rows from their column 0. The loop
/// starts at an even column always: the machine works on pairs, and a pair that straddles two earlier ones
/// would have to wait for both to reach memory.
template <class Column, class Size, class Multiple>
void Subtract_From(double* __restrict a, const double* __restrict p, Column k, Size N, Multiple&& f) {
    const int even = (k + 2) / 2 * 2;
    if (even > k + 1) a[k + 1] = f(p[k + 1]) - a[k + 1];
    for (int j = even; j <= N; ++j) a[j] = f(p[j]) - a[j];
}

/// Reduces the rows below k with row k. The reduced row is the negative of the usual one, and the product
/// comes before the quotient. A zero multiplier makes the quotient a zero, of which the pivot only decides
/// the sign, so that row does without the divisions.
template <class Column, class Size>
void Reduce_Rows(SystemMatrix& A, SystemVector& B, Column k, Size N) {
    const auto& pivot_row = A(k);
    const double pivot = pivot_row(k);
    for (int i = k + 1; i <= N; ++i) {
        auto& row = A(i);
        const double multiplier = row(k);
        if (Is_Zero(multiplier)) {
            const double zero = pivot < 0 ? -multiplier : multiplier;
            Subtract_From(&row(0), &pivot_row(0), k, N, [=](double p) { return zero * p; });
            B(i) = zero * B(k) - B(i);
        } else {
            Subtract_From(&row(0), &pivot_row(0), k, N, [=](double p) { return multiplier * p / pivot; });
            B(i) = B(k) * multiplier / pivot - B(i);
        }
    }
}

/// False where all pivots are exactly 0.
template <class Column, class Size>
bool Eliminate_Column(SystemMatrix& A, SystemVector& B, Column k, Size N) {
    const int pivot = Pivot_Row(A, k, N);
    if (pivot == 0) return false;
    Exchange_Rows(A, B, k, pivot, N);
    Reduce_Rows(A, B, k, N);
    return true;
}

template <int... Before>
int Eliminate_Full_Size(SystemMatrix& A, SystemVector& B, std::integer_sequence<int, Before...>) {
    int column = 0;
    const bool done =
        ((column = Before + 1, Eliminate_Column(A, B, Constant<Before + 1>(), Constant<kFullSize>())) && ...);
    return done ? 0 : column;
}

/// The column without a pivot, or 0.
int Eliminate(SystemMatrix& A, SystemVector& B, int N) {
    if (N == kFullSize) return Eliminate_Full_Size(A, B, std::make_integer_sequence<int, kFullSize - 1>());
    for (int k = 1; k < N; ++k)
        if (!Eliminate_Column(A, B, k, N)) return k;
    return 0;
}

void Substitute_Back(const SystemMatrix& A, SystemVector& B, int N) {
    // An overflow of the elimination shows in a pivot, or else in the solution.
    for (int i = 1; i <= N; ++i) Finite(A(i, i));
    if (!Is_Zero(A(N, N))) B(N) = B(N) / A(N, N);
    for (int i = N - 1; i >= 1; --i) {
        double sum = B(i);
        for (int j = i + 1; j <= N; ++j) sum -= A(i, j) * B(j);
        B(i) = sum / A(i, i);
    }
    for (int i = 1; i <= N; ++i) Finite(B(i));
}

}  // namespace

void SimQ(Port& port, std::int16_t N, SystemMatrix& A, SystemVector& B, std::int16_t& Ierror) {
    Routine("SimQ", [&] {
        Ierror = 1;
        if (N < 1) Raise(fault::Subscript);
        const int column = Eliminate(A, B, N);
        if (column > 0) {
            port.Show_Message({"There is a zero value on diagonal in column " + std::to_string(column)});
            Ierror = static_cast<std::int16_t>(column);
            return;
        }
        Substitute_Back(A, B, N);
        Ierror = 0;
    });
}

}  // namespace kervol
