// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/lists.h"

#include "catalogue/preset_table.h"
#include "core/report.h"

namespace kervol {
namespace {

template <std::size_t N>
void Add(ComboBox& list, const Table<std::string, N>& texts, int first, int last) {
    for (int i = first; i <= last; ++i) list.items.push_back(texts(i));
}

void Add_Two_Function_Presets(const Program& program, ComboBox& list) {
    const auto& titles = program.catalogue.PresetTitle2;
    Add(list, titles, 1, program.model.DynamicsCalculated ? 47 : 23);
    if (program.fourier.FFTReady) Add(list, titles, 49, 50);
    if (program.model.FlywheelCalculated) Add(list, titles, 48, 48);
}

void Add_Four_Function_Presets(const Program& program, ComboBox& list) {
    const auto& titles = program.catalogue.PresetTitle4;
    Add(list, titles, 1, program.model.DynamicsCalculated ? 41 : 17);
    if (program.fourier.FFTReady) Add(list, titles, 42, 42);
}

}  // namespace

void Load_Variables(const Program& program, ComboBox& list) {
    int last = program.model.DynamicsCalculated ? 64 : 35;
    // Deliberate: the flywheel alone decides, and offers the forces too.
    if (program.model.FlywheelCalculated) last = 65;
    list.items.clear();
    Add(list, program.catalogue.CatalogName, 1, last);
}

void Load_Vector_Variables(const Program& program, ComboBox& list) {
    const auto& names = program.catalogue.CatalogName;
    list.items.clear();
    Add(list, names, 18, 31);
    if (!program.model.DynamicsCalculated) return;
    Add(list, names, 36, 53);
    Add(list, names, 60, 64);
}

void Load_Components(const Program& program, ComboBox& list) {
    list.items.clear();
    Add(list, program.catalogue.ComponentName, component::X, component::Ang);
}

void Load_Presets(Program& program, ComboBox& list, std::int16_t count) {
    Procedure(program, "Load_Presets", [&] {
        list.items.clear();
        if (count == 2) Add_Two_Function_Presets(program, list);
        if (count == 4) Add_Four_Function_Presets(program, list);
    });
}

bool Take_New_Data(Program& program, SelectionScreen screen) {
    auto& loaded = program.selections.lists_loaded;
    if (program.model.NewData) loaded.fill(false);
    program.model.NewData = false;
    bool& mine = loaded.at(static_cast<std::size_t>(screen));
    const bool stale = !mine;
    mine = true;
    return stale;
}

}  // namespace kervol
