// SPDX-License-Identifier: GPL-3.0-or-later
// The port's way from a picture to a file.
#include <QFileInfo>

#include "core/report.h"
#include "files/output_file.h"
#include "qt/qt_port.h"
#include "rendering/qt_text.h"
#include "rendering/render.h"

namespace kervol {
namespace {

constexpr auto kFilter = "SVG drawing (*.svg)|*.svg|PNG image (*.png)|*.png|PDF document (*.pdf)|*.pdf|";
constexpr auto kOtherEnding =
    "A picture is saved as .svg, .png or .pdf.\nPlease give its name one of these endings.";
constexpr auto kTooLarge = "This picture is too large to be saved.";

/// Beside the model, under its name.
std::string Proposed_Name(const LinkageModel& model) {
    const QString stem = QFileInfo(Qt_Text(model.ModelName)).completeBaseName();
    return (stem.isEmpty() ? "picture" : stem.toStdString()) + ".svg";
}

}  // namespace

void QtPort::Save_Picture(const Sheet& sheet) {
    Program& program = screens_->program;
    const auto path = Ask_File_To_Save({"Save picture as", kFilter, Proposed_Name(program.model)});
    if (!path) return;
    const auto format = Picture_Format(*path);
    if (!format) {
        Show_Message({.text = kOtherEnding, .icon = Icon::Exclamation});
        return;
    }
    const std::string content = Rendered(sheet, *format);
    if (content.empty()) {
        Show_Message({.text = kTooLarge, .icon = Icon::Exclamation});
        return;
    }
    Procedure(program, "Save_Picture", [&] {
        OutputFile file(*path);
        file.Write(content);
        file.Close();
    });
}

}  // namespace kervol
