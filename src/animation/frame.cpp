// SPDX-License-Identifier: GPL-3.0-or-later
#include "animation/frame.h"

#include "core/arithmetic.h"
#include "core/mathematics.h"

namespace kervol {

UserPoint To_User_Frame(const LinkageModel& model, float x, float y) {
    if (Is_Zero(model.GroundAngleDeg)) return {x, y};
    UserPoint turned;
    Rotate(x, y, model.GroundAngleDeg, 1, turned.x, turned.y);
    return turned;
}

UserPoint User_Position(const Program& program, std::int16_t step, int point) {
    const auto& position = program.tables.PointPos(step, point);
    return To_User_Frame(program.model, position(0), position(1));
}

UserPoint Pivot_O4(const LinkageModel& model) {
    return To_User_Frame(model, model.Link1, 0);
}

UserPoint Pivot_O6(const LinkageModel& model) {
    return To_User_Frame(model, Single(double(model.O4O6X) + model.Link1), model.O4O6Y);
}

}  // namespace kervol
