// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/series.h"

#include <algorithm>
#include <cmath>
#include <deque>

#include "core/arithmetic.h"
#include "core/extremes.h"

namespace kervol {
namespace {

constexpr double kTurn = 360;
/// Within this a sweep ends where it began, in degrees.
constexpr double kClosed = 0.01;

/// Values in a window that slides along, of which the extremes are known.
class Window {
  public:
    explicit Window(const std::vector<double>& values) : values_(values) {}

    void Take(std::size_t i) {
        while (!high_.empty() && values_[high_.back()] <= values_[i]) high_.pop_back();
        while (!low_.empty() && values_[low_.back()] >= values_[i]) low_.pop_back();
        high_.push_back(i);
        low_.push_back(i);
    }
    void Leave(std::size_t i) {
        if (high_.front() == i) high_.pop_front();
        if (low_.front() == i) low_.pop_front();
    }
    double Spread() const { return values_[high_.front()] - values_[low_.front()]; }

  private:
    const std::vector<double>& values_;
    std::deque<std::size_t> high_, low_;
};

}  // namespace

float Greatest(std::span<const float> values) {
    return *std::max_element(values.begin(), values.end());
}

float Least(std::span<const float> values) {
    return *std::min_element(values.begin(), values.end());
}

float Range_Of(std::span<const float> values) {
    return Single(double(Greatest(values)) - Least(values));
}

float Mean_Of(std::span<const float> values) {
    return Find_Mean([&](int i) { return values[static_cast<std::size_t>(i)]; }, 0,
                     static_cast<int>(values.size()) - 1);
}

float Root_Mean_Square(std::span<const float> values) {
    double sum = 0;
    for (const float value : values) sum += double(value) * value;
    return Single(std::sqrt(sum / static_cast<double>(values.size())));
}

float Peak_Of(std::span<const float> values) {
    return std::max(std::abs(Greatest(values)), std::abs(Least(values)));
}

void Follow_Over_Turns(std::vector<float>& degrees) {
    double turns = 0;
    for (std::size_t i = 1; i < degrees.size(); ++i) {
        const double jump = degrees[i] + turns - degrees[i - 1];
        if (std::abs(jump) >= kTurn / 2) turns -= kTurn * std::round(jump / kTurn);
        degrees[i] = Single(degrees[i] + turns);
    }
}

float Longest_Dwell(std::span<const float> values, std::span<const float> crank, double tolerance) {
    std::vector<double> value(values.begin(), values.end()), angle(crank.begin(), crank.end());
    const std::size_t steps = value.size();
    const double turn = angle.back() - angle.front();
    const bool closed = std::abs(std::abs(turn) - kTurn) < kClosed;
    if (closed) {
        // Once more round, from the end that is the beginning.
        const double rise = value.back() - value.front();
        for (std::size_t i = 1; i < steps; ++i) {
            value.push_back(value[i] + rise);
            angle.push_back(angle[i] + turn);
        }
    }
    Window window(value);
    double longest = 0;
    std::size_t first = 0;
    for (std::size_t i = 0; i < value.size(); ++i) {
        window.Take(i);
        while (window.Spread() > tolerance) window.Leave(first++);
        longest = std::max(longest, std::abs(angle[i] - angle[first]));
    }
    return Single(closed ? std::min(longest, std::abs(turn)) : longest);
}

}  // namespace kervol
