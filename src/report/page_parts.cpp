// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/page_parts.h"

#include "report/html_table.h"

namespace kervol {

std::string Element(const std::string& tag, const std::string& content) {
    return "<" + tag + ">" + content + "</" + tag.substr(0, tag.find(' ')) + ">\n";
}

std::string Panel(const std::string& heading, const std::string& content) {
    return Element("div class=\"panel\"", Element("h3", Markup_Text(heading)) + content);
}

std::string List_Table(const std::vector<NamedText>& lines) {
    HtmlTable table({}, 2);
    for (const NamedText& line : lines) table.Add_Row({line.name, line.text});
    return table.Text();
}

std::string Bullets(const std::vector<std::string>& texts) {
    std::string items;
    for (const std::string& text : texts) items += Element("li", Markup_Text(text));
    return Element("ul class=\"boxes\"", items);
}

}  // namespace kervol
