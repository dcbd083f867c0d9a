// SPDX-License-Identifier: GPL-3.0-or-later
// Lines of text on the pages of a printer or a PDF file.
#pragma once

#include <QFont>
#include <QPainter>
#include <QPrinter>
#include <memory>

#include "core/printer.h"

namespace kervol {

class PagePrinter : public Printer {
  public:
    /// Begins the document; fault 57 where the printer cannot. A page takes `lines` lines.
    PagePrinter(std::unique_ptr<QPrinter> printer, int lines);
    ~PagePrinter() override;

    void Print_Line(std::string_view line) override;
    void New_Page() override;
    int Page() const override { return page_; }
    void End_Document() override;

  private:
    std::unique_ptr<QPrinter> printer_;
    QPainter painter_;
    double line_height_ = 0;
    double next_line_ = 0;  ///< upper edge of the line to come, in dots
    int page_ = 1;
    bool ended_ = false;
};

}  // namespace kervol
