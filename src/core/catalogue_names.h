// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of the output catalogue and its presets, some of which follow the chain.
#pragma once

#include <string>

#include "core/table.h"

namespace kervol {

/// Index 0 stays unused in all of them.
struct CatalogueNames {
    Table<std::string, 67> CatalogName;
    Table<std::string, 5> ComponentName;
    Table<std::string, 51> PresetTitle2;
    Table<std::string, 43> PresetTitle4;
};

}  // namespace kervol
