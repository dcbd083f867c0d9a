// SPDX-License-Identifier: GPL-3.0-or-later
#include "plots/chart_plots.h"

#include <span>

#include "catalogue/selection.h"
#include "catalogue/table_rows.h"
#include "core/arithmetic.h"
#include "core/number_text.h"
#include "core/report.h"
#include "plots/plot_texts.h"

namespace kervol {
namespace {

/// Deliberate: no component has this number, so that an angle shows the unit of its table.
constexpr std::int16_t kAngleComponent = 4;

/// What `DrawMode` is set to before a chart is loaded.
constexpr std::int16_t kLoaded = 2;

std::span<Chart> First_Charts(ChartView& form, std::int16_t count) {
    const auto charts = static_cast<std::size_t>(count);
    if (charts > form.grf_Plot.size()) Raise(fault::Subscript);
    return std::span(form.grf_Plot).first(charts);
}

void Put_Spacing(ChartLook& look, std::int16_t ticks, std::int16_t labels) {
    look.TickEvery = ticks;
    look.LabelEvery = labels;
}

void Put_Ticks(const Program& program, ChartLook& look) {
    switch (program.model.CalcMode) {
        case 2:
        case 4:
        case 5:
            Put_Spacing(look, 5, 10);
            break;
        case 3:
            if (program.selections.SelFFT)
                Put_Spacing(look, 1, 2);
            else
                Put_Spacing(look, 6, 12);
            break;
        default:
            break;
    }
}

/// Abscissa of a step as the charts label it: by the mode alone, whatever the function.
void Put_Step_Label(const Program& program, Chart& chart, std::int16_t step) {
    const LinkageModel& model = program.model;
    if (model.CalcMode == 3)
        chart.Put_LabelText(FNRoundStr(program.tables.Theta(step, 0), 0));
    else if (model.CalcMode >= 1 && model.CalcMode <= 5)
        chart.Put_LabelText(Time_Text(model, step));
}

/// The first set of a chart, drawn with a thin line of the first pattern.
void Begin_Only_Set(Chart& chart) {
    chart.look.DrawMode = kLoaded;
    chart.ThisSet = 1;
    chart.Set().PatternedLines = true;
    chart.Set().PatternData = 0;
    chart.Set().ThickLines = false;
}

/// The function `SelCurrent` as the next set of the chart.
void Put_Set(Program& program, Chart& chart, const SlotLabels& labels) {
    const std::int16_t k = program.selections.SelCurrent;
    const std::int16_t last = program.model.NumSteps;
    chart.Put_NumPoints(last + 1);
    chart.ThisSet = k;
    ChartSet& set = chart.Set();
    set.PatternedLines = true;
    set.PatternData = static_cast<std::int16_t>(k - 1);
    set.LegendText = Slot_Caption(labels.lbl_Function, k - 1) + " " +
                     Slot_Caption(labels.lbl_Component, k - 1) + " " +
                     Plot_Unit(program, k, "", kAngleComponent);
    for (std::int16_t step = 0; step <= last; ++step) {
        const float value = Value_At(program, step, k);
        chart.ThisPoint = static_cast<std::int16_t>(step + 1);
        chart.Put_GraphData(value);
        Put_Step_Label(program, chart, step);
    }
}

}  // namespace

void Put_Chart_Fonts(Chart& chart) {
    constexpr std::int16_t kSize = 90;
    chart.FontUse = font_use::OtherTexts;
    chart.Font() = {.FontSize = kSize, .FontStyle = 2, .FontFamily = 1};
    chart.FontUse = font_use::GraphTitle;
    chart.Font().FontSize = kSize;
}

void Plot_Setup(Program& program, ChartView& form, std::int16_t count) {
    Procedure(program, "Plot_Setup", [&] {
        const Selections& selections = program.selections;
        const int points = Last_Row(program) + 1;
        Put_Plot_State(program, form);
        Put_Coordinate_Labels(selections, form);
        for (Chart& chart : First_Charts(form, count)) {
            SetGridstyle(form, {&chart, 1});
            chart.look.sticks = selections.SelFFT;
            Put_Ticks(program, chart.look);
            if (selections.PlotTypePick < 4) chart.Put_NumSets(selections.SelCount);
            chart.Put_NumPoints(points);
            Put_Abscissa_Title(program, form, chart.look.BottomTitle);
            Put_Chart_Fonts(chart);
        }
        form.lbl_Header2.caption = "Selected Linkage Parameters";
        form.lbl_Header3.caption = Frame_Text(program);
    });
}

void MultiPlot(Program& program, ChartView& form, const SlotLabels& labels) {
    Procedure(program, "MultiPlot", [&] {
        Selections& selections = program.selections;
        Chart& chart = form.grf_Plot[0];
        chart.look.DrawMode = kLoaded;
        for (selections.SelCurrent = 1; selections.SelCurrent <= selections.SelCount; ++selections.SelCurrent)
            Put_Set(program, chart, labels);
    });
}

void Plot(Program& program, ChartView& form, const SlotLabels& labels, std::int16_t count) {
    Procedure(program, "Plot", [&] {
        const std::int16_t last = Last_Row(program);
        const bool harmonics = program.model.CalcMode == 3 && program.selections.SelFFT;
        std::int16_t k = 0;
        for (Chart& chart : First_Charts(form, count)) {
            Begin_Only_Set(chart);
            program.selections.SelCurrent = ++k;
            const std::string unit = Plot_Unit(program, k, program.fourier.FFTUnit, kAngleComponent);
            chart.look.GraphTitle = Slot_Caption(labels.lbl_Function, k - 1) + "  (" + unit + ")";
            chart.Set().LegendText = Slot_Caption(labels.lbl_Component, k - 1);
            for (std::int16_t index = 0; index <= last; ++index) {
                const float value = Value_At(program, index, k);
                chart.ThisPoint = static_cast<std::int16_t>(index + 1);
                chart.Put_GraphData(value);
                if (harmonics)
                    chart.Put_LabelText(std::to_string(index));
                else
                    Put_Step_Label(program, chart, index);
            }
        }
    });
}

void PolarPlot(Program& program, ChartView& form, const SlotLabels& labels) {
    Procedure(program, "PolarPlot", [&] {
        Chart& chart = form.grf_Plot[0];
        form.lbl_Header2.caption = "        Linkage " + Slot_Caption(labels.lbl_Function, 0) + "  -  " +
                                   Plot_Unit(program, 1, "", kAngleComponent);
        form.lbl_Header3.caption = Frame_Text(program);
        program.selections.SelCurrent = 1;
        Begin_Only_Set(chart);
        chart.look.polar = true;
        for (std::int16_t step = 0; step <= program.model.NumSteps; ++step) {
            float magnitude = 0, angle = 0;
            Select_PolarVariable(program, step, 1, magnitude, angle);
            chart.ThisPoint = static_cast<std::int16_t>(step + 1);
            // Deliberate: what was fetched never gets here. The screen that draws the vector by itself shows
            // it.
            chart.Put_GraphData(0);
            chart.Put_XPosData(0);
            Put_Step_Label(program, chart, step);
        }
    });
}

}  // namespace kervol
