// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/look.h"

#include <QApplication>
#include <QProxyStyle>

namespace kervol {
namespace {

// How much a disabled text, and the marked row of a disabled list, stand out from the ground; 1 as enabled
// text.
constexpr double kTextShare = 0.55;
constexpr double kMarkShare = 0.3;

QColor Mixed(const QColor& one, const QColor& other, double share) {
    const auto mix = [share](double a, double b) { return static_cast<float>(a * share + b * (1 - share)); };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

/// Long lists drop down below their box, instead of over the whole height of the screen.
class DropDownStyle : public QProxyStyle {
  public:
    DropDownStyle() : QProxyStyle("Fusion") {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

}  // namespace

QPalette Readable_Roles(const QPalette& desktop) {
    const auto active = [&desktop](QPalette::ColorRole role) {
        return desktop.color(QPalette::Active, role);
    };
    QPalette readable;
    for (const auto& [text, ground] :
         {std::pair(QPalette::WindowText, QPalette::Window),
          std::pair(QPalette::ButtonText, QPalette::Button), std::pair(QPalette::Text, QPalette::Base)})
        readable.setColor(QPalette::Disabled, text, Mixed(active(text), active(ground), kTextShare));
    readable.setColor(QPalette::Disabled, QPalette::Highlight,
                      Mixed(active(QPalette::Text), active(QPalette::Base), kMarkShare));
    readable.setColor(QPalette::Disabled, QPalette::HighlightedText, active(QPalette::Text));
    return readable;
}

void Set_Look() {
    QApplication::setStyle(new DropDownStyle);
    QApplication::setPalette(Readable_Roles(QApplication::palette()));
}

}  // namespace kervol
