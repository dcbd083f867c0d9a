// SPDX-License-Identifier: GPL-3.0-or-later
// Writes values as text, one a line, in the form that `ValueReader` takes. Lines end with CR LF.
#pragma once

#include <cstdint>
#include <string_view>

#include "files/output_file.h"

namespace kervol {

class ValueWriter {
  public:
    explicit ValueWriter(OutputFile& file) : file_(file) {}

    /// In quotes. Deliberate: a quote within the text is not guarded.
    void Write(std::string_view text);
    void Write(float number);
    void Write(std::int32_t number);
    void Write(bool flag);
    /// Three numbers on one line, with commas between.
    void Write_Row(float first, float second, float third);
    /// That many empty texts.
    void Write_Reserved(int count);

  private:
    void Write_Line(std::string_view line);

    OutputFile& file_;
};

}  // namespace kervol
