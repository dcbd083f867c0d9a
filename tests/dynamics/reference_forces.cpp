// SPDX-License-Identifier: GPL-3.0-or-later
#include "dynamics/reference_forces.h"

#include <cmath>
#include <cstring>

namespace kervol {
namespace {

constexpr double rad = 0.017453292522222223;
constexpr double deg = 57.29577950560105;

float Round(double value) {
    return static_cast<float>(value);
}

/// The direction of a velocity in degrees, -90 to 270.
double Degrees_Of(double x, double y) {
    if (std::fpclassify(x) == FP_ZERO) {
        if (std::fpclassify(y) == FP_ZERO) return 0;
        return (y > 0 ? 1.570796327 : -1.570796327) * deg;
    }
    const double angle = std::atan(y / x);
    return (x < 0 ? angle + 3.141592654 : angle) * deg;
}

/// Elimination in the stated order of evaluation, on copies.
void Solve(ReferenceForces& r) {
    double a[16][16];
    std::memcpy(a, r.A, sizeof a);
    std::memcpy(r.X, r.B, sizeof r.X);
    double* b = r.X;
    for (int k = 1; k <= 14; ++k) {
        double big = 0;
        int p = 0;
        for (int i = k; i <= 15; ++i)
            if (std::fabs(a[i][k]) > big) {
                big = std::fabs(a[i][k]);
                p = i;
            }
        if (p == 0) {
            r.Ierror = k;
            return;
        }
        for (int j = k; j <= 15; ++j) {
            const double held = a[k][j];
            a[k][j] = a[p][j];
            a[p][j] = held;
        }
        const double held = b[k];
        b[k] = b[p];
        b[p] = held;
        for (int i = k + 1; i <= 15; ++i) {
            for (int j = k + 1; j <= 15; ++j) a[i][j] = a[i][k] * a[k][j] / a[k][k] - a[i][j];
            b[i] = b[k] * a[i][k] / a[k][k] - b[i];
        }
    }
    if (std::fpclassify(a[15][15]) != FP_ZERO) b[15] = b[15] / a[15][15];
    for (int i = 14; i >= 1; --i) {
        double sum = b[i];
        for (int j = i + 1; j <= 15; ++j) sum = sum - a[i][j] * b[j];
        b[i] = sum / a[i][i];
    }
}

}  // namespace

// One list of formulas, kept in one piece so that it can be read against the derivation on paper.
ReferenceForces Forces_By_Formulas(const LinkageModel& m, const ResultTables& t, int s) {
    ReferenceForces r;
    const float th2 = Round(t.Theta(s, 0) * rad - m.GroundAngle),
                th3 = Round(t.Theta(s, 1) * rad - m.GroundAngle),
                th4 = Round(t.Theta(s, 2) * rad - m.GroundAngle),
                th4b = Round(t.Theta(s, 3) * rad - m.GroundAngle),
                th5 = Round(t.Theta(s, 4) * rad - m.GroundAngle),
                th6 = Round(t.Theta(s, 5) * rad - m.GroundAngle);
    const double w2 = t.Omega(s, 0), w3 = t.Omega(s, 1), w4 = t.Omega(s, 2), w5 = t.Omega(s, 3),
                 w6 = t.Omega(s, 4);
    const double v2 = Round(w2 * w2), v3 = Round(w3 * w3), v4 = Round(w4 * w4), v5 = Round(w5 * w5),
                 v6 = Round(w6 * w6);
    const double a2 = t.Alpha(s, 0), a3 = t.Alpha(s, 1), a4 = t.Alpha(s, 2), a5 = t.Alpha(s, 3),
                 a6 = t.Alpha(s, 4);
    const double d2 = m.LinkCG(2, 0), d3 = m.LinkCG(3, 0), d4 = m.LinkCG(4, 0), d5 = m.LinkCG(5, 0),
                 d6 = m.LinkCG(6, 0);
    const double e2 = double(th2) + m.LinkCG(2, 1), e3 = double(th3) + m.LinkCG(3, 1),
                 e4 = double(th4) + m.LinkCG(4, 1), e5 = double(th5) + m.LinkCG(5, 1),
                 e6 = double(th6) + m.LinkCG(6, 1);
    const double s2 = Round(std::sin(e2)), s3 = Round(std::sin(e3)), s4 = Round(std::sin(e4)),
                 s5 = Round(std::sin(e5)), s6 = Round(std::sin(e6));
    const double c2 = Round(std::cos(e2)), c3 = Round(std::cos(e3)), c4 = Round(std::cos(e4)),
                 c5 = Round(std::cos(e5)), c6 = Round(std::cos(e6));

    r.velocity[0][0] = Round(w2 * d2 * -s2);
    r.velocity[0][1] = Round(w2 * d2 * c2);
    r.velocity[1][0] = Round(w3 * d3 * -s3 + t.PointVel(s, 0, 0));
    r.velocity[1][1] = Round(w3 * d3 * c3 + t.PointVel(s, 0, 1));
    r.velocity[2][0] = Round(w4 * d4 * -s4);
    r.velocity[2][1] = Round(w4 * d4 * c4);
    r.velocity[3][0] = Round(w5 * d5 * -s5);
    r.velocity[3][1] = Round(w5 * d5 * c5);
    r.velocity[4][0] = Round(w6 * d6 * -s6);
    r.velocity[4][1] = Round(w6 * d6 * c6);
    const double phi3 = Round((Degrees_Of(t.PointVel(s, 2, 0), t.PointVel(s, 2, 1)) + 180) * rad);
    const double phi5 = Round((Degrees_Of(t.PointVel(s, 5, 0), t.PointVel(s, 5, 1)) + 180) * rad);
    r.acceleration[0][0] = Round(a2 * d2 * -s2 + v2 * d2 * -c2);
    r.acceleration[0][1] = Round(v2 * d2 * -s2 + a2 * d2 * c2);
    r.acceleration[1][0] = Round(a3 * d3 * -s3 + v3 * d3 * -c3 + t.PointAcc(s, 0, 0));
    r.acceleration[1][1] = Round(v3 * d3 * -s3 + a3 * d3 * c3 + t.PointAcc(s, 0, 1));
    r.acceleration[2][0] = Round(a4 * d4 * -s4 + v4 * d4 * -c4);
    r.acceleration[2][1] = Round(v4 * d4 * -s4 + a4 * d4 * c4);
    r.acceleration[3][0] = Round(a5 * d5 * -s5 + v5 * d5 * -c5);
    r.acceleration[3][1] = Round(v5 * d5 * -s5 + a5 * d5 * c5);
    r.acceleration[4][0] = Round(a6 * d6 * -s6 + v6 * d6 * -c6);
    r.acceleration[4][1] = Round(v6 * d6 * -s6 + a6 * d6 * c6);

    float F[5][2], T[5];  // inertia
    for (int i = 0; i < 5; ++i)
        for (int c = 0; c < 2; ++c) F[i][c] = Round(double(m.LinkMass(i + 2)) * r.acceleration[i][c]);
    T[0] = Round(a2 * m.LinkInertia(2));
    T[1] = Round(a3 * m.LinkInertia(3));
    T[2] = Round(a4 * m.LinkInertia(4));
    T[3] = Round(a5 * m.LinkInertia(5));
    T[4] = Round(a6 * m.LinkInertia(6));

    const double p3 = m.ForcePointAngle(3) * rad + th3, p4 = m.ForcePointAngle(4) * rad + th4,
                 p5 = m.ForcePointAngle(5) * rad + th5, p6 = m.ForcePointAngle(6) * rad + th6;
    const double P3x = Round(m.ForcePointDist(3) * std::cos(p3)),
                 P3y = Round(m.ForcePointDist(3) * std::sin(p3)),
                 P4x = Round(m.ForcePointDist(4) * std::cos(p4)),
                 P4y = Round(m.ForcePointDist(4) * std::sin(p4)),
                 P5x = Round(m.ForcePointDist(5) * std::cos(p5)),
                 P5y = Round(m.ForcePointDist(5) * std::sin(p5)),
                 P6x = Round(m.ForcePointDist(6) * std::cos(p6)),
                 P6y = Round(m.ForcePointDist(6) * std::sin(p6));
    const double Q3x = Round(m.LinkFriction(3) * std::cos(phi3)),
                 Q3y = Round(m.LinkFriction(3) * std::sin(phi3)),
                 Q5x = Round(m.LinkFriction(5) * std::cos(phi5)),
                 Q5y = Round(m.LinkFriction(5) * std::sin(phi5));
    const double C3x = Round(m.CouplerAC * std::cos(phi3)), C3y = Round(m.CouplerAC * std::sin(phi3)),
                 C5x = Round(m.CouplerAC * std::cos(phi5)), C5y = Round(m.CouplerAC * std::sin(phi5));
    const double M3 = Round((P3x * m.ForceY(3) - P3y * m.ForceX(3)) + (C3x * Q3y - C3y * Q3x));
    const double M4 = Round(P4x * m.ForceY(4) - P4y * m.ForceX(4));
    const double M5 = Round((P5x * m.ForceY(5) - P5y * m.ForceX(5)) + (C5x * Q5y - C5y * Q5x));
    const double M6 = Round(P6x * m.ForceY(6) - P6y * m.ForceX(6));
    const double T6 = m.TorqueImported ? t.Torque21Imported(s) : m.LinkTorque(6);

    r.B[1] = F[0][0];
    r.B[2] = F[0][1];
    r.B[3] = T[0];
    r.B[4] = double(F[1][0]) - m.ForceX(3) - Q3x;
    r.B[5] = double(F[1][1]) - m.ForceY(3) - Q3y;
    r.B[6] = double(T[1]) - m.LinkTorque(3) - M3;
    r.B[7] = double(F[2][0]) - m.ForceX(4);
    r.B[8] = double(F[2][1]) - m.ForceY(4);
    r.B[9] = double(T[2]) - m.LinkTorque(4) - M4;
    r.B[10] = double(F[3][0]) - m.ForceX(5) - Q5x;
    r.B[11] = double(F[3][1]) - m.ForceY(5) - Q5y;
    r.B[12] = double(T[3]) - m.LinkTorque(5) - M5;
    r.B[13] = double(F[4][0]) - m.ForceX(6);
    r.B[14] = double(F[4][1]) - m.ForceY(6);
    r.B[15] = double(T[4]) - T6 - M6;

    const double R12x = Round(-d2 * c2), R12y = Round(-d2 * s2);
    const double R32x = Round(m.Link2 * std::cos(th2 * 1.0) - d2 * c2),
                 R32y = Round(m.Link2 * std::sin(th2 * 1.0) - d2 * s2);
    const double R23x = Round(-d3 * c3), R23y = Round(-d3 * s3);
    const double R43x = Round(m.Link3 * std::cos(th3 * 1.0) - d3 * c3),
                 R43y = Round(m.Link3 * std::sin(th3 * 1.0) - d3 * s3);
    const double R14x = Round(-d4 * c4), R14y = Round(-d4 * s4);
    const double R34x = Round(m.Link4 * std::cos(th4 * 1.0) - d4 * c4),
                 R34y = Round(m.Link4 * std::sin(th4 * 1.0) - d4 * s4);
    const double R65x = Round(m.Link5 * std::cos(th5 * 1.0) - d5 * c5),
                 R65y = Round(m.Link5 * std::sin(th5 * 1.0) - d5 * s5);
    const double R56x = Round(m.Link6 * std::cos(th6 * 1.0) - d6 * c6),
                 R56y = Round(m.Link6 * std::sin(th6 * 1.0) - d6 * s6);
    const double R16x = Round(-d6 * c6), R16y = Round(-d6 * s6);
    const double R45x = Round(-d5 * c5), R45y = Round(-d5 * s5);
    const double RD4x = Round(m.Link6 * std::cos(th4b * 1.0) - d4 * c4),
                 RD4y = Round(m.Link6 * std::sin(th4b * 1.0) - d4 * s4);
    const double RC3x = Round(m.CouplerAC * std::cos(th3 * 1.0) - d3 * c3),
                 RC3y = Round(m.CouplerAC * std::sin(th3 * 1.0) - d3 * s3);

    auto& A = r.A;
    const bool W = m.LinkageType == "W", S = m.LinkageType == "S";
    if (W || S) {
        A[1][1] = A[1][3] = A[2][2] = A[2][4] = 1;
        A[3][1] = -R12y;
        A[3][2] = R12x;
        A[3][3] = -R32y;
        A[3][4] = R32x;
        A[3][9] = 1;
        A[4][3] = A[5][4] = -1;
        A[4][5] = A[5][6] = 1;
        A[6][3] = R23y;
        A[6][4] = -R23x;
        A[6][5] = -R43y;
        A[6][6] = R43x;
        A[7][5] = A[8][6] = -1;
        A[7][7] = A[8][8] = 1;
        A[9][5] = R34y;
        A[9][6] = -R34x;
        A[9][7] = -R14y;
        A[9][8] = R14x;
        A[10][10] = A[11][11] = -1;
        A[10][12] = A[11][13] = 1;
        A[12][10] = R45y;
        A[12][11] = -R45x;
        A[12][12] = -R65y;
        A[12][13] = R65x;
        A[13][12] = A[14][13] = -1;
        A[13][14] = A[14][15] = 1;
        A[15][12] = R56y;
        A[15][13] = -R56x;
        A[15][14] = -R16y;
        A[15][15] = R16x;
    }
    if (W) {
        A[7][10] = A[8][11] = 1;
        A[9][10] = -RD4y;
        A[9][11] = RD4x;
    }
    if (S) {
        A[4][10] = A[5][11] = 1;
        A[6][10] = -RC3y;
        A[6][11] = RC3x;
    }
    Solve(r);

    const double* X = r.X;
    const int joint_entry[7] = {5, 0, 1, 6, 8, 9, 10}, joint_index[7] = {1, 3, 5, 7, 10, 12, 14};
    const int inertia_entry[5] = {3, 2, 4, 11, 12};
    for (int c = 0; c < 2; ++c) {
        for (int i = 0; i < 7; ++i) r.force[joint_entry[i]][c] = Round(X[joint_index[i] + c]);
        for (int i = 0; i < 5; ++i) r.force[inertia_entry[i]][c] = -F[i][c];
        r.force[7][c] = Round(-(double(r.force[6][c]) + r.force[5][c] + r.force[10][c]));
    }
    r.torque[0] = Round(X[9]);
    r.torque[1] = Round(m.LinkTorque(3) + M3 - T[1]);
    r.torque[2] = Round(m.LinkTorque(4) + M4 - T[2]);
    r.torque[3] = Round(-X[9]);
    r.torque[4] = Round(m.LinkTorque(5) + M5 - T[3]);
    r.torque[5] = Round(T6 + M6 - T[4]);
    return r;
}

}  // namespace kervol
