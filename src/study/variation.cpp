// SPDX-License-Identifier: GPL-3.0-or-later
#include "study/variation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

#include "core/arithmetic.h"
#include "core/geometry.h"
#include "core/model_fields.h"
#include "core/number_text.h"
#include "kinematics/sweep.h"

namespace kervol {
namespace {

/// How near, in steps, the last value comes to the end of a range and still belongs to it: decimal steps have
/// no exact double.
constexpr double kMeets = 1e-6;
/// Above this steps are lost in double precision.
constexpr double kMostValues = 9e15;
constexpr int kFirstLink = 2;

void Nothing(LinkageModel&) {}

void Follow_Delta3(LinkageModel& model) {
    Set_Angle(model.Delta3Deg, model.Delta3, model.Delta3Text);
}

void Follow_Delta4(LinkageModel& model) {
    Set_Angle(model.Delta4Deg, model.Delta4, model.Delta4Text);
}

void Follow_Delta5(LinkageModel& model) {
    Set_Angle(model.Delta5Deg, model.Delta5, model.Delta5Text);
}

void Follow_O6(LinkageModel& model) {
    Derive_Local_O6(model);
    Derive_Direction_O6_O4(model);
}

void Follow_O4(LinkageModel& model) {
    Derive_Ground_Link(model);
    Derive_Local_O4(model);
    Follow_O6(model);
}

/// What a person enters; all other fields follow from these or say how a run went.
constexpr auto kInputs = std::to_array<StudyInput>({
    {"Link2", Nothing},
    {"Link3", Nothing},
    {"Link4", Nothing},
    {"LinkO4D", Nothing},
    {"Link5", Nothing},
    {"Link6", Nothing},
    {"CouplerAC", Nothing},
    {"Delta3Deg", Follow_Delta3},
    {"Delta4Deg", Follow_Delta4},
    {"Coupler2Length", Nothing},
    {"Delta5Deg", Follow_Delta5},
    {"O4X", Follow_O4},
    {"O4Y", Follow_O4},
    {"O6X", Follow_O6},
    {"O6Y", Follow_O6},
    {"OpenCross1", Set_Open_Signs},
    {"OpenCross2", Set_Open_Signs},
    {"Theta2One", Nothing},
    {"Omega2Start", Nothing},
    {"Alpha2Const", Nothing},
    {"ThetaMinDeg", Nothing},
    {"ThetaMaxDeg", Nothing},
    {"ThetaStepDeg", Nothing},
    {"TimeStart", Nothing},
    {"TimeEnd", Nothing},
    {"TimeStep", Nothing},
    {"DriveScale", Nothing},
    {"DriveOffset", Nothing},
    {"DriveDatum", Nothing},
    {"LinkMass", Nothing},
    {"LinkInertia", Nothing},
    {"LinkCG", Nothing},
    {"ForceMag", Nothing},
    {"ForceAngle", Nothing},
    {"ForcePointDist", Nothing},
    {"ForcePointAngle", Nothing},
    {"LinkTorque", Nothing},
    {"LinkFriction", Nothing},
    {"CoefFluct", Nothing},
});

std::string Quoted(const std::string& text) {
    return "\"" + text + "\"";
}

std::optional<double> Number(const std::string& text) {
    if (text.empty() || Number_Length(text) != text.size()) return std::nullopt;
    const double number = To_Double(text);
    if (!std::isfinite(static_cast<float>(number))) return std::nullopt;
    return number;
}

/// The pieces of a text between separators.
std::vector<std::string> Pieces(const std::string& text, char separator) {
    std::vector<std::string> pieces(1);
    for (const char c : text) {
        if (c == separator)
            pieces.emplace_back();
        else
            pieces.back() += c;
    }
    return pieces;
}

/// Indices that the field takes: none, a link, or a link and a part.
std::size_t Indices_Of(const ModelMember& member) {
    if (std::holds_alternative<LinkArray LinkageModel::*>(member)) return 1;
    return std::holds_alternative<Table<float, NumLinks + 1, 2> LinkageModel::*>(member) ? 2 : 0;
}

std::string Index_Objection(const std::string& name, const std::vector<int>& indices, std::size_t wanted) {
    const bool right = indices.size() == wanted &&
                       (wanted < 1 || (indices[0] >= kFirstLink && indices[0] <= NumLinks)) &&
                       (wanted < 2 || indices[1] == 0 || indices[1] == 1);
    if (right) return {};
    if (wanted == 0) return Quoted(name) + " is one number; leave the index out";
    return Quoted(name) + " is asked for by its link, as in " + name + (wanted == 1 ? "(3)" : "(3,0)") +
           (wanted == 1 ? "; links are 2 to 6" : "; links are 2 to 6, parts 0 distance and 1 angle");
}

}  // namespace

std::string Variation::Parse(const std::string& text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string::npos) return Quoted(text) + " is not FIELD=FROM:TO:STEP";
    const std::string objection = Parse_Field(text.substr(0, equals));
    return objection.empty() ? Parse_Range(text.substr(equals + 1)) : objection;
}

std::string Variation::Parse_Field(const std::string& text) {
    field_ = text;
    const std::size_t open = std::min(text.find('('), text.size());
    const std::string name = text.substr(0, open);
    const auto fields = Model_Fields();
    const auto field =
        std::find_if(fields.begin(), fields.end(), [&](const ModelField& each) { return each.name == name; });
    if (field == fields.end()) return Quoted(name) + " is no field of a model";
    const auto* input = std::find_if(kInputs.begin(), kInputs.end(),
                                     [&](const StudyInput& each) { return each.field == name; });
    if (input == kInputs.end())
        return Quoted(name) + " is no number that is entered: it follows from others or is set by a run";

    input_ = input;
    member_ = static_cast<std::size_t>(field - fields.begin());
    indices_.clear();
    if (open < text.size()) {
        if (text.back() != ')') return Quoted(text) + " lacks a closing bracket";
        for (const std::string& index : Pieces(text.substr(open + 1, text.size() - open - 2), ',')) {
            const auto number = Number(index);
            indices_.push_back(number && Is_Same(*number, std::floor(*number)) && std::abs(*number) < 100
                                   ? static_cast<int>(*number)
                                   : -1);
        }
    }
    return Index_Objection(name, indices_, Indices_Of(field->member));
}

std::string Variation::Parse_Range(const std::string& text) {
    const auto pieces = Pieces(text, ':');
    if (pieces.size() != 3) return field_ + ": the range " + Quoted(text) + " is not FROM:TO:STEP";
    std::array<double, 3> numbers{};
    for (std::size_t i = 0; i < 3; ++i) {
        const auto number = Number(pieces[i]);
        if (!number) return field_ + ": " + Quoted(pieces[i]) + " is no number";
        if (Is_Integer() && !Is_Same(*number, std::floor(*number)))
            return field_ + ": " + pieces[i] + " is no whole number";
        numbers.at(i) = *number;
    }
    const auto [from, to, step] = numbers;
    if (Is_Zero(step)) return field_ + ": a step of 0 leads nowhere";
    const double steps = (to - from) / step;
    if (steps < 0)
        return field_ + ": the range is empty: " + pieces[2] + " does not lead from " + pieces[0] + " to " +
               pieces[1];
    if (steps > kMostValues) return field_ + ": the step is too small for that range";
    using Limits = std::numeric_limits<std::int16_t>;
    const bool fits = std::min(from, to) >= Limits::min() && std::max(from, to) <= Limits::max();
    if (Is_Integer() && !fits) return field_ + ": beyond what the field holds";
    from_ = from;
    step_ = step;
    count_ = static_cast<std::uint64_t>(std::floor(steps + kMeets)) + 1;
    return {};
}

bool Variation::Is_Integer() const {
    return std::holds_alternative<std::int16_t LinkageModel::*>(Model_Fields()[member_].member);
}

double Variation::Value(std::uint64_t number) const {
    const double value = from_ + static_cast<double>(number) * step_;
    return static_cast<float>(value);
}

std::string Variation::Value_Text(std::uint64_t number) const {
    return Plain_Number(static_cast<float>(Value(number)));
}

void Variation::Set(LinkageModel& model, std::uint64_t number) const {
    const double value = Value(number);
    const ModelMember& member = Model_Fields()[member_].member;
    if (const auto* single = std::get_if<float LinkageModel::*>(&member))
        model.*(*single) = Single(value);
    else if (const auto* integer = std::get_if<std::int16_t LinkageModel::*>(&member))
        model.*(*integer) = Int16(value);
    else if (const auto* array = std::get_if<LinkArray LinkageModel::*>(&member))
        (model.*(*array))(indices_[0]) = Single(value);
    else
        model.LinkCG(indices_[0], indices_[1]) = Single(value);
}

void Variation::Follow(LinkageModel& model) const {
    input_->follow(model);
}

}  // namespace kervol
