// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/builders.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "qt/elided_label.h"
#include "qt/number_field.h"

namespace kervol::form {
namespace {

/// Sized by the font, so that numbers and units fit at every one.
constexpr auto kWidestNumber = "-1,234.567";
constexpr int kLettersOfHeader = 24;

template <class Widget>
Widget* Named(Widget* widget, const QString& name, const QString& accessible, const QString& tip) {
    widget->setObjectName(name);
    widget->setAccessibleName(accessible);
    widget->setToolTip(tip);
    return widget;
}

}  // namespace

QLabel* New_Label(const QString& name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* New_Header() {
    auto* header = new ElidedLabel(kLettersOfHeader);
    header->setObjectName("lbl_Header");
    header->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    return header;
}

QLabel* New_Heading(const QString& name, double size) {
    QLabel* label = New_Label(name);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * size);
    font.setBold(true);
    label->setFont(font);
    return label;
}

QPushButton* New_Button(const QString& name) {
    auto* button = new QPushButton;
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

QRadioButton* New_Option(const QString& name, const QString& accessible, const QString& tip) {
    return Named(new QRadioButton, name, accessible, tip);
}

QCheckBox* New_Check(const QString& name, const QString& tip) {
    auto* box = new QCheckBox;
    box->setObjectName(name);
    box->setToolTip(tip);
    return box;
}

QLineEdit* New_Text(const QString& name, const QString& accessible, const QString& tip) {
    return Named(new QLineEdit, name, accessible, tip);
}

QLineEdit* New_Number(const QString& name, const QString& accessible, const QString& tip) {
    QLineEdit* field = New_Text(name, accessible, tip);
    field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    field->setFixedWidth(field->fontMetrics().horizontalAdvance(kWidestNumber) + 14);
    Watch_Number(field);
    return field;
}

QComboBox* New_Combo(const QString& name, const QString& accessible, const QString& tip) {
    return Named(new QComboBox, name, accessible, tip);
}

QComboBox* New_Number_Combo(const QString& name, const QString& accessible, const QString& tip) {
    QComboBox* combo = New_Combo(name, accessible, tip);
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    // Or 5 would become 50.
    combo->setCompleter(nullptr);
    return combo;
}

QLabel* New_Unit(const QString& name, const QString& widest) {
    QLabel* label = New_Label(name);
    label->setText(widest);
    label->setMinimumWidth(label->sizeHint().width());
    return label;
}

QGroupBox* New_Group(const QString& title) {
    return new QGroupBox(title);
}

QGroupBox* New_Frame(const QString& name) {
    QGroupBox* group = New_Group({});
    group->setObjectName(name);
    return group;
}

QGridLayout* New_Group_Grid(QGroupBox* group) {
    auto* grid = new QGridLayout(group);
    grid->setContentsMargins(kGap, kRowGap, kGap, kGap);
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kRowGap);
    return grid;
}

void Hold_Row(QGridLayout* grid, int row, int height) {
    auto* strut = new QWidget;
    strut->setMinimumHeight(height);
    grid->addWidget(strut, row, 0);
}

void Keep_Room(QWidget* widget) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

QHBoxLayout* Button_Row(QPushButton* back, std::initializer_list<QPushButton*> others, QPushButton* next) {
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    if (back != nullptr) row->addWidget(back);
    row->addStretch();
    for (QPushButton* button : others) row->addWidget(button);
    if (next != nullptr) row->addWidget(next);
    return row;
}

void Set_Margins(QBoxLayout* layout) {
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kGap);
}

QLineEdit* Add_Row(QGridLayout* grid, int row, const FieldRow& names) {
    QLabel* label = New_Label(names.label);
    QLineEdit* field = New_Number(names.field, names.accessible, names.tip);
    label->setBuddy(field);
    label->setToolTip(names.tip);
    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
    grid->setColumnStretch(0, 1);
    QLabel* unit = New_Unit(names.unit, names.widest_unit);
    grid->addWidget(unit, row, 2);
    if (names.keeps_room)
        for (QWidget* part : std::initializer_list<QWidget*>{label, field, unit}) Keep_Room(part);
    return field;
}

}  // namespace kervol::form
