// SPDX-License-Identifier: GPL-3.0-or-later
#include "headless/recording_port.h"

#include <array>
#include <ctime>

#include "core/path_text.h"

namespace kervol {
namespace {

std::string Formatted(const std::tm& time, const char* format) {
    std::array<char, 64> buffer;
    return {buffer.data(), std::strftime(buffer.data(), buffer.size(), format, &time)};
}

}  // namespace

Answer RecordingPort::Show_Message(const MessageBox& box) {
    Answer given = answer ? answer(box) : Answer::None;
    if (given == Answer::None) given = box.preset;
    messages.push_back({box, given});
    return given;
}

void RecordingPort::Show_Screen(ScreenId screen, Modality) {
    screens.push_back(screen);
}

void RecordingPort::Hide_Screen(ScreenId screen) {
    hidden.push_back(screen);
}

void RecordingPort::Set_Focus(ScreenId, std::string_view control) {
    focus = control;
}

std::optional<std::string> RecordingPort::Ask_File_To_Open(const FileDialog& dialog) {
    dialogs.push_back(dialog);
    return file ? file(dialog) : std::nullopt;
}

std::optional<std::string> RecordingPort::Ask_File_To_Save(const FileDialog& dialog) {
    return Ask_File_To_Open(dialog);
}

bool RecordingPort::Hold_Picture(double milliseconds) {
    holds.push_back(milliseconds);
    return !goes_on || goes_on();
}

std::unique_ptr<Printer> RecordingPort::Ask_Printer() {
    if (!has_printer) return nullptr;
    return std::make_unique<TextPrinter>(documents.emplace_back());
}

bool RecordingPort::Open_File(const std::string& path) {
    if (opens_files) opened_files.push_back(path);
    return opens_files;
}

std::string RecordingPort::Long_Path(const std::string& path) {
    return Long_Path_Of(path);
}

DateAndTime RecordingPort::Short_Date_And_Time() {
    if (clock) return *clock;
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {Formatted(local, "%Y-%m-%d"), Formatted(local, "%H:%M")};
}

}  // namespace kervol
