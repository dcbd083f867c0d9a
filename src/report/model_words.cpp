// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/model_words.h"

#include "core/number_text.h"

namespace kervol {
namespace {

std::string Chain_Name(const LinkageModel& model) {
    if (model.LinkageType == "W") return "Watt";
    if (model.LinkageType == "S") return "Stephenson";
    return "\"" + model.LinkageType + "\", Stage 1 alone";
}

std::string Point_Text(float x, float y, const std::string& unit) {
    return Plain_Number(x) + ", " + Plain_Number(y) + " " + unit;
}

/// The class in words, as the classification put it or, where none ran, as the file has it.
std::string Class_Text(const std::string& text, const std::string& stage_class) {
    const std::size_t words = std::string_view("Stage  1  ").size();
    if (text.size() > words) return text.substr(words);
    if (stage_class == "Y") return "is Grashof";
    if (stage_class == "N") return "is Non - Grashof";
    return stage_class == "SC" ? "is Special Case Grashof" : "not classified";
}

}  // namespace

std::vector<NamedText> Geometry_Lines(const LinkageModel& model) {
    const bool watt = model.LinkageType == "W";
    const std::string& length = model.UnitText(6);
    const auto number = [](const char* name, float value, const std::string& unit) {
        return NamedText{name, Plain_Number(value) + " " + unit};
    };
    std::vector<NamedText> lines = {
        {"Chain",
         Chain_Name(model) + ", Stage 1 " + model.OpenCross1Text + ", Stage 2 " + model.OpenCross2Text},
        number("Link 1 (O2-O4)", model.Link1, length),
        number("Link 2 (O2-A)", model.Link2, length),
        number("Link 3 (A-B)", model.Link3, length),
        number("Link 4 (O4-B)", model.Link4, length),
    };
    if (watt) lines.push_back(number("Link O4-D", model.LinkO4D, length));
    if (watt) lines.push_back(number("Angle Delta4", model.Delta4Deg, "deg"));
    lines.push_back(number(watt ? "Link 5 (D-E)" : "Link 5 (C-D)", model.Link5, length));
    lines.push_back(number(watt ? "Link 6 (O6-E)" : "Link 6 (O6-D)", model.Link6, length));
    lines.push_back(number("Coupler A-C", model.CouplerAC, length));
    lines.push_back(number("Angle Delta3", model.Delta3Deg, "deg"));
    lines.push_back(number("Coupler point 2", model.Coupler2Length, length));
    lines.push_back(number("Angle Delta5", model.Delta5Deg, "deg"));
    lines.push_back({"Pivot O4", Point_Text(model.O4X, model.O4Y, length)});
    lines.push_back({"Pivot O6", Point_Text(model.O6X, model.O6Y, length)});
    lines.push_back(number("Angle to ground", model.GroundAngleDeg, "deg"));
    return lines;
}

std::string Drive_Text(const LinkageModel& model) {
    const std::string speed = Plain_Number(model.Omega2Start) + " rad/s";
    switch (model.CalcMode) {
        case 1:
            return "one position at " + Plain_Number(model.Theta2One) + " deg, " + speed;
        case 2:
            return "time steps from " + Plain_Number(model.TimeStart) + " to " + Plain_Number(model.TimeEnd) +
                   " by " + Plain_Number(model.TimeStep) + " s, starting at " +
                   Plain_Number(model.Theta2One) + " deg, " + speed + ", " + Plain_Number(model.Alpha2Const) +
                   " rad/s^2";
        case 3:
            return "angle steps from " + Plain_Number(model.ThetaMinDeg) + " to " +
                   Plain_Number(model.ThetaMaxDeg) + " by " + Plain_Number(model.ThetaStepDeg) + " deg, " +
                   speed;
        case 4:
            return "cam s-v-a data of " + model.DriveFileName;
        case 5:
            return "linkage data of " + model.DriveFileName;
        default:
            return "none (mode " + std::to_string(model.CalcMode) + ")";
    }
}

std::vector<NamedText> Class_Lines(const LinkageModel& model) {
    std::vector<NamedText> lines = {{"Stage 1", Class_Text(model.StageText(0), model.Stage1Class)}};
    if (model.LinkageType == "W")
        lines.push_back({"Stage 2", Class_Text(model.StageText(1), model.Stage2Class)});
    return lines;
}

std::string Failed_Steps(const ResultTables& tables, int last) {
    std::string text;
    for (int step = 0; step <= last; ++step) {
        if (tables.StepValid(step)) continue;
        const int first = step;
        while (step < last && !tables.StepValid(step + 1)) ++step;
        text += (text.empty() ? "" : ", ") + std::to_string(first);
        if (step > first) text += " to " + std::to_string(step);
    }
    return text.empty() ? "none" : text;
}

}  // namespace kervol
