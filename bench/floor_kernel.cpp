// SPDX-License-Identifier: GPL-3.0-or-later
#include "floor_kernel.h"

#include <cmath>

#include "core/constants.h"

namespace kervol::bench {
namespace {

struct Ratios {
    Ratios(double a, double b, double c, double d)
        : k1(d / a),
          k2(d / c),
          k3((a * a - b * b + c * c + d * d) / (2 * a * c)),
          k4(d / b),
          k5((c * c - d * d - a * a - b * b) / (2 * a * b)) {}

    double k1, k2, k3, k4, k5;
};

double Half_Tangent(double p, double q, double r, double sign) {
    return 2 * std::atan((-q + sign * std::sqrt(q * q - 4 * p * r)) / (2 * p));
}

struct Loop {
    Loop(const Ratios& k, double s, double c, double sign)
        : output(Half_Tangent(k.k3 + c - k.k1 - k.k2 * c, -2 * s, k.k3 + k.k1 - (k.k2 + 1) * c, sign)),
          coupler(Half_Tangent((k.k4 + 1) * c + k.k5 - k.k1, -2 * s, (k.k4 - 1) * c + k.k5 + k.k1, sign)) {}

    double output, coupler;
};

struct Turned {
    explicit Turned(double angle) : s(std::sin(angle)), c(std::cos(angle)) {}
    double s, c;
};

struct Point {
    double x, y, vx, vy, ax, ay;
};

Point On_Arm(double length, Turned at, double w, double al, const Point& base) {
    const double x = length * at.c, y = length * at.s;
    return {base.x + x,
            base.y + y,
            base.vx - w * y,
            base.vy + w * x,
            base.ax - al * y - w * w * x,
            base.ay - w * w * y + al * x};
}

/// Speeds and accelerations of a closed loop.
struct Motion {
    Motion(double a, double b, double c, double th_a, double th_b, double th_c, Turned at_a, Turned at_b,
           Turned at_c, double w, double al) {
        const double toggle = std::sin(th_b - th_c);
        wb = a * w / b * std::sin(th_c - th_a) / toggle;
        wc = a * w / c * std::sin(th_a - th_b) / -toggle;
        const double pc = a * al * at_a.s + a * w * w * at_a.c + b * wb * wb * at_b.c - c * wc * wc * at_c.c;
        const double pf = a * al * at_a.c - a * w * w * at_a.s - b * wb * wb * at_b.s + c * wc * wc * at_c.s;
        const double det = b * at_b.c * c * at_c.s - c * at_c.c * b * at_b.s;
        ab = (c * at_c.c * pc - pf * c * at_c.s) / det;
        ac = (b * at_b.c * pc - b * at_b.s * pf) / det;
    }

    double wb, wc, ab, ac;
};

double* Put(double* out, const Point& p) {
    for (const double value : {p.x, p.y, p.vx, p.vy, p.ax, p.ay}) *out++ = value;
    return out;
}

struct FirstStage {
    FirstStage(const LinkageModel& m, const Ratios& k, double th2, double w2, double al2)
        : at2(th2),
          loop(k, at2.s, at2.c, m.OpenSign1),
          at3(loop.coupler),
          at4(loop.output),
          motion(m.Link2, m.Link3, m.Link4, th2, loop.coupler, loop.output, at2, at3, at4, w2, al2),
          A(On_Arm(m.Link2, at2, w2, al2, {})),
          B(On_Arm(m.Link4, at4, motion.wc, motion.ac, {m.Link1, 0, 0, 0, 0, 0})),
          C(On_Arm(m.CouplerAC, Turned(loop.coupler + m.Delta3), motion.wb, motion.ab, A)) {}

    Turned at2;
    Loop loop;
    Turned at3, at4;
    Motion motion;
    Point A, B, C;
};

struct SecondStage {
    double column3, th5, th6, w5, w6, al5, al6;
    Point start, end, coupler2;
};

void Put_Row(const LinkageModel& m, double th2, const FirstStage& s1, const SecondStage& s2, double* out) {
    const double deg = DegreesPerRadian, g = m.GroundAngleDeg, w2 = m.Omega2, w4 = s1.motion.wc;
    double th[8] = {th2 * deg + g,
                    s1.loop.coupler * deg + g,
                    s1.loop.output * deg + g,
                    s2.column3 * deg + g,
                    s2.th5 * deg + g,
                    s2.th6 * deg + g,
                    0,
                    0};
    for (int i = 0; i < 3; ++i) th[i] = th[i] < 0 ? th[i] + 360 : th[i];
    th[6] = std::abs(th[2] - th[1]);
    th[7] = std::abs(th[5] - th[4]);
    th[7] = th[7] > 90 ? std::abs(180 - th[7]) : th[7];
    for (const double value : th) *out++ = value;
    for (const double value : {w2, s1.motion.wb, w4, s2.w5, s2.w6}) *out++ = value;
    for (const double value : {double(m.Alpha2), s1.motion.ab, s1.motion.ac, s2.al5, s2.al6}) *out++ = value;
    for (const Point* p : {&s1.A, &s1.B, &s1.C, &s2.start, &s2.end, &s2.coupler2}) out = Put(out, *p);
    for (const double value : {w4 / w2, w2 / w4, s2.w6 / w2, w2 / s2.w6}) *out++ = value;
}

}  // namespace

void Floor_Watt(const LinkageModel& m, double theta2, double step, int rows, double* out) {
    const Ratios k1(m.Link2, m.Link3, m.Link4, m.Link1);
    const Ratios k2(m.LinkO4D, m.Link5, m.Link6, m.O4O6Length);
    for (int row = 0; row < rows; ++row, theta2 += step, out += kFloorOutputs) {
        const FirstStage s1(m, k1, theta2, m.Omega2, m.Alpha2);
        const double phi = s1.loop.output + m.Delta4, g = m.O4O6Angle;
        const Turned at(phi), relative(phi - g);
        const Loop loop(k2, relative.s, relative.c, m.OpenSign2);
        const double th5 = loop.coupler + g, th6 = loop.output + g;
        const Turned at5(th5), at6(th6);
        const Motion motion(m.LinkO4D, m.Link5, m.Link6, phi, th5, th6, at, at5, at6, s1.motion.wc,
                            s1.motion.ac);
        const Point D = On_Arm(m.LinkO4D, at, s1.motion.wc, s1.motion.ac, {m.Link1, 0, 0, 0, 0, 0});
        const Point E = On_Arm(m.Link6, at6, motion.wc, motion.ac, {m.O4O6X + m.Link1, m.O4O6Y, 0, 0, 0, 0});
        const Point P = On_Arm(m.Coupler2Length, Turned(th5 + m.Delta5), motion.wb, motion.ab, D);
        Put_Row(m, theta2, s1, {phi, th5, th6, motion.wb, motion.wc, motion.ab, motion.ac, D, E, P}, out);
    }
}

void Floor_Stephenson(const LinkageModel& m, double theta2, double step, int rows, double* out) {
    const Ratios k1(m.Link2, m.Link3, m.Link4, m.Link1);
    for (int row = 0; row < rows; ++row, theta2 += step, out += kFloorOutputs) {
        const FirstStage s1(m, k1, theta2, m.Omega2, m.Alpha2);
        const Point& C = s1.C;
        const double length = std::sqrt(C.x * C.x + C.y * C.y), g = m.O2O6Angle;
        const double phi = std::atan(C.y / C.x) + (C.x < 0 ? Pi : 0);
        const Turned relative(phi - g);
        const Loop loop(Ratios(length, m.Link5, m.Link6, m.O2O6Length), relative.s, relative.c, m.OpenSign2);
        const double th5 = loop.coupler + g, th6 = loop.output + g;
        const Turned at5(th5), at6(th6);
        const double p = -m.Link5 * at5.s, q = -m.Link6 * at6.s, r = m.Link5 * at5.c, s = -m.Link6 * at6.c;
        const double w6 = (r * C.vx / p - C.vy) / (s - r * q / p);
        const double w5 = (-q * w6 - C.vx) / p;
        const double X = C.ax - r * w5 * w5 - s * w6 * w6, Y = C.ay + p * w5 * w5 - q * w6 * w6;
        const double al6 = (X * r / p - Y) / (r * q / p + s);
        const double al5 = (al6 * q - X) / p;
        const Point D = On_Arm(m.Link6, at6, w6, al6, {m.O6LocalX, m.O6LocalY, 0, 0, 0, 0});
        const Point P = On_Arm(m.Coupler2Length, Turned(th5 + m.Delta5), w5, al5, C);
        Put_Row(m, theta2, s1, {s1.loop.coupler + m.Delta3, th5, th6, w5, w6, al5, al6, C, D, P}, out);
    }
}

}  // namespace kervol::bench
