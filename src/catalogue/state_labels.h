// SPDX-License-Identifier: GPL-3.0-or-later
// The read-only copy of linkage, drive and frame that stands beside every plot and table.
#pragma once

#include <array>

#include "core/controls.h"
#include "core/program.h"

namespace kervol {

inline constexpr std::size_t NumRangeFields = 6;

struct StateLabels {
    StateLabels();

    Label lbl_Header, lbl_Header2, lbl_Header3;
    /// Captions of the lengths, angles and pivot beside `lbl_Links`.
    std::array<Label, 9> lbl_Left;
    /// Links 1 to 4, O4-D or A-C, its angle, links 5 and 6, then X and Y of O6.
    std::array<Label, 10> lbl_Links;
    std::array<Label, NumRangeFields> lbl_Initial;   ///< captions of the drive
    std::array<Label, NumRangeFields> lbl_Linkout2;  ///< its numbers
    std::array<Label, NumRangeFields> lbl_Unit;      ///< their units
    Frame frm_initial;
    Label lbl_Coord;
};

/// The linkage with the captions of its chain.
void Put_Link_Labels(const LinkageModel& model, StateLabels& labels);

/// The drive of mode 1: angle, speed and acceleration; the range is hidden.
void Put_Labels_One(const LinkageModel& model, StateLabels& labels);
/// The drive of modes 2, 4 and 5: range of time, then the state at its start.
void Put_Labels_Time(const LinkageModel& model, StateLabels& labels);
/// The drive of mode 3: range of angles and speed.
void Put_Labels_Angle(const LinkageModel& model, StateLabels& labels);
/// The one of the three for the model's mode; any other mode leaves the labels.
void Put_Drive_Labels(const LinkageModel& model, StateLabels& labels);

/// The frame in which vectors are shown.
void Put_Coordinate_Labels(const Selections& selections, StateLabels& labels);

}  // namespace kervol
