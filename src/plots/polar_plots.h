// SPDX-License-Identifier: GPL-3.0-or-later
// One vector function as rays from the origin, as the envelope of their tips, or both; all at once or step by
// step.
#pragma once

#include <array>
#include <cstdint>

#include "catalogue/slots.h"
#include "catalogue/state_labels.h"
#include "core/program.h"

namespace kervol {

struct PolarPlotView : StateLabels {
    std::array<Picture*, 1> pct_Plot{};  ///< set before the screen opens
    CheckBox chk_Vectors, chk_Envelope;
    Label lbl_LeftTitle, lbl_PlotUnits;
    Label lbl_Xmin, lbl_Xmax, lbl_Ymin, lbl_Ymax;       ///< at the ends of the axes
    Label lbl_StepLabel, lbl_StepUnit, lbl_StepNumber;  ///< the step that was drawn last
    std::array<Label, 2> lbl_vector;                    ///< its magnitude and angle in degrees
    std::array<Label, 2> lbl_name;                      ///< their captions
};

/// `ShowVectors` and `ShowEnvelope` from their boxes.
void Read_Polar_Flags(Program& program, const PolarPlotView& form);

/// Clears the picture, puts the labels beside it and takes flags and `PolarStyle` from the boxes. With both
/// boxes off the style stays.
void MyPolarPlotSetup(Program& program, PolarPlotView& form);

/// Computes the tips of the first function into `PolarX` and `PolarY` and draws them all. The current Fourier
/// function is refused with a box. A picture that refuses its window stays blank; the labels are written.
void MyPolarPlot(Program& program, PolarPlotView& form, const SlotLabels& labels);

/// Draws what belongs to one step over what stands on the picture, and shows its numbers.
void MyPolarStep(Program& program, PolarPlotView& form, std::int16_t step);

}  // namespace kervol
