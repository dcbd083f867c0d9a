// SPDX-License-Identifier: GPL-3.0-or-later
// Lines of a list that is read by a person.
#pragma once

#include <string>

namespace kervol {

/// What is told, and what there is to tell.
struct NamedText {
    std::string name;
    std::string text;
};

}  // namespace kervol
