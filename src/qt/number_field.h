// SPDX-License-Identifier: GPL-3.0-or-later
// What a person sees of a number that is not read as they may have meant it.
#pragma once

#include <QString>

class QLineEdit;

namespace kervol {

/// What is told about a typed text of which only the beginning counts as a number, as 2 of "2,5"; empty where
/// all of it does, and where nothing is typed.
QString Unread_Note(const QString& text);

/// Tells so below the field while it is typed, and marks the text until it is mended. Its tip is put in place
/// before.
void Watch_Number(QLineEdit* field);

}  // namespace kervol
