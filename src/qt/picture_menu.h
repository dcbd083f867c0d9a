// SPDX-License-Identifier: GPL-3.0-or-later
// The context menu of charts and pictures.
#pragma once

#include <functional>
#include <string>

#include "core/sheet.h"

class QWidget;

namespace kervol {

struct PictureMenu {
    std::function<Sheet()> sheet;         ///< what is saved
    std::function<std::string()> values;  ///< what is copied; empty where there are no values
};

/// "Save picture as..." and "Copy values", by the mouse or the menu key. A menu that the picture has already
/// is replaced.
void Offer_Picture_Menu(QWidget& picture, PictureMenu menu);

}  // namespace kervol
