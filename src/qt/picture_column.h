// SPDX-License-Identifier: GPL-3.0-or-later
// The picture of the linkage with what stands around it on every screen that shows it.
#pragma once

#include <QString>

class QHBoxLayout;
class QLayout;
class QScrollBar;
class QVBoxLayout;
class QWidget;

namespace kervol {
class PictureList;
}

namespace kervol::form {

/// A scroll bar for the keyboard too: it takes the focus, and shows it.
QScrollBar* New_Bar(const QString& name, const QString& accessible, const QString& tip);
/// What the step means: "Theta2 30.0 deg".
QHBoxLayout* New_Step_Value();
/// Title, picture and step bar; the picture takes the room. `value` stands between the ends of the bar, if
/// given.
QVBoxLayout* New_Picture_Column(PictureList& list, QLayout* value);
/// Says in words what the picture shows, for those who cannot see it.
void Describe_Picture(const QWidget& form);

}  // namespace kervol::form
