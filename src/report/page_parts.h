// SPDX-License-Identifier: GPL-3.0-or-later
// Pieces that the sections of the report are made of.
#pragma once

#include <string>
#include <vector>

#include "core/named_text.h"

namespace kervol {

/// An element with its attributes behind the tag's name; the content is markup.
std::string Element(const std::string& tag, const std::string& content);

/// A framed part of a section; the content is markup.
std::string Panel(const std::string& heading, const std::string& content);

std::string List_Table(const std::vector<NamedText>& lines);

/// A list with a dot before each text.
std::string Bullets(const std::vector<std::string>& texts);

}  // namespace kervol
