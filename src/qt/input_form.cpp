// SPDX-License-Identifier: GPL-3.0-or-later
// The Input screen: fields grouped as the linkage is thought of, and the picture, which takes the rest of the
// room.
#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>

#include "qt/builders.h"
#include "qt/form_window.h"
#include "qt/input_groups.h"
#include "qt/picture_column.h"

namespace kervol {
namespace {

using namespace form;

QHBoxLayout* New_Buttons() {
    auto* calc = New_Button("cmd_Calc");
    calc->setToolTip("Calculates every step of the drive and draws where it begins.");
    auto* draw = New_Button("cmd_Draw");
    draw->setToolTip("Draws the whole travel of the crank in ten steps, whatever the drive.");
    auto* step = New_Button("cmd_Step");
    step->setToolTip("Draws the next position beside those that stand.");
    auto* reset = New_Button("cmd_Reset");
    reset->setToolTip("Goes back to the first position.");
    auto* print = New_Button("cmd_Print");
    print->setToolTip("Prints an image of this screen.");
    auto* row =
        Button_Row(New_Button("cmd_Cancel"), {calc, draw, step, reset, print, New_Button("cmd_Animate")},
                   New_Button("cmd_Next"));
    row->insertSpacing(1, 2 * kGap);
    row->insertWidget(2, New_Check("chk_autocalc", "Calculates anew after each change of a field."));
    row->insertWidget(
        3, New_Check("chk_autoscale", "Fits the picture to the whole motion each time it is drawn."));
    return row;
}

}  // namespace

void Lay_Out_Input(FormWindow& form, PictureList& picture) {
    auto* all = new QVBoxLayout(&form);
    Set_Margins(all);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(2 * kGap);
    InputGroups groups = New_Input_Groups();
    middle->addLayout(groups.column, 2);
    middle->addLayout(New_Picture_Column(picture, New_Step_Value()), 3);
    all->addLayout(middle, 1);
    all->addLayout(New_Buttons());
    form.first_focus = groups.first_focus;
    // The rest is for the frame of the window.
    form.screen_share = 0.95;
    form.refresh = [&form, show = groups.show_chain](const LinkageModel& model) {
        show(model.LinkageType);
        Describe_Picture(form);
    };
}

}  // namespace kervol
