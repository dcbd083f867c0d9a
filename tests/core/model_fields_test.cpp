// SPDX-License-Identifier: GPL-3.0-or-later
// The list of the model's fields is complete.
//
// Proof: the compiler tells how many members the record has, by trying from how many initialisers it can be
// made. The list has as many entries, and no two of them point to the same member, so every member stands in
// it. Whoever adds a field without listing it finds ListsAsManyFieldsAsTheRecordHas failing with the two
// counts; a field of a type that the list cannot hold yet must be added to `ModelMember` first. A plain C
// array among the members would count once an element: the record has tables instead, which count once.
#include "core/model_fields.h"

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "support/compare.h"

#include <gtest/gtest.h>

namespace kervol {
namespace {

/// An initialiser for a member of any type; never run.
struct Anything {
    template <class T>
    operator T() const;
};

template <class Record, std::size_t... I>
constexpr bool Is_Made_From(std::index_sequence<I...>) {
    return requires {
        Record{(static_cast<void>(I), Anything{})...};
    };
}

/// Members of an aggregate: the highest number of initialisers that it takes.
template <class Record, std::size_t Count = 0>
constexpr std::size_t Member_Count() {
    static_assert(std::is_aggregate_v<Record>);
    if constexpr (Is_Made_From<Record>(std::make_index_sequence<Count + 1>{}))
        return Member_Count<Record, Count + 1>();
    else
        return Count;
}

struct ThreeMembers {
    std::string text;
    Table<float, 7, 2> table;
    float number{};
};
static_assert(Member_Count<ThreeMembers>() == 3, "the count itself works for the kinds of members there are");

const std::byte* Address(const LinkageModel& model, const ModelField& field) {
    return std::visit([&](auto member) { return reinterpret_cast<const std::byte*>(&(model.*member)); },
                      field.member);
}

TEST(ModelFields, ListsAsManyFieldsAsTheRecordHas) {
    EXPECT_EQ(Model_Fields().size(), Member_Count<LinkageModel>());
}

// Rising addresses are distinct ones, and those of the declaration's order.
TEST(ModelFields, ListsEveryMemberOnceInTheOrderOfItsDeclaration) {
    const LinkageModel model;
    const std::byte* last = nullptr;
    for (const ModelField& field : Model_Fields()) {
        const std::byte* address = Address(model, field);
        if (last != nullptr) {
            EXPECT_LT(last, address) << field.name;
        }
        last = address;
    }
}

TEST(ModelFields, CoverTheWholeRecordButForGapsOfAlignment) {
    const LinkageModel model;
    const auto* at = reinterpret_cast<const std::byte*>(&model);
    const std::byte* const end = at + sizeof model;
    for (const ModelField& field : Model_Fields()) {
        EXPECT_LT(Address(model, field) - at, static_cast<std::ptrdiff_t>(alignof(LinkageModel)))
            << field.name;
        at = Address(model, field) +
             std::visit([&](auto member) { return static_cast<std::ptrdiff_t>(sizeof(model.*member)); },
                        field.member);
    }
    EXPECT_LT(end - at, static_cast<std::ptrdiff_t>(alignof(LinkageModel)));
}

TEST(ModelFields, HaveNamesThatAreAllDifferent) {
    std::set<std::string_view> names;
    for (const ModelField& field : Model_Fields()) {
        EXPECT_FALSE(field.name.empty());
        EXPECT_TRUE(names.insert(field.name).second) << field.name;
    }
}

TEST(ModelFields, NameTheMemberThatTheyPointTo) {
    const auto changed = [](auto change) {
        const LinkageModel before;
        LinkageModel after;
        change(after);
        return Differing_Fields(before, after);
    };
    using Names = std::vector<std::string>;
    EXPECT_EQ(changed([](LinkageModel&) {}), Names{});
    EXPECT_EQ(changed([](LinkageModel& m) { m.ProgramTitle = "x"; }), Names{"ProgramTitle"});
    EXPECT_EQ(changed([](LinkageModel& m) { m.NumSteps = 1; }), Names{"NumSteps"});
    EXPECT_EQ(changed([](LinkageModel& m) { m.AnimDelay = 1; }), Names{"AnimDelay"});
    EXPECT_EQ(changed([](LinkageModel& m) { m.Link4 = 1; }), Names{"Link4"});
    EXPECT_EQ(changed([](LinkageModel& m) { m.StageText(1) = "x"; }), Names{"StageText"});
    EXPECT_EQ(changed([](LinkageModel& m) { m.LinkTable(8) = 1; }), Names{"LinkTable"});
    EXPECT_EQ(changed([](LinkageModel& m) { m.LinkFriction(6) = 1; }), Names{"LinkFriction"});
    EXPECT_EQ(changed([](LinkageModel& m) { m.LinkCG(6, 1) = 1; }), Names{"LinkCG"});
    EXPECT_EQ(changed([](LinkageModel& m) { m.UnitText(18) = "x"; }), Names{"UnitText"});
    EXPECT_EQ(changed([](LinkageModel& m) { m.StartingUp = true; }), Names{"StartingUp"});
    EXPECT_EQ(changed([](LinkageModel& m) { m.Theta6Rad = m.Theta5Rad = 1; }),
              (Names{"Theta5Rad", "Theta6Rad"}));
}

TEST(LinkageModel, HasTheShapesThatItsIndicesNeed) {
    static_assert(std::is_same_v<decltype(LinkageModel::LinkTable), Table<float, 9>>);
    static_assert(std::is_same_v<decltype(LinkageModel::LinkMass), Table<float, 7>>);
    static_assert(std::is_same_v<decltype(LinkageModel::LinkCG), Table<float, 7, 2>>);
    static_assert(std::is_same_v<decltype(LinkageModel::NumSteps), std::int16_t>);
    static_assert(std::is_same_v<decltype(LinkageModel::UnitSystem), std::int16_t>);
    static_assert(std::is_same_v<decltype(LinkageModel::DesignNumber), std::int16_t>);
    const LinkageModel model;
    for (int link = 0; link <= 6; ++link) EXPECT_EQ(model.LinkMass(link), 0.0F);
}

}  // namespace
}  // namespace kervol
