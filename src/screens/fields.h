// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers in text fields.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/controls.h"

namespace kervol {

/// Shows a value with the decimals of a display code and keeps the value itself behind the text.
void Put_Number(TextField& field, float value, std::int16_t code);

/// The same as plain number text.
void Put_Plain_Number(TextField& field, float value);

/// Shows a text that stands for a value, for instance one kept as text in the model.
void Put_Number_Text(TextField& field, std::string_view text, float value);

/// The value behind the field: what the program put, or, once the user has changed the text, the number it
/// starts with.
float Number_In(const TextField& field);

/// The number that a typed text starts with, 0 if none. Commas count as grouping only in the very form in
/// which the program writes them ("1,234.500").
double Typed_Number(std::string_view text);

}  // namespace kervol
