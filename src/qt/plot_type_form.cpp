// SPDX-License-Identifier: GPL-3.0-or-later
// The screen of the kinds of plots: four options, each with two pictures.
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

#include "qt/builders.h"
#include "qt/form_window.h"
#include "qt/plot_kind_picture.h"

namespace kervol {
namespace {

using namespace form;

struct KindTexts {
    const char* tip;
    std::array<const char*, 2> pictures;
};

constexpr std::array<KindTexts, 4> kKinds = {
    {{"All functions over one axis, in one chart.",
      {"One function in one window", "Four functions in one window"}},
     {"One above the other, one function each.", {"Two annotated windows", "Two aligned windows"}},
     {"Two by two, one function each.", {"Four annotated windows", "Four aligned windows"}},
     {"Magnitude and angle of vectors around the origin.",
      {"Vectors as rays", "Envelopes of four vectors"}}}};

QGroupBox* New_Kind(int kind) {
    const KindTexts& texts = kKinds.at(static_cast<std::size_t>(kind));
    QGroupBox* group = New_Group({});
    QGridLayout* grid = New_Group_Grid(group);
    grid->setContentsMargins(kGap, kGap, kGap, kGap);
    grid->addWidget(New_Option("opt_PickPlot_" + QString::number(kind), {}, texts.tip), 0, 0, 1, 2);
    for (int i = 0; i < 2; ++i) {
        auto* picture = new PlotKindPicture(2 * kind + i);
        picture->setObjectName("pct_PickPlot_" + QString::number(2 * kind + i));
        picture->setAccessibleName(texts.pictures.at(static_cast<std::size_t>(i)));
        picture->setToolTip(QString(texts.pictures.at(static_cast<std::size_t>(i))) +
                            ": click to choose, click twice to go on.");
        grid->addWidget(picture, 1, i);
    }
    return group;
}

}  // namespace

void Lay_Out_Plot_Type(FormWindow& form) {
    auto* all = new QVBoxLayout(&form);
    Set_Margins(all);
    auto* grid = new QGridLayout;
    grid->setSpacing(kGap);
    for (int kind = 0; kind < 4; ++kind) grid->addWidget(New_Kind(kind), kind / 2, kind % 2, Qt::AlignCenter);
    all->addLayout(grid, 1);
    all->addLayout(Button_Row(New_Button("cmd_CancelPickPlot"), {}, New_Button("cmd_PickPlotDone")));
    form.first_focus = form.findChild<QWidget*>("opt_PickPlot_0");
}

}  // namespace kervol
