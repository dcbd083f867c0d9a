// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/html_table.h"

namespace kervol {

HtmlTable::HtmlTable(const std::vector<std::string>& heads, std::size_t numbers)
    : columns_(heads.size()), numbers_(numbers), text_("<table>") {
    if (!heads.empty()) {
        text_ += "<thead><tr>";
        for (std::size_t i = 0; i < heads.size(); ++i) text_ += Cell("th", heads[i], i);
        text_ += "</tr></thead>";
    }
    text_ += "<tbody>\n";
}

void HtmlTable::Add_Row(const std::vector<std::string>& cells) {
    text_ += "<tr>";
    for (std::size_t i = 0; i < cells.size(); ++i) text_ += Cell(i == 0 ? "th" : "td", cells[i], i);
    text_ += "</tr>\n";
}

void HtmlTable::Add_Group(const std::string& name) {
    text_ += "<tr class=\"group\"><th colspan=\"" + std::to_string(columns_) + "\">" + Markup_Text(name) +
             "</th></tr>\n";
}

std::string HtmlTable::Cell(const char* tag, const std::string& content, std::size_t column) const {
    const std::string name = tag;
    return "<" + name + (column >= numbers_ ? " class=\"n\">" : ">") + Markup_Text(content) + "</" + name +
           ">";
}

}  // namespace kervol
