// SPDX-License-Identifier: GPL-3.0-or-later
// The texts under which functions and presets are offered, and those of them that name the joint of Stage 2.
#pragma once

#include <string_view>

#include "core/catalogue_names.h"

namespace kervol {

/// The texts of a fresh program, in all four tables; the entries 0 stay as they were.
void Fill_Catalogue_Names(CatalogueNames& names);

/// Gives three functions and six titles the texts of the chain, "W" or "S". Any other chain leaves all as
/// they were.
void Change_Catalog_Labels(CatalogueNames& names, std::string_view LinkageType);

}  // namespace kervol
