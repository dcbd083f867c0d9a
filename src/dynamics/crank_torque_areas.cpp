// SPDX-License-Identifier: GPL-3.0-or-later
#include "dynamics/crank_torque_areas.h"

#include <string_view>
#include <utility>

#include "core/extremes.h"
#include "core/number_text.h"
#include "core/report.h"

namespace kervol {
namespace {

constexpr float kCustomaryFluctuation = 0.05F;

/// A line of the picture; `At` goes on at a column counted from 1, or behind what reaches into it and a
/// blank.
class PictureLine {
  public:
    explicit PictureLine(std::string text) : text_(std::move(text)) {}

    PictureLine& At(std::size_t column, std::string_view more) {
        if (text_.size() < column - 1) text_.resize(column - 1, ' ');
        if (text_.back() != ' ' && more.front() != ' ') text_ += ' ';
        text_ += more;
        return *this;
    }
    const std::string& Text() const { return text_; }

  private:
    std::string text_;
};

std::string Rounded_Text(float value, std::int16_t decimals) {
    return Plain_Number(FNRound(value, decimals));
}

void Print_Pulses(CrankTorqueAreas& areas) {
    const int rows = Int16((areas.NPulses + 1) / 2.0);
    const bool negative_first = areas.FirstSign < 0;
    const PulseAreas& first = negative_first ? areas.NegArea : areas.PosArea;
    const PulseAreas& second = negative_first ? areas.PosArea : areas.NegArea;
    areas.Text.push_back(PictureLine(" Order")
                             .At(7, negative_first ? " Neg Area" : " Pos Area")
                             .At(18, negative_first ? " Pos Area" : " Neg Area")
                             .Text());
    areas.Text.emplace_back();
    for (int k = 1; k <= rows; ++k)
        areas.Text.push_back(PictureLine("   " + std::to_string(k))
                                 .At(8, Rounded_Text(first(k), 1))
                                 .At(18, Rounded_Text(second(k), 1))
                                 .Text());
}

void Print_Areas(CrankTorqueAreas& areas, const std::string& torque_unit) {
    areas.Text = {"", " Areas of Crank Torque",   " Pulses in Order over 1 cycle ",
                  "", "    in Energy Units of :", "     " + torque_unit + " - radians",
                  ""};
    if (areas.FirstSign != 0)
        Print_Pulses(areas);
    else
        areas.Text.emplace_back();
    areas.Text.emplace_back();
    areas.Text.emplace_back("    Average Torque:");
    areas.Text.push_back("   " + Rounded_Text(areas.Average, 2) + "  " + torque_unit);
}

}  // namespace

void Crank_Torque_Areas(Program& program, CrankTorqueAreas& areas) {
    Procedure(program, "Crank_Torque_Areas", [&] {
        const LinkageModel& model = program.model;
        const auto& TorqueTable = program.tables.TorqueTable;
        areas = {};
        Average2(0, model.NumSteps, TorqueTable, "I_Pointer", 0, areas.Average);
        Flywheel(program, TorqueTable, 0, model.NumSteps, model.ThetaStep, areas.Average, areas.NegArea,
                 areas.PosArea, areas.NPulses, areas.FirstSign, 0, "I_Pointer");
        Print_Areas(areas, model.UnitText(9));
        const double mean = areas.Average;
        for (int i = 0; i <= model.NumSteps; ++i)
            program.tables.FlywheelTorque(i) = Single((TorqueTable(i, 0) - mean) * model.CoefFluct + mean);
    });
}

void Size_Flywheel(Program& program, FlywheelSizing& sizing) {
    Crank_Torque_Areas(program, sizing.areas);
    Procedure(program, "cmd_Calc_Click", [&] {
        LinkageModel& model = program.model;
        const ResultTables& tables = program.tables;
        std::int16_t unused = 0;
        MaxMin2A(tables.TorqueTable, 0, 0, model.NumSteps, sizing.without.Tmax, sizing.without.Tmin, unused,
                 unused);
        MaxMin1(tables.FlywheelTorque, 0, model.NumSteps, sizing.with.Tmax, sizing.with.Tmin);
        model.FlywheelCalculated = true;
    });
}

bool Take_Coef_Fluct(LinkageModel& model, float value) {
    const bool taken = value > 0 && model.CoefFluct <= 1;
    model.CoefFluct = taken ? value : kCustomaryFluctuation;
    return taken;
}

}  // namespace kervol
