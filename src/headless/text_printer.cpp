// SPDX-License-Identifier: GPL-3.0-or-later
#include "headless/text_printer.h"

namespace kervol {

std::string PrintedDocument::Text() const {
    std::string text;
    for (const std::string& page : pages) text += (&page == &pages.front() ? "" : "\f") + page;
    return text;
}

void TextPrinter::Print_Line(std::string_view line) {
    document_.pages.back() += line;
    document_.pages.back() += '\n';
}

}  // namespace kervol
