// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/look.h"

#include <QApplication>
#include <QProxyStyle>
#include <cmath>

namespace kervol {
namespace {

// How much a disabled text, and the marked row of a disabled list, stand out from the ground; 1 as enabled
// text.
constexpr double kTextShare = 0.55;
constexpr double kMarkShare = 0.3;
constexpr double kDark = 0.18;     // luminance up to which white stands out more than black
constexpr double kContrast = 4.5;  // that those rules ask of small texts

QColor Mixed(const QColor& one, const QColor& other, double share) {
    const auto mix = [share](double a, double b) { return static_cast<float>(a * share + b * (1 - share)); };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

/// Relative luminance as the rules for readable pages of the web define it (WCAG 2): 0 is black, 1 white.
double Luminance(const QColor& colour) {
    const auto part = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
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

QColor Readable_Text(const QColor& text, const QColor& ground) {
    if (Luminance(ground) > kDark) return text;
    const double wanted = kContrast * (Luminance(ground) + 0.05) - 0.05;
    QColor readable = text;
    for (int white = 1; white <= 10 && Luminance(readable) < wanted; ++white)
        readable = Mixed(Qt::white, text, 0.1 * white);
    return readable;
}

void Set_Look() {
    QApplication::setStyle(new DropDownStyle);
    QApplication::setPalette(Readable_Roles(QApplication::palette()));
}

}  // namespace kervol
