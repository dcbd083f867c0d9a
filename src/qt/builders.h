// SPDX-License-Identifier: GPL-3.0-or-later
// What all forms are made of, so that they look of one piece: one margin, one field width, one row of
// buttons.
#pragma once

#include <QString>
#include <initializer_list>

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QWidget;

namespace kervol::form {

/// Logical pixels.
inline constexpr int kMargin = 12;
inline constexpr int kGap = 8;
inline constexpr int kRowGap = 4;

QLabel* New_Label(const QString& name);
/// `lbl_Header`: whose design this is, and of when.
QLabel* New_Header();
/// A larger, bold label.
QLabel* New_Heading(const QString& name, double size);
QPushButton* New_Button(const QString& name);
QRadioButton* New_Option(const QString& name, const QString& accessible, const QString& tip);
QCheckBox* New_Check(const QString& name, const QString& tip);
QLineEdit* New_Text(const QString& name, const QString& accessible, const QString& tip);
/// Right-aligned and of the one width of all number fields.
QLineEdit* New_Number(const QString& name, const QString& accessible, const QString& tip);
/// A list that drops down.
QComboBox* New_Combo(const QString& name, const QString& accessible, const QString& tip);
/// The same for numbers, which may also be typed.
QComboBox* New_Number_Combo(const QString& name, const QString& accessible, const QString& tip);
/// As wide as the longest unit of its column.
QLabel* New_Unit(const QString& name, const QString& widest);
QGroupBox* New_Group(const QString& title);
/// A group whose title stands in its record.
QGroupBox* New_Frame(const QString& name);
/// Grid with the margins and gaps of a group.
QGridLayout* New_Group_Grid(QGroupBox* group);

/// Makes the row at least as high, whatever it holds. An empty row of a grid would lose its gap too.
void Hold_Row(QGridLayout* grid, int row, int height);

/// Keeps its place in the layout while it is hidden.
void Keep_Room(QWidget* widget);
/// Back at the left, next at the right, what else there is between them.
QHBoxLayout* Button_Row(QPushButton* back, std::initializer_list<QPushButton*> others, QPushButton* next);
void Set_Margins(QBoxLayout* layout);

struct FieldRow {
    QString label, field, unit;  ///< object names
    QString accessible, tip;
    QString widest_unit = "deg";
    bool keeps_room = true;  ///< while it is hidden
};
/// One row: label, number, unit. Gives the number's field.
QLineEdit* Add_Row(QGridLayout* grid, int row, const FieldRow& names);

}  // namespace kervol::form
