// SPDX-License-Identifier: GPL-3.0-or-later
// What a deviation is, in words and with the figures of a model.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/model.h"
#include "selfcheck/self_check.h"

namespace kervol {

/// Four significant digits, never by the locale: "12.35", "1.235e-07".
std::string Four_Digits(double value);

/// Short name in JSON: "Stage2Speeds", ...
std::string_view Deviation_Name(Deviation deviation);
/// Heading: "Speeds of Stage 2", ...
std::string_view Deviation_Title(Deviation deviation);

/// Whether it makes any difference to the model's kind and numbers, be it too small to be seen.
bool Applies(Deviation deviation, const LinkageModel& model, const SelfCheck& result);

/// Those that apply, in the order of `AllDeviations`.
std::vector<DeviationEffect> Applying_Deviations(const LinkageModel& model, const SelfCheck& result);

/// What the tables do, what a rigid linkage does, and the figures of the model. One paragraph without line
/// breaks.
std::string Deviation_Text(Deviation deviation, const LinkageModel& model, const SelfCheck& result);

/// What it does to the driving torque by itself; empty where no forces were solved, and of transmission
/// angles, which no force hangs on.
std::string Effect_Text(const DeviationEffect& effect, const LinkageModel& model, const SelfCheck& result);

/// Of this name among the checks; nothing where it was not compared.
const CheckedValue* Find_Check(const SelfCheck& result, std::string_view name);

}  // namespace kervol
