// SPDX-License-Identifier: GPL-3.0-or-later
// The function slots of a selection screen, 1 to 4: confirming one, filling them by a preset, counting them.
// A screen adds what it enables and shows.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "core/controls.h"
#include "core/program.h"

namespace kervol {

inline constexpr std::size_t NumSlots = 4;

/// What the component of a scalar is called, while its box shows "Mag".
inline constexpr const char* ScalarComponentName = "Magnitude";

/// Texts of the boxes of one slot.
struct SlotBoxes {
    std::string variable;
    std::string component;
};

/// The confirmed choice of each slot, at the slot's number less one; empty captions for a slot without one.
struct SlotLabels {
    std::array<Label, NumSlots> lbl_Function;
    std::array<Label, NumSlots> lbl_Component;
};

/// Confirms slot k: `Set_Selection` and `Set_Component` with the texts of its boxes. The component box of a
/// scalar becomes "Mag", and the component is called "Magnitude".
void Confirm_Slot(const CatalogueNames& names, Selections& selections, SlotBoxes& boxes, std::int16_t k);

/// Puts functions and components of the first preset of that title into the boxes, of which there are 2 or 4.
/// False, and all boxes as they were, where there is none.
bool Put_Preset(const CatalogueNames& names, std::string_view title, std::span<SlotBoxes> boxes);

/// `Put_Preset`, then confirms both slots with what their boxes hold, and sets `SelCount` to 2. A text that
/// is no title changes no box; the slots are confirmed all the same.
void Apply_Preset2(Program& program, std::string_view title, std::array<SlotBoxes, 2>& boxes);

/// The same for four slots; sets `NumSelected` to 4 too.
void Apply_Preset4(Program& program, std::string_view title, std::array<SlotBoxes, 4>& boxes);

struct SlotCount {
    std::int16_t last = 0;    ///< number of the last confirmed slot, 0 without one
    std::int16_t filled = 0;  ///< how many are; fewer than `last` where there is a gap
};
SlotCount Count_Slots(const SlotLabels& labels);

}  // namespace kervol
