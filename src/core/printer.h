// SPDX-License-Identifier: GPL-3.0-or-later
// A document on its way to the printer, line by line in a face whose characters are equally wide.
#pragma once

#include <string_view>

namespace kervol {

class Printer {
  public:
    /// A document that was not ended is abandoned.
    virtual ~Printer() = default;

    virtual void Print_Line(std::string_view line) = 0;
    virtual void New_Page() = 0;
    /// Number of the page that the next line goes to, from 1.
    virtual int Page() const = 0;
    /// Hands the document over; nothing can be printed behind it.
    virtual void End_Document() = 0;
};

}  // namespace kervol
