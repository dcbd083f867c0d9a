// SPDX-License-Identifier: GPL-3.0-or-later
// A printer whose pages stay texts.
#pragma once

#include <string>
#include <vector>

#include "core/printer.h"

namespace kervol {

struct PrintedDocument {
    std::vector<std::string> pages = {""};  ///< each line ends with "\n"
    bool ended = false;

    /// All pages, parted by form feeds.
    std::string Text() const;
};

class TextPrinter : public Printer {
  public:
    /// Prints to a document that outlives the printer.
    explicit TextPrinter(PrintedDocument& document) : document_(document) {}

    void Print_Line(std::string_view line) override;
    void New_Page() override { document_.pages.emplace_back(); }
    int Page() const override { return static_cast<int>(document_.pages.size()); }
    void End_Document() override { document_.ended = true; }

  private:
    PrintedDocument& document_;
};

}  // namespace kervol
