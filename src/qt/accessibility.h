// SPDX-License-Identifier: GPL-3.0-or-later
// What a screen reader is told beyond the names that the forms give their controls.
#pragma once

class QWidget;

namespace kervol {

/// Windows, figures and charts say what they are; the toolkit takes widgets of our own for nameless room.
void Announce_Own_Widgets();

/// Names the parts that the toolkit adds to the widgets of a form after those: the bars that scroll them, the
/// fields of combo boxes, the bar of menus. Does nothing to a part that has a name.
void Name_Toolkit_Parts(QWidget& form);

}  // namespace kervol
