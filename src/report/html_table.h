// SPDX-License-Identifier: GPL-3.0-or-later
// Tables of a page. All texts are made safe.
#pragma once

#include <string>
#include <vector>

#include "core/markup_text.h"

namespace kervol {

class HtmlTable {
  public:
    /// Columns from the one of index `numbers` on stand to the right; no heads, no line for them.
    explicit HtmlTable(const std::vector<std::string>& heads, std::size_t numbers);

    void Add_Row(const std::vector<std::string>& cells);
    /// A line over the whole width that names the rows below it.
    void Add_Group(const std::string& name);

    std::string Text() const { return text_ + "</tbody></table>\n"; }

  private:
    std::string Cell(const char* tag, const std::string& content, std::size_t column) const;

    std::size_t columns_, numbers_;
    std::string text_;
};

}  // namespace kervol
