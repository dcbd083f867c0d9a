// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/look.h"

#include <QApplication>
#include <QPalette>

namespace kervol {
namespace {

QColor Mixed(const QColor& one, const QColor& other, double share) {
    const auto mix = [share](double a, double b) { return static_cast<float>(a * share + b * (1 - share)); };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

}  // namespace

void Set_Look() {
    QApplication::setStyle("Fusion");
    const QPalette desktop = QApplication::palette();
    // Only these roles are set; all others go on following the desktop.
    QPalette readable;
    constexpr double kTextShare = 0.55;
    for (const auto& [text, ground] :
         {std::pair(QPalette::WindowText, QPalette::Window),
          std::pair(QPalette::ButtonText, QPalette::Button), std::pair(QPalette::Text, QPalette::Base)})
        readable.setColor(QPalette::Disabled, text,
                          Mixed(desktop.color(QPalette::Active, text),
                                desktop.color(QPalette::Active, ground), kTextShare));
    QApplication::setPalette(readable);
}

}  // namespace kervol
