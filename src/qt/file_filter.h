// SPDX-License-Identifier: GPL-3.0-or-later
// Filters of file dialogs, from pairs of description and pattern to the toolkit's list.
#pragma once

#include <QStringList>
#include <string>

namespace kervol {

/// "Models (*.kvl)|*.kvl|All (*.*)|*.*|" becomes "Models (*.kvl)", "All (*)". A single pattern stands for
/// itself.
QStringList Qt_Name_Filters(const std::string& filter);

}  // namespace kervol
