// SPDX-License-Identifier: GPL-3.0-or-later
// Fixture of tests that use the screens as a person does, over records: a fresh program, its screens wired, a
// recording port that opens screens as a toolkit would.
#pragma once

#include <deque>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "headless/recording_picture.h"
#include "headless/recording_port.h"
#include "screens/screens.h"
#include "support/box_test.h"

namespace kervol {

/// Modes or counts to try one after another.
using Int16List = std::initializer_list<std::int16_t>;

/// Keeps the order of what happens, activates a screen that opens and lets a script use it while it is open.
class ScreenPort : public RecordingPort {
  public:
    Answer Show_Message(const MessageBox& box) override;
    void Show_Screen(ScreenId screen, Modality modality) override;
    void Hide_Screen(ScreenId screen) override;
    void Set_Focus(ScreenId screen, std::string_view control) override;
    void Fill_Screens() override;
    void Show_Classes() override;
    std::optional<std::string> Ask_File_To_Open(const FileDialog& dialog) override;
    std::optional<std::string> Ask_File_To_Save(const FileDialog& dialog) override;
    void Print_Screen(ScreenId screen) override;
    std::unique_ptr<Printer> Ask_Printer() override;

    Screens* all = nullptr;
    std::vector<std::string> trace;                     ///< "show frm_User modal", "hide frm_User", ...
    std::map<ScreenId, std::function<void()>> opening;  ///< runs before the screen is filled
    std::map<ScreenId, std::function<void()>> script;   ///< what a person does on it while it is open
    std::function<void()> while_box;                    ///< runs while a box stands
    std::function<void()> while_printing;               ///< runs while a screen is printed
    std::deque<std::optional<std::string>> files;       ///< answers of the next file dialogs; then Cancel
    std::deque<Answer> answers;                         ///< answers of the next boxes; then their preset
    bool printer_breaks = false;                        ///< printing is fault 57
};

class ScreensTest : public BoxTest {
  protected:
    /// As a run without a file stands on the Home screen.
    ScreensTest();
    void TearDown() override;

    /// A refused entry: the next box must be this warning.
    void Expect_Warning(std::string_view text) { Expect_Box(text, Icon::Exclamation); }
    static constexpr const char* kPrintQuestion =
        "You can print this form directly to a printer from here.\n"
        "Note: The image on this screen may not print correctly on some printers.\n"
        "You can also copy it to the clipboard and paste it in a document.\n"
        "Do you want to send it to the printer now anyway?";
    /// The button asks, and prints the screen on Yes alone.
    void Expect_Print_Asks(const Button& print, ScreenId screen, std::string_view question = kPrintQuestion);
    /// Showing the next box is fault 57.
    void Break_Next_Box();

    void Open_Input() { port.Show_Screen(ScreenId::frm_Inputnew, Modality::Modal); }
    /// Opens the Input screen in a mode of the drive.
    void Open_Input_In_Mode(std::int16_t mode);
    /// Opens the Input screen and calculates.
    void Calculate_In_Mode(std::int16_t mode);

    /// Opens the Animation screen.
    void Open_Animate() { port.Show_Screen(ScreenId::frm_Animate, Modality::Modal); }
    /// Opens the Input screen in a mode of the drive, an imported one of three rows, calculates, and goes on
    /// to the Animation screen.
    void Animate_In_Mode(std::int16_t mode);

    /// Types into a field, one change for the whole text, and stays in it.
    static void Type(TextField& field, std::string_view text);
    /// Types into a field and leaves it.
    static void Edit(TextField& field, std::string_view text);
    /// Chooses an option of a group that is not on yet.
    template <std::size_t count>
    static void Choose(std::array<OptionButton, count>& group, std::size_t index) {
        ASSERT_FALSE(group.at(index).on) << "a click on the chosen option does nothing";
        for (OptionButton& option : group) option.on = false;
        group.at(index).on = true;
        if (group.at(index).click) group.at(index).click();
    }
    /// Moves the step bar.
    void Move_Bar(int step);
    static void Move_Bar(ScrollBar& bar, int step);

    TextField& Link(LinkField field) { return input.txt_Linkout.at(field); }
    TextField& Initial(std::size_t field) { return input.txt_Initial.at(field); }
    /// Texts of the first fields of the drive.
    std::vector<std::string> Initial_Texts(std::size_t count = 3) const;
    /// Which of the output buttons are on: of Next, Step, Animate, Reset, Print, ReDraw.
    std::string Outputs() const;
    /// The same of the Animation screen: of Next, Step, Run, Reset, Print.
    std::string Animate_Outputs() const;

    /// What was drawn on the Input screen behind its last clearing.
    std::vector<Drawn> Standing() const { return Standing_On(picture); }
    bool Picture_Is_Clear() const { return Standing().empty(); }
    /// The same of any picture.
    static std::vector<Drawn> Standing_On(const RecordingPicture& shown);
    /// The rows whose crank stands in these drawings, in their order, told by its end; -1 for no row. Ground
    /// link along x.
    std::vector<int> Rows_In(const std::vector<Drawn>& drawings) const;
    /// The rows that were drawn on the Animation screen since the last call.
    std::vector<int> Rows_Drawn();

    /// Stage 1 turns from 0 to 82.8 and from 277.2 to 360 degrees only, and is non-Grashof.
    void Put_Limited_Linkage();
    /// Two arms of 90 degrees as an imported drive of three rows.
    void Put_Imported_Drive(std::int16_t mode);

    ScreenPort port;
    std::unique_ptr<Program> program;
    std::unique_ptr<Screens> screens;
    LinkageModel& model;
    ResultTables& tables;
    InputScreen& input;
    AnimateScreen& animate;
    HomeScreen& home;
    RecordingPicture picture, animate_picture;

  private:
    static void Add_If_On(std::string& names, const Button& button, const char* name);
};

}  // namespace kervol
