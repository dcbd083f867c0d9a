// SPDX-License-Identifier: GPL-3.0-or-later
// The port of the window program: message boxes, dialogs, and the stack of open screens.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "core/picture_list.h"
#include "core/port.h"
#include "qt/binder.h"
#include "qt/form_window.h"
#include "qt/run_gate.h"
#include "screens/screens.h"

class QEventLoop;
class QPrinter;

namespace kervol {

class QtPort : public Port {
  public:
    QtPort();
    ~QtPort() override;

    /// Before anything else; the screens need the port for their own making.
    void Attach(Screens& screens);

    Answer Show_Message(const MessageBox& box) override;
    void Set_Pointer(Pointer pointer) override;
    void Show_Screen(ScreenId screen, Modality modality) override;
    void Hide_Screen(ScreenId screen) override;
    void Set_Focus(ScreenId screen, std::string_view control) override;
    void Fill_Screens() override;
    void Show_Classes() override;
    void End_Program() override;
    std::optional<std::string> Ask_File_To_Open(const FileDialog& dialog) override;
    std::optional<std::string> Ask_File_To_Save(const FileDialog& dialog) override;
    void Set_Running(bool running) override;
    bool Hold_Picture(double milliseconds) override;
    void Print_Screen(ScreenId screen) override;
    void Copy_Screen(ScreenId screen) override;
    void Copy_Text(const std::string& text) override;
    std::vector<std::string> Manual_Places() override;
    bool Open_File(const std::string& path) override;
    std::unique_ptr<Printer> Ask_Printer() override;
    std::string User_Name() override;
    std::string Long_Path(const std::string& path) override;
    DateAndTime Short_Date_And_Time() override;
    bool Shows_Repeated_Faults() const override { return false; }

    /// The window of a screen, made when it is first needed. Throws std::logic_error for a screen without
    /// one.
    FormWindow& Form(ScreenId screen);
    /// Runs what a person caused, then shows all records.
    void Run(const Event& event);

  private:
    struct OpenForm {
        std::unique_ptr<FormWindow> window;
        std::unique_ptr<Binder> binder;  ///< goes first
    };
    struct StackEntry {
        ScreenId screen;
        QEventLoop* loop;
        bool closed = false;
        std::optional<ScreenId> next = {};  ///< takes its place
    };
    class OnStack;

    OpenForm& Made_Form(ScreenId screen);
    void Lay_Out(ScreenId screen, OpenForm& form);
    void Lay_Out_And_Bind(OpenForm& form, PlotSelectScreen& screen);
    void Lay_Out_And_Bind(OpenForm& form, ChartScreen& screen);
    void Lay_Out_And_Bind(OpenForm& form, OwnPlotScreen& screen, std::span<PictureList> pictures);
    void Lay_Out_And_Bind(OpenForm& form, PolarPlotScreen& screen);
    template <class Record>
    void Bind(OpenForm& form, Record& record);
    void Open_Window(ScreenId screen, Modality modality);
    void Wait_For(ScreenId screen);
    void Return_To_Opener();
    void Close_By_User(ScreenId screen);
    void Push_All();
    QWidget* Front_Window();

    std::optional<std::string> Ask_File(const FileDialog& dialog, bool saving);
    void Save_Picture(const Sheet& sheet);
    bool Choose_Printer(QPrinter& printer, const QString& document);

    Screens* screens_ = nullptr;
    PictureList input_picture_, animate_picture_, polar_picture_;
    std::array<PictureList, 2> two_plots_;
    std::array<PictureList, 4> four_plots_;
    std::array<OpenForm, NumScreens> forms_;
    std::vector<StackEntry*> stack_;  ///< the open modal screens, the front one last
    std::unique_ptr<RunGate> run_;    ///< of the animation, while it runs
    std::string last_folder_;
    bool busy_ = false;
    bool ended_ = false;
};

}  // namespace kervol
