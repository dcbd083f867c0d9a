// SPDX-License-Identifier: GPL-3.0-or-later
// The list of the model's fields, for what goes over every one of them: the JSON of a run, comparisons in
// tests.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "core/model.h"

namespace kervol {

/// A field of the model, told by its kind.
using ModelMember =
    std::variant<float LinkageModel::*, std::int16_t LinkageModel::*, std::int32_t LinkageModel::*,
                 bool LinkageModel::*, std::string LinkageModel::*, LinkArray LinkageModel::*,
                 Table<float, NumLinks + 1, 2> LinkageModel::*, Table<float, 9> LinkageModel::*,
                 Table<std::string, 2> LinkageModel::*, Table<std::string, 19> LinkageModel::*>;

struct ModelField {
    std::string_view name;
    ModelMember member;
};

/// Every field of `LinkageModel`, in the order of its declaration.
std::span<const ModelField> Model_Fields();

}  // namespace kervol
