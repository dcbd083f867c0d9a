// SPDX-License-Identifier: GPL-3.0-or-later
// Ties a record of controls to the widgets of a form. A widget stands for the control of its object name; a
// member of a group is called by the group's name, an underscore and its index.
#pragma once

#include <QObject>
#include <array>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/chart.h"
#include "core/controls.h"
#include "core/grid.h"

class QAbstractButton;
class QAction;
class QLineEdit;
class QWidget;

namespace kervol {

class Binder : public QObject {
  public:
    /// Runs one event and brings every form up to date behind it.
    using Runner = std::function<void(const Event& event)>;

    /// Goes before the form does.
    Binder(QWidget& form, Runner run);

    void Add(const std::string& name, Label& label);
    void Add(const std::string& name, Button& button);
    void Add(const std::string& name, TextField& field);
    void Add(const std::string& name, TextView& view);
    void Add(const std::string& name, Frame& frame);
    void Add(const std::string& name, CheckBox& box);
    void Add(const std::string& name, ScrollBar& bar);
    /// Shown by a combo box, or by a list, also one that drops down, of which alone the picks are events.
    void Add(const std::string& name, ComboBox& box);
    void Add(const std::string& name, PictureBox& picture);
    void Add(const std::string& name, Grid& grid);
    void Add(const std::string& name, Chart& chart);
    void Add(const std::string& name, MenuItem& item);
    template <std::size_t count>
    void Add(const std::string& name, std::array<OptionButton, count>& group) {
        Add_Options(name, group.data(), count);
    }
    template <class Record, std::size_t count>
    void Add(const std::string& name, std::array<Record, count>& group) {
        for (std::size_t i = 0; i < count; ++i) Add(name + "_" + std::to_string(i), group[i]);
    }

    /// Throws std::logic_error with all names that stand on one side only.
    void Check_Names() const;

    /// Shows what stands in the records. Raises no event.
    void Push();
    /// Raises the lost focus of the field that the user is in, so that what runs next finds its value taken.
    void Leave_Field();
    /// Nothing is pending: a form that opens begins so.
    void Forget_Field() { entered_ = {}; }
    void Set_Focus(std::string_view name);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct Field {
        TextField* record = nullptr;
        QLineEdit* widget = nullptr;
    };

    /// Takes the text of a list into the record and raises the event.
    std::function<void(const std::string& text)> Picking(ComboBox& box, Event ComboBox::*event);
    template <class List>
    void Push_List(List& widget, ComboBox& box);
    void Add_Options(const std::string& name, OptionButton* options, std::size_t count);
    template <class Widget>
    Widget* Take(const std::string& name);
    template <class Widget>
    void Push_Common(Widget& widget, const Control& control) const;
    void Push_Later(std::function<void()> push) { pushes_.push_back(std::move(push)); }
    /// What every event but a field's own begins with.
    void Act(const Control& control, const Event& event);
    bool Field_Event(const Field& field, QEvent* event);

    QWidget& form_;
    Runner run_;
    std::set<std::string> names_;
    std::vector<std::string> missing_;
    std::vector<std::function<void()>> pushes_;
    std::vector<Field> fields_;
    Field entered_;
    const TextField* typed_ = nullptr;  ///< the field that was left last, if it was left as typed
    bool pushing_ = false;
    bool placing_ = false;     ///< the program moves the focus
    bool clicked_in_ = false;  ///< the mouse button that brought a field the focus is still down
    bool scrolled_ = false;    ///< the thumb of a bar is held and has moved
};

}  // namespace kervol
