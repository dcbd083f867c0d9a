// SPDX-License-Identifier: GPL-3.0-or-later
#include "demand.h"

#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "support/finite.h"

namespace kervol {
namespace {

void Demand_None(const std::vector<std::string>& names, std::string_view where) {
    for (const std::string& name : names) Demand(false, name + " is not finite", where);
}

}  // namespace

void Demand(bool holds, std::string_view what, std::string_view where) {
    if (holds) return;
    std::cerr << "== FINDING: " << what << ", " << where << std::endl;
    std::abort();
}

void Demand_Finite(const Program& program, std::string_view where) {
    Demand_None(Not_Finite(program), where);
}

void Demand_Finite(const LinkageModel& model, std::string_view where) {
    Demand_None(Not_Finite(model), where);
}

}  // namespace kervol
