// SPDX-License-Identifier: GPL-3.0-or-later
// The port of runs without a person: boxes are recorded and answered by a rule.
#pragma once

#include <functional>
#include <list>
#include <string>
#include <vector>

#include "core/port.h"
#include "headless/text_printer.h"

namespace kervol {

class RecordingPort : public Port {
  public:
    struct Shown {
        MessageBox box;
        Answer answer;
    };

    Answer Show_Message(const MessageBox& box) override;
    void Set_Pointer(Pointer shape) override { pointer = shape; }
    void Show_Screen(ScreenId screen, Modality modality) override;
    void Hide_Screen(ScreenId screen) override;
    void Set_Focus(ScreenId screen, std::string_view control) override;
    void Fill_Screens() override { ++fills; }
    void Show_Classes() override {}
    void End_Program() override { ended = true; }
    std::optional<std::string> Ask_File_To_Open(const FileDialog& dialog) override;
    std::optional<std::string> Ask_File_To_Save(const FileDialog& dialog) override;
    void Set_Running(bool running) override { runs.push_back(running); }
    bool Hold_Picture(double milliseconds) override;
    void Print_Screen(ScreenId screen) override { printed.push_back(screen); }
    void Copy_Screen(ScreenId screen) override { copied.push_back(screen); }
    void Copy_Text(const std::string& text) override { clipboard = text; }
    std::vector<std::string> Manual_Places() override { return manual_places; }
    bool Open_File(const std::string& path) override;
    std::unique_ptr<Printer> Ask_Printer() override;
    std::string User_Name() override { return user_name; }
    std::string Long_Path(const std::string& path) override;
    DateAndTime Short_Date_And_Time() override;
    bool Shows_Repeated_Faults() const override { return shows_repeated_faults; }

    /// Answers a box; without one, and for `Answer::None`, the box's preset button is pressed.
    std::function<Answer(const MessageBox&)> answer;
    /// Answers a file dialog; without one it is cancelled.
    std::function<std::optional<std::string>(const FileDialog&)> file;
    /// Whether a run goes on behind the position that was held last; without one it does.
    std::function<bool()> goes_on;
    bool shows_repeated_faults = true;
    std::optional<DateAndTime> clock;  ///< stands still; without one it is the machine's
    bool has_printer = true;           ///< without one the printer dialog counts as cancelled
    std::string user_name;
    std::vector<std::string> manual_places;
    bool opens_files = true;  ///< whether the desktop has a program for a file

    std::vector<Shown> messages;
    std::vector<ScreenId> screens;  ///< in the order in which they were shown
    std::vector<ScreenId> hidden;
    std::vector<ScreenId> printed;
    std::vector<ScreenId> copied;
    std::vector<std::string> opened_files;
    std::string clipboard;                 ///< the text that was put there last
    std::vector<bool> runs;                ///< beginnings and ends of runs
    std::vector<double> holds;             ///< milliseconds
    std::list<PrintedDocument> documents;  ///< a list, since printers keep hold of them
    std::vector<FileDialog> dialogs;
    std::string focus;  ///< control that was given the focus last
    int fills = 0;      ///< how often the screens were filled
    bool ended = false;
    Pointer pointer = Pointer::Default;
};

}  // namespace kervol
