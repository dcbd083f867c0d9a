// SPDX-License-Identifier: GPL-3.0-or-later
// The plot screens: the charts or pictures large, beside them what is plotted and how.
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "plots/windows.h"
#include "qt/builders.h"
#include "qt/chart_widget.h"
#include "qt/form_window.h"
#include "qt/label_strip.h"
#include "qt/picture_widget.h"
#include "qt/state_column.h"
#include "screens/plot_screens.h"

namespace kervol {
namespace {

using namespace form;

QString Indexed(const char* name, std::size_t index) {
    return QString(name) + "_" + QString::number(index);
}

QGroupBox* New_Choices(const QString& title, std::initializer_list<QWidget*> choices) {
    QGroupBox* group = New_Group(title);
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins(kGap, kRowGap, kGap, kGap);
    row->setSpacing(kGap);
    for (QWidget* choice : choices) row->addWidget(choice);
    row->addStretch();
    return group;
}

QHBoxLayout* New_Plot_Buttons(const PlotKind& kind) {
    QPushButton* print = New_Button(kind.plain_names ? "cmd_Print" : "cmd_PlotPrint");
    print->setToolTip("Prints an image of this screen.");
    QPushButton* copy = New_Button("cmd_Copy");
    copy->setToolTip("Puts an image of this screen on the clipboard.");
    return Button_Row(New_Button("cmd_Replot"), {print, copy},
                      New_Button(kind.plain_names ? "cmd_Done" : "cmd_PlotDone"));
}

/// Above the plots: what they are of.
QHBoxLayout* New_Headings() {
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * kGap);
    row->addWidget(New_Heading("lbl_Header2", 1.2));
    row->addWidget(New_Label("lbl_Header3"));
    row->addStretch();
    return row;
}

/// Headings and plots at the left; the options and the state of the linkage at the right.
void Lay_Out_Columns(FormWindow& form, const PlotKind& kind, QLayout* plots,
                     std::initializer_list<QGroupBox*> options) {
    auto* all = new QVBoxLayout(&form);
    Set_Margins(all);
    auto* left = new QVBoxLayout;
    left->setSpacing(kRowGap);
    left->addLayout(New_Headings());
    left->addLayout(plots, 1);
    QVBoxLayout* right = New_State_Column();
    int place = 0;
    for (QGroupBox* group : options) right->insertWidget(place++, group);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(2 * kGap);
    middle->addLayout(left, 1);
    middle->addLayout(right);
    all->addLayout(middle, 1);
    all->addLayout(New_Plot_Buttons(kind));
    form.screen_share = 0.95;
}

/// One plot, two over each other, or four in a square.
template <class Make>
QGridLayout* New_Plot_Grid(std::size_t plots, const Make& make) {
    auto* grid = new QGridLayout;
    grid->setSpacing(kGap);
    const int columns = plots > 2 ? 2 : 1;
    for (std::size_t i = 0; i < plots; ++i) {
        const int row = static_cast<int>(i) / columns, column = static_cast<int>(i) % columns;
        make(*grid, i, row, column);
        grid->setRowStretch(row, 1);
        grid->setColumnStretch(column, 1);
    }
    return grid;
}

ChartWidget* New_Chart(std::size_t index) {
    auto* chart = new ChartWidget;
    chart->setObjectName(Indexed("grf_Plot", index));
    chart->setAccessibleName(QString("Chart %1").arg(index + 1));
    chart->setToolTip("Wheel: zoom. Drag: move. Double click: show the whole. Right click: save or copy.");
    return chart;
}

/// Name, component and unit of the function above its picture.
QHBoxLayout* New_Plot_Title(std::size_t i) {
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap);
    row->addWidget(New_Heading(Indexed("lbl_LeftTitle", i), 1.0));
    row->addWidget(New_Label(Indexed("lbl_Comp", i)));
    row->addWidget(New_Label(Indexed("lbl_PlotUnits", i)));
    row->addStretch();
    return row;
}

/// The title of the abscissa, and the extremes. Two of them beside each other fit a screen of 1024 pixels.
QHBoxLayout* New_Plot_Foot(std::size_t i) {
    auto* row = new QHBoxLayout;
    row->setSpacing(kGap - 2);
    row->addWidget(New_Label(Indexed("lbl_BottomTitle", i)));
    row->addStretch();
    for (const auto& [caption, name] :
         {std::pair("Min", "lbl_Min"), std::pair("Max", "lbl_Max"), std::pair("Range", "lbl_Peak")}) {
        QLabel* title = New_Label({});
        title->setText(caption);
        title->setEnabled(false);
        row->addWidget(title);
        row->addWidget(New_Label(Indexed(name, i)));
    }
    return row;
}

PictureWidget* New_Plot_Picture(PictureList& list, PictureWidget::Fit fit, std::size_t i) {
    auto* picture = new PictureWidget(list, fit);
    picture->setObjectName(Indexed("pct_Plot", i));
    picture->setAccessibleName(QString("Plot %1").arg(i + 1));
    picture->setToolTip("Right click: save or copy.");
    picture->setFocusPolicy(Qt::StrongFocus);
    return picture;
}

QGridLayout* New_Own_Plot(PictureList& list, const PlotMargins& margins, std::size_t i) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kRowGap);
    grid->setVerticalSpacing(2);
    auto* up = new LabelStrip(Qt::Vertical);
    up->Add(New_Label(Indexed("lbl_Ymax", i)), margins.Down(1));
    up->Add(New_Label(Indexed("lbl_Ymin", i)), margins.Down(-1));
    auto* across = new LabelStrip(Qt::Horizontal);
    double quarter = 0;
    for (const char* name : {"lbl_Xmin", "lbl_X1", "lbl_X2", "lbl_X3", "lbl_Xmax"})
        across->Add(New_Label(Indexed(name, i)), margins.Across(quarter++ / 4));
    grid->addLayout(New_Plot_Title(i), 0, 1);
    grid->addWidget(up, 1, 0);
    grid->addWidget(New_Plot_Picture(list, PictureWidget::Fit::Filling, i), 1, 1);
    grid->addWidget(across, 2, 1);
    grid->addLayout(New_Plot_Foot(i), 3, 1);
    grid->setRowStretch(1, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

/// The picture with the limits at the ends of its axes.
QGridLayout* New_Polar_Plot(PictureList& list) {
    auto* grid = new QGridLayout;
    grid->setSpacing(kRowGap);
    auto* title = new QHBoxLayout;
    title->setSpacing(kGap);
    title->addStretch();
    title->addWidget(New_Heading("lbl_LeftTitle", 1.0));
    title->addWidget(New_Label("lbl_PlotUnits"));
    title->addStretch();
    grid->addLayout(title, 0, 1);
    grid->addWidget(New_Label("lbl_Ymax"), 1, 1, Qt::AlignHCenter);
    grid->addWidget(New_Label("lbl_Xmin"), 2, 0, Qt::AlignVCenter);
    grid->addWidget(New_Plot_Picture(list, PictureWidget::Fit::TrueShape, 0), 2, 1);
    grid->addWidget(New_Label("lbl_Xmax"), 2, 2, Qt::AlignVCenter);
    grid->addWidget(New_Label("lbl_Ymin"), 3, 1, Qt::AlignHCenter);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

/// The step that is shown, and its vector; they keep their places while nothing is stepped through.
QGroupBox* New_Stepping() {
    QGroupBox* group = New_Group("Step Through");
    QGridLayout* grid = New_Group_Grid(group);
    grid->addWidget(New_Check("chk_Pause", "Shows one step after the other, with its numbers."), 0, 0);
    QPushButton* step = New_Button("cmd_Step");
    step->setToolTip("The next step; or the whole plot anew with the parts that are chosen.");
    grid->addWidget(step, 0, 1, 1, 2);
    const auto add = [grid](int row, const char* name, const char* number, const char* unit) {
        QLabel* value = New_Label(number);
        value->setAlignment(Qt::AlignRight);
        int column = 0;
        for (QLabel* label : {New_Label(name), value, unit == nullptr ? nullptr : New_Label(unit)}) {
            if (label == nullptr) continue;
            Keep_Room(label);
            grid->addWidget(label, row, column++);
        }
    };
    add(1, "lbl_StepLabel", "lbl_StepNumber", "lbl_StepUnit");
    add(2, "lbl_name_0", "lbl_vector_0", nullptr);
    add(3, "lbl_name_1", "lbl_vector_1", nullptr);
    grid->setColumnStretch(1, 1);
    return group;
}

QString Text_Of(const QWidget& form, const QString& name) {
    return form.findChild<QLabel*>(name)->text();
}

/// For those who cannot see it: what the picture shows, and between which values.
void Describe(QWidget& picture, const QString& text) {
    const QString description = text.simplified();
    if (picture.accessibleDescription() != description) picture.setAccessibleDescription(description);
}

void Describe_Own_Plot(const QWidget& form, std::size_t i) {
    const auto text = [&](const char* name) { return Text_Of(form, Indexed(name, i)); };
    Describe(*form.findChild<QWidget*>(Indexed("pct_Plot", i)),
             QString("%1 %2 from %3 to %4 %5, by %6 from %7 to %8")
                 .arg(text("lbl_LeftTitle"), text("lbl_Comp"), text("lbl_Min"), text("lbl_Max"),
                      text("lbl_PlotUnits"), text("lbl_BottomTitle"), text("lbl_Xmin"), text("lbl_Xmax")));
}

void Describe_Polar_Plot(const QWidget& form) {
    const auto text = [&](const char* name) { return Text_Of(form, name); };
    Describe(*form.findChild<QWidget*>("pct_Plot_0"),
             QString("Vectors of %1; the axes reach to %2 %3")
                 .arg(text("lbl_LeftTitle"), text("lbl_Xmax"), text("lbl_PlotUnits")));
}

}  // namespace

void Lay_Out_Charts(FormWindow& form, const PlotKind& kind) {
    QGridLayout* charts = New_Plot_Grid(static_cast<std::size_t>(kind.plots),
                                        [](QGridLayout& grid, std::size_t i, int row, int column) {
                                            grid.addWidget(New_Chart(i), row, column);
                                        });
    Lay_Out_Columns(
        form, kind, charts,
        {New_Choices("Grid", {New_Check("chk_HGrid", "Lines across the chart."),
                              New_Check("chk_VGrid", "Lines up the chart.")}),
         New_Choices("Style",
                     {New_Check("chk_Line", "A line through the points."),
                      New_Check("chk_Sticks", "Fills down to 0; of a spectrum, a line for each harmonic.")}),
         New_Choices("Background", {New_Option("opt_Back_0", "White background", "For print."),
                                    New_Option("opt_Back_1", "Tinted background", "For the screen.")})});
    form.first_focus = form.findChild<QWidget*>(kind.plain_names ? "cmd_Done" : "cmd_PlotDone");
}

void Lay_Out_Own_Plots(FormWindow& form, const PlotKind& kind, std::span<PictureList> pictures) {
    const PlotMargins& margins = *Margins_Of(kind.plots);
    QGridLayout* plots = New_Plot_Grid(static_cast<std::size_t>(kind.plots),
                                       [&](QGridLayout& grid, std::size_t i, int row, int column) {
                                           grid.addLayout(New_Own_Plot(pictures[i], margins, i), row, column);
                                       });
    Lay_Out_Columns(form, kind, plots, {});
    form.first_focus = form.findChild<QWidget*>("cmd_PlotDone");
    form.refresh = [&form, plots = pictures.size()](const LinkageModel&) {
        for (std::size_t i = 0; i < plots; ++i) Describe_Own_Plot(form, i);
    };
}

void Lay_Out_Polar_Plot(FormWindow& form, const PlotKind& kind, PictureList& picture) {
    Lay_Out_Columns(form, kind, New_Polar_Plot(picture),
                    {New_Choices("Show", {New_Check("chk_Vectors", "A ray from the origin for each step."),
                                          New_Check("chk_Envelope", "Joins the tips of the rays.")}),
                     New_Stepping()});
    form.first_focus = form.findChild<QWidget*>("cmd_Step");
    form.refresh = [&form](const LinkageModel&) { Describe_Polar_Plot(form); };
}

}  // namespace kervol
