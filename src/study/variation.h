// SPDX-License-Identifier: GPL-3.0-or-later
// A field of the model that a study gives one value after the other.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/model.h"

namespace kervol {

/// A field that a person enters, and what follows from it.
struct StudyInput {
    std::string_view field;               ///< name in `Model_Fields`
    void (*follow)(LinkageModel& model);  ///< nothing where the calculation itself sees to it
};

class Variation {
  public:
    /// Takes "FIELD=FROM:TO:STEP", of link data "FIELD(LINK)=..." and "LinkCG(LINK,PART)=...". Returns what
    /// is wrong with it, empty if nothing is.
    std::string Parse(const std::string& text);

    /// As it was named, with its indices.
    const std::string& Field() const { return field_; }
    /// How many values there are: FROM and as many steps as fit up to TO, which counts where a step meets it
    /// within a millionth.
    std::uint64_t Count() const { return count_; }
    /// The value of that number, from 0, as the field holds it.
    double Value(std::uint64_t number) const;
    std::string Value_Text(std::uint64_t number) const;

    /// Gives the field its value. `Follow`, and then `Derive_Geometry`, have to come behind when all fields
    /// that vary have theirs.
    void Set(LinkageModel& model, std::uint64_t number) const;
    void Follow(LinkageModel& model) const;

  private:
    std::string Parse_Field(const std::string& text);
    std::string Parse_Range(const std::string& text);
    bool Is_Integer() const;

    std::string field_;
    const StudyInput* input_ = nullptr;
    std::size_t member_ = 0;  ///< index in `Model_Fields`
    std::vector<int> indices_;
    double from_ = 0, step_ = 0;
    std::uint64_t count_ = 0;
};

}  // namespace kervol
