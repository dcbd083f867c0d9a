// SPDX-License-Identifier: GPL-3.0-or-later
// The groups of fields that every screen with an editable linkage carries.
#pragma once

#include <array>

#include "qt/builders.h"

namespace kervol::form {

/// Names of field `field` of the geometry with its label and unit.
FieldRow Link_Row(int field, const QString& accessible, const QString& tip);
/// Groups whose captions change with chain and drive stay as wide as with the widest of them.
void Set_Right_Width(QGridLayout* grid);

QGroupBox* New_Stage1();
/// Links 5 and 6; below them the arm on which link 5 hangs.
QGroupBox* New_Stage2();
/// With the angle to ground, which follows from it.
QGroupBox* New_Pivot_O4();
QGroupBox* New_Pivot_O6();

/// A row of two options behind a title.
void Add_Choice(QGridLayout* grid, int row, const QString& title, const QString& group,
                std::array<QString, 2> accessible, std::array<QString, 2> tips);
/// Open or crossed, for stage 1 or 2.
void Add_Assembly(QGridLayout* grid, int row, int stage);
/// Field `field` of the drive.
void Add_Drive_Row(QGridLayout* grid, int row, int field, const QString& tip);

}  // namespace kervol::form
