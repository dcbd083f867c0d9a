// SPDX-License-Identifier: GPL-3.0-or-later
#include "kinematics/reference.h"

#include <cmath>
#include <optional>

#include "core/arithmetic.h"

namespace kervol {
namespace {

constexpr double kToDegrees = 57.29577950560105;
constexpr double kToRadians = 0.017453292522222223;

struct LoopAngles {
    double coupler, output;
};

/// Both roots of the loop with input a at psi, coupler b, output c, ground d.
std::optional<LoopAngles> Closed_Form(double a, double b, double c, double d, double psi, int sign,
                                      bool zero_fails) {
    const double sine = std::sin(psi), cosine = std::cos(psi);
    const double K1 = d / a, K2 = d / c, K4 = d / b;
    const double K3 = (a * a - b * b + c * c + d * d) / (2 * a * c);
    const double K5 = (c * c - d * d - a * a - b * b) / (2 * a * b);
    const double A = K3 + cosine - K1 - K2 * cosine;
    const double B = -2 * sine;
    const double C = K3 + K1 - (K2 + 1) * cosine;
    const double disc = B * B - 4 * A * C;
    if (disc < 0 || (zero_fails && Is_Zero(A))) return std::nullopt;
    const double output = 2 * std::atan((-B + sign * std::sqrt(disc)) / (2 * A));
    const double D = (K4 + 1) * cosine + K5 - K1;
    const double E = -2 * sine;
    const double F = (K4 - 1) * cosine + K5 + K1;
    const double disc2 = E * E - 4 * D * F;
    if (disc2 < 0 || (zero_fails && Is_Zero(D))) return std::nullopt;
    return LoopAngles{2 * std::atan((-E + sign * std::sqrt(disc2)) / (2 * D)), output};
}

/// Magnitude and angle in degrees of single-precision coordinates, the angle by way of a single.
void Polar(float x, float y, float& r, float& degrees) {
    double angle = 0;
    if (!Is_Zero(x))
        angle = std::atan(double(y) / x) + (x < 0 ? 3.141592654 : 0);
    else if (!Is_Zero(y))
        angle = y > 0 ? 1.570796327 : -1.570796327;
    degrees = static_cast<float>(double(static_cast<float>(angle)) * kToDegrees);
    r = static_cast<float>(std::sqrt(double(x) * x + double(y) * y));
}

class Formulas {
  public:
    explicit Formulas(const LinkageModel& model) : m(model) {}

    ReferenceRow Solve() {
        if (!Stage1()) {
            row.failed_stage = 1;
        } else if (!(m.LinkageType == "W" ? Watt() : Stephenson())) {
            row.failed_stage = 2;
        } else {
            Derived();
        }
        return row;
    }

  private:
    bool Stage1() {
        const auto loop = Closed_Form(a, b, c, d, th2, m.OpenSign1, true);
        if (!loop) return false;
        th3 = loop->coupler;
        th4 = loop->output;
        row.toggle1 = std::sin(th3 - th4);
        if (Is_Zero(row.toggle1) || Is_Zero(std::sin(th4 - th3))) return false;
        w3 = (a * w2 / b) * std::sin(th4 - th2) / std::sin(th3 - th4);
        w4 = (a * w2 / c) * std::sin(th2 - th3) / std::sin(th4 - th3);

        const double Pa = c * std::sin(th4), Pb = b * std::sin(th3);
        const double Pc =
            a * al2 * s2 + a * w2 * w2 * c2 + b * w3 * w3 * std::cos(th3) - c * w4 * w4 * std::cos(th4);
        const double Pd = c * std::cos(th4), Pe = b * std::cos(th3);
        const double Pf =
            a * al2 * c2 - a * w2 * w2 * s2 - b * w3 * w3 * std::sin(th3) + c * w4 * w4 * std::sin(th4);
        const double det = Pe * Pa - Pd * Pb;
        if (Is_Zero(det)) return false;
        al3 = (Pd * Pc - Pf * Pa) / det;
        al4 = (Pe * Pc - Pb * Pf) / det;
        Stage1_Points();
        return true;
    }

    void Stage1_Points() {
        const double s3 = std::sin(th3 + d3), c3 = std::cos(th3 + d3);
        const double s4 = std::sin(th4), c4 = std::cos(th4);
        row.Pos[0] = {a * c2, a * s2};
        row.Vel[0] = {-a * w2 * s2, a * w2 * c2};
        row.Acc[0] = {-a * al2 * s2 - a * w2 * w2 * c2, -a * w2 * w2 * s2 + a * al2 * c2};
        row.Pos[1] = {c * c4 + d, c * s4};
        row.Vel[1] = {-c * w4 * s4, c * w4 * c4};
        row.Acc[1] = {-c * al4 * s4 - c * w4 * w4 * c4, -c * w4 * w4 * s4 + c * al4 * c4};
        row.Pos[2] = {e * c3 + a * c2, e * s3 + a * s2};
        row.Vel[2] = {-e * w3 * s3 - a * w2 * s2, e * w3 * c3 + a * w2 * c2};
        row.Acc[2] = {-e * w3 * w3 * c3 + row.Acc[0][0] - e * al3 * s3,
                      -e * w3 * w3 * s3 + row.Acc[0][1] + e * al3 * c3};
    }

    bool Watt() {
        const double L = m.LinkO4D, b_ = m.Link5, c_ = m.Link6, g = m.O4O6Angle;
        phi = double(m.Delta4) + th4;
        const auto loop = Closed_Form(L, b_, c_, m.O4O6Length, phi - g, m.OpenSign2, false);
        if (!loop) return false;
        th5 = loop->coupler + g;
        th6 = loop->output + g;
        const double sp = std::sin(phi), cp = std::cos(phi), s6 = std::sin(th6), c6 = std::cos(th6);
        w5 = (L * w4 / b_) * std::sin(th6 - phi) / std::sin(th5 - th6);
        w6 = (L * w4 / c_) * std::sin(phi - th5) / std::sin(th6 - th5);
        const double Pa = c_ * s6, Pb = b_ * std::sin(th5), Pd = c_ * c6, Pe = b_ * std::cos(th5);
        const double Pc = L * al4 * sp + L * w4 * w4 * cp + b_ * w5 * w5 * std::cos(th5) - c_ * w6 * w6 * c6;
        const double Pf = L * al4 * cp - L * w4 * w4 * sp - b_ * w5 * w5 * std::sin(th5) + c_ * w6 * w6 * s6;
        al5 = (Pd * Pc - Pf * Pa) / (Pe * Pa - Pd * Pb);
        al6 = (Pe * Pc - Pb * Pf) / (Pe * Pa - Pd * Pb);
        row.Pos[3] = {L * cp + m.Link1, L * sp};
        row.Vel[3] = {-L * w4 * sp, L * w4 * cp};
        row.Acc[3] = {-L * al4 * sp - L * w4 * w4 * cp, -L * w4 * w4 * sp + L * al4 * cp};
        row.Pos[4] = {double(m.O4O6X) + m.Link1 + c_ * c6, c_ * s6 + m.O4O6Y};
        Link6_Motion(c_);
        Coupler_Point_2();
        return true;
    }

    bool Stephenson() {
        const double b_ = m.Link5, c_ = m.Link6, g = m.O2O6Angle;
        float radius = 0, degrees = 0;
        Polar(static_cast<float>(row.Pos[2][0]), static_cast<float>(row.Pos[2][1]), radius, degrees);
        const auto loop =
            Closed_Form(radius, b_, c_, m.O2O6Length, degrees * kToRadians - g, m.OpenSign2, false);
        if (!loop) return false;
        phi = th3 + d3;
        th5 = loop->coupler + g;
        th6 = loop->output + g;
        const auto [VCx, VCy] = row.Vel[2];
        const double p = -b_ * std::sin(th5), q = -c_ * std::sin(th6);
        const double r = b_ * std::cos(th5), s = -c_ * std::cos(th6);
        w6 = (r * VCx / p - VCy) / (s - r * q / p);
        w5 = (-q * w6 - VCx) / p;
        const double s3 = std::sin(th3 + d3), c3 = std::cos(th3 + d3);
        const double X =
            -a * (al2 * s2 + w2 * w2 * c2) - e * (al3 * s3 + w3 * w3 * c3) - r * w5 * w5 - s * w6 * w6;
        const double Y =
            -a * (w2 * w2 * s2 - al2 * c2) - e * (w3 * w3 * s3 - al3 * c3) + p * w5 * w5 - q * w6 * w6;
        al6 = (X * r / p - Y) / (r * q / p + s);
        al5 = (al6 * q - X) / p;
        row.Pos[3] = row.Pos[2];
        row.Vel[3] = row.Vel[2];
        row.Acc[3] = row.Acc[2];
        row.Pos[4] = {c_ * std::cos(th6) + m.O6LocalX, c_ * std::sin(th6) + m.O6LocalY};
        Link6_Motion(c_);
        Coupler_Point_2();
        return true;
    }

    void Link6_Motion(double c_) {
        const double s6 = std::sin(th6), c6 = std::cos(th6);
        row.Vel[4] = {-c_ * w6 * s6, c_ * w6 * c6};
        row.Acc[4] = {-c_ * al6 * s6 - c_ * w6 * w6 * c6, -c_ * w6 * w6 * s6 + c_ * al6 * c6};
    }

    void Coupler_Point_2() {
        const double f = m.Coupler2Length;
        const double s5 = std::sin(th5 + m.Delta5), c5 = std::cos(th5 + m.Delta5);
        row.Pos[5] = {f * c5 + row.Pos[3][0], f * s5 + row.Pos[3][1]};
        row.Vel[5] = {-f * w5 * s5 + row.Vel[3][0], f * w5 * c5 + row.Vel[3][1]};
        row.Acc[5] = {-f * w5 * w5 * c5 + row.Acc[3][0] - f * al5 * s5,
                      -f * w5 * w5 * s5 + row.Acc[3][1] + f * al5 * c5};
    }

    double Wrapped(double radians) const {
        const double degrees = User(radians);
        if (m.AngleRange == "abs") return degrees < 0 ? degrees + 360 : degrees;
        if (m.AngleRange == "180") return degrees > 180 ? degrees - 360 : degrees;
        return degrees;
    }

    double User(double radians) const { return radians * kToDegrees + m.GroundAngleDeg; }

    void Derived() {
        row.toggle2 = std::sin(th5 - th6);
        const double fold = std::abs(User(th6) - User(th5));
        row.Theta = {Wrapped(th2),
                     Wrapped(th3),
                     Wrapped(th4),
                     User(phi),
                     User(th5),
                     User(th6),
                     0,
                     fold > 90 ? std::abs(180 - fold) : fold};
        row.Theta[6] = std::abs(row.Theta[2] - row.Theta[1]);
        row.Omega = {w2, w3, w4, w5, w6};
        row.Alpha = {al2, al3, al4, al5, al6};
        row.VelRatio = {w4 / w2, w6 / w2};
        row.MechAdv = {w2 / w4, w2 / w6};
    }

    const LinkageModel& m;
    ReferenceRow row;
    const double a = m.Link2, b = m.Link3, c = m.Link4, d = m.Link1, e = m.CouplerAC, d3 = m.Delta3;
    const double th2 = m.Theta2Rad, w2 = m.Omega2, al2 = m.Alpha2;
    const double s2 = std::sin(th2), c2 = std::cos(th2);
    double th3 = 0, th4 = 0, th5 = 0, th6 = 0, phi = 0;
    double w3 = 0, w4 = 0, w5 = 0, w6 = 0;
    double al3 = 0, al4 = 0, al5 = 0, al6 = 0;
};

}  // namespace

ReferenceRow Solve_By_Formulas(const LinkageModel& model) {
    return Formulas(model).Solve();
}

}  // namespace kervol
