// SPDX-License-Identifier: GPL-3.0-or-later
// Sheets as picture files, without a window.
#pragma once

#include <string>

#include "core/sheet.h"

namespace kervol {

/// The content of the file: SVG with texts as texts, PNG, or PDF of one page as large as the sheet. Needs a
/// QApplication, of any platform. Empty for a sheet too large to be rendered.
std::string Rendered(const Sheet& sheet, PictureFormat format);

}  // namespace kervol
