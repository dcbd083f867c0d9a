// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/input_events.h"

#include <string>

#include "animation/stepping.h"
#include "core/arithmetic.h"
#include "core/header.h"
#include "kinematics/step_count.h"
#include "kinematics/sweep.h"
#include "screens/fields.h"
#include "screens/geometry_fields.h"
#include "screens/home_screen.h"
#include "screens/motion_fields.h"
#include "screens/printing.h"
#include "screens/wiring.h"

namespace kervol {
namespace {

void Clear_Picture(InputScreen& screen) {
    if (screen.Picture1 != nullptr) screen.Picture1->Clear();
}

std::array<Button*, 6> Output_Buttons(InputScreen& screen) {
    return {&screen.cmd_Next,  &screen.cmd_Step,  &screen.cmd_Animate,
            &screen.cmd_Reset, &screen.cmd_Print, &screen.cmd_Draw};
}

void Show_Position(Screens& screens, std::int16_t step) {
    screens.program.animation.CurrentStep = step;
    if (Can_Draw(screens.program.model, step))
        Step(screens.program, screens.frm_Inputnew, screens.frm_Animate, step);
}

void cmd_Step_Click(Screens& screens) {
    if (!Can_Draw(screens.program.model, 0)) return;
    Step_Setup(screens.program, screens.frm_Inputnew, screens.frm_Animate, screens.frm_Inputnew.Stepping);
}

/// Draws the first position of a sweep. In mode 1 the Step button draws nothing.
void Draw_First_Position(Screens& screens) {
    screens.program.animation.CurrentStep = 0;
    cmd_Step_Click(screens);
    if (screens.program.model.CalcMode == 1) Show_Position(screens, 0);
}

void cmd_Reset_Click(Screens& screens) {
    if (!Can_Draw(screens.program.model, 0)) return;
    Step_Reset(screens.program, screens.frm_Inputnew, screens.frm_Animate);
}

void hsc_step_Scroll(Screens& screens) {
    if (screens.program.model.DataCalculated)
        Show_Position(screens, static_cast<std::int16_t>(screens.frm_Inputnew.hsc_step.value));
}

void hsc_step_Change(Screens& screens) {
    if (!screens.frm_Inputnew.Stepping) hsc_step_Scroll(screens);
}

void Run_Mode(Screens& screens, Answer& response) {
    const std::int16_t mode = screens.program.model.CalcMode;
    InputScreen& screen = screens.frm_Inputnew;
    if (mode >= 1 && mode <= 3) Get_InitialCond(screens, screen);
    Put_Calc_Geometry(screens);
    if (mode == 1 || mode == 2) TimeStepDone(screens, response);
    if (mode == 3) AngleStepDone(screens, response);
    if (mode == 4 || mode == 5) {
        Put_Plain_Number(screen.txt_Initial[5], screens.program.model.Theta2One);
        Calc_Drive_Data(screens.program, response);
    }
}

void Close_Calculation(Screens& screens) {
    Program& program = screens.program;
    LinkageModel& model = program.model;
    InputScreen& screen = screens.frm_Inputnew;
    Enable_Outputs(screens);
    Draw_First_Position(screens);
    model.DataCalculated = true;
    model.DataFromFile = false;
    screen.cmd_Animate.enabled = model.CalcMode != 1;
    screen.cmd_Step.enabled = model.CalcMode != 1;
    if (model.CalcMode == 3) cmd_Step_Click(screens);
    screen.cmd_Next.enabled = true;
    model.DynamicsCalculated = false;
    model.NewData = true;
    screen.hsc_step.maximum = model.NumSteps;
    Update_Home_Menu(screens);
}

void cmd_Calc_Click(Screens& screens) {
    Answer response = Answer::None;
    screens.program.port.Set_Pointer(Pointer::Busy);
    Put_Value(screens.frm_Inputnew.hsc_step, 0);
    screens.program.model.DataCalculated = false;
    Run_Mode(screens, response);
    if (response != Answer::Abort) Close_Calculation(screens);
    screens.program.port.Set_Pointer(Pointer::Default);
}

void cmd_Draw_Click(Screens& screens) {
    Program& program = screens.program;
    LinkageModel& model = program.model;
    InputScreen& screen = screens.frm_Inputnew;
    Get_Input_Geometry(screens);
    const std::int16_t steps = model.NumSteps;
    program.port.Set_Pointer(Pointer::Busy);
    Set_Preview_Range(program);
    screen.opt_Calctype[2].enabled = model.Stage1Class != "N";
    Answer response = Answer::None;
    Run_Sweep(program, model.CalcMode, response);
    // A preview must not cut an imported drive.
    if (model.CalcMode > 3) model.NumSteps = steps;
    Draw_First_Position(screens);
    for (Button* button : {&screen.cmd_Step, &screen.cmd_Reset, &screen.cmd_Next, &screen.cmd_Print})
        button->enabled = true;
    model.DataCalculated = false;
    model.DynamicsCalculated = false;
    model.NewData = true;
    program.port.Set_Pointer(Pointer::Default);
}

void cmd_Next_Click(Screens& screens) {
    Program& program = screens.program;
    InputScreen& screen = screens.frm_Inputnew;
    program.model.ModelTitle = screen.txt_header.text;
    if (screen.GeometryEdited) program.model.DesignNumber = Int16(program.model.DesignNumber + 1.0);
    program.animation.CurrentStep = 0;
    program.port.Hide_Screen(ScreenId::frm_Inputnew);
    if (program.model.CalcMode != 1) program.port.Show_Screen(ScreenId::frm_Animate, Modality::Modal);
}

void cmd_Animate_Click(Screens& screens) {
    screens.program.animation.CurrentStep = 0;
    screens.program.port.Hide_Screen(ScreenId::frm_Inputnew);
    screens.program.port.Show_Screen(ScreenId::frm_Animate, Modality::Modal);
}

void cmd_Print_Click(Screens& screens) {
    Print_Form(screens.program.port, ScreenId::frm_Inputnew);
}

/// After an edit: calculate at once, or clear what no longer holds.
void Calculate_Or_Clear(Screens& screens) {
    if (screens.frm_Inputnew.chk_autocalc.on)
        cmd_Calc_Click(screens);
    else
        Clear_Picture(screens.frm_Inputnew);
}

void txt_Linkout_Change(Screens& screens) {
    Disable_Outputs(screens);
    screens.frm_Inputnew.LinkoutChanged = true;
}

void txt_Linkout_LostFocus(Screens& screens) {
    InputScreen& screen = screens.frm_Inputnew;
    if (!screen.LinkoutChanged) return;
    Get_Input_Geometry(screens);
    screen.GeometryEdited = true;
    Calculate_Or_Clear(screens);
    screen.LinkoutChanged = false;
}

void txt_Initial_LostFocus(Screens& screens) {
    Get_InitialCond(screens, screens.frm_Inputnew);
    Calculate_Or_Clear(screens);
}

/// The old tables belong to another drive.
void txt_Initial_Change(Screens& screens) {
    Disable_Outputs(screens);
}

void opt_SteveWatt_Click(Screens& screens) {
    if (screens.program.model.Loading || screens.frm_Inputnew.Filling) return;
    Change_Labels(screens);
    Disable_Outputs(screens);
    screens.frm_Inputnew.GeometryEdited = true;
}

/// Options, fields and ends of the step bar for the model's mode.
void Show_Mode(Screens& screens) {
    const LinkageModel& model = screens.program.model;
    InputScreen& screen = screens.frm_Inputnew;
    screen.opt_Calctype[0].on = model.CalcMode == 3;
    screen.opt_Calctype[1].on = model.CalcMode == 1;
    screen.opt_Calctype[2].on = model.CalcMode == 2;
    const bool imported = model.CalcMode == 4 || model.CalcMode == 5;
    screen.frm_calcmode.visible = !imported;
    for (OptionButton& option : screen.opt_Calctype) option.visible = screen.frm_calcmode.visible;
    screen.lbl_cw.visible = screen.lbl_ccw.visible = model.CalcMode == 3;
    screen.lbl_time.visible = model.CalcMode == 2;
    screen.hsc_step.visible = model.CalcMode != 1;
    Show_Driven_By(model, screen);
    if (model.CalcMode == 1) Put_Omega_Alpha(model, screen);
    if (model.CalcMode == 1 || model.CalcMode == 3) Put_Calc_Angles(screens);
    if (model.CalcMode == 2) {
        Put_Omega_Alpha(model, screen);
        Put_Time_Data(screens);
    }
    Show_InitialFields(model, screen);
}

/// Speed, acceleration and angle are read by a calculation; what was typed since must outlive the refill.
void Keep_Typed_Drive(Screens& screens) {
    LinkageModel& model = screens.program.model;
    const auto& fields = screens.frm_Inputnew.txt_Initial;
    const auto keep = [](const TextField& field, float& value) {
        if (!field.put_value) value = Number_In(field);
    };
    keep(fields[3], model.Omega2Start);
    keep(fields[4], model.Alpha2Const);
    keep(fields[5], model.Theta2One);
}

void opt_Calctype_Click(Screens& screens, std::int16_t mode) {
    LinkageModel& model = screens.program.model;
    if (model.Loading || screens.frm_Inputnew.Filling) return;
    InputScreen& screen = screens.frm_Inputnew;
    Keep_Typed_Drive(screens);
    // From here on the model's own count: what was typed long ago must not come back once it was changed
    // there.
    Put_Omega_Alpha(model, screen);
    model.CalcMode = mode;
    Show_Mode(screens);
    model.DataCalculated = false;
    // One position has nothing to animate.
    screen.cmd_Animate.enabled = mode != 1 && screen.cmd_Next.enabled;
}

void opt_OpenCross_Click(Screens& screens) {
    LinkageModel& model = screens.program.model;
    if (model.Loading) return;
    Read_OpenCross(model, screens.frm_Inputnew);
    if (!screens.frm_Inputnew.Filling) cmd_Calc_Click(screens);
}

}  // namespace

void Disable_Outputs(Screens& screens) {
    screens.program.model.DataCalculated = false;
    for (Button* button : Output_Buttons(screens.frm_Inputnew)) button->enabled = false;
    Clear_Picture(screens.frm_Inputnew);
}

void Show_Classes(Screens& screens) {
    const LinkageModel& model = screens.program.model;
    InputScreen& screen = screens.frm_Inputnew;
    screen.Pnl_Grashof[0].caption = model.StageText(0);
    screen.Pnl_Grashof[1].caption = model.StageText(1);
    if (model.Stage1Class != "N") screen.opt_Calctype[2].enabled = true;
}

void Enable_Outputs(Screens& screens) {
    screens.program.model.DataCalculated = true;
    for (Button* button : Output_Buttons(screens.frm_Inputnew)) button->enabled = true;
}

void Input_Form_Activate(Screens& screens) {
    Program& program = screens.program;
    LinkageModel& model = program.model;
    InputScreen& screen = screens.frm_Inputnew;
    screen.Filling = true;
    screen.LinkoutChanged = false;
    if (model.Stage1Class != "N") screen.opt_Calctype[2].enabled = true;
    Disable_Outputs(screens);
    screen.cmd_Draw.enabled = true;
    screen.cmd_Print.enabled = true;
    model.ShowCoupler = "Y";
    screen.hsc_step.maximum = model.NumSteps;
    Put_Value(screen.hsc_step, 0);
    cmd_Reset_Click(screens);
    screens.frm_Animate.txt_Cycles.text = std::to_string(model.AnimCycles);
    screen.lbl_Header.caption = Put_Header(model);
    Put_Input_Geometry(screens);
    Put_OpenCross(model, screen);
    Change_Labels(screens);
    Put_InitialCond(screens, screen);
    Show_Mode(screens);
    Put_SavedAngles(model, screen);
    Get_Input_Geometry(screens);
    program.animation.CurrentStep = 5;
    cmd_Step_Click(screens);
    const bool autocalc = screen.chk_autocalc.on;
    Calculate_Or_Clear(screens);
    if (!model.ModelTitle.empty()) screen.txt_header.text = model.ModelTitle;
    screen.GeometryEdited = false;
    if (!autocalc) model.DataCalculated = false;
    screen.Filling = false;
}

void Wire_Input_Screen(Screens& screens) {
    InputScreen& screen = screens.frm_Inputnew;
    const Wiring on(screens);
    on(screen.cmd_Calc.click, "frm_Input.cmd_Calc", cmd_Calc_Click);
    on(screen.cmd_Draw.click, "frm_Input.cmd_Draw", cmd_Draw_Click);
    on(screen.cmd_Step.click, "frm_Input.cmd_Step", cmd_Step_Click);
    on(screen.cmd_Reset.click, "frm_Input.cmd_Reset", cmd_Reset_Click);
    on(screen.cmd_Next.click, "frm_Input.cmd_Next", cmd_Next_Click);
    on(screen.cmd_Animate.click, "frm_Input.cmd_Animate", cmd_Animate_Click);
    on(screen.cmd_Print.click, "frm_Input.Print", cmd_Print_Click);
    on(screen.cmd_Cancel.click, "frm_Input.cmd_Cancel",
       [](Screens& all) { all.program.port.Hide_Screen(ScreenId::frm_Inputnew); });
    on(screen.hsc_step.change, "frm_Input.hsc_step", hsc_step_Change);
    on(screen.hsc_step.scroll, "frm_Input.hsc_step", hsc_step_Scroll);
    for (TextField& field : screen.txt_Linkout) {
        on(field.change, "frm_Input.txt_Linkout", txt_Linkout_Change);
        on(field.lost_focus, "frm_Input.txt_Linkout", txt_Linkout_LostFocus);
        on(field.enter, "frm_Input.txt_Linkout", txt_Linkout_LostFocus);
    }
    for (TextField& field : screen.txt_Initial) {
        on(field.change, "frm_Input.txt_Initial", txt_Initial_Change);
        on(field.lost_focus, "frm_Input.txt_Initial", txt_Initial_LostFocus);
        on(field.enter, "frm_Input.txt_Initial", txt_Initial_LostFocus);
    }
    for (OptionButton& option : screen.opt_SteveWatt)
        on(option.click, "frm_Input.opt_SteveWatt", opt_SteveWatt_Click);
    on(screen.opt_Calctype[0].click, "frm_Input.opt_Calctype",
       [](Screens& all) { opt_Calctype_Click(all, 3); });
    on(screen.opt_Calctype[1].click, "frm_Input.opt_Calctype",
       [](Screens& all) { opt_Calctype_Click(all, 1); });
    on(screen.opt_Calctype[2].click, "frm_Input.opt_Calctype",
       [](Screens& all) { opt_Calctype_Click(all, 2); });
    for (auto* options : {&screen.opt_OpenCross1, &screen.opt_OpenCross2})
        for (OptionButton& option : *options)
            on(option.click, "frm_Input.opt_OpenCross", opt_OpenCross_Click);
}

}  // namespace kervol
