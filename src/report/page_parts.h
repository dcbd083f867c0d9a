// SPDX-License-Identifier: GPL-3.0-or-later
// Pieces that the sections of a page are made of.
#pragma once

#include <string>
#include <vector>

#include "report/html_table.h"
#include "report/model_words.h"

namespace kervol {

/// The tag may carry attributes: `figure`, `div class="panel"`. The content stands as it is.
inline std::string Element(const std::string& tag, const std::string& content) {
    return "<" + tag + ">" + content + "</" + tag.substr(0, tag.find(' ')) + ">\n";
}

inline std::string Panel(const std::string& heading, const std::string& content) {
    return Element("div class=\"panel\"", Element("h3", Markup_Text(heading)) + content);
}

inline std::string List_Table(const std::vector<NamedText>& lines) {
    HtmlTable table({}, 2);
    for (const NamedText& line : lines) table.Add_Row({line.name, line.text});
    return table.Text();
}

}  // namespace kervol
