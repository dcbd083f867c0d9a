// SPDX-License-Identifier: GPL-3.0-or-later
// The closed form of a four-bar loop, shared by both stages. Angles are radians from the loop's ground link,
// which runs from the input pivot to the output pivot. Which special positions count as failures is the
// caller's.
#pragma once

#include <cmath>

#include "core/arithmetic.h"

namespace kervol {

struct Vec {
    double x = 0.0, y = 0.0;
};

inline Vec operator+(Vec left, Vec right) {
    return {left.x + right.x, left.y + right.y};
}

/// A link as a line: its length and its angle from +x.
struct Line {
    double length = 0.0, angle = 0.0;
};

/// A line that has the sine and cosine of its angle too.
struct Arm : Line {
    Arm() = default;
    explicit Arm(const Line& line);
    Arm(double the_length, double the_angle) : Arm(Line{the_length, the_angle}) {}

    Vec Position() const { return {length * cos, length * sin}; }
    Vec Velocity(double omega) const { return {-length * omega * sin, length * omega * cos}; }
    Vec Acceleration(double omega, double alpha) const {
        const double normal = omega * omega;
        return {-length * alpha * sin - length * normal * cos, -length * normal * sin + length * alpha * cos};
    }

    double sin = 0.0, cos = 1.0;
};

/// Position, velocity and acceleration of a point.
struct PointMotion {
    Vec position, velocity, acceleration;
};

inline PointMotion Fixed_Pivot(double x, double y) {
    return {{x, y}, {}, {}};
}

/// Motion of the arm's end, which turns about a moving base.
inline PointMotion Point_On_Arm(const Arm& arm, double omega, double alpha, const PointMotion& base) {
    return {arm.Position() + base.position, arm.Velocity(omega) + base.velocity,
            arm.Acceleration(omega, alpha) + base.acceleration};
}

/// Ratios of the link lengths: input a, coupler b, output c, ground d. Faults where a, b or c is 0.
struct LoopConstants {
    LoopConstants(double a, double b, double c, double d);

    double K1, K2, K3, K4, K5;
};

/// P t^2 + Q t + R = 0 for t, the tangent of half a link's angle.
struct HalfTangentEquation {
    HalfTangentEquation(double p, double q, double r);

    /// The link's angle, -pi to pi. `sign` -1 is the open assembly, +1 the crossed one. Faults where P is 0
    /// or the discriminant negative.
    double Angle(int sign) const;

    double P, Q, R;
    double discriminant;  ///< negative where the loop cannot be closed
};

/// The equations of the output and of the coupler at an input angle with this sine and cosine.
HalfTangentEquation Output_Equation(const LoopConstants& K, double sin_input, double cos_input);
HalfTangentEquation Coupler_Equation(const LoopConstants& K, double sin_input, double cos_input);

/// Sines of the angle between coupler and output, both ways round: 0 at a toggle position.
struct ToggleSines {
    ToggleSines(const Line& coupler, const Line& output);

    double coupler_output, output_coupler;
};

/// A quantity of the coupler and of the output.
struct CouplerOutput {
    double coupler, output;
};

/// Angular velocities for the input's. Faults at a toggle position.
CouplerOutput Loop_Speeds(const Line& input, const Line& coupler, const Line& output,
                          const ToggleSines& toggle, double omega_input);

/// The two linear equations of the angular accelerations.
struct LoopAccelerations {
    LoopAccelerations(const Arm& input, const Arm& coupler, const Arm& output, double omega_input,
                      double alpha_input, const CouplerOutput& omega);

    /// Faults where the determinant is 0.
    CouplerOutput Solve() const;

    double Pa, Pb, Pc, Pd, Pe, Pf;
    double determinant;
};

// Here and not in a source of their own: studies spend a tenth of their time in calling them.

inline Arm::Arm(const Line& line) : Line(line), sin(std::sin(line.angle)), cos(std::cos(line.angle)) {}

inline LoopConstants::LoopConstants(double a, double b, double c, double d)
    : K1(Divide(d, a)),
      K2(Divide(d, c)),
      K3(Divide(a * a - b * b + c * c + d * d, 2 * a * c)),
      K4(Divide(d, b)),
      K5(Divide(c * c - d * d - a * a - b * b, 2 * a * b)) {}

inline HalfTangentEquation::HalfTangentEquation(double p, double q, double r)
    : P(p), Q(q), R(r), discriminant(Finite(q * q - 4 * p * r)) {}

inline double HalfTangentEquation::Angle(int sign) const {
    return 2 * std::atan(Divide(-Q + sign * Root(discriminant), 2 * P));
}

inline HalfTangentEquation Output_Equation(const LoopConstants& K, double sin_input, double cos_input) {
    return {K.K3 + cos_input - K.K1 - K.K2 * cos_input, -2 * sin_input, K.K3 + K.K1 - (K.K2 + 1) * cos_input};
}

inline HalfTangentEquation Coupler_Equation(const LoopConstants& K, double sin_input, double cos_input) {
    return {(K.K4 + 1) * cos_input + K.K5 - K.K1, -2 * sin_input, (K.K4 - 1) * cos_input + K.K5 + K.K1};
}

// A sine is odd to its last bit, and so is a difference.
inline ToggleSines::ToggleSines(const Line& coupler, const Line& output)
    : coupler_output(std::sin(coupler.angle - output.angle)), output_coupler(-coupler_output) {}

inline CouplerOutput Loop_Speeds(const Line& input, const Line& coupler, const Line& output,
                                 const ToggleSines& toggle, double omega_input) {
    const double speed = input.length * omega_input;
    return {
        Divide(Divide(speed, coupler.length) * std::sin(output.angle - input.angle), toggle.coupler_output),
        Divide(Divide(speed, output.length) * std::sin(input.angle - coupler.angle), toggle.output_coupler)};
}

}  // namespace kervol
