// SPDX-License-Identifier: GPL-3.0-or-later
// The catalogue and both preset tables as a fresh program offers them, written out name by name.
#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace kervol {

/// Columns that the function doesn't have are -1.
struct ExpectedFunction {
    int number;
    std::string_view name;
    int code, column, stage;
    std::string_view kind;
};

struct ExpectedPreset {
    int row;
    std::string_view title;
    std::vector<std::string_view> functions;
    std::string_view components;  ///< with a blank between
};

std::span<const ExpectedFunction> Expected_Functions();
std::span<const ExpectedPreset> Expected_Two_Function_Presets();
std::span<const ExpectedPreset> Expected_Four_Function_Presets();

}  // namespace kervol
