// SPDX-License-Identifier: GPL-3.0-or-later
// Which outputs are selected for plots, tables and the Fourier transform.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/table.h"

namespace kervol {

/// The screens on which functions are selected; each keeps lists of its own.
enum class SelectionScreen {
    frm_PlotSelect1,
    frm_PlotSelect2,
    frm_PlotSelect3,
    frm_PlotSelect4,
    frm_PrintSelect
};
inline constexpr std::size_t NumSelectionScreens = 5;

/// A selection number k, from 1, stands for one curve of a plot or one column of a table.
struct Selections {
    // Written by `Set_Selection` and `Set_Component`.
    Table<std::int16_t, 23> SelTable;   ///< table code of the function, 0 before the first use
    Table<std::int16_t, 7> SelIndex;    ///< column of the table, or index of the point
    Table<std::int16_t, 7> SelStage;    ///< column of `VelRatio` or `MechAdv`
    Table<std::int16_t, 7> SelComp;     ///< component: 0 X, 1 Y, 2 Mag, 3 Ang
    Table<std::string, 5> SelCompName;  ///< the same as shown; "Magnitude" for a confirmed scalar
    bool SelScalar{};                   ///< class of the function that was set last, whatever its number
    bool SelVector{};                   ///< the same
    bool SelFFT{};                      ///< that function was the current Fourier function

    // Written by the selection screens and by whatever fetches.
    std::int16_t SelCurrent{};    ///< selection whose point turns a local frame; tables leave it as it was
    std::int16_t LocalCoords{};   ///< vectors in the global frame for 0, else in the local rotating one (2)
    std::int16_t SelCount{};      ///< number of the last confirmed slot: functions of a plot
    std::int16_t NumSelected{};   ///< the same for a table, at most 4
    std::int16_t PlotStyle = 1;   ///< 1 chart, 2 own-drawn
    std::int16_t PlotTypePick{};  ///< option of the plot type screen, from 1
    std::int16_t PlotFlag{};      ///< 1 once the single-window selection has been opened

    /// Screens whose lists were loaded since the results changed.
    std::array<bool, NumSelectionScreens> lists_loaded{};
};

}  // namespace kervol
