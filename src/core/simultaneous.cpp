// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/simultaneous.h"

#include <cmath>
#include <string>
#include <utility>

#include "core/arithmetic.h"
#include "core/port.h"

namespace kervol {
namespace {

/// Row of the largest absolute value in column k from row k down, the first of equal ones; 0 if all are
/// exactly 0.
int Pivot_Row(const SystemMatrix& A, int k, int N) {
    int best = 0;
    double largest = 0.0;
    for (int i = k; i <= N; ++i) {
        if (std::abs(A(i, k)) > largest) {
            largest = std::abs(A(i, k));
            best = i;
        }
    }
    return best;
}

void Exchange_Rows(SystemMatrix& A, SystemVector& B, int k, int pivot, int N) {
    if (pivot == k) return;
    for (int j = k; j <= N; ++j) std::swap(A(k, j), A(pivot, j));
    std::swap(B(k), B(pivot));
}

/// The reduced row is the negative of the usual one, and the product comes before the quotient. A zero
/// multiplier makes the quotient a zero, of which the pivot only decides the sign, so that row does without
/// the divisions.
void Reduce_Row(SystemMatrix& A, SystemVector& B, int i, int k, int N) {
    auto& row = A(i);
    const auto& pivot = A(k);
    const double multiplier = row(k);
    if (Is_Zero(multiplier)) {
        const double zero = pivot(k) < 0 ? -multiplier : multiplier;
        for (int j = k + 1; j <= N; ++j) row(j) = zero * pivot(j) - row(j);
        B(i) = zero * B(k) - B(i);
        return;
    }
    for (int j = k + 1; j <= N; ++j) row(j) = multiplier * pivot(j) / pivot(k) - row(j);
    B(i) = B(k) * multiplier / pivot(k) - B(i);
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
        for (int k = 1; k < N; ++k) {
            const int pivot = Pivot_Row(A, k, N);
            if (pivot == 0) {
                port.Show_Message({"There is a zero value on diagonal in column " + std::to_string(k)});
                Ierror = static_cast<std::int16_t>(k);
                return;
            }
            Exchange_Rows(A, B, k, pivot, N);
            for (int i = k + 1; i <= N; ++i) Reduce_Row(A, B, i, k, N);
        }
        Substitute_Back(A, B, N);
        Ierror = 0;
    });
}

}  // namespace kervol
