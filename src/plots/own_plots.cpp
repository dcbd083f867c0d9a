// SPDX-License-Identifier: GPL-3.0-or-later
#include "plots/own_plots.h"

#include "catalogue/catalogue_table.h"
#include "catalogue/table_rows.h"
#include "core/arithmetic.h"
#include "core/colours.h"
#include "core/extremes.h"
#include "core/number_text.h"
#include "core/report.h"
#include "plots/plot_texts.h"
#include "plots/windows.h"

namespace kervol {
namespace {

constexpr std::int16_t kAngleComponent = 3;
constexpr int kYDivisions = 5;

/// Values of one function by step or harmonic.
using Samples = Table<float, StepRows>;

struct AbscissaRange {
    float Xlo = 0, Xhi = 0;
};

/// Without an extent for a mode that is none.
AbscissaRange Range_Of(const Program& program) {
    const LinkageModel& model = program.model;
    switch (model.CalcMode) {
        case 1:
        case 2:
        case 4:
        case 5:
            return {model.TimeStart, model.TimeEnd};
        case 3:
            if (program.selections.SelFFT) return {0, float(Last_Row(program))};
            // A crank that turns backwards runs from right to left. Deliberate: so does one that stands.
            if (model.Omega2 > 0) return {model.ThetaMinDeg, model.ThetaMaxDeg};
            return {model.ThetaMaxDeg, model.ThetaMinDeg};
        default:
            return {};
    }
}

void Draw_Curve(Program& program, Picture& picture, const Samples& samples, std::int16_t last) {
    constexpr Colour kBlue = NamedColours.blue;
    // Deliberate: over the crank angle, whatever the window's range is made of.
    const auto x = [&](std::int16_t step) { return program.tables.Theta(step, 0); };
    picture.Set_Point(x(0), samples(0), kBlue);
    for (std::int16_t step = 1; step <= last; ++step) picture.Line_To(x(step), samples(step), kBlue);
}

void Draw_Picture(Program& program, Picture& picture, const Samples& samples, std::int16_t last,
                  const AbscissaRange& range) {
    const float limit = program.plots.PlotLimit;
    Draw_Curve(program, picture, samples, last);
    Vertical_lines(program, picture, limit, range.Xlo, range.Xhi);
    CartesianAxes(program, picture, limit, range.Xlo, range.Xhi);
    XticMarks(program, picture, limit, range.Xlo, range.Xhi);
    YticMarks(program, picture, limit, kYDivisions, range.Xlo, range.Xhi);
}

void Put_Abscissa_Labels(OwnPlotView& form, std::size_t i, const AbscissaRange& range) {
    const double dx = (double(range.Xhi) - range.Xlo) / 4;
    form.lbl_Xmin[i].caption = FNRoundStr(range.Xlo, 0);
    form.lbl_X1[i].caption = FNRoundStr(range.Xlo + dx, 0);
    form.lbl_X2[i].caption = FNRoundStr(range.Xlo + 2 * dx, 0);
    form.lbl_X3[i].caption = FNRoundStr(range.Xlo + 3 * dx, 0);
    form.lbl_Xmax[i].caption = FNRoundStr(range.Xhi, 0);
}

void Put_Names(const Program& program, OwnPlotView& form, const SlotLabels& labels, std::size_t i) {
    form.lbl_LeftTitle[i].caption = Slot_Caption(labels.lbl_Function, static_cast<int>(i));
    form.lbl_Comp[i].caption = Slot_Caption(labels.lbl_Component, static_cast<int>(i));
    form.lbl_PlotUnits[i].caption = Plot_Unit(program, program.selections.SelCurrent, "", kAngleComponent);
}

void Plot_One(Program& program, OwnPlotView& form, const SlotLabels& labels, std::size_t i, bool extremes) {
    PlotState& plots = program.plots;
    const std::int16_t k = program.selections.SelCurrent = static_cast<std::int16_t>(i + 1);
    Put_Names(program, form, labels, i);
    const std::int16_t last = Last_Row(program);
    Samples samples;
    for (std::int16_t step = 0; step <= last; ++step) samples(step) = Value_At(program, step, k);
    CartesianMax(program, samples, 0, last, plots.PlotLimit);
    float Max, Min;
    MaxMin1(samples, 0, last, Max, Min);

    const AbscissaRange range = Range_Of(program);
    Picture& picture = *form.pct_Plot[i];
    SetWindow(program, picture, plots.PlotLimit, range.Xlo, range.Xhi, form.lbl_LeftTitle[i].caption,
              plots.PlotBase);
    if (!plots.WindowFailed) Draw_Picture(program, picture, samples, last, range);
    Put_Abscissa_Labels(form, i, range);

    const std::int16_t decimals = Label_Decimals(plots.PlotLimit);
    form.lbl_Ymax[i].caption = FNRoundStr(plots.PlotLimit, decimals);
    form.lbl_Ymin[i].caption = FNRoundStr(-plots.PlotLimit, decimals);
    if (!extremes) return;
    form.lbl_Min[i].caption = FNRoundStr(Min, decimals);
    form.lbl_Max[i].caption = FNRoundStr(Max, decimals);
    form.lbl_Peak[i].caption = FNRoundStr(double(Max) - Min, decimals);
}

std::size_t Checked_Count(std::int16_t count) {
    if (count < 0 || static_cast<std::size_t>(count) > OwnPlotView::Plots) Raise(fault::Subscript);
    return static_cast<std::size_t>(count);
}

}  // namespace

void MyPlotSetup(Program& program, OwnPlotView& form, std::int16_t count) {
    Procedure(program, "MyPlotSetup", [&] {
        const std::size_t plots = Checked_Count(count);
        Put_Plot_State(program, form);
        for (std::size_t i = 0; i < plots; ++i)
            Put_Abscissa_Title(program, form, form.lbl_BottomTitle[i].caption);
        form.frm_initial.visible = program.model.CalcMode < 4;
        Put_Coordinate_Labels(program.selections, form);
    });
}

void MyPlot(Program& program, OwnPlotView& form, const SlotLabels& labels, std::int16_t count) {
    Procedure(program, "MyPlot", [&] {
        const std::size_t plots = Checked_Count(count);
        for (std::size_t i = 0; i < plots; ++i) Plot_One(program, form, labels, i, plots > 1);
    });
}

}  // namespace kervol
