// SPDX-License-Identifier: GPL-3.0-or-later
#include "screens/screens_fixture.h"

#include <algorithm>
#include <utility>

#include "core/arithmetic.h"
#include "core/fault.h"
#include "core/geometry.h"
#include "screens/input_events.h"
#include "screens/launch_screens.h"
#include "startup/launch.h"

namespace kervol {

Answer ScreenPort::Show_Message(const MessageBox& box) {
    trace.push_back("box");
    if (while_box) while_box();
    answer = [this](const MessageBox&) {
        if (answers.empty()) return Answer::None;
        const Answer given = answers.front();
        answers.pop_front();
        return given;
    };
    return RecordingPort::Show_Message(box);
}

void ScreenPort::Show_Screen(ScreenId screen, Modality modality) {
    RecordingPort::Show_Screen(screen, modality);
    trace.push_back("show " + std::string(Screen_Name(screen)) +
                    (modality == Modality::Modal ? " modal" : " modeless"));
    if (opening[screen]) opening[screen]();
    if (all != nullptr) Activate_Screen(*all, screen);
    if (script[screen]) script[screen]();
}

void ScreenPort::Hide_Screen(ScreenId screen) {
    RecordingPort::Hide_Screen(screen);
    trace.push_back("hide " + std::string(Screen_Name(screen)));
}

void ScreenPort::Set_Focus(ScreenId screen, std::string_view control) {
    RecordingPort::Set_Focus(screen, control);
    trace.push_back("focus " + std::string(Screen_Name(screen)) + "." + std::string(control));
}

void ScreenPort::Fill_Screens() {
    RecordingPort::Fill_Screens();
    const bool guarded = all != nullptr && all->program.model.Loading;
    trace.push_back(guarded ? "fill while loading" : "fill");
    if (all != nullptr) kervol::Fill_Screens(*all);
}

void ScreenPort::Show_Classes() {
    if (all != nullptr) kervol::Show_Classes(*all);
}

std::optional<std::string> ScreenPort::Ask_File_To_Open(const FileDialog& dialog) {
    dialogs.push_back(dialog);
    trace.push_back("open dialog");
    if (files.empty()) return std::nullopt;
    const auto name = files.front();
    files.pop_front();
    return name;
}

std::optional<std::string> ScreenPort::Ask_File_To_Save(const FileDialog& dialog) {
    const auto name = Ask_File_To_Open(dialog);
    trace.back() = "save dialog";
    return name;
}

void ScreenPort::Print_Screen(ScreenId screen) {
    if (printer_breaks) Raise(fault::DeviceIO);
    RecordingPort::Print_Screen(screen);
    if (while_printing) while_printing();
}

std::unique_ptr<Printer> ScreenPort::Ask_Printer() {
    if (printer_breaks) Raise(fault::DeviceIO);
    return RecordingPort::Ask_Printer();
}

ScreensTest::ScreensTest()
    : BoxTest(port),
      program(std::make_unique<Program>(port)),
      screens(std::make_unique<Screens>(*program)),
      model(program->model),
      tables(program->tables),
      input(screens->frm_Inputnew),
      animate(screens->frm_Animate),
      home(screens->frm_HomeScreen) {
    Start_Fresh(*program);
    Wire_Screens(*screens);
    input.Picture1 = &picture;
    animate.Picture1 = &animate_picture;
    kervol::Fill_Screens(*screens);
    port.all = screens.get();
    model.StartingUp = false;
}

void ScreensTest::TearDown() {
    BoxTest::TearDown();
    EXPECT_TRUE(port.answers.empty()) << "an answer that no box asked for";
    EXPECT_TRUE(port.files.empty()) << "a file name that no dialog asked for";
}

void ScreensTest::Expect_Print_Asks(const Button& print, ScreenId screen, std::string_view question) {
    port.printed.clear();
    port.answers = {Answer::No};
    print.click();
    Expect_Box(question, Icon::Exclamation, Buttons::YesNo);
    EXPECT_TRUE(port.printed.empty());
    port.answers = {Answer::Yes};
    print.click();
    Expect_Box(question, Icon::Exclamation, Buttons::YesNo);
    EXPECT_EQ(port.printed, std::vector{screen});
}

void ScreensTest::Break_Next_Box() {
    port.while_box = [broken = true]() mutable {
        if (std::exchange(broken, false)) Raise(fault::DeviceIO);
    };
}

void ScreensTest::Open_Input_In_Mode(std::int16_t mode) {
    model.CalcMode = mode;
    Open_Input();
}

void ScreensTest::Calculate_In_Mode(std::int16_t mode) {
    Open_Input_In_Mode(mode);
    input.cmd_Calc.click();
}

void ScreensTest::Animate_In_Mode(std::int16_t mode) {
    if (mode > 3) Put_Imported_Drive(mode);
    Calculate_In_Mode(mode);
    Open_Animate();
}

void ScreensTest::Type(TextField& field, std::string_view text) {
    field.text = text;
    field.put_value.reset();
    if (field.change) field.change();
}

void ScreensTest::Edit(TextField& field, std::string_view text) {
    Type(field, text);
    field.lost_focus();
}

void ScreensTest::Move_Bar(int step) {
    Move_Bar(input.hsc_step, step);
}

void ScreensTest::Move_Bar(ScrollBar& bar, int step) {
    bar.value = step;
    bar.change();
}

std::vector<std::string> ScreensTest::Initial_Texts(std::size_t count) const {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < count; ++i) texts.push_back(input.txt_Initial.at(i).text);
    return texts;
}

void ScreensTest::Add_If_On(std::string& names, const Button& button, const char* name) {
    if (button.enabled) names += (names.empty() ? "" : " ") + std::string(name);
}

std::string ScreensTest::Outputs() const {
    std::string on;
    Add_If_On(on, input.cmd_Next, "Next");
    Add_If_On(on, input.cmd_Step, "Step");
    Add_If_On(on, input.cmd_Animate, "Animate");
    Add_If_On(on, input.cmd_Reset, "Reset");
    Add_If_On(on, input.cmd_Print, "Print");
    Add_If_On(on, input.cmd_Draw, "ReDraw");
    return on;
}

std::string ScreensTest::Animate_Outputs() const {
    std::string on;
    Add_If_On(on, animate.cmd_Done, "Next");
    Add_If_On(on, animate.cmd_Step, "Step");
    Add_If_On(on, animate.cmd_Run, "Run");
    Add_If_On(on, animate.cmd_Reset, "Reset");
    Add_If_On(on, animate.cmd_Copy, "Print");
    return on;
}

std::vector<Drawn> ScreensTest::Standing_On(const RecordingPicture& shown) {
    const auto last = std::find_if(shown.drawn.rbegin(), shown.drawn.rend(),
                                   [](const Drawn& drawn) { return drawn.kind == Drawn::Kind::Clear; });
    return {last.base(), shown.drawn.end()};
}

std::vector<int> ScreensTest::Rows_In(const std::vector<Drawn>& drawings) const {
    std::vector<int> rows;
    double y0 = program->animation.PlotY0;
    for (const Drawn& drawn : drawings) {
        if (drawn.kind == Drawn::Kind::Scale) y0 = Single(drawn.x1 + drawn.x2);
        const bool crank = drawn.kind == Drawn::Kind::Line && drawn.colour == Colour{255, 0, 255} &&
                           Is_Zero(drawn.x1) && Is_Same(drawn.y1, y0);
        if (!crank) continue;
        int row = 0;
        while (row <= model.NumSteps && !(Is_Same(drawn.x2, tables.PointPos(row, 0, 0)) &&
                                          Is_Same(drawn.y2, y0 - tables.PointPos(row, 0, 1))))
            ++row;
        rows.push_back(row <= model.NumSteps ? row : -1);
    }
    return rows;
}

std::vector<int> ScreensTest::Rows_Drawn() {
    const std::vector<int> rows = Rows_In(animate_picture.drawn);
    animate_picture.drawn.clear();
    return rows;
}

void ScreensTest::Put_Limited_Linkage() {
    // A stands more than 6 from O4 in between, and links 3 and 4 reach no further.
    model.Link2 = 4;
    model.Link3 = model.Link4 = 3;
    model.Link1 = model.O4X = model.O4LocalX = 5;
    model.O4Y = model.O4LocalY = 0;
    model.LinkO4D = 1;
    model.Link5 = model.Link6 = 10;
    model.O6X = model.O6LocalX = 17;
    model.O6Y = model.O6LocalY = 5;
    Derive_Geometry(model);
    kervol::Fill_Screens(*screens);
}

void ScreensTest::Put_Imported_Drive(std::int16_t mode) {
    model.CalcMode = mode;
    model.NumSteps = 2;
    model.DriveScale = 1;
    model.DriveFileName = "drive.sva";
    for (int row = 0; row <= 2; ++row) {
        tables.DriveTheta(row) = static_cast<float>(45 * row);
        tables.Omega(row, 0) = 10;
        tables.Alpha(row, 0) = 3;
    }
}

}  // namespace kervol
