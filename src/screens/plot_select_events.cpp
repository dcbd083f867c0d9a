// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/plot_select_events.h"

#include <algorithm>
#include <string>

#include "core/report.h"
#include "screens/launch_screens.h"
#include "screens/selection_rules.h"
#include "screens/wiring.h"

namespace kervol {
namespace {

/// In the order of `opt_PickPlot`.
constexpr std::array kSelections = {ScreenId::frm_PlotSelect1, ScreenId::frm_PlotSelect2,
                                    ScreenId::frm_PlotSelect3, ScreenId::frm_PlotSelect4};

std::size_t Picked_Option(const PlotTypeScreen& screen) {
    const auto on = std::find_if(screen.opt_PickPlot.begin(), screen.opt_PickPlot.end(),
                                 [](const OptionButton& option) { return option.on; });
    return static_cast<std::size_t>(on - screen.opt_PickPlot.begin());
}

void cmd_PickPlotDone_Click(Screens& screens) {
    const std::size_t pick = Picked_Option(screens.frm_PlotType);
    screens.program.selections.PlotTypePick = static_cast<std::int16_t>(pick + 1);
    screens.program.port.Hide_Screen(ScreenId::frm_PlotType);
    screens.program.port.Show_Screen(kSelections.at(pick), Modality::Modal);
}

void Pick(PlotTypeScreen& screen, std::size_t pick) {
    for (OptionButton& option : screen.opt_PickPlot) option.on = false;
    screen.opt_PickPlot.at(pick).on = true;
}

void Reopen_Plot_Type(Screens& screens, ScreenId from) {
    screens.program.port.Hide_Screen(from);
    screens.program.port.Show_Screen(ScreenId::frm_PlotType, Modality::Modal);
}

void Wire_Plot_Type_Screen(Screens& screens) {
    PlotTypeScreen& screen = screens.frm_PlotType;
    const Wiring on(screens);
    on(screen.cmd_PickPlotDone.click, "frm_PlotType.cmd_PickPlotDone", cmd_PickPlotDone_Click);
    on(screen.cmd_CancelPickPlot.click, "frm_PlotType.cmd_CancelPickPlot",
       [](Screens& all) { all.program.port.Hide_Screen(ScreenId::frm_PlotType); });
    for (std::size_t picture = 0; picture < screen.pct_PickPlot.size(); ++picture) {
        const std::size_t pick = picture / 2;
        on(screen.pct_PickPlot[picture].click, "frm_PlotType.pct_PickPlot",
           [pick](Screens& all) { Pick(all.frm_PlotType, pick); });
        on(screen.pct_PickPlot[picture].double_click, "frm_PlotType.pct_PickPlot", [pick](Screens& all) {
            Pick(all.frm_PlotType, pick);
            cmd_PickPlotDone_Click(all);
        });
    }
}

}  // namespace

void Plot_Type_Form_Activate(Screens& screens) {
    screens.program.port.Set_Focus(ScreenId::frm_PlotType,
                                   "opt_PickPlot_" + std::to_string(Picked_Option(screens.frm_PlotType)));
}

void Plot_Select1_Form_Activate(Screens& screens) {
    screens.program.selections.PlotFlag = 1;
    Selection_Form_Activate(screens.program, screens.frm_PlotSelect1);
}

void Wire_Plot_Select_Screens(Screens& screens) {
    Wire_Plot_Type_Screen(screens);
    for (PlotSelectScreen* form : {&screens.frm_PlotSelect1, &screens.frm_PlotSelect2,
                                   &screens.frm_PlotSelect3, &screens.frm_PlotSelect4}) {
        Wire_Selection_Form(screens.program, *form);
        form->cmd_Cancel.click = [&screens, screen = form->kind.screen] {
            Procedure(screens.program, std::string(Screen_Name(screen)) + ".cmd_Cancel",
                      [&] { Reopen_Plot_Type(screens, screen); });
        };
    }
}

}  // namespace kervol
