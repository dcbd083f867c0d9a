// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/header.h"

namespace kervol {

std::string Put_Header(const LinkageModel& model) {
    std::string header = model.UserName + "\n Design No. " + std::to_string(model.DesignNumber) + "\n" +
                         model.DateText + "\n at " + model.TimeText;
    if (!model.ModelPath.empty()) header += "\n File: " + model.ModelName;
    return header;
}

}  // namespace kervol
