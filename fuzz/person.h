// SPDX-License-Identifier: GPL-3.0-or-later
// A person who does what a text says, one event a line, on the screens of one program. Screens open and close
// as in the windows; what no line decides is decided by a generator that starts anew with each line, so that
// a line means the same wherever it stands.
//
//     cmd_Calc               uses a control of the front screen: clicks, ticks
//     txt_Linkout_3=1e38     types, picks an entry by its text or number, moves a bar; "*" behind it picks
//                            twice, or drags the bar
//     17=1e38                uses the 18th control that can be used
//     enter, close           in the field typed in last; the front window
//     answer=No, file=a.kvl  of the next box, of the next file dialog
//     title=a.kvl            as the first line: starts with that command line instead of on the Home screen
#pragma once

#include <array>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/picture_list.h"
#include "headless/recording_port.h"
#include "line_mutator.h"
#include "screen_controls.h"

namespace kervol {

class Person : public RecordingPort {
  public:
    /// File names of dialogs stand in that folder.
    Person(std::string_view script, const std::string& folder);

    /// Does all that the text says, as long as the program runs. Ends as a finding where something is broken.
    void Use_Program();

    bool files_used = false;  ///< files of the folder may have been written

    Answer Show_Message(const MessageBox& box) override;
    void Show_Screen(ScreenId screen, Modality modality) override;
    void Hide_Screen(ScreenId screen) override;
    void Fill_Screens() override;
    void Show_Classes() override;
    void Set_Running(bool running) override;
    bool Hold_Picture(double milliseconds) override;
    std::optional<std::string> Ask_File_To_Open(const FileDialog& dialog) override;
    std::optional<std::string> Ask_File_To_Save(const FileDialog& dialog) override;
    void Print_Screen(ScreenId screen) override;
    std::unique_ptr<Printer> Ask_Printer() override;

  private:
    struct OpenScreen {
        ScreenId screen;
        bool closed = false;
        std::optional<ScreenId> next;  ///< takes the place of one that has closed
    };

    void Attach_Pictures();
    std::string In_Folder(const std::string& name) const;
    void Wait_For(ScreenId screen);
    void Return_To_Opener();
    /// The next line, on that screen; false where there is none.
    bool Do_Next(ScreenId front);
    void Do(ScreenId front, const std::string& name, const std::string& value);
    const std::vector<NamedControl>& Controls_On(ScreenId screen);
    const NamedControl* Find(ScreenId front, const std::string& name);
    void Use(Button& button, const std::string& value);
    void Use(MenuItem& item, const std::string& value);
    void Use(TextField& field, const std::string& value);
    void Use(CheckBox& box, const std::string& value);
    void Use(ScrollBar& bar, const std::string& value);
    void Use(ComboBox& box, const std::string& value);
    void Use(PictureBox& picture, const std::string& value);
    void Use(Chart& chart, const std::string& value);
    void Use(const OptionOfGroup& option, const std::string& value);
    /// What every event but a field's own begins with; false where the control has gone by that.
    bool Leave_Field(const Control& used);
    void Leave_Field();
    void Raise_Event(const Event& event);
    void Check(std::string_view where);
    void Check_Way_Out(const OpenScreen& open);
    /// One time in `times`.
    bool Happens(std::size_t times) { return Below(random_, times) == 0; }

    std::vector<std::string> lines_;
    std::size_t at_ = 0;
    std::string folder_;
    FuzzRandom random_;
    std::deque<std::string> answers_, files_;

    std::unique_ptr<Program> program_;
    std::unique_ptr<Screens> screens_;
    std::array<std::vector<NamedControl>, NumScreens> controls_;  ///< of a screen once it was used
    std::array<PictureList, 9> pictures_;
    std::vector<OpenScreen*> stack_;  ///< the modal ones
    bool home_open_ = false;
    TextField* entered_ = nullptr;
    std::size_t holds_left_ = 0;
};

}  // namespace kervol
