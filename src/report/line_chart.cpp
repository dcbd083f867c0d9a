// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/line_chart.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

#include "core/markup_text.h"
#include "core/number_text.h"

namespace kervol {
namespace {

constexpr double kWidth = 480, kHeight = 270;
constexpr double kLeft = 62, kRight = 14, kTop = 58, kBottom = 44;
constexpr double kTitleBase = 18, kLegendBase = 40;
constexpr double kLegendLine = 24, kLetter = 7.2;
constexpr int kTicksX = 10, kTicksY = 6;
constexpr double kHalfTurn = 180;
/// A curve that varies by less than this part of its size is flat: what is left is rounding.
constexpr double kFlat = 1e-5;
/// A tick so near to the end of a range, as a part of the step, stands at the end: a sweep to 360 degrees may
/// end at 359.9999.
constexpr double kSameTick = 1e-4;

struct Range {
    double low, high;
};

/// A flat range is widened, so that its curve runs in the middle.
Range Widened(Range range) {
    const double size = std::max(std::abs(range.low), std::abs(range.high));
    if (range.high - range.low > kFlat * size) return range;
    const double room = size > 0 ? 0.1 * size : 1;
    return {range.low - room, range.high + room};
}

Range Range_Of_Values(const LineChart& chart) {
    Range range = {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity()};
    for (const Curve& curve : chart.curves)
        for (const auto& value : curve.values)
            if (value) range = {std::min(range.low, *value), std::max(range.high, *value)};
    if (range.low > range.high) range = {0, 1};
    if (chart.kind == ChartKind::Bars) range = {std::min(range.low, 0.0), std::max(range.high, 0.0)};
    return Widened(range);
}

Range Range_Of_Abscissae(const LineChart& chart) {
    if (chart.abscissae.empty()) return {0, 1};
    const auto [low, high] = std::minmax_element(chart.abscissae.begin(), chart.abscissae.end());
    if (chart.kind == ChartKind::Bars) return {*low - 0.6, *high + 0.6};
    return Widened({*low, *high});
}

/// As many digits as neighbouring ticks need to differ.
std::string Tick_Text(double value, const Ticks& ticks) {
    const double largest = std::max(std::abs(ticks.Value(0)), std::abs(ticks.Value(ticks.count - 1)));
    if (std::abs(value) < ticks.step * 1e-6) return "0";
    if (largest >= 1e6 || ticks.step < 1e-4) return Short_Number(value, 4);
    return Fixed_Number(value, std::max(0, static_cast<int>(std::ceil(-std::log10(ticks.step) - 1e-9)) + 1));
}

std::string Number(double value) {
    return Fixed_Number(value, 1);
}

class ChartDrawing {
  public:
    explicit ChartDrawing(const LineChart& chart)
        : chart_(chart),
          x_(Range_Of_Abscissae(chart)),
          x_ticks_(Round_Ticks(x_.low, x_.high, kTicksX, chart.turns_x)) {
        const Range values = Range_Of_Values(chart);
        y_ticks_ = Round_Ticks(values.low, values.high, kTicksY, chart.turns_y);
        // Whole ticks below and above, so that no curve leaves the grid.
        y_ = {y_ticks_.first, y_ticks_.Value(y_ticks_.count - 1)};
        if (values.low < y_.low - 1e-9 * y_ticks_.step) Lower();
        if (values.high > y_.high + 1e-9 * y_ticks_.step) Raise_Top();
    }

    std::string Text() const {
        std::string text = "<svg class=\"chart\" xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " +
                           Number(kWidth) + " " + Number(kHeight) + "\" role=\"img\">\n<title>" +
                           Markup_Text(chart_.title) + "</title>\n";
        text += "<text class=\"title\" x=\"" + Number(kLeft) + "\" y=\"" + Number(kTitleBase) + "\">" +
                Markup_Text(chart_.title) + "</text>\n";
        if (chart_.kind == ChartKind::Lines) text += Legend();
        text += Grid();
        for (std::size_t i = 0; i < chart_.curves.size(); ++i)
            text += chart_.kind == ChartKind::Lines ? Line(i) : Bars(i);
        return text + "</svg>\n";
    }

  private:
    void Lower() {
        y_ticks_.first -= y_ticks_.step;
        ++y_ticks_.count;
        y_.low = y_ticks_.first;
    }
    void Raise_Top() {
        ++y_ticks_.count;
        y_.high = y_ticks_.Value(y_ticks_.count - 1);
    }

    double X(double x) const { return kLeft + (x - x_.low) / (x_.high - x_.low) * (kWidth - kLeft - kRight); }
    double Y(double y) const {
        return kTop + (y_.high - y) / (y_.high - y_.low) * (kHeight - kTop - kBottom);
    }

    static std::string Colour_Class(std::size_t curve) { return "c" + std::to_string(curve % 6 + 1); }

    std::string Legend() const {
        std::string text;
        double x = kLeft;
        for (std::size_t i = 0; i < chart_.curves.size(); ++i) {
            const std::string& name = chart_.curves[i].name;
            text += "<path class=\"curve " + Colour_Class(i) + "\" d=\"M" + Number(x) + " " +
                    Number(kLegendBase - 4) + "h" + Number(kLegendLine) + "\"/><text x=\"" +
                    Number(x + kLegendLine + 5) + "\" y=\"" + Number(kLegendBase) + "\">" +
                    Markup_Text(name) + "</text>\n";
            x += kLegendLine + 22 + kLetter * static_cast<double>(name.size());
        }
        return text;
    }

    std::string Grid() const {
        std::string lines, texts;
        const std::string bottom = Number(Y(y_.low));
        for (int i = 0; i < x_ticks_.count; ++i) {
            const std::string x = Number(X(x_ticks_.Value(i)));
            lines.append("M").append(x).append(" ").append(Number(kTop)).append("V").append(bottom);
            texts += "<text class=\"tick\" text-anchor=\"middle\" x=\"" + x + "\" y=\"" +
                     Number(Y(y_.low) + 15) + "\">" + Tick_Text(x_ticks_.Value(i), x_ticks_) + "</text>\n";
        }
        for (int i = 0; i < y_ticks_.count; ++i) {
            const double y = Y(y_ticks_.Value(i));
            lines += "M" + Number(kLeft) + " " + Number(y) + "H" + Number(kWidth - kRight);
            texts += "<text class=\"tick\" text-anchor=\"end\" x=\"" + Number(kLeft - 6) + "\" y=\"" +
                     Number(y + 4) + "\">" + Tick_Text(y_ticks_.Value(i), y_ticks_) + "</text>\n";
        }
        std::string text = "<path class=\"grid\" d=\"" + lines + "\"/>\n";
        text += "<path class=\"axis\" d=\"M" + Number(kLeft) + " " + Number(kTop) + "V" + bottom + "H" +
                Number(kWidth - kRight) + "\"/>\n";
        if (y_.low < 0 && y_.high > 0)
            text += "<path class=\"axis\" d=\"M" + Number(kLeft) + " " + Number(Y(0)) + "H" +
                    Number(kWidth - kRight) + "\"/>\n";
        texts += "<text class=\"label\" text-anchor=\"middle\" x=\"" + Number((kLeft + kWidth - kRight) / 2) +
                 "\" y=\"" + Number(kHeight - 8) + "\">" + Markup_Text(chart_.x_label) + "</text>\n";
        texts += "<text class=\"label\" text-anchor=\"middle\" transform=\"translate(14 " +
                 Number((kTop + kHeight - kBottom) / 2) + ") rotate(-90)\">" + Markup_Text(chart_.y_label) +
                 "</text>\n";
        return text + texts;
    }

    /// Points in runs; one alone still shows, by the round ends of its line.
    std::string Line(std::size_t index) const {
        std::string path;
        std::optional<double> before;
        const auto& values = chart_.curves[index].values;
        for (std::size_t i = 0; i < values.size(); ++i) {
            const auto& value = values[i];
            if (value) {
                const bool jumps = before && chart_.turns_y && std::abs(*value - *before) > kHalfTurn;
                const std::string at = Number(X(chart_.abscissae[i])) + " " + Number(Y(*value));
                const bool starts = !before || jumps;
                const bool alone = starts && (i + 1 == values.size() || !values[i + 1]);
                path += (starts ? "M" : "L") + at + (alone ? "h0" : "");
            }
            before = value;
        }
        return "<path class=\"curve " + Colour_Class(index) + "\" d=\"" + path + "\"/>\n";
    }

    std::string Bars(std::size_t index) const {
        std::string path;
        const auto& values = chart_.curves[index].values;
        const double half = 0.3 * (X(1) - X(0));
        for (std::size_t i = 0; i < values.size(); ++i)
            if (values[i])
                path += "M" + Number(X(chart_.abscissae[i]) - half) + " " + Number(Y(0)) + "V" +
                        Number(Y(*values[i])) + "h" + Number(2 * half) + "V" + Number(Y(0)) + "z";
        return "<path class=\"bars\" d=\"" + path + "\"/>\n";
    }

    const LineChart& chart_;
    Range x_, y_{};
    Ticks x_ticks_, y_ticks_{};
};

/// The least of the round steps that is not below `least`.
double Round_Step(double least, bool turns) {
    if (turns && least > 10 && least <= 360) {
        static constexpr std::array<double, 7> kParts = {15, 30, 45, 60, 90, 180, 360};
        return *std::lower_bound(kParts.begin(), kParts.end(), least * (1 - 1e-9));
    }
    const double power = std::pow(10, std::floor(std::log10(least)));
    for (const double digit : {1.0, 2.0, 5.0})
        if (digit * power >= least * (1 - 1e-9)) return digit * power;
    return 10 * power;
}

}  // namespace

Ticks Round_Ticks(double low, double high, int count, bool turns) {
    const double step = Round_Step((high - low) / (count - 1), turns);
    const double first = std::ceil(low / step - kSameTick) * step;
    const double last = std::floor(high / step + kSameTick) * step;
    return {first, step, static_cast<int>(std::lround((last - first) / step)) + 1};
}

std::string Chart_Svg(const LineChart& chart) {
    return ChartDrawing(chart).Text();
}

}  // namespace kervol
