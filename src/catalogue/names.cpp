// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/names.h"

#include <array>

#include "catalogue/catalogue_table.h"
#include "catalogue/preset_table.h"

namespace kervol {
namespace {

enum class List { Function, Title2, Title4 };

struct StephensonText {
    List list;
    int row;
    std::string_view text;
    bool at_start;
};

// Deliberate: a fresh program names the velocity and the acceleration of the joint as for a Stephenson chain,
// and all else as for a Watt chain, until the labels are first changed.
// clang-format off
constexpr auto kStephensonTexts = std::to_array<StephensonText>({
    {List::Function, 20, "Veloc I 3,5", true},
    {List::Function, 26, "Accel I 3,5", true},
    {List::Function, 51, "Force 53", false},
    {List::Title2, 10, "Velocity of Instant Center 3-5  -  X, Y components", false},
    {List::Title2, 16, "Acceleration of Instant Ctr 3-5  -  X, Y components", false},
    {List::Title2, 39, "Force of Link 5 on 3  -  X, Y components", false},
    {List::Title4, 6, "Velocity of Instant Center 3-5 -  X, Y, Mag, Ang Coordinates", false},
    {List::Title4, 12, "Acceleration of Instant Ctr 3-5-  X, Y, Mag, Ang Coordinates", false},
    {List::Title4, 33, "Force of Link 5 on 3  -  X, Y, Mag, Ang Coordinates", false},
});
// clang-format on

std::string& Name_At(CatalogueNames& names, List list, int row) {
    switch (list) {
        case List::Function:
            return names.CatalogName(row);
        case List::Title2:
            return names.PresetTitle2(row);
        case List::Title4:
            break;
    }
    return names.PresetTitle4(row);
}

std::string_view Watt_Text(List list, int row) {
    switch (list) {
        case List::Function:
            return Catalogue_Row(row).name;
        case List::Title2:
            return Two_Function_Preset(row).title;
        case List::Title4:
            break;
    }
    return Four_Function_Preset(row).title;
}

void Put_Watt_Texts(CatalogueNames& names, List list, int rows) {
    for (int row = 1; row <= rows; ++row) Name_At(names, list, row) = Watt_Text(list, row);
}

}  // namespace

void Fill_Catalogue_Names(CatalogueNames& names) {
    Put_Watt_Texts(names, List::Function, CatalogueRows);
    Put_Watt_Texts(names, List::Title2, TwoFunctionPresets);
    Put_Watt_Texts(names, List::Title4, FourFunctionPresets);
    for (const auto& [list, row, text, at_start] : kStephensonTexts)
        if (at_start) Name_At(names, list, row) = text;

    names.ComponentName(component::X) = "X";
    names.ComponentName(component::Y) = "Y";
    names.ComponentName(component::Mag) = "Mag";
    names.ComponentName(component::Ang) = "Ang";
}

void Change_Catalog_Labels(CatalogueNames& names, std::string_view LinkageType) {
    if (LinkageType != "W" && LinkageType != "S") return;
    for (const auto& [list, row, text, at_start] : kStephensonTexts)
        Name_At(names, list, row) = LinkageType == "S" ? text : Watt_Text(list, row);
}

}  // namespace kervol
