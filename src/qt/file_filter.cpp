// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/file_filter.h"

#include "rendering/qt_text.h"

namespace kervol {
namespace {

/// A file without a point in its name matches "*.*" too where that pattern comes from.
QString Qt_Pattern(const QString& pattern) {
    return pattern == "*.*" ? QString("*") : pattern;
}

QString Name_Filter(const QString& description, const QString& pattern) {
    QString name = description;
    // The toolkit writes the pattern behind the name itself.
    const QString given = "(" + pattern + ")";
    if (name.endsWith(given)) name.chop(given.size());
    name = name.trimmed();
    return (name.isEmpty() ? name : name + " ") + "(" + Qt_Pattern(pattern) + ")";
}

}  // namespace

QStringList Qt_Name_Filters(const std::string& filter) {
    QStringList pieces = Qt_Text(filter).split('|');
    for (QString& piece : pieces) piece = piece.trimmed();
    while (!pieces.isEmpty() && pieces.last().isEmpty()) pieces.removeLast();
    if (pieces.size() == 1) return {Qt_Pattern(pieces.first())};
    QStringList filters;
    for (qsizetype i = 0; i + 1 < pieces.size(); i += 2)
        filters.append(Name_Filter(pieces[i], pieces[i + 1]));
    return filters;
}

}  // namespace kervol
