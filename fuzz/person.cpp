// SPDX-License-Identifier: GPL-3.0-or-later
#include "person.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iostream>
#include <span>
#include <utility>

#include "core/fault.h"
#include "demand.h"
#include "screens/input_events.h"
#include "screens/launch_screens.h"
#include "startup/launch.h"

namespace kervol {
namespace {

/// More positions of the animation than this nobody waits for.
constexpr std::size_t kPatience = 40;

bool Is_Home(ScreenId screen) {
    return screen == ScreenId::frm_HomeScreen;
}

/// The opener stays visible below these two.
bool Stands_Over(ScreenId screen, ScreenId opener) {
    return (screen == ScreenId::frm_Matrix && opener == ScreenId::frm_MassProp) ||
           (screen == ScreenId::frm_PrintData && opener == ScreenId::frm_PrintSelect);
}

std::optional<std::size_t> Number_Of(std::string_view text) {
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

std::span<const std::pair<Answer, const char*>> Answers_To(Buttons buttons) {
    using Pair = std::pair<Answer, const char*>;
    static constexpr Pair kOK[] = {{Answer::OK, "OK"}};
    static constexpr Pair kOKCancel[] = {{Answer::OK, "OK"}, {Answer::Cancel, "Cancel"}};
    static constexpr Pair kYesNo[] = {{Answer::Yes, "Yes"}, {Answer::No, "No"}};
    static constexpr Pair kAbort[] = {
        {Answer::Abort, "Abort"}, {Answer::Retry, "Retry"}, {Answer::Ignore, "Ignore"}};
    switch (buttons) {
        case Buttons::OK:
            return kOK;
        case Buttons::OKCancel:
            return kOKCancel;
        case Buttons::YesNo:
            return kYesNo;
        case Buttons::AbortRetryIgnore:
            return kAbort;
    }
    return kOK;
}

/// Takes a mark off the end of the value: whether it stood there.
bool Takes_Star(std::string& value) {
    if (!value.ends_with('*')) return false;
    value.pop_back();
    return true;
}

bool Is_Traced() {
    static const bool traced = std::getenv("KERVOL_TRACE") != nullptr;
    return traced;
}

}  // namespace

Person::Person(std::string_view script, const std::string& folder)
    : folder_(folder),
      program_(std::make_unique<Program>(*this)),
      screens_(std::make_unique<Screens>(*program_)) {
    while (!script.empty()) {
        const std::size_t end = std::min(script.find('\n'), script.size());
        lines_.emplace_back(script.substr(0, end));
        script.remove_prefix(std::min(end + 1, script.size()));
    }
    clock = DateAndTime{"2026-01-02", "03:04"};
    user_name = "A. User";
    shows_repeated_faults = false;
    Attach_Pictures();
}

void Person::Attach_Pictures() {
    PictureList* next = pictures_.data();
    screens_->frm_Inputnew.Picture1 = next++;
    screens_->frm_Animate.Picture1 = next++;
    screens_->frm_MyPlot4.pct_Plot[0] = next++;
    for (std::size_t i = 0; i < 2; ++i) screens_->frm_Myplot2.pct_Plot[i] = next++;
    for (std::size_t i = 0; i < 4; ++i) screens_->frm_MyPlot3.pct_Plot[i] = next++;
}

void Person::Use_Program() {
    constexpr std::string_view kTitle = "title=";
    if (!lines_.empty() && lines_[0].starts_with(kTitle)) {
        const std::string file = lines_[at_++].substr(kTitle.size());
        files_used = true;
        Launch(*screens_, file.empty() ? file : In_Folder(file));
    } else {
        Start_Fresh(*program_);
        Wire_Screens(*screens_);
        kervol::Fill_Screens(*screens_);
        Show_Screen(ScreenId::frm_HomeScreen, Modality::Modeless);
    }
    while (home_open_ && !ended && Do_Next(ScreenId::frm_HomeScreen)) continue;
    Demand_Finite(*program_, "at the end");
}

/// Nothing is read or written elsewhere.
std::string Person::In_Folder(const std::string& name) const {
    return folder_ + "/" + std::filesystem::path(name).filename().string();
}

void Person::Show_Screen(ScreenId screen, Modality modality) {
    if (ended) return;
    if (modality == Modality::Modal) return Wait_For(screen);
    Demand(Is_Home(screen), "another screen than Home was opened modeless", Screen_Name(screen));
    home_open_ = true;
    Activate_Screen(*screens_, screen);
}

void Person::Wait_For(ScreenId screen) {
    if (!stack_.empty() && stack_.back()->closed) {
        stack_.back()->next = screen;
        return;
    }
    OpenScreen entry{screen, false, std::nullopt};
    stack_.push_back(&entry);
    for (std::optional<ScreenId> next = screen; next && !ended; next = std::exchange(entry.next, {})) {
        const auto is_open = [&](const OpenScreen* open) { return open != &entry && open->screen == *next; };
        Demand(std::none_of(stack_.begin(), stack_.end(), is_open), "a screen opened over itself",
               Screen_Name(*next));
        entry.screen = *next;
        entry.closed = false;
        entered_ = nullptr;
        Activate_Screen(*screens_, *next);
        while (!entry.closed && !ended && Do_Next(entry.screen)) continue;
    }
    stack_.pop_back();
    if (!ended && at_ < lines_.size()) Return_To_Opener();
}

void Person::Return_To_Opener() {
    if (stack_.empty()) {
        if (home_open_) Activate_Screen(*screens_, ScreenId::frm_HomeScreen);
        return;
    }
    const bool visible =
        !hidden.empty() && Stands_Over(hidden.back(), stack_.back()->screen) && !stack_.back()->closed;
    if (visible) Activate_Screen(*screens_, stack_.back()->screen);
}

void Person::Hide_Screen(ScreenId screen) {
    RecordingPort::Hide_Screen(screen);
    for (OpenScreen* open : stack_)
        if (open->screen == screen) open->closed = true;
    if (Is_Home(screen)) home_open_ = false;
}

void Person::Fill_Screens() {
    kervol::Fill_Screens(*screens_);
}

void Person::Show_Classes() {
    kervol::Show_Classes(*screens_);
}

Answer Person::Show_Message(const MessageBox& box) {
    const auto choices = Answers_To(box.buttons);
    const bool has_preset = std::any_of(choices.begin(), choices.end(),
                                        [&](const auto& choice) { return choice.first == box.preset; });
    Demand(has_preset, "the preset answer is none of the box's", box.text);
    Demand(!box.text.empty(), "an empty box", "");
    if (Is_Traced()) std::cerr << "  box: " << box.text << '\n';
    if (!answers_.empty()) {
        const std::string wanted = answers_.front();
        answers_.pop_front();
        for (const auto& [answer, name] : choices)
            if (wanted == name) return answer;
    }
    return Happens(4) ? choices[Below(random_, choices.size())].first : box.preset;
}

void Person::Set_Running(bool) {
    holds_left_ = Below(random_, kPatience);
}

bool Person::Hold_Picture(double milliseconds) {
    Demand(milliseconds >= 0, "a picture is held for less than no time", std::to_string(milliseconds));
    return holds_left_ > 0 && --holds_left_ > 0;
}

std::optional<std::string> Person::Ask_File_To_Open(const FileDialog&) {
    static constexpr std::array kNames = {
        "watt.kvl",  "hoeken.kvl", "every-field.kvl", "cam-driven.kvl",  "linkage-driven.kvl", "torque.kvl",
        "cam.sva",   "drive.out",  "torque.trq",      "legacy.ikv",      "new file.kvl",       "damaged.kvl",
        "no/folder", ".",          "cam-alone.sva",   "one-position.kvl"};
    files_used = true;
    if (!files_.empty()) {
        const std::string name = files_.front();
        files_.pop_front();
        if (name.empty()) return std::nullopt;
        return In_Folder(name);
    }
    if (Happens(5)) return std::nullopt;
    return folder_ + "/" + kNames.at(Below(random_, kNames.size()));
}

std::optional<std::string> Person::Ask_File_To_Save(const FileDialog& dialog) {
    return Ask_File_To_Open(dialog);
}

void Person::Print_Screen(ScreenId) {
    if (Happens(8)) Raise(fault::DeviceIO);
}

std::unique_ptr<Printer> Person::Ask_Printer() {
    if (Happens(8)) Raise(fault::DeviceIO);
    has_printer = !Happens(4);
    return RecordingPort::Ask_Printer();
}

bool Person::Do_Next(ScreenId front) {
    if (at_ == lines_.size()) return false;
    const std::string line = lines_[at_++];
    random_.seed(static_cast<FuzzRandom::result_type>(std::hash<std::string>()(line)));
    const std::size_t end = std::min(line.find('='), line.size());
    const std::string name = line.substr(0, end);
    const std::string value = line.substr(std::min(end + 1, line.size()));
    if (name == "answer")
        answers_.push_back(value);
    else if (name == "file")
        files_.push_back(value);
    else
        Do(front, name, value);
    return true;
}

void Person::Do(ScreenId front, const std::string& name, const std::string& value) {
    const std::string where = std::string(Screen_Name(front)) + "." + name;
    if (name == "enter") {
        if (entered_ != nullptr) Raise_Event(entered_->enter);
    } else if (name == "close") {
        Leave_Field();
        Close_Screen(*screens_, front);
    } else if (const NamedControl* named = Find(front, name)) {
        if (Is_Traced()) std::cerr << Screen_Name(front) << "." << named->name << " = " << value << '\n';
        std::visit(
            [&](const auto& control) {
                if constexpr (std::is_pointer_v<std::decay_t<decltype(control)>>)
                    Use(*control, value);
                else
                    Use(control, value);
            },
            named->control);
    }
    Check(where);
}

const std::vector<NamedControl>& Person::Controls_On(ScreenId screen) {
    std::vector<NamedControl>& all = controls_.at(static_cast<std::size_t>(screen));
    if (all.empty()) all = Controls_Of(*screens_, screen);
    return all;
}

const NamedControl* Person::Find(ScreenId front, const std::string& name) {
    const std::vector<NamedControl>& all = Controls_On(front);
    if (const auto number = Number_Of(name)) {
        std::vector<const NamedControl*> usable;
        for (const NamedControl& named : all)
            if (Is_Usable(named)) usable.push_back(&named);
        return usable.empty() ? nullptr : usable[*number % usable.size()];
    }
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const NamedControl& named) { return named.name == name; });
    return found == all.end() || !Is_Usable(*found) ? nullptr : &*found;
}

void Person::Raise_Event(const Event& event) {
    if (event && !ended) event();
}

void Person::Leave_Field() {
    if (entered_ != nullptr) Raise_Event(std::exchange(entered_, nullptr)->lost_focus);
}

bool Person::Leave_Field(const Control& used) {
    Leave_Field();
    return used.enabled;
}

void Person::Use(Button& button, const std::string&) {
    if (Leave_Field(button)) Raise_Event(button.click);
}

void Person::Use(MenuItem& item, const std::string&) {
    if (Leave_Field(item)) Raise_Event(item.click);
}

void Person::Use(TextField& field, const std::string& value) {
    if (entered_ != &field) Leave_Field();
    entered_ = &field;
    if (field.text == value) return;
    field.text = value;
    field.put_value.reset();
    Raise_Event(field.change);
}

void Person::Use(CheckBox& box, const std::string&) {
    Leave_Field();
    box.on = !box.on;
    if (box.enabled) Raise_Event(box.click);
}

void Person::Use(ScrollBar& bar, const std::string& value) {
    std::string wanted = value;
    const bool drags = Takes_Star(wanted);
    Leave_Field();
    const auto room = static_cast<std::size_t>(std::max(0, bar.maximum - bar.minimum));
    const std::size_t step = Number_Of(wanted).value_or(Below(random_, room + 1));
    bar.value = bar.minimum + static_cast<int>(std::min(step, room));
    if (bar.enabled) Raise_Event(drags ? bar.scroll : bar.change);
}

void Person::Use(ComboBox& box, const std::string& value) {
    std::string wanted = value;
    const bool twice = Takes_Star(wanted);
    Leave_Field();
    const auto number = Number_Of(wanted);
    const bool is_entry = std::find(box.items.begin(), box.items.end(), wanted) != box.items.end();
    const bool is_typed = box.change != nullptr || &box == &screens_->frm_FFT.cmb_Harmonics;
    if (is_entry || is_typed)
        box.text = wanted;
    else if (number && !box.items.empty())
        box.text = box.items[*number % box.items.size()];
    else
        return;
    if (box.enabled) Raise_Event(box.change);
    if (box.enabled && !(is_typed && !is_entry)) Raise_Event(box.click);
    if (box.enabled && twice) Raise_Event(box.double_click);
}

void Person::Use(PictureBox& picture, const std::string& value) {
    if (!Leave_Field(picture)) return;
    Raise_Event(picture.click);
    if (value == "*") Raise_Event(picture.double_click);
}

void Person::Use(Chart& chart, const std::string&) {
    if (Leave_Field(chart)) Raise_Event(chart.click);
}

void Person::Use(const OptionOfGroup& option, const std::string&) {
    if (option.Option().on) return;
    Leave_Field();
    for (std::size_t i = 0; i < option.count; ++i) option.first[i].on = i == option.index;
    if (option.Option().enabled) Raise_Event(option.Option().click);
}

void Person::Check(std::string_view where) {
    const LinkageModel& model = program_->model;
    Demand_Finite(model, where);
    Demand(!model.Loading, "the model counts as loading", where);
    Demand(!screens_->frm_Inputnew.Filling && !screens_->frm_Animate.Filling,
           "a screen counts as being filled", where);
    Demand(!screens_->frm_Inputnew.Stepping && !screens_->frm_Animate.Stepping, "the step bar counts as held",
           where);
    Demand(pointer == Pointer::Default || ended, "the pointer still says wait", where);
    for (const OpenScreen* open : stack_) Check_Way_Out(*open);
}

void Person::Check_Way_Out(const OpenScreen& open) {
    // Nothing stands on that screen: it is left by Escape alone.
    if (open.closed || open.screen == ScreenId::frm_About) return;
    const auto& all = Controls_On(open.screen);
    const auto is_button = [](const NamedControl& named) {
        return std::holds_alternative<Button*>(named.control) && Is_Usable(named);
    };
    Demand(std::any_of(all.begin(), all.end(), is_button), "no button can be pressed",
           Screen_Name(open.screen));
}

}  // namespace kervol
