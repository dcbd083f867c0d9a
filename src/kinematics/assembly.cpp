// SPDX-License-Identifier: GPL-3.0-or-later
#include "kinematics/assembly.h"

#include <algorithm>
#include <array>

#include "core/arithmetic.h"
#include "core/mathematics.h"
#include "core/number_text.h"
#include "core/report.h"

namespace kervol {
namespace {

std::string Failure_Text(int stage, float Theta2Rad) {
    const double degrees = FNRound(Single(Theta2Rad * DegreesPerRadian), 2);
    return "Stage " + With_Sign_Blank(stage) +
           " of linkage cannot connect or is indeterminate at Theta2 =  " + Plain_Number(degrees) +
           " Degrees\n\n"
           "Choose Abort to terminate further calculations beyond the current position\n\n"
           "Choose Retry to continue calculating the linkage motion and flag new problem positions with this "
           "message\n\n"
           "Choose Ignore to continue calculating, skipping over new problem positions and suppressing "
           "further "
           "messages\n";
}

void Zero_Working_State(LinkageModel& model) {
    for (float* value : {&model.Theta3Rad, &model.Theta4Rad, &model.Theta5Rad, &model.Theta6Rad,
                         &model.Omega3Now, &model.Omega4Now, &model.Omega5Now, &model.Omega6Now,
                         &model.Alpha3Now, &model.Alpha4Now, &model.Alpha5Now, &model.Alpha6Now})
        *value = 0;
}

void Zero_Row(const LinkageModel& model, ResultTables& tables, std::int16_t step) {
    for (int column = 1; column <= 7; ++column) tables.Theta(step, column) = 0;
    for (int column = model.CalcMode < 4 ? 0 : 1; column <= 4; ++column) {
        tables.Omega(step, column) = 0;
        tables.Alpha(step, column) = 0;
    }
    for (int point = 0; point <= 5; ++point) {
        tables.PointPos(step, point).Fill(0);
        tables.PointVel(step, point).Fill(0);
        tables.PointAcc(step, point).Fill(0);
    }
    tables.VelRatio(step, 0) = 0;
    tables.MechAdv(step, 0) = 0;
}

}  // namespace

void Classify_Stage(LinkageModel& model, float l1, float l2, float l3, float l4, int index,
                    std::string& out_class) {
    std::array<float, 4> lengths = {l4, l1, l2, l3};
    std::sort(lengths.begin(), lengths.end());
    const auto [S, P, Q, L] = lengths;
    const float outer = Single(double(S) + L);
    const float inner = Single(double(P) + Q);

    std::string text = "Stage " + With_Sign_Blank(index + 1);
    if (inner > outer) {
        text += "  is Grashof";
        if (Is_Same(S, l2)) text += " Double-Rocker";
        out_class = "Y";
    } else if (inner < outer) {
        text += "  is Non - Grashof";
        out_class = "N";
    } else {
        text += "  is Special Case Grashof";
        out_class = "SC";
    }
    model.StageText(index) = text;
}

void Classify_Stage1(Program& program) {
    LinkageModel& model = program.model;
    Procedure(program, "Classify_Stage", [&] {
        Classify_Stage(model, model.Link2, model.Link3, model.Link4, model.Link1, 0, model.Stage1Class);
        program.port.Show_Classes();
    });
}

void Classify_Stage2(Program& program) {
    LinkageModel& model = program.model;
    if (model.LinkageType != "W") return;
    Procedure(program, "Classify_Stage", [&] {
        Classify_Stage(model, model.LinkO4D, model.Link5, model.Link6, model.O4O6Length, 1,
                       model.Stage2Class);
        program.port.Show_Classes();
    });
}

double Check_Limit_Angles(Port& port, float a, float b, float c, float d) {
    return Routine("Check_Limit_Angles", [&] {
        const double u = Divide(double(a) * a + double(d) * d - double(b) * b - double(c) * c, 2.0 * a * d);
        const double v = Divide(double(b) * c, double(a) * d);
        const double cosine = std::abs(u + v) <= 1 ? u + v : u - v;
        return FNArcCos(port, Single(cosine)) * DegreesPerRadian;
    });
}

void Cannot_Assemble(Program& program, int stage, std::int16_t step, float Theta2Rad, Answer& response) {
    Procedure(program, "Cannot_Assemble", [&] {
        program.model.SomeStepFailed = true;
        program.tables.StepValid(step) = false;
        if (response != Answer::Ignore)
            response = program.port.Show_Message({Failure_Text(stage, Theta2Rad), Icon::Exclamation,
                                                  Buttons::AbortRetryIgnore, Answer::Ignore});
        Zero_Working_State(program.model);
        Zero_Row(program.model, program.tables, step);
    });
}

}  // namespace kervol
