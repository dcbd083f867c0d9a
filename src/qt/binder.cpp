// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/binder.h"

#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>
#include <memory>
#include <stdexcept>
#include <utility>

#include "qt/chart_widget.h"
#include "qt/choice_box.h"
#include "qt/data_table.h"
#include "qt/look.h"
#include "qt/pick_list.h"
#include "qt/plot_kind_picture.h"
#include "rendering/qt_text.h"

namespace kervol {
namespace {

bool Is_Enter(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

/// Of a key that is held down.
bool Is_Repeat(const QEvent& event) {
    return static_cast<const QKeyEvent&>(event).isAutoRepeat();
}

/// Another window, a menu: the user is still in the field.
bool Is_Passing(const QEvent& event) {
    const auto reason = static_cast<const QFocusEvent&>(event).reason();
    return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
           reason == Qt::MenuBarFocusReason;
}

void Colour_Text(QWidget& widget, Colour colour) {
    QPalette palette = widget.palette();
    const QColor shown =
        Readable_Text({colour.red, colour.green, colour.blue}, palette.color(QPalette::Window));
    if (palette.color(QPalette::WindowText) == shown) return;
    palette.setColor(QPalette::WindowText, shown);
    widget.setPalette(palette);
}

/// Names that the toolkit itself or a part of a form without a record may carry.
bool Is_Own_Name(const QString& name) {
    return name.isEmpty() || name.startsWith("qt_") || name == "Picture1" || name.startsWith("pct_Plot_");
}

void Put_Items(QComboBox& box, const std::vector<std::string>& items) {
    QStringList wanted, shown;
    for (const std::string& item : items) wanted.append(Qt_Text(item));
    for (int i = 0; i < box.count(); ++i) shown.append(box.itemText(i));
    if (shown == wanted) return;
    box.clear();
    box.addItems(wanted);
}

}  // namespace

Binder::Binder(QWidget& form, Runner run) : form_(form), run_(std::move(run)) {}

template <class Widget>
Widget* Binder::Take(const std::string& name) {
    names_.insert(name);
    auto* widget = form_.findChild<Widget*>(Qt_Text(name));
    if (widget == nullptr) missing_.push_back(name);
    return widget;
}

template <class Widget>
void Binder::Push_Common(Widget& widget, const Control& control) const {
    widget.setEnabled(control.enabled);
    widget.setVisible(control.visible);
}

void Binder::Act(const Control& control, const Event& event) {
    if (pushing_) return;
    Leave_Field();
    // Leaving the field may have taken the control away.
    if (control.enabled) run_(event);
}

void Binder::Add(const std::string& name, Label& label) {
    auto* widget = Take<QLabel>(name);
    if (widget == nullptr) return;
    widget->setTextFormat(Qt::PlainText);
    Push_Later([this, widget, &label] {
        const QString text = Qt_Lines(label.caption);
        if (widget->text() != text) widget->setText(text);
        if (label.colour) Colour_Text(*widget, *label.colour);
        Push_Common(*widget, label);
    });
}

void Binder::Add(const std::string& name, Button& button) {
    auto* widget = Take<QPushButton>(name);
    if (widget == nullptr) return;
    widget->setAutoDefault(false);
    widget->installEventFilter(this);
    connect(widget, &QPushButton::clicked, this, [this, widget, &button] {
        // A mnemonic clicks without moving the focus.
        if (!widget->hasFocus()) widget->setFocus(Qt::ShortcutFocusReason);
        Act(button, button.click);
    });
    Push_Later([this, widget, &button] {
        widget->setText(Qt_Lines(button.caption));
        Push_Common(*widget, button);
    });
}

void Binder::Add(const std::string& name, TextField& field) {
    auto* widget = Take<QLineEdit>(name);
    if (widget == nullptr) return;
    fields_.push_back({&field, widget});
    widget->installEventFilter(this);
    connect(widget, &QLineEdit::textChanged, this, [this, widget, &field](const QString& text) {
        if (pushing_) return;
        field.text = text.toStdString();
        field.put_value.reset();
        entered_ = {&field, widget};
        run_(field.change);
    });
    Push_Later([this, widget, &field] {
        const QString text = Qt_Text(field.text);
        if (widget->text() != text) {
            const bool selected = widget->hasFocus() && widget->hasSelectedText();
            widget->setText(text);
            widget->setCursorPosition(0);
            if (selected) widget->selectAll();
        }
        Push_Common(*widget, field);
    });
}

void Binder::Add(const std::string& name, TextView& view) {
    auto* widget = Take<QPlainTextEdit>(name);
    if (widget == nullptr) return;
    Push_Later([this, widget, &view] {
        const QString text = Qt_Text(view.text);
        if (widget->toPlainText() != text) widget->setPlainText(text);
        Push_Common(*widget, view);
    });
}

void Binder::Add(const std::string& name, Frame& frame) {
    auto* widget = Take<QWidget>(name);
    if (widget == nullptr) return;
    Push_Later([this, widget, &frame] {
        if (auto* group = qobject_cast<QGroupBox*>(widget)) group->setTitle(Qt_Lines(frame.caption));
        Push_Common(*widget, frame);
    });
}

void Binder::Add(const std::string& name, CheckBox& box) {
    auto* widget = Take<QCheckBox>(name);
    if (widget == nullptr) return;
    connect(widget, &QCheckBox::toggled, this, [this, &box](bool on) {
        if (pushing_) return;
        Leave_Field();
        box.on = on;
        Act(box, box.click);
    });
    Push_Later([this, widget, &box] {
        const QSignalBlocker quiet(widget);
        widget->setText(Qt_Lines(box.caption));
        widget->setChecked(box.on);
        Push_Common(*widget, box);
    });
}

void Binder::Add_Options(const std::string& name, OptionButton* options, std::size_t count) {
    auto* group = new QButtonGroup(this);
    std::vector<QRadioButton*> widgets;
    for (std::size_t i = 0; i < count; ++i) {
        auto* widget = Take<QRadioButton>(name + "_" + std::to_string(i));
        if (widget == nullptr) return;
        group->addButton(widget);
        widgets.push_back(widget);
        // Only a change counts as a click: the chosen option may be clicked again without effect.
        connect(widget, &QRadioButton::toggled, this, [this, options, count, i](bool on) {
            if (pushing_ || !on) return;
            Leave_Field();
            for (std::size_t other = 0; other < count; ++other) options[other].on = other == i;
            Act(options[i], options[i].click);
        });
    }
    Push_Later([this, group, widgets, options] {
        group->setExclusive(false);
        const bool any = std::any_of(options, options + widgets.size(),
                                     [](const OptionButton& option) { return option.on; });
        for (std::size_t i = 0; i < widgets.size(); ++i) {
            const QSignalBlocker quiet(widgets[i]);
            widgets[i]->setText(Qt_Lines(options[i].caption));
            widgets[i]->setChecked(options[i].on);
            // The tab key goes to the chosen one alone; the arrow keys lead to the others.
            widgets[i]->setFocusPolicy(options[i].on || !any ? Qt::StrongFocus : Qt::ClickFocus);
            Push_Common(*widgets[i], options[i]);
        }
        group->setExclusive(true);
    });
}

void Binder::Add(const std::string& name, ScrollBar& bar) {
    auto* widget = Take<QScrollBar>(name);
    if (widget == nullptr) return;
    connect(widget, &QScrollBar::valueChanged, this, [this, widget, &bar](int value) {
        Leave_Field();
        bar.value = value;
        scrolled_ = widget->isSliderDown();
        Act(bar, scrolled_ ? bar.scroll : bar.change);
    });
    connect(widget, &QScrollBar::sliderReleased, this, [this, &bar] {
        if (std::exchange(scrolled_, false)) Act(bar, bar.change);
    });
    Push_Later([this, widget, &bar] {
        const QSignalBlocker quiet(widget);
        widget->setRange(bar.minimum, bar.maximum);
        widget->setPageStep(std::max(1, (bar.maximum - bar.minimum) / 10));
        widget->setValue(bar.value);
        Push_Common(*widget, bar);
    });
}

std::function<void(const std::string&)> Binder::Picking(ComboBox& box, Event ComboBox::*event) {
    return [this, &box, event](const std::string& text) {
        Leave_Field();
        box.text = text;
        Act(box, box.*event);
    };
}

template <class List>
void Binder::Push_List(List& widget, ComboBox& box) {
    widget.picked = Picking(box, &ComboBox::click);
    Push_Later([this, &widget, &box] {
        widget.Show(box.items, box.text);
        Push_Common(widget, box);
    });
}

void Binder::Add(const std::string& name, PictureBox& picture) {
    auto* widget = Take<PlotKindPicture>(name);
    if (widget == nullptr) return;
    widget->clicked = [this, &picture] { Act(picture, picture.click); };
    widget->double_clicked = [this, &picture] { Act(picture, picture.double_click); };
    Push_Later([this, widget, &picture] { Push_Common(*widget, picture); });
}

void Binder::Add(const std::string& name, Grid& grid) {
    auto* widget = Take<DataTable>(name);
    if (widget == nullptr) return;
    Push_Later([widget, &grid] { widget->Show(grid); });
}

void Binder::Add(const std::string& name, Chart& chart) {
    auto* widget = Take<ChartWidget>(name);
    if (widget == nullptr) return;
    widget->clicked = [this, &chart] { Act(chart, chart.click); };
    Push_Later([this, widget, &chart] {
        widget->Show(chart.look);
        Push_Common(*widget, chart);
    });
}

void Binder::Add(const std::string& name, ComboBox& box) {
    // Searching by type would take every box of the toolkit for one of ours.
    auto* found = form_.findChild<QWidget*>(Qt_Text(name));
    names_.insert(name);
    if (auto* list = dynamic_cast<PickList*>(found)) {
        list->picked_twice = Picking(box, &ComboBox::double_click);
        return Push_List(*list, box);
    }
    if (auto* choice = dynamic_cast<ChoiceBox*>(found)) {
        choice->typed = [&box](const std::string& text) { box.text = text; };
        return Push_List(*choice, box);
    }
    auto* widget = Take<QComboBox>(name);
    if (widget == nullptr) return;
    const auto take = [this, &box](const QString& text) {
        if (pushing_) return;
        Leave_Field();
        box.text = text.toStdString();
        Act(box, box.change);
    };
    // Picking what is shown already counts too; any other pick has changed the text before it is told.
    const auto told = std::make_shared<bool>(false);
    connect(widget, &QComboBox::currentTextChanged, this, [take, told](const QString& text) {
        *told = true;
        take(text);
    });
    connect(widget, &QComboBox::textActivated, this, [take, told](const QString& text) {
        if (!std::exchange(*told, false)) take(text);
    });
    Push_Later([this, widget, &box] {
        const QSignalBlocker quiet(widget);
        Put_Items(*widget, box.items);
        const QString text = Qt_Text(box.text);
        if (widget->currentText() != text) {
            widget->setCurrentIndex(widget->findText(text));
            if (widget->isEditable()) widget->setEditText(text);
        }
        Push_Common(*widget, box);
    });
}

void Binder::Add(const std::string& name, MenuItem& item) {
    auto* action = Take<QAction>(name);
    if (action == nullptr) return;
    connect(action, &QAction::triggered, this, [this, &item] { Act(item, item.click); });
    Push_Later([this, action, &item] {
        action->setText(Qt_Lines(item.caption));
        if (action->isCheckable()) action->setChecked(item.checked);
        Push_Common(*action, item);
    });
}

void Binder::Check_Names() const {
    std::string wrong;
    for (const std::string& name : missing_) wrong += "\n  no widget for the control " + name;
    const auto check = [&](const QObject& object) {
        const QString name = object.objectName();
        if (Is_Own_Name(name) || names_.contains(name.toStdString())) return;
        wrong += "\n  no control for the widget " + name.toStdString();
    };
    for (const QWidget* widget : form_.findChildren<QWidget*>()) check(*widget);
    for (const QAction* action : form_.findChildren<QAction*>()) check(*action);
    if (!wrong.empty()) throw std::logic_error("A form and its record differ:" + wrong);
}

void Binder::Push() {
    pushing_ = true;
    for (const auto& push : pushes_) push();
    pushing_ = false;
}

void Binder::Leave_Field() {
    if (entered_.record == nullptr || pushing_) return;
    const Field left = std::exchange(entered_, {});
    typed_ = left.record->put_value ? nullptr : left.record;
    run_(left.record->lost_focus);
}

void Binder::Set_Focus(std::string_view name) {
    auto* widget = form_.findChild<QWidget*>(Qt_Text(name));
    if (widget == nullptr) return;
    // What has just been enabled takes the focus only once it shows that.
    Push();
    placing_ = true;
    widget->setFocus(Qt::OtherFocusReason);
    placing_ = false;
    if (auto* edit = qobject_cast<QLineEdit*>(widget)) edit->selectAll();
    // What was put in the place of a refused entry counts as entered.
    for (const Field& field : fields_)
        if (field.widget == widget && field.record == typed_ && field.record->put_value) entered_ = field;
}

bool Binder::Field_Event(const Field& field, QEvent* event) {
    if (Is_Enter(*event)) {
        run_(field.record->enter);
        return true;
    }
    if (event->type() == QEvent::FocusIn && !Is_Passing(*event)) {
        // Called back to a refused entry, the user may also leave it as it stands: it is not refused again.
        if (!placing_) entered_ = field;
        field.widget->selectAll();
        // The press that brings the focus sets the cursor and so ends the selection.
        clicked_in_ = static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason;
    }
    if (event->type() == QEvent::MouseButtonRelease && std::exchange(clicked_in_, false) &&
        !field.widget->hasSelectedText())
        field.widget->selectAll();
    if (event->type() == QEvent::FocusOut && !Is_Passing(*event)) Leave_Field();
    return false;
}

bool Binder::eventFilter(QObject* watched, QEvent* event) {
    if (auto* button = qobject_cast<QPushButton*>(watched); button != nullptr && Is_Enter(*event)) {
        if (!Is_Repeat(*event)) button->click();
        return true;
    }
    const auto field =
        std::find_if(fields_.begin(), fields_.end(), [&](const Field& f) { return f.widget == watched; });
    return field != fields_.end() && Field_Event(*field, event);
}

}  // namespace kervol
