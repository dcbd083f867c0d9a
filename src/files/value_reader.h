// SPDX-License-Identifier: GPL-3.0-or-later
// Values of a positional text file, read one after the other. Pieces end at commas and line ends outside
// quotes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kervol {

/// Reads from the whole content of a file. Reading behind its end is fault 62; a piece that is not of the
/// wanted kind is fault 13, a number too large for it fault 6. The target then keeps its value.
class ValueReader {
  public:
    /// A byte-order mark at the start is skipped.
    explicit ValueReader(std::string content);

    /// No byte is left.
    bool At_End() const { return at_ == content_.size(); }

    /// In quotes, which commas and line ends do not end, or bare up to the next comma or line end. Bytes that
    /// are not valid UTF-8 are taken as Windows-1252.
    void Read(std::string& text);
    /// Decimal with a point; a blank ends it too.
    void Read(float& number);
    /// A decimal is rounded, a half to the even neighbour.
    void Read(std::int16_t& number);
    void Read(std::int32_t& number);
    /// #TRUE# or #FALSE#.
    void Read(bool& flag);

    /// Reads and drops that many texts.
    void Skip(int count);

    /// Line of the next value, counted from 1.
    std::size_t Line() const;

  private:
    void Begin_Value();
    void Skip_Blanks();
    /// Up to the next byte of one of these meanings; see the source.
    std::string_view Take_Until(std::uint8_t ends);
    std::string_view Take_Number();
    void End_Value();

    std::string content_;
    std::size_t at_ = 0;
};

}  // namespace kervol
