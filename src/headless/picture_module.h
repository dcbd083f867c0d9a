// SPDX-License-Identifier: GPL-3.0-or-later
// Sheets as picture files through the module that holds the toolkit, which is loaded at the first use: what
// only computes never pays for it.
#pragma once

#include <stdexcept>
#include <string>

#include "core/sheet.h"

namespace kervol {

/// What is wrong with the module, or with what it was asked for, and how to mend it.
class PictureModuleError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The content of the file.
std::string Render_Sheet(const Sheet& sheet, PictureFormat format);

}  // namespace kervol
