// SPDX-License-Identifier: GPL-3.0-or-later
#include "screen_controls.h"

#include <utility>

#include "core/fault.h"
#include "screens/control_lists.h"

namespace kervol {
namespace {

/// Collects what a list of controls visits.
class Collector {
  public:
    void operator()(const char* name, Button& button) { Add(name, &button); }
    void operator()(const char* name, MenuItem& item) { Add(name, &item); }
    void operator()(const char* name, TextField& field) { Add(name, &field); }
    void operator()(const char* name, CheckBox& box) { Add(name, &box); }
    void operator()(const char* name, ScrollBar& bar) { Add(name, &bar); }
    void operator()(const char* name, ComboBox& box) { Add(name, &box); }
    void operator()(const char* name, PictureBox& picture) { Add(name, &picture); }
    void operator()(const char* name, Chart& chart) { Add(name, &chart); }
    template <std::size_t count>
    void operator()(const char* name, std::array<OptionButton, count>& group) {
        for (std::size_t i = 0; i < count; ++i) Add(Indexed(name, i), OptionOfGroup{group.data(), count, i});
    }
    template <class Record, std::size_t count>
    void operator()(const char* name, std::array<Record, count>& group) {
        for (std::size_t i = 0; i < count; ++i) (*this)(Indexed(name, i).c_str(), group[i]);
    }
    // Nothing can be done with these.
    void operator()(const char*, const Label&) {}
    void operator()(const char*, const Frame&) {}
    void operator()(const char*, const Grid&) {}
    void operator()(const char*, const TextView&) {}

    std::vector<NamedControl> found;

  private:
    static std::string Indexed(const std::string& name, std::size_t i) {
        return name + "_" + std::to_string(i);
    }
    template <class Reference>
    void Add(const std::string& name, Reference control) {
        found.push_back({name, control});
    }
};

/// In the order of `ScreenId`.
constexpr auto kRecords = std::make_tuple(
    &Screens::frm_Title, &Screens::frm_Disclaimer, &Screens::frm_User, &Screens::frm_HomeScreen,
    &Screens::frm_Inputnew, &Screens::frm_Animate, &Screens::frm_MassProp, &Screens::frm_Matrix,
    &Screens::frm_About, &Screens::frm_PlotType, &Screens::frm_PlotSelect1, &Screens::frm_PlotSelect2,
    &Screens::frm_PlotSelect3, &Screens::frm_PlotSelect4, &Screens::frm_Plot1, &Screens::frm_Plot2,
    &Screens::frm_Plot3, &Screens::frm_Plot4, &Screens::frm_Myplot2, &Screens::frm_MyPlot3,
    &Screens::frm_MyPlot4, &Screens::frm_PrintSelect, &Screens::frm_PrintData, &Screens::frm_Flywheel,
    &Screens::frm_FFT, &Screens::frm_SelfCheck, &Screens::frm_Quit);
static_assert(std::tuple_size_v<decltype(kRecords)> == NumScreens);

template <std::size_t... I>
void Visit_Screen(Screens& screens, ScreenId screen, Collector& collector, std::index_sequence<I...>) {
    const auto visit = [&](std::size_t i, auto record) {
        if (static_cast<ScreenId>(i) == screen) Visit_Controls(screens.*record, collector);
    };
    (visit(I, std::get<I>(kRecords)), ...);
}

/// What an event belongs to; an option can be used whether or not anything happens.
const Control& Record_Of(const NamedControl& named) {
    return std::visit(
        [](const auto& control) -> const Control& {
            if constexpr (std::is_same_v<std::decay_t<decltype(control)>, OptionOfGroup>)
                return control.Option();
            else
                return *control;
        },
        named.control);
}

}  // namespace

std::vector<NamedControl> Controls_Of(Screens& screens, ScreenId screen) {
    Collector collector;
    Visit_Screen(screens, screen, collector, std::make_index_sequence<NumScreens>());
    for (NamedControl& named : collector.found)
        if (named.name.starts_with("mnu_Export_")) named.container = &screens.frm_HomeScreen.mnu_Export;
    return std::move(collector.found);
}

bool Is_Usable(const NamedControl& named) {
    const auto on = [](const Control& control) { return control.enabled && control.visible; };
    return on(Record_Of(named)) && (named.container == nullptr || on(*named.container));
}

}  // namespace kervol
