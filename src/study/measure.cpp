// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/measure.h"

#include <algorithm>
#include <array>
#include <limits>

#include "catalogue/catalogue_table.h"
#include "catalogue/preset_table.h"
#include "catalogue/selection.h"
#include "catalogue/table_rows.h"
#include "core/arithmetic.h"
#include "core/number_text.h"
#include "study/series.h"

namespace kervol {
namespace {

constexpr std::int16_t kSelection = 1;
/// Index of the first centre of gravity among the points, and of the last angle of a link in `Theta`.
constexpr std::int16_t kFirstCG = 6, kLastAngle = 5;

std::string Quoted(const std::string& text) {
    return "\"" + text + "\"";
}

std::string Trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// Where the first of the characters stands outside quotes, else the length of the text.
std::size_t Find_Unquoted(const std::string& text, const char* characters) {
    bool quoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"') quoted = !quoted;
        if (!quoted && std::string(characters).find(text[i]) != std::string::npos) return i;
    }
    return text.size();
}

std::string Without_Quotes(const std::string& text) {
    const bool quoted = text.size() >= 2 && text.front() == '"' && text.back() == '"';
    return quoted ? text.substr(1, text.size() - 2) : text;
}

template <std::size_t N>
std::int16_t Place_Of(const Table<std::string, N>& texts, const std::string& text) {
    static_assert(N <= std::numeric_limits<std::int16_t>::max());
    for (std::size_t i = 1; i < N; ++i)
        if (texts(static_cast<std::ptrdiff_t>(i)) == text && !text.empty())
            return static_cast<std::int16_t>(i);
    return 0;
}

bool Is_Degree(const std::string& unit) {
    return unit == "deg" || unit == "degree" || unit == "degrees";
}

}  // namespace

struct Measure::KindName {
    const char* name;
    Kind kind;

    static const std::array<KindName, 7>& All() {
        static constexpr std::array<KindName, 7> kAll = {{{"max", Kind::max},
                                                          {"min", Kind::min},
                                                          {"range", Kind::range},
                                                          {"mean", Kind::mean},
                                                          {"rms", Kind::rms},
                                                          {"peak", Kind::peak},
                                                          {"dwell", Kind::dwell}}};
        return kAll;
    }
};

std::string Measure::Parse(const std::string& text, const Program& program) {
    text_ = text;
    const std::size_t open = std::min(text.find('('), text.size());
    const std::string name = Trimmed(text.substr(0, open));
    const std::string whole = Trimmed(text);
    if (open == text.size() || whole.back() != ')')
        return Quoted(text) + " is no measure; write it as max(Omega6)";
    const auto& kinds = KindName::All();
    const auto* kind =
        std::find_if(kinds.begin(), kinds.end(), [&](const KindName& each) { return name == each.name; });
    if (kind == kinds.end())
        return Quoted(name) + " is no measure; there are max, min, range, mean, rms, peak and dwell";
    kind_ = kind->kind;

    const std::string inside = whole.substr(whole.find('(') + 1, whole.size() - whole.find('(') - 2);
    const std::size_t comma = Find_Unquoted(inside, ",");
    std::string objection = Parse_Function(Trimmed(inside.substr(0, comma)), program);
    if (!objection.empty()) return objection;
    const bool has_tolerance = comma < inside.size();
    if (kind_ == Kind::dwell && !has_tolerance)
        return Quoted(text) + ": a dwell has a tolerance, as in dwell(Theta6, 1 degree)";
    if (kind_ != Kind::dwell && has_tolerance)
        return Quoted(text) + ": names that hold a comma stand in quotes, and a dwell alone has a tolerance";
    return has_tolerance ? Parse_Tolerance(Trimmed(inside.substr(comma + 1)), program) : "";
}

std::string Measure::Parse_Function(const std::string& text, const Program& program) {
    const CatalogueNames& names = program.catalogue;
    const std::size_t colon = Find_Unquoted(text, ":");
    const std::string name = Without_Quotes(Trimmed(text.substr(0, colon)));
    number_ = Place_Of(names.CatalogName, name);
    if (number_ == 0) return Quoted(name) + " is no function of this chain; see \"kervol-batch functions\"";
    if (Catalogue_Row(number_).code == table_code::FFTTable)
        return Quoted(name) + " has no steps; a study measures functions of the motion and the forces";
    const std::int16_t component =
        colon == text.size() ? component::X : Place_Of(names.ComponentName, Trimmed(text.substr(colon + 1)));
    if (component == 0) return Quoted(text) + ": a component is X, Y, Mag or Ang";
    component_ = static_cast<std::int16_t>(component - component::X);
    return {};
}

std::string Measure::Parse_Tolerance(const std::string& text, const Program& program) {
    const std::size_t length = Number_Length(text);
    const double number = length == 0 ? -1 : To_Double(text.substr(0, length));
    if (!(number >= 0)) return Quoted(text) + " is no tolerance of a dwell; try 1 degree";
    const std::string unit = Trimmed(text.substr(length));
    const std::string& own = program.model.UnitText(Catalogue_Row(number_).code);
    if (!unit.empty() && unit != own && !(Is_Angle() && Is_Degree(unit)))
        return Quoted(text) + ": the unit of " + program.catalogue.CatalogName(number_) + " is " +
               (Is_Angle() ? "degree" : own);
    tolerance_ = number;
    return {};
}

bool Measure::Is_Angle() const {
    const CatalogueRow& row = Catalogue_Row(number_);
    switch (row.code) {
        case table_code::Theta:
            return true;
        case table_code::PointVel:
        case table_code::PointAcc:
        case table_code::PointPos:
        case table_code::ForceTable:
            return component_ == component::Ang - component::X;
        default:
            return false;
    }
}

Depth Measure::Needed_Depth() const {
    switch (Catalogue_Row(number_).code) {
        case table_code::Theta:
            return Depth::Angles;
        case table_code::Omega:
        case table_code::VelRatio:
        case table_code::MechAdv:
            return Depth::Speeds;
        default:
            return Depth::All;
    }
}

Scope Measure::Needed_Scope() const {
    const CatalogueRow& row = Catalogue_Row(number_);
    switch (row.code) {
        case table_code::FlywheelTorque:
            return Scope::Flywheel;
        case table_code::ForceTable:
        case table_code::TorqueTable:
            return Scope::Forces;
        case table_code::PointVel:
        case table_code::PointAcc:
            return row.column >= kFirstCG ? Scope::Forces : Scope::Motion;
        default:
            return Scope::Motion;
    }
}

float Measure::Of(Program& program, std::vector<float>& series) const {
    const CatalogueRow& row = Catalogue_Row(number_);
    Selections& selections = program.selections;
    selections.SelTable(kSelection) = row.code;
    selections.SelIndex(kSelection) = row.column.value_or(0);
    selections.SelStage(kSelection) = row.stage.value_or(0);
    selections.SelComp(kSelection) = component_;
    const auto steps = static_cast<std::size_t>(program.model.NumSteps) + 1;
    series.resize(steps);
    for (std::size_t step = 0; step < steps; ++step)
        series[step] = Value_At(program, static_cast<std::int16_t>(step), kSelection);

    const bool turns = Is_Angle() && (row.code != table_code::Theta || row.column <= kLastAngle);
    if (turns && (kind_ == Kind::range || kind_ == Kind::dwell)) Follow_Over_Turns(series);
    switch (kind_) {
        case Kind::max:
            return Greatest(series);
        case Kind::min:
            return Least(series);
        case Kind::range:
            return Range_Of(series);
        case Kind::mean:
            return Mean_Of(series);
        case Kind::rms:
            return Root_Mean_Square(series);
        case Kind::peak:
            return Peak_Of(series);
        case Kind::dwell:
            break;
    }
    std::vector<float> crank(steps);
    for (std::size_t step = 0; step < steps; ++step)
        crank[step] = program.tables.Theta(static_cast<std::ptrdiff_t>(step), 0);
    Follow_Over_Turns(crank);
    return Longest_Dwell(series, crank, tolerance_);
}

}  // namespace kervol
