// SPDX-License-Identifier: GPL-3.0-or-later
// Mass properties and loads of the links.
#pragma once

#include "core/model.h"

namespace kervol {

/// Link data of a new model: all arrays zero, then masses, inertias and centres of gravity that suit its
/// geometry. The centre of gravity of a link is its middle, of the coupler it is coupler point 1.
void Default_Mass_Properties(LinkageModel& model);

}  // namespace kervol
