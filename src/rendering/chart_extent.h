// SPDX-License-Identifier: GPL-3.0-or-later
// What of the plane a chart scales its axes to.
#pragma once

#include "core/sheet.h"

namespace kervol {

/// Whether the area between the curves and 0 belongs to the chart.
bool Has_Fills(const ChartLook& look);

/// All points of the sets that are drawn, with small margins; about points of one value, or none, a range
/// that can be drawn.
PlaneView Whole_View(const ChartLook& look);

}  // namespace kervol
