// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/animate_events.h"

#include <cmath>

#include "animation/running.h"
#include "core/arithmetic.h"
#include "core/header.h"
#include "core/number_text.h"
#include "core/report.h"
#include "kinematics/sweep.h"
#include "screens/geometry_fields.h"
#include "screens/home_screen.h"
#include "screens/motion_fields.h"
#include "screens/printing.h"
#include "screens/wiring.h"

namespace kervol {
namespace {

constexpr const char* kFailedPositions =
    "This linkage cannot connect at some positions\n"
    "and may not animate properly or at all.\n"
    "\n"
    "Use the Step button to move the linkage \n"
    "through all its possible (reachable) positions\n"
    "and note the useable range as reported in \n"
    "the (cyan) box labeled Theta2 at right.\n"
    "\n"
    "Reset Start Theta and End Theta values accordingly.  \n"
    " It will recalculate and then animate properly.";

std::array<Button*, 5> Output_Buttons(AnimateScreen& screen) {
    return {&screen.cmd_Done, &screen.cmd_Step, &screen.cmd_Run, &screen.cmd_Reset, &screen.cmd_Copy};
}

void Enable_Outputs(AnimateScreen& screen, bool on) {
    for (Button* button : Output_Buttons(screen)) button->enabled = on;
}

void Clear_Picture(AnimateScreen& screen) {
    if (screen.Picture1 != nullptr) screen.Picture1->Clear();
}

void Show_Position(Screens& screens, std::int16_t step) {
    screens.program.animation.CurrentStep = step;
    if (Can_Draw(screens.program.model, step))
        Step(screens.program, screens.frm_Animate, screens.frm_Animate, step);
}

void cmd_Step_Click(Screens& screens) {
    AnimateScreen& screen = screens.frm_Animate;
    screens.program.model.StepMode = "Y";
    if (Can_Draw(screens.program.model, 0)) Step_Setup(screens.program, screen, screen, screen.Stepping);
}

void cmd_Reset_Click(Screens& screens) {
    if (Can_Draw(screens.program.model, 0))
        Step_Reset(screens.program, screens.frm_Animate, screens.frm_Animate);
}

void hsc_step_Scroll(Screens& screens) {
    Show_Position(screens, static_cast<std::int16_t>(screens.frm_Animate.hsc_step.value));
}

void hsc_step_Change(Screens& screens) {
    if (!screens.frm_Animate.Stepping) hsc_step_Scroll(screens);
}

void cmd_Run_Click(Screens& screens) {
    Program& program = screens.program;
    AnimateScreen& screen = screens.frm_Animate;
    Put_Value(screen.hsc_step, 0);
    if (program.model.SomeStepFailed) {
        for (Label* label : {&screen.lbl_StepLabel, &screen.lbl_StepUnit, &screen.lbl_StepNumber})
            label->visible = true;
        program.port.Show_Message({kFailedPositions, Icon::Exclamation});
    }
    program.model.StepMode = "N";
    if (Can_Draw(program.model, 0)) Animate(program, screen, screen);
}

/// Sweeps anew with the model as it stands. A run that was abandoned leaves the outputs off.
void Recalc(Screens& screens) {
    Program& program = screens.program;
    Procedure(program, "Recalc", [&] {
        LinkageModel& model = program.model;
        Answer response = Answer::None;
        program.port.Set_Pointer(Pointer::Busy);
        if (!Can_Draw(model, 0))
            response = Answer::Abort;
        else if (model.CalcMode == 4 || model.CalcMode == 5)
            Calc_Drive_Data(program, response);
        else
            Run_Sweep(program, model.CalcMode, response);
        const bool done = response != Answer::Abort;
        if (done) {
            // What stands may be of the linkage before the edit.
            Clear_Picture(screens.frm_Animate);
            program.animation.CurrentStep = 5;
            cmd_Step_Click(screens);
            model.DataFromFile = false;
            Put_Calc_Geometry(screens);
            Enable_Outputs(screens.frm_Animate, true);
        }
        model.DataCalculated = done;
        model.DynamicsCalculated = false;
        model.NewData = true;
        Update_Home_Menu(screens);
    });
    program.port.Set_Pointer(Pointer::Default);
}

void cmd_Recalc_Click(Screens& screens) {
    ScrollBar& bar = screens.frm_Animate.hsc_step;
    Put_Value(bar, 0);
    bar.maximum = screens.program.model.NumSteps;
    Recalc(screens);
}

void opt_OpenCross_Click(Screens& screens) {
    if (screens.program.model.Loading || screens.frm_Animate.Filling) return;
    Read_OpenCross(screens.program.model, screens.frm_Animate);
    Recalc(screens);
}

void txt_Linkout_Change(Screens& screens) {
    Enable_Outputs(screens.frm_Animate, false);
    screens.program.model.DataCalculated = false;
    Clear_Picture(screens.frm_Animate);
}

void txt_Linkout_LostFocus(Screens& screens) {
    Get_Calc_Geometry(screens);
    screens.frm_Animate.GeometryEdited = true;
}

void txt_Initial_LostFocus(Screens& screens) {
    Get_InitialCond(screens, screens.frm_Animate);
    Recalc(screens);
}

void Take_Title(Screens& screens) {
    screens.program.model.ModelTitle = screens.frm_Animate.txt_header.text;
}

void cmb_wait_Change(Screens& screens) {
    screens.program.model.AnimWait = Int16(std::floor(Val(screens.frm_Animate.cmb_wait.text)));
}

void cmd_Copy_Click(Screens& screens) {
    Print_Form(screens.program.port, ScreenId::frm_Animate);
}

void cmd_Done_Click(Screens& screens) {
    Take_Title(screens);
    LinkageModel& model = screens.program.model;
    if (screens.frm_Animate.GeometryEdited) model.DesignNumber = Int16(model.DesignNumber + 1.0);
    screens.program.port.Hide_Screen(ScreenId::frm_Animate);
}

void cmd_Back_Click(Screens& screens) {
    screens.program.port.Hide_Screen(ScreenId::frm_Animate);
    screens.program.port.Show_Screen(ScreenId::frm_Inputnew, Modality::Modal);
}

void Show_Mode(Screens& screens) {
    const LinkageModel& model = screens.program.model;
    AnimateScreen& screen = screens.frm_Animate;
    const bool angles = model.CalcMode == 1 || model.CalcMode == 3;
    if (angles) Put_Calc_Angles(screens);
    if (model.CalcMode == 2) {
        Put_Time_Data(screens);
        Put_Check(screen.chk_Points, false);
    }
    if (model.CalcMode == 3) Put_Check(screen.chk_Points, true);
    screen.lbl_cw.visible = screen.lbl_ccw.visible = angles;
    screen.lbl_time.visible = model.CalcMode == 2;
    Show_Driven_By(model, screen);
}

}  // namespace

void Animate_Form_Activate(Screens& screens) {
    Program& program = screens.program;
    const LinkageModel& model = program.model;
    AnimateScreen& screen = screens.frm_Animate;
    screen.Filling = true;
    Enable_Outputs(screen, true);
    // What stands is of another linkage, or of a run that is over.
    Clear_Picture(screen);
    screen.lbl_Header.caption = Put_Header(model);
    Put_Speed_And_Cycles(model, screen);
    screen.hsc_step.maximum = model.NumSteps;
    Put_Value(screen.hsc_step, 0);
    cmd_Reset_Click(screens);
    Put_OpenCross(model, screen);
    Put_InitialCond(screens, screen);
    Put_Calc_Geometry(screens);
    Show_Mode(screens);
    for (TextField& field : screen.txt_Initial) field.enabled = model.CalcMode != 1;
    Put_Check(screen.chk_Points, model.ShowPoints == "Y");
    Put_Check(screen.chk_Coupler, model.ShowCoupler == "Y");
    Show_Position(screens, 1);
    if (!model.ModelTitle.empty()) screen.txt_header.text = model.ModelTitle;
    screen.GeometryEdited = false;
    screen.Filling = false;
}

void Wire_Animate_Screen(Screens& screens) {
    AnimateScreen& screen = screens.frm_Animate;
    const Wiring on(screens);
    on(screen.cmd_Run.click, "frm_animate.cmd_Run_Click", cmd_Run_Click);
    on(screen.cmd_Step.click, "frm_animate.cmd_Step_Click", cmd_Step_Click);
    on(screen.cmd_Reset.click, "frm_animate.cmd_Reset_Click", cmd_Reset_Click);
    on(screen.cmd_Recalc.click, "frm_animate.cmd_Recalc_Click", cmd_Recalc_Click);
    on(screen.cmd_Copy.click, "frm_animate.cmd_Copy_Click", cmd_Copy_Click);
    on(screen.cmd_Done.click, "frm_animate.cmd_Done_Click", cmd_Done_Click);
    on(screen.cmd_Back.click, "frm_animate.cmd_Back_Click", cmd_Back_Click);
    on(screen.hsc_step.change, "frm_animate.hsc_step", hsc_step_Change);
    on(screen.hsc_step.scroll, "frm_animate.hsc_step", hsc_step_Scroll);
    on(screen.cmb_wait.change, "frm_animate.cmb_wait", cmb_wait_Change);
    on(screen.chk_Coupler.click, "frm_animate.chk_Coupler",
       [](Screens& all) { all.program.model.ShowCoupler = all.frm_Animate.chk_Coupler.on ? "Y" : "N"; });
    on(screen.chk_Points.click, "frm_animate.chk_Points",
       [](Screens& all) { all.program.model.ShowPoints = all.frm_Animate.chk_Points.on ? "Y" : "N"; });
    on(screen.txt_header.lost_focus, "frm_animate.txt_header", Take_Title);
    for (TextField& field : screen.txt_Linkout) {
        on(field.change, "frm_animate.txt_Linkout", txt_Linkout_Change);
        on(field.lost_focus, "frm_animate.txt_Linkout", txt_Linkout_LostFocus);
        on(field.enter, "frm_animate.txt_Linkout", txt_Linkout_LostFocus);
    }
    for (TextField& field : screen.txt_Initial) {
        on(field.lost_focus, "frm_animate.txt_Initial", txt_Initial_LostFocus);
        on(field.enter, "frm_animate.txt_Initial", txt_Initial_LostFocus);
    }
    for (auto* options : {&screen.opt_OpenCross1, &screen.opt_OpenCross2})
        for (OptionButton& option : *options)
            on(option.click, "frm_animate.opt_OpenCross", opt_OpenCross_Click);
}

}  // namespace kervol
