// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/mathematics.h"

#include <cmath>

#include "core/arithmetic.h"
#include "core/constants.h"
#include "core/number_text.h"
#include "core/port.h"

namespace kervol {

double FNArcCos(Port& port, float x) {
    return Routine("FNArcCos", [&] {
        const double unrounded = 1.0 - double(x) * x;
        if (std::isnan(unrounded)) {
            port.Show_Message({"Something wrong - cannot take ArcCos of " + Plain_Number(x)});
            return 0.0;
        }
        const float s = Single(unrounded);
        if (s < 0.0F) {
            port.Show_Message({"Attempting to take square root of negative number (" + Plain_Number(s) +
                                   ") in FNArcCos(" + Plain_Number(x) + " ) - check your data",
                               Icon::Exclamation});
            return 0.0;
        }
        if (Is_Zero(s)) return 1.0;
        return -std::atan(x / std::sqrt(double(s))) + Pi / 2.0;
    });
}

double Atan2(float x, float y) {
    if (Is_Zero(x)) {
        if (Is_Zero(y)) return 0.0;
        return y > 0.0F ? HalfPi : -HalfPi;
    }
    const double angle = std::atan(double(y) / x);
    return x < 0.0F ? angle + Pi : angle;
}

double Atan2D(float x, float y) {
    return Atan2(x, y) * DegreesPerRadian;
}

void Cart_to_Polar(float x, float y, float& r, float& theta) {
    Routine("Cart_to_Polar", [&] {
        const float angle = Single(Atan2(x, y));
        theta = Single(angle * DegreesPerRadian);
        r = Single(std::sqrt(double(x) * x + double(y) * y));
    });
}

void Rotate(float x, float y, float Angle, std::int16_t Sign, float& xr, float& yr) {
    Routine("Rotate", [&] {
        const double a = Single(Sign * Angle * RadiansPerDegree);
        const double cos_a = std::cos(a);
        const double sin_a = std::sin(a);
        xr = Single(x * cos_a - y * sin_a);
        yr = Single(x * sin_a + y * cos_a);
    });
}

void Check_Positive(Port& port, float& value) {
    if (value < 0.0F) {
        Warn_Positive(port);
        value = -value;
    }
}

void Warn_Positive(Port& port) {
    port.Show_Message({"This value must be positive.  Please redo.", Icon::Exclamation});
}

}  // namespace kervol
