// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/comparison.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <concepts>
#include <optional>
#include <span>
#include <string_view>
#include <type_traits>
#include <variant>

#include "catalogue/catalogue_table.h"
#include "catalogue/lists.h"
#include "catalogue/selection.h"
#include "core/arithmetic.h"
#include "core/markup_text.h"
#include "core/model_fields.h"
#include "core/model_questions.h"
#include "core/number_text.h"
#include "files/model_layout.h"

namespace kervol {
namespace {

constexpr int kMotionFunctions = 35;
/// Crank angles and times nearer than these are the same.
constexpr double kSameDegrees = 1e-3, kSameSeconds = 1e-6;

/// Whether an entry of a model file is the field or an element of it.
template <class Entry, class Member>
bool Is_Of_Field(const Entry& entry, Member member) {
    if constexpr (std::is_same_v<Entry, Member>) return entry == member;
    if constexpr (std::is_same_v<Entry, LinkValue> && std::is_same_v<Member, LinkArray LinkageModel::*>)
        return entry.array == member;
    if constexpr (std::is_same_v<Entry, PositiveCount> &&
                  std::is_same_v<Member, std::int16_t LinkageModel::*>)
        return entry.member == member;
    // One field alone has the shape of these.
    return std::is_same_v<Entry, LinkCGValue> && std::is_same_v<Member, decltype(&LinkageModel::LinkCG)>;
}

bool Is_In_File(const ModelField& field) {
    static constexpr std::array<std::string_view, 4> kPassedOver = {"ModelName", "DateText", "TimeText",
                                                                    "GroundAngle"};
    if (std::find(kPassedOver.begin(), kPassedOver.end(), field.name) != kPassedOver.end()) return false;
    const auto held = [&](std::span<const FileField> entries) {
        return std::any_of(entries.begin(), entries.end(), [&](const FileField& file_entry) {
            return std::visit([](const auto& entry, auto member) { return Is_Of_Field(entry, member); },
                              file_entry, field.member);
        });
    };
    return held(Common_Fields()) || held(Release2_Fields());
}

std::string Text_Of(const std::string& value) {
    return "\"" + value + "\"";
}
std::string Text_Of(bool value) {
    return value ? "yes" : "no";
}
std::string Text_Of(float value) {
    return Plain_Number(value);
}
std::string Text_Of(std::integral auto value) {
    return std::to_string(value);
}

template <class T>
void Add_Change(std::vector<ChangedField>& changes, const std::string& name, const T& first,
                const T& second) {
    const std::string old_text = Text_Of(first), new_text = Text_Of(second);
    if (old_text != new_text) changes.push_back({name, old_text, new_text});
}

template <class T, std::size_t N, std::size_t... Rest>
void Add_Change(std::vector<ChangedField>& changes, const std::string& name,
                const Table<T, N, Rest...>& first, const Table<T, N, Rest...>& second) {
    for (std::size_t i = 0; i < N; ++i) {
        const auto index = static_cast<std::ptrdiff_t>(i);
        Add_Change(changes, name + "[" + std::to_string(i) + "]", first(index), second(index));
    }
}

/// What pairs steps of unequal numbers: their place in the motion.
struct Places {
    bool are_times;
    double Distance(double left, double right) const {
        return are_times ? std::abs(right - left) : std::abs(std::remainder(right - left, 360.0));
    }
    double At(const Program& program, std::int16_t step) const {
        return are_times ? double(program.model.TimeStart) + step * double(program.model.TimeStep)
                         : double(program.tables.Theta(step, 0));
    }
    double Tolerance() const { return are_times ? kSameSeconds : kSameDegrees; }
};

bool Is_Over_Time(const LinkageModel& model) {
    return model.CalcMode != 1 && model.CalcMode != 3;
}

/// The first step of the second sweep that assembled in the place of the step of the first.
std::optional<std::int16_t> Same_Place(const Places& places, const Program& first, std::int16_t step,
                                       const Program& second) {
    for (std::int16_t other = 0; other <= Last_Step(second.model); ++other)
        if (second.tables.StepValid(other) &&
            places.Distance(places.At(first, step), places.At(second, other)) <= places.Tolerance())
            return other;
    return {};
}

std::string Counted(int count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

/// Largest distance between the crank angles of a pair, degrees.
double Crank_Distance(const Program& first, const Program& second, const StepPairs& steps) {
    double largest = 0;
    for (const auto& [left, right] : steps.pairs)
        largest = std::max(largest,
                           std::abs(std::remainder(
                               double(second.tables.Theta(right, 0)) - first.tables.Theta(left, 0), 360.0)));
    return largest;
}

StepPairs Pairs_By_Step(const Program& first, const Program& second) {
    StepPairs steps;
    int first_alone = 0, second_alone = 0, neither = 0;
    for (std::int16_t step = 0; step <= Last_Step(first.model); ++step) {
        const bool left = first.tables.StepValid(step), right = second.tables.StepValid(step);
        if (left && right) steps.pairs.emplace_back(step, step);
        if (left && !right) ++first_alone;
        if (right && !left) ++second_alone;
        if (!left && !right) ++neither;
    }
    steps.words = "Compared at " + Counted(static_cast<int>(steps.pairs.size()), "step");
    if (first_alone > 0) steps.words += "; " + Counted(first_alone, "step") + " more in A alone";
    if (second_alone > 0) steps.words += "; " + Counted(second_alone, "step") + " more in B alone";
    if (neither > 0) steps.words += "; " + Counted(neither, "step") + " in neither";
    const double apart = Crank_Distance(first, second, steps);
    if (apart > kSameDegrees)
        steps.words += "; the crank angles of a step are up to " + Fixed_Number(apart, 3) + " deg apart";
    return steps;
}

StepPairs Pairs_By_Place(const Program& first, const Program& second) {
    const Places places = {Is_Over_Time(first.model) && Is_Over_Time(second.model)};
    StepPairs steps;
    for (std::int16_t step = 0; step <= Last_Step(first.model); ++step) {
        if (!first.tables.StepValid(step)) continue;
        if (const auto other = Same_Place(places, first, step, second))
            steps.pairs.emplace_back(step, *other);
    }
    const std::string place = places.are_times ? "time" : "crank angle";
    steps.words = "A has " + Counted(Last_Step(first.model) + 1, "step") + ", B " +
                  std::to_string(Last_Step(second.model) + 1);
    if (steps.pairs.empty())
        steps.words += ", and no " + place + " is common to both";
    else
        steps.words +=
            ": compared at " + Counted(static_cast<int>(steps.pairs.size()), place) + " that both have";
    return steps;
}

/// One function in one component.
struct Selected {
    int number;
    std::string_view component;
    bool is_angle;
};

float Selected_Value(Program& program, std::int16_t step) {
    float value = 0;
    Select_Variable(program, step, 1, value);
    return value;
}

void Select(Program& program, const Selected& selected) {
    Set_Selection(program.catalogue, program.selections, program.catalogue.CatalogName(selected.number), 1);
    Set_Component(program.catalogue, program.selections, selected.component, 1);
}

FunctionChange Change_Of(Program& first, Program& second, const StepPairs& steps, int solved,
                         const Selected& selected) {
    const CatalogueRow& row = Catalogue_Row(selected.number);
    Select(first, selected);
    Select(second, selected);
    FunctionChange change;
    change.function = first.catalogue.CatalogName(selected.number);
    change.component = selected.component;
    change.unit = selected.is_angle ? "degrees" : first.model.UnitText(row.code);
    double squares = 0;
    int count = 0;
    for (const auto& [left, right] : steps.pairs) {
        if (selected.number > kMotionFunctions && std::max(left, right) >= solved) continue;
        double difference = double(Selected_Value(second, right)) - Selected_Value(first, left);
        if (selected.is_angle) difference = std::remainder(difference, 360.0);
        if (std::abs(difference) > std::abs(change.largest)) {
            change.largest = difference;
            change.step = left;
        }
        squares += difference * difference;
        ++count;
    }
    change.rms = count > 0 ? std::sqrt(squares / count) : 0;
    return change;
}

}  // namespace

std::vector<ChangedField> Changed_Fields(const LinkageModel& first, const LinkageModel& second) {
    std::vector<ChangedField> changes;
    for (const ModelField& field : Model_Fields())
        if (Is_In_File(field))
            std::visit(
                [&](auto member) {
                    Add_Change(changes, std::string(field.name), first.*member, second.*member);
                },
                field.member);
    return changes;
}

StepPairs Paired_Steps(const Program& first, const Program& second) {
    return Last_Step(first.model) == Last_Step(second.model) ? Pairs_By_Step(first, second)
                                                             : Pairs_By_Place(first, second);
}

std::vector<FunctionChange> Function_Changes(Program& first, Program& second, const StepPairs& steps,
                                             int solved) {
    static constexpr std::array<std::string_view, 4> kComponents = {"X", "Y", "Mag", "Ang"};
    ComboBox in_first, in_second;
    Load_Variables(first, in_first);
    Load_Variables(second, in_second);
    const auto offered = static_cast<int>(std::min(in_first.items.size(), in_second.items.size()));
    std::vector<FunctionChange> changes;
    for (int number = 1; number <= offered; ++number) {
        const CatalogueRow& row = Catalogue_Row(number);
        for (const std::string_view component : kComponents) {
            if (Is_One_Number(row) && component != "Mag") continue;
            const bool is_angle = component == "Ang" || row.code == table_code::Theta;
            changes.push_back(Change_Of(first, second, steps, solved, {number, component, is_angle}));
        }
    }
    return changes;
}

}  // namespace kervol
