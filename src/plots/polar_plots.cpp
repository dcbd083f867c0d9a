// SPDX-License-Identifier: GPL-3.0-or-later
#include "plots/polar_plots.h"

#include <cmath>

#include "catalogue/selection.h"
#include "core/arithmetic.h"
#include "core/colours.h"
#include "core/extremes.h"
#include "core/mathematics.h"
#include "core/number_text.h"
#include "core/report.h"
#include "plots/plot_texts.h"
#include "plots/windows.h"

namespace kervol {
namespace {

constexpr std::int16_t kEnvelope = 1, kRays = 2, kBoth = 3;
constexpr int kDivisions = 10;
constexpr Colour kRayColour = NamedColours.green;
constexpr Colour kEnvelopeColour = NamedColours.blue;

/// Deliberate: no component has this number, so that the unit is always that of the function's table.
constexpr std::int16_t kAngleComponent = 4;

/// Draws from tip to tip and from the origin.
class PolarPen {
  public:
    PolarPen(Picture& picture, const PlotState& plots) : picture_(picture), plots_(plots) {}

    void Ray(std::int16_t step) {
        picture_.Set_Point(0, 0, kRayColour);
        picture_.Line_To(plots_.PolarX(step), plots_.PolarY(step), kRayColour);
    }
    void Begin_Envelope(std::int16_t step) {
        picture_.Set_Point(plots_.PolarX(step), plots_.PolarY(step), kEnvelopeColour);
    }
    /// From the current point.
    void Envelope_To(std::int16_t step) {
        picture_.Line_To(plots_.PolarX(step), plots_.PolarY(step), kEnvelopeColour);
    }
    /// From the tip before.
    void Join(std::int16_t step) {
        if (step == 0) return;
        picture_.Line(plots_.PolarX(step - 1), plots_.PolarY(step - 1), plots_.PolarX(step),
                      plots_.PolarY(step), kEnvelopeColour);
    }

  private:
    Picture& picture_;
    const PlotState& plots_;
};

void Draw_Axes(Program& program, Picture& picture) {
    PolarAxes(program, picture, program.plots.PlotLimit);
    PolarTicmarks(program, picture, program.plots.PlotLimit, kDivisions);
}

void Put_Drive(const LinkageModel& model, StateLabels& form) {
    switch (model.CalcMode) {
        // Deliberate: one position is labelled as a range of angles.
        case 1:
        case 3:
            Put_Labels_Angle(model, form);
            break;
        case 2:
        case 4:
        case 5:
            Put_Labels_Time(model, form);
            break;
        default:
            break;
    }
}

void Set_Polar_Style(PlotState& plots) {
    if (plots.ShowEnvelope && plots.ShowVectors)
        plots.PolarStyle = kBoth;
    else if (plots.ShowEnvelope)
        plots.PolarStyle = kEnvelope;
    else if (plots.ShowVectors)
        plots.PolarStyle = kRays;
}

void Put_Titles(const Program& program, PolarPlotView& form, const SlotLabels& labels) {
    const std::string unit = Plot_Unit(program, 1, "", kAngleComponent);
    // Deliberate: the title names the second slot, the label beside the picture the first, which is drawn.
    form.lbl_Header2.caption = "Linkage " + Slot_Caption(labels.lbl_Function, 1) + "  -  " + unit;
    form.lbl_Header3.caption = Frame_Text(program);
    form.lbl_LeftTitle.caption = Slot_Caption(labels.lbl_Function, 0);
    form.lbl_PlotUnits.caption = unit;
}

void Compute_Tips(Program& program) {
    PlotState& plots = program.plots;
    float magnitude = 0, angle = 0;
    for (std::int16_t step = 0; step <= program.model.NumSteps; ++step) {
        Select_PolarVariable(program, step, 1, magnitude, angle);
        plots.PolarX(step) = Single(magnitude * std::cos(angle * RadiansPerDegree));
        plots.PolarY(step) = Single(magnitude * std::sin(angle * RadiansPerDegree));
    }
}

void Draw_All(const Program& program, Picture& picture) {
    const std::int16_t last = program.model.NumSteps;
    PolarPen pen(picture, program.plots);
    switch (program.plots.PolarStyle) {
        case kEnvelope:
            pen.Begin_Envelope(0);
            for (std::int16_t step = 1; step <= last; ++step) pen.Envelope_To(step);
            break;
        case kRays:
            for (std::int16_t step = 0; step <= last; ++step) pen.Ray(step);
            break;
        case kBoth:
            for (std::int16_t step = 0; step < last; ++step) {
                pen.Ray(step);
                pen.Envelope_To(static_cast<std::int16_t>(step + 1));
            }
            pen.Ray(last);
            break;
        default:
            break;
    }
}

void Put_Limits(const PlotState& plots, PolarPlotView& form) {
    const std::int16_t decimals = Label_Decimals(plots.PlotLimit);
    const std::string high = FNRoundStr(plots.PlotLimit, decimals);
    const std::string low = FNRoundStr(-plots.PlotLimit, decimals);
    form.lbl_Ymax.caption = form.lbl_Xmax.caption = high;
    form.lbl_Ymin.caption = form.lbl_Xmin.caption = low;
}

void Put_Step_Labels(const Program& program, PolarPlotView& form, std::int16_t step) {
    const bool angle = program.model.CalcMode == 3;
    form.lbl_StepLabel.caption = angle ? "Theta2" : "Time";
    form.lbl_StepUnit.caption = angle ? "deg" : "sec";
    form.lbl_StepNumber.caption =
        angle ? FNRoundStr(program.tables.Theta(step, 0), 1) : Time_Text(program.model, step);
}

void Draw_Step(const PlotState& plots, Picture& picture, std::int16_t step) {
    PolarPen pen(picture, plots);
    if (plots.PolarStyle == kRays || plots.PolarStyle == kBoth) pen.Ray(step);
    if (plots.PolarStyle == kEnvelope) pen.Begin_Envelope(step);
    if (plots.PolarStyle == kEnvelope || plots.PolarStyle == kBoth) pen.Join(step);
}

}  // namespace

void Read_Polar_Flags(Program& program, const PolarPlotView& form) {
    program.plots.ShowVectors = form.chk_Vectors.on;
    program.plots.ShowEnvelope = form.chk_Envelope.on;
}

void MyPolarPlotSetup(Program& program, PolarPlotView& form) {
    Procedure(program, "MyPolarPlotSetup", [&] {
        form.pct_Plot[0]->Clear();
        Put_Plot_State(program, form);
        Put_Drive(program.model, form);
        Read_Polar_Flags(program, form);
        form.frm_initial.visible = program.model.CalcMode < 4;
        Put_Coordinate_Labels(program.selections, form);
        Set_Polar_Style(program.plots);
    });
}

void MyPolarPlot(Program& program, PolarPlotView& form, const SlotLabels& labels) {
    Procedure(program, "MyPolarPlot", [&] {
        if (program.selections.SelFFT) {
            program.port.Show_Message(
                {"FFT data are not suited to polar plots.\nUse a cartesian plot format instead."});
            return;
        }
        PlotState& plots = program.plots;
        Picture& picture = *form.pct_Plot[0];
        program.selections.SelCurrent = 1;
        Put_Titles(program, form, labels);
        Compute_Tips(program);
        GlobalMax(plots.PolarX, plots.PolarY, 0, program.model.NumSteps, plots.PlotLimit);
        SetPolarWindow(program, picture, plots.PlotLimit, form.lbl_LeftTitle.caption, plots.PlotBase);
        if (!plots.WindowFailed) {
            Draw_Axes(program, picture);
            Draw_All(program, picture);
        }
        Put_Limits(plots, form);
    });
}

void MyPolarStep(Program& program, PolarPlotView& form, std::int16_t step) {
    Procedure(program, "MyPolarStep", [&] {
        const PlotState& plots = program.plots;
        Picture& picture = *form.pct_Plot[0];
        Draw_Axes(program, picture);
        Put_Step_Labels(program, form, step);
        Draw_Step(plots, picture, step);
        float magnitude, angle;
        Cart_to_Polar(plots.PolarX(step), plots.PolarY(step), magnitude, angle);
        form.lbl_vector[0].caption = Plain_Number(FNRound(magnitude, 0));
        form.lbl_vector[1].caption = Plain_Number(FNRound(angle, 0));
    });
}

}  // namespace kervol
