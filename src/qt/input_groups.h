// SPDX-License-Identifier: GPL-3.0-or-later
// The groups of fields of the Input screen.
#pragma once

#include <functional>
#include <string>

class QVBoxLayout;
class QWidget;

namespace kervol {

struct InputGroups {
    QVBoxLayout* column;
    QWidget* first_focus;
    std::function<void(const std::string& chain)>
        show_chain;  ///< puts the chain's figure beside its directions
};

InputGroups New_Input_Groups();

}  // namespace kervol
