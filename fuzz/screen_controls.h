// SPDX-License-Identifier: GPL-3.0-or-later
// What a person can use on a screen, by name.
#pragma once

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "core/chart.h"
#include "core/controls.h"
#include "screens/screens.h"

namespace kervol {

/// One option of its group.
struct OptionOfGroup {
    OptionButton* first;
    std::size_t count;
    std::size_t index;

    OptionButton& Option() const { return first[index]; }
};

struct NamedControl {
    std::string name;
    std::variant<Button*, MenuItem*, TextField*, CheckBox*, ScrollBar*, ComboBox*, PictureBox*, Chart*,
                 OptionOfGroup>
        control;
    /// A menu or frame around it, without which it cannot be reached.
    const Control* container = nullptr;
};

/// The same ones each time; whether they are enabled changes.
std::vector<NamedControl> Controls_Of(Screens& screens, ScreenId screen);

bool Is_Usable(const NamedControl& named);

}  // namespace kervol
