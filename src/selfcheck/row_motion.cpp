// SPDX-License-Identifier: GPL-3.0-or-later
#include "selfcheck/row_motion.h"

#include <cmath>

#include "core/arithmetic.h"
#include "core/model_questions.h"

namespace kervol {
namespace {

struct DyadRates {
    Rates first, second;
};

/// Rates of two links that hang together: the first begins at a moving point, the second at a pivot that
/// stands still. With p and q from their beginnings to their common end, and i a quarter turn:
///   v + i w1 p - i w2 q = 0,   a + i al1 p - w1^2 p - i al2 q + w2^2 q = 0.
/// `reversed` gives the second link's share along x in the first equation the opposite sign.
std::optional<DyadRates> Dyad_Rates(const PointMotion& begin, Vec p, Vec q, bool reversed) {
    const double q_along_x = reversed ? -q.y : q.y;
    const auto omega = Solve_Pair(-p.y, q_along_x, -begin.velocity.x, p.x, -q.x, -begin.velocity.y);
    if (!omega) return std::nullopt;
    const Vec known = omega->x * omega->x * p - omega->y * omega->y * q - begin.acceleration;
    const auto alpha = Solve_Pair(-p.y, q.y, known.x, p.x, -q.x, known.y);
    if (!alpha) return std::nullopt;
    return DyadRates{{omega->x, alpha->x}, {omega->y, alpha->y}};
}

PointMotion Turned(double length, double angle, Rates rates, const PointMotion& base) {
    return Point_On_Arm(Arm(length, angle), rates.omega, rates.alpha, base);
}

PointMotion Fixed(Vec pivot) {
    return Fixed_Pivot(pivot.x, pivot.y);
}

bool Put_Stage1(const LinkageModel& model, const LinkAngles& theta, RowMotion& row) {
    auto& link = row.link;
    const PointMotion A = Turned(model.Link2, theta(2), link(2), Fixed({}));
    const Vec p = Arm(model.Link3, theta(3)).Position(), q = Arm(model.Link4, theta(4)).Position();
    const auto rates = Dyad_Rates(A, p, q, false);
    if (!rates) return false;
    link(3) = rates->first;
    link(4) = rates->second;
    row.point(0) = A;
    row.point(1) = Turned(model.Link4, theta(4), link(4), Fixed(Local_O4(model)));
    row.point(2) = Turned(model.CouplerAC, theta(3) + model.Delta3, link(3), A);
    row.gap(0) = A.position + p - (Local_O4(model) + q);
    return true;
}

bool Put_Stage2(const LinkageModel& model, const LinkAngles& theta, Rules rules, RowMotion& row) {
    auto& link = row.link;
    const bool watt = model.LinkageType == "W";
    const PointMotion pin =
        watt ? Turned(model.LinkO4D, theta(4) + model.Delta4, link(4), Fixed(Local_O4(model))) : row.point(2);
    const Vec p = Arm(model.Link5, theta(5)).Position(), q = Arm(model.Link6, theta(6)).Position();
    const auto rates = Dyad_Rates(pin, p, q, !watt && rules.Has(Deviation::Stage2Speeds));
    if (!rates) return false;
    link(5) = rates->first;
    link(6) = rates->second;
    row.point(3) = pin;
    row.point(4) = Turned(model.Link6, theta(6), link(6), Fixed(Local_O6(model)));
    row.point(5) = Turned(model.Coupler2Length, theta(5) + model.Delta5, link(5), pin);
    row.gap(1) = pin.position + p - (Local_O6(model) + q);
    return true;
}

void Put_Centres(const LinkageModel& model, const LinkAngles& theta, Rules rules, RowMotion& row) {
    const PointMotion pin = rules.Has(Deviation::Link5CG) ? Fixed(row.point(3).position) : row.point(3);
    const PointMotion bases[] = {
        {}, {}, {}, row.point(0), Fixed(Local_O4(model)), pin, Fixed(Local_O6(model))};
    for (int k = 2; k <= NumLinks; ++k)
        row.cg(k) = Turned(model.LinkCG(k, 0), theta(k) + model.LinkCG(k, 1), row.link(k), bases[k]);
}

}  // namespace

std::optional<Vec> Solve_Pair(double a11, double a12, double b1, double a21, double a22, double b2) {
    const double determinant = a11 * a22 - a12 * a21;
    if (Is_Zero(determinant)) return std::nullopt;
    const Vec solution = {(b1 * a22 - a12 * b2) / determinant, (a11 * b2 - b1 * a21) / determinant};
    if (!std::isfinite(solution.x) || !std::isfinite(solution.y)) return std::nullopt;
    return solution;
}

Vec Local_O4(const LinkageModel& model) {
    return {model.Link1, 0};
}

Vec Local_O6(const LinkageModel& model) {
    if (model.LinkageType == "W") return {double(model.O4O6X) + model.Link1, model.O4O6Y};
    return {model.O6LocalX, model.O6LocalY};
}

std::optional<RowMotion> Motion_Of_Row(const LinkageModel& model, const LinkAngles& theta, Rates crank,
                                       Rules rules) {
    RowMotion row;
    row.link(2) = crank;
    if (!Put_Stage1(model, theta, row)) return std::nullopt;
    if (Has_Stage2(model) && !Put_Stage2(model, theta, rules, row)) return std::nullopt;
    Put_Centres(model, theta, rules, row);
    return row;
}

}  // namespace kervol
