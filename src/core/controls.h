// SPDX-License-Identifier: GPL-3.0-or-later
// Controls of a screen as plain records: what stands on them and what a person may do with them. A toolkit
// mirrors them.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/picture.h"

namespace kervol {

/// What happens when a person uses a control; empty where nothing does.
using Event = std::function<void()>;

struct Control {
    bool enabled = true;
    bool visible = true;
};

struct Label : Control {
    std::string caption;
    std::optional<Colour> colour;  ///< of the text; without one that of all texts
};

struct Button : Control {
    std::string caption;
    Event click;
};

/// A field keeps the value behind the text that the program put, so that reading it back loses nothing.
struct TextField : Control {
    std::string text;
    std::optional<float> put_value;  ///< nothing for a plain text, and after any change by the user
    Event change, lost_focus, enter;
};

/// A long text to be read, in a font of one width.
struct TextView : Control {
    std::string text;
};

struct Frame : Control {
    std::string caption;
};

/// An option of a group; at most one of a group is on.
struct OptionButton : Control {
    std::string caption;
    bool on = false;
    Event click;
};

struct CheckBox : Control {
    std::string caption;
    bool on = false;
    Event click;
};

/// A write by the program raises the click as a person's would.
inline void Put_Check(CheckBox& box, bool on) {
    if (box.on == on) return;
    box.on = on;
    if (box.click) box.click();
}

struct ScrollBar : Control {
    int minimum = 0;
    int maximum = 0;
    int value = 0;
    Event change, scroll;
};

/// A write by the program raises the change as a person's would.
inline void Put_Value(ScrollBar& bar, int value) {
    if (bar.value == value) return;
    bar.value = value;
    if (bar.change) bar.change();
}

/// A list whose choice stands as text; the text may be none of the list's.
struct ComboBox : Control {
    std::string text;
    std::vector<std::string> items;
    Event change;               ///< the text is another one, however it came about
    Event click, double_click;  ///< an entry was picked, also the one that stands
};

/// A picture to point at.
struct PictureBox : Control {
    Event click, double_click;
};

struct MenuItem : Control {
    std::string caption;
    bool checked = false;
    Event click;
};

}  // namespace kervol
