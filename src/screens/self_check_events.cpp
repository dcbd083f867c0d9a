// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/self_check_events.h"

#include "screens/wiring.h"
#include "selfcheck/self_check.h"
#include "selfcheck/self_check_text.h"

namespace kervol {

void Self_Check_Form_Activate(Screens& screens) {
    const LinkageModel& model = screens.program.model;
    const ResultTables& tables = screens.program.tables;
    const SelfCheck result = Check_Results(model, tables, Steps_With_Forces(model, tables));
    screens.frm_SelfCheck.txt_Report.text = Self_Check_Text(model, result);
}

void Wire_Self_Check_Screen(Screens& screens) {
    SelfCheckScreen& screen = screens.frm_SelfCheck;
    const Wiring on(screens);
    on(screen.cmd_Back.click, "frm_SelfCheck.cmd_Back_Click",
       [](Screens& all) { all.program.port.Hide_Screen(ScreenId::frm_SelfCheck); });
    on(screen.cmd_Copy.click, "frm_SelfCheck.cmd_Copy_Click",
       [](Screens& all) { all.program.port.Copy_Text(all.frm_SelfCheck.txt_Report.text); });
}

}  // namespace kervol
