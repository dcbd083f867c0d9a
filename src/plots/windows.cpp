// SPDX-License-Identifier: GPL-3.0-or-later
#include "plots/windows.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/arithmetic.h"
#include "core/colours.h"
#include "core/extremes.h"
#include "core/report.h"

namespace kervol {
namespace {

constexpr Colour kBlack = NamedColours.black;

/// What a flat function is plotted against.
constexpr float kLeastLimit = 0.0001F;

/// Part of a range from tick to tick.
constexpr double kTicSpacing = 0.04166667;

struct WindowBounds {
    double left = 0, top = 0, right = 0, bottom = 0;
};

constexpr std::array kMargins = {PlotMargins{2, 0.16, 0.04, 1.14, 1.4},
                                 PlotMargins{4, 0.18, 0.04, 1.15, 1.7}};

/// Without an extent for any other number of plots, which the picture refuses.
WindowBounds Bounds(std::int16_t plots, double limit, double Xlo, double Xhi) {
    const PlotMargins* margins = Margins_Of(plots);
    if (margins == nullptr) return {};
    const double range = Xhi - Xlo;
    return {Xlo - margins->left * range, margins->top * limit, Xhi + margins->right * range,
            -margins->bottom * limit};
}

void Set_Bounds(Program& program, Picture& picture, const WindowBounds& bounds, const std::string& refusal) {
    const bool refused = Refuses(
        fault::InvalidCall, [&] { picture.Set_Scale(bounds.left, bounds.top, bounds.right, bounds.bottom); });
    if (!refused) return;
    program.port.Show_Message({refusal, Icon::Exclamation});
    program.plots.WindowFailed = true;
}

std::string Too_Large(const std::string& function) {
    return "The magnitude of " + function + " exceeds the capacity of this window.";
}

/// Runs the body for first, first + step, ... up to last, downward for a negative step. The values are
/// counted and not summed up, and one that misses the last by its rounding alone is in: how many there are
/// does not depend on the numbers.
template <class Body>
void For_Each_Value(double first, double last, double step, Body&& body) {
    constexpr double kRounding = 1e-9;  // of a step
    const double steps = std::floor(Divide(last - first, step) + kRounding);
    for (int k = 0; k <= steps; ++k) body(first + k * step);
}

}  // namespace

const PlotMargins* Margins_Of(std::int16_t plots) {
    const auto margins = std::find_if(kMargins.begin(), kMargins.end(),
                                      [plots](const PlotMargins& entry) { return entry.plots == plots; });
    return margins == kMargins.end() ? nullptr : &*margins;
}

void SetWindow(Program& program, Picture& picture, float& limit, float Xlo, float Xhi,
               const std::string& function, float& base) {
    Procedure(program, "SetWindow", [&] {
        program.plots.WindowFailed = false;
        if (Is_Zero(limit)) limit = kLeastLimit;
        const WindowBounds bounds = Bounds(program.plots.PlotCount, limit, Xlo, Xhi);
        base = Single(bounds.top + bounds.bottom);
        picture.Clear();
        Set_Bounds(program, picture, bounds,
                   Too_Large(function) +
                       "\nSwitch to the 'Annotated' style of plot instead of the 'Aligned' style,"
                       "\nor use a plot type with a larger window to see this function.");
    });
}

void SetPolarWindow(Program& program, Picture& picture, float& limit, const std::string& function,
                    float& base) {
    Procedure(program, "SetPolarWindow", [&] {
        program.plots.WindowFailed = false;
        if (Is_Zero(limit)) limit = kLeastLimit;
        const double across = 1.1 * limit, up = 1.115 * limit;
        base = 0;
        Set_Bounds(program, picture, {-across, up, across, -up}, Too_Large(function));
    });
}

void CartesianMax(Program& program, const Table<float, StepRows>& data, std::int16_t first, std::int16_t last,
                  float& result) {
    Procedure(program, "CartesianMax", [&] {
        float Max, Min;
        MaxMin1(data, first, last, Max, Min);
        result = std::max(std::abs(Max), std::abs(Min));
    });
}

void CartesianAxes(Program& program, Picture& picture, float limit, float Xlo, float Xhi) {
    Procedure(program, "CartesianAxes", [&] {
        picture.Line(Xlo, 0, Xhi, 0, kBlack);
        // Deliberate: at the left edge of the data, wherever x = 0 lies.
        picture.Line(Xlo, -limit, Xlo, limit, kBlack);
    });
}

void PolarAxes(Program& program, Picture& picture, float limit) {
    Procedure(program, "PolarAxes", [&] {
        picture.Line(-limit, 0, limit, 0, kBlack);
        picture.Line(0, -limit, 0, limit, kBlack);
    });
}

void XticMarks(Program& program, Picture& picture, float limit, float Xlo, float Xhi) {
    Procedure(program, "XticMarks", [&] {
        const double half = 0.07 * limit;
        const auto tick = [&](double x) { picture.Line(x, -half, x, half, kBlack); };
        // Deliberate: 24 such steps go a little beyond the range, so that its end gets a tick of its own.
        For_Each_Value(Xlo, Xhi, kTicSpacing * (double(Xhi) - Xlo), tick);
        tick(Xhi);
    });
}

void YticMarks(Program& program, Picture& picture, float limit, int divisions, float Xlo, float Xhi) {
    Procedure(program, "YticMarks", [&] {
        const double half = 0.01 * (double(Xhi) - Xlo);
        // Deliberate: one tick beyond the top, so that the top itself never misses its own.
        const double top = (Divide(1, divisions) + 1) * limit;
        For_Each_Value(-limit, top, Divide(limit, divisions),
                       [&](double y) { picture.Line(Xlo - half, y, Xlo + half, y, kBlack); });
    });
}

void PolarTicmarks(Program& program, Picture& picture, float limit, int divisions) {
    Procedure(program, "PolarTicmarks", [&] {
        const double half = 0.01 * limit;
        For_Each_Value(-limit, limit, Divide(limit, divisions), [&](double value) {
            picture.Line(value, -half, value, half, kBlack);
            picture.Line(-half, value, half, value, kBlack);
        });
    });
}

void Vertical_lines(Program& program, Picture& picture, float limit, float Xlo, float Xhi) {
    Procedure(program, "Vertical_lines", [&] {
        const double dx = (double(Xhi) - Xlo) / 4;
        for (const double x : {Xlo + dx, Xlo + 2 * dx, Xlo + 3 * dx, double(Xhi)})
            picture.Line(x, -0.95 * limit, x, limit, kBlack);
    });
}

}  // namespace kervol
