// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/motion_fields.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/arithmetic.h"
#include "core/geometry.h"
#include "core/number_text.h"
#include "core/report.h"
#include "kinematics/step_count.h"
#include "kinematics/sweep.h"
#include "screens/fields.h"
#include "screens/geometry_fields.h"

namespace kervol {
namespace {

using Fields = std::array<TextField, NumInitialFields>;

/// Captions of the six fields in a mode; an empty one stands for a field that is not shown.
struct InitialCaptions {
    std::array<const char*, NumInitialFields> fields;
    const char* range_unit;
};

const InitialCaptions& Captions_Of(std::int16_t mode) {
    static constexpr InitialCaptions kOnePosition = {{"", "", "", "Omega2", "Alpha2", "Theta Zero"}, "deg"};
    static constexpr InitialCaptions kTime = {
        {"Start Time", "End Time", "Delta Time", "Omega Zero", "Alpha2", "Theta Zero"}, "sec"};
    static constexpr InitialCaptions kAngle = {{"Min Theta", "Max Theta", "Delta Theta", "Omega2", "", ""},
                                               "deg"};
    static constexpr InitialCaptions kDrive = {{"", "", "", "", "", "Thetazero"}, "deg"};
    switch (mode) {
        case 1:
            return kOnePosition;
        case 2:
            return kTime;
        case 3:
            return kAngle;
        default:
            return kDrive;
    }
}

void Warn(Screens& screens, const std::string& text) {
    screens.program.port.Show_Message({text, Icon::Exclamation});
}

constexpr const char* kClockwiseHint = "\n\nTo rotate CW from max to min, use a negative Omega2.";

void Put_Range(Fields& fields, float first, float last, float step) {
    Put_Plain_Number(fields[0], first);
    Put_Plain_Number(fields[1], last);
    Put_Plain_Number(fields[2], step);
}

/// The one position's angle stands in field 5, where a screen has that field; fields 0 and 1 mirror it.
void Mirror_One_Position(Screens& screens) {
    Fields& fields = screens.frm_Inputnew.txt_Initial;
    for (TextField* mirror : {&fields[0], &fields[1]}) {
        mirror->text = fields[5].text;
        mirror->put_value = fields[5].put_value;
    }
}

void Get_One_Position(Screens& screens, Fields& fields) {
    Mirror_One_Position(screens);
    screens.program.model.Theta2One = Number_In(fields[0]);
    fields[1].text = fields[0].text;
    fields[1].put_value = fields[0].put_value;
}

void Put_Range_On_Screens(Screens& screens, float first, float last, float step) {
    const LinkageModel& model = screens.program.model;
    for (LinkageScreen* screen : {static_cast<LinkageScreen*>(&screens.frm_Inputnew),
                                  static_cast<LinkageScreen*>(&screens.frm_Animate)}) {
        Put_Range(screen->txt_Initial, first, last, step);
        if (model.CalcMode == 1) Put_Range(screen->txt_Initial, model.Theta2One, model.Theta2One, step);
        Show_InitialFields(model, *screen);
    }
    if (model.CalcMode == 1) Mirror_One_Position(screens);
}

void Get_Time_Step(Screens& screens, TextField& field) {
    LinkageModel& model = screens.program.model;
    const float step = Number_In(field);
    if (step > 0) {
        model.TimeStep = step;
        return;
    }
    Warn(screens, "Time steps must be positive - will reset");
    if (step < 0) model.TimeStep = -step;
    Put_Plain_Number(field, model.TimeStep);
}

void Get_Time_Range(Screens& screens, LinkageScreen& screen) {
    LinkageModel& model = screens.program.model;
    Fields& fields = screen.txt_Initial;
    const float start = Number_In(fields[0]);
    const float end = Number_In(fields[1]);
    if (!(start < end)) {
        Warn(screens, "Start time must be smaller than end time - will reset.");
        Put_Plain_Number(fields[0], model.TimeStart);
        Put_Plain_Number(fields[1], model.TimeEnd);
        return;
    }
    model.TimeStart = start;
    model.TimeEnd = end;
    model.ThetaMinText = fields[0].text;
    model.ThetaMaxText = fields[1].text;
    Get_Time_Step(screens, fields[2]);
    model.ThetaStepText = fields[2].text;
    if (!Count_Time_Range(model))
        Warn(screens, "Your time steps are too small - Have > " + std::to_string(MaxSteps) +
                          " Points - Increase Delta Time");
    Put_Calc_Geometry(screens);
    Put_Time_Data(screens);
}

void Get_Angle_Range(Screens& screens, LinkageScreen& screen) {
    LinkageModel& model = screens.program.model;
    Fields& fields = screen.txt_Initial;
    const float min = Number_In(fields[0]);
    const float max = Number_In(fields[1]);
    if (!(min < max)) {
        Warn(screens, std::string("Minimum angle must be smaller than maximum angle.") + kClockwiseHint);
        Put_Plain_Number(fields[0], model.ThetaMinDeg);
        Put_Plain_Number(fields[1], model.ThetaMaxDeg);
        return;
    }
    model.ThetaMinDeg = min;
    model.ThetaMaxDeg = max;
    const float step = Number_In(fields[2]);
    if (step <= 0) {
        Warn(screens, std::string("Cannot have a zero or negative step size") + kClockwiseHint);
        Put_Plain_Number(fields[2], model.ThetaStepDeg);
        return;
    }
    model.ThetaStepDeg = step;
    Set_Range_Angles(model);
    if (0.98 * model.ThetaStep >= std::abs(double(model.ThetaMax) - model.ThetaMin)) {
        Warn(screens,
             "Something is wrong. \nMin and Max theta are too close together\n or delta theta is too large.");
        return;
    }
    const bool fits = Count_Angle_Range(model);
    model.Alpha2Const = 0;
    if (!fits) {
        Warn(screens, "Your angle steps are too small - Have > " + std::to_string(MaxSteps) +
                          " Points - Increase Delta Theta");
        const bool animating = &screen == &screens.frm_Animate;
        screens.program.port.Set_Focus(animating ? ScreenId::frm_Animate : ScreenId::frm_Inputnew,
                                       "txt_Initial_2");
        return;
    }
    Put_Calc_Geometry(screens);
    Put_Calc_Angles(screens);
}

/// What follows a sweep of the Calculate button, unless it was abandoned.
void Close_Sweep(Screens& screens) {
    LinkageModel& model = screens.program.model;
    InputScreen& screen = screens.frm_Inputnew;
    screen.hsc_step.visible = true;
    for (Label* label : {&screen.lbl_StepLabel, &screen.lbl_StepUnit, &screen.lbl_StepNumber})
        label->visible = true;
    screen.lbl_cw.visible = true;
    screen.lbl_ccw.visible = model.CalcMode == 3;
    screen.lbl_time.visible = model.CalcMode == 2;
    Put_Calc_Geometry(screens);
    if (model.CalcMode == 3)
        Put_Calc_Angles(screens);
    else
        Put_Time_Data(screens);
    model.DataCalculated = true;
    model.DataFromFile = false;
}

}  // namespace

bool Can_Draw(const LinkageModel& model, std::int16_t step) {
    return model.NumSteps <= MaxSteps && step <= MaxSteps;
}

void Show_InitialFields(const LinkageModel& model, LinkageScreen& screen) {
    const InitialCaptions& captions = Captions_Of(model.CalcMode);
    for (std::size_t field = 0; field < NumInitialFields; ++field) {
        const bool shown = *captions.fields[field] != '\0';
        screen.txt_Initial[field].visible = shown;
        screen.txt_Initial[field].enabled = model.CalcMode <= 3;
        screen.lbl_Initial[field].visible = shown;
        screen.lbl_Unit[field].visible = shown;
        screen.lbl_Initial[field].caption = captions.fields[field];
        if (field < 3) screen.lbl_Unit[field].caption = captions.range_unit;
    }
}

void Put_Calc_Angles(Screens& screens) {
    const LinkageModel& model = screens.program.model;
    Put_Range_On_Screens(screens, model.ThetaMinDeg, model.ThetaMaxDeg, model.ThetaStepDeg);
}

void Put_Time_Data(Screens& screens) {
    const LinkageModel& model = screens.program.model;
    Put_Range_On_Screens(screens, model.TimeStart, model.TimeEnd, model.TimeStep);
}

void Put_Omega_Alpha(const LinkageModel& model, LinkageScreen& screen) {
    Put_Plain_Number(screen.txt_Initial[3], model.Omega2Start);
    Put_Plain_Number(screen.txt_Initial[4], model.Alpha2Const);
    Put_Plain_Number(screen.txt_Initial[5], model.Theta2One);
}

void Put_SavedAngles(const LinkageModel& model, LinkageScreen& screen) {
    Put_Plain_Number(screen.txt_Initial[3], model.Omega2Start);
    if (model.CalcMode != 3) return;
    // The texts hold times or other angles after another mode; only one that means the angle itself is shown.
    const auto put = [&](std::size_t field, const std::string& text, float degrees) {
        if (Is_Same(Single(Val(text)), degrees)) Put_Number_Text(screen.txt_Initial[field], text, degrees);
    };
    put(0, model.ThetaMinText, model.ThetaMinDeg);
    put(1, model.ThetaMaxText, model.ThetaMaxDeg);
    put(2, model.ThetaStepText, model.ThetaStepDeg);
}

void Put_Speed_And_Cycles(const LinkageModel& model, AnimateScreen& screen) {
    Put_Value(screen.hsc_speed, 32767 - std::clamp(model.AnimDelay, 0, 32767));
    screen.txt_Cycles.text = std::to_string(model.AnimCycles);
}

void Put_Settings(const LinkageModel& model, AnimateScreen& screen) {
    Put_Speed_And_Cycles(model, screen);
    screen.chk_Showlinks.on = model.HideLinks != "Y" && model.HideLinks != "y";
    screen.chk_Trace.on = !model.ShowTrace.empty() && model.ShowTrace != "N";
}

void Show_Driven_By(const LinkageModel& model, LinkageScreen& screen) {
    screen.lbl_camdriven.visible = model.CalcMode == 4 || model.CalcMode == 5;
    screen.lbl_camdriven.caption =
        "\n This linkage is being driven by \ns-v-a data imported from the file: " + model.DriveFileName;
}

void Put_InitialCond(Screens& screens, LinkageScreen& screen) {
    const LinkageModel& model = screens.program.model;
    switch (model.CalcMode) {
        case 1:
            Put_Range(screen.txt_Initial, model.Theta2One, model.Theta2One, 0);
            break;
        case 2:
            Put_Range(screen.txt_Initial, model.TimeStart, model.TimeEnd, model.TimeStep);
            break;
        default:
            Put_Range(screen.txt_Initial, model.ThetaMinDeg, model.ThetaMaxDeg, model.ThetaStepDeg);
    }
    Put_Omega_Alpha(model, screen);
    Show_InitialFields(model, screen);
}

void Get_InitialCond(Screens& screens, LinkageScreen& screen) {
    Program& program = screens.program;
    Procedure(program, "Get_InitialCond", [&] {
        if (program.model.CalcMode == 1) Get_One_Position(screens, screen.txt_Initial);
        if (program.model.CalcMode == 2) Get_Time_Range(screens, screen);
        if (program.model.CalcMode == 3) Get_Angle_Range(screens, screen);
        program.model.StepMode = "Y";
        if (Can_Draw(program.model, program.animation.CurrentStep))
            Step(program, screen, screens.frm_Animate, program.animation.CurrentStep);
    });
}

void AngleStepDone(Screens& screens, Answer& response) {
    Program& program = screens.program;
    Procedure(program, "AngleStepDone", [&] {
        LinkageModel& model = program.model;
        const Fields& fields = screens.frm_Inputnew.txt_Initial;
        model.ThetaMinDeg = Number_In(fields[0]);
        model.ThetaMaxDeg = Number_In(fields[1]);
        model.ThetaStepDeg = Number_In(fields[2]);
        model.Omega2Start = Number_In(fields[3]);
        const Refusal refusal = Count_Angle_Steps(program);
        if (refusal == Refusal::TooManyAngleSteps) response = Answer::Abort;
        if (refusal != Refusal::None) return;
        Run_Sweep(program, model.CalcMode, response);
        if (response != Answer::Abort) Close_Sweep(screens);
    });
}

void TimeStepDone(Screens& screens, Answer& response) {
    Program& program = screens.program;
    Procedure(program, "TimeStepDone", [&] {
        LinkageModel& model = program.model;
        const Fields& fields = screens.frm_Inputnew.txt_Initial;
        model.Theta2One = Number_In(fields[5]);
        model.Omega2Start = Number_In(fields[3]);
        model.Alpha2Const = Number_In(fields[4]);
        if (model.CalcMode == 2) {
            model.TimeStart = Number_In(fields[0]);
            model.TimeEnd = Number_In(fields[1]);
            model.TimeStep = Number_In(fields[2]);
        }
        if (Count_Time_Steps(program) != Refusal::None) return;
        Run_Sweep(program, model.CalcMode, response);
        if (response != Answer::Abort) Close_Sweep(screens);
    });
}

}  // namespace kervol
