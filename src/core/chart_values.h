// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers of a chart as a text that spreadsheets take.
#pragma once

#include <string>

#include "core/chart.h"

namespace kervol {

/// One line of titles, then one for each point: its label and its value in every set that is drawn, of a
/// polar chart x and y. Columns are parted by tabs; numbers read back to the same single.
std::string Chart_Values(const ChartLook& look);

}  // namespace kervol
