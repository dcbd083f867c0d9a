// SPDX-License-Identifier: GPL-3.0-or-later
#include "batch/picture_options.h"

#include "headless/picture_module.h"

namespace kervol {

void Add_Picture_File(CLI::App& command, PictureFile& file) {
    command
        .add_option_function<std::string>(
            "-o",
            [&file](const std::string& path) {
                const auto format = Picture_Format(path);
                if (!format)
                    throw CLI::ValidationError("-o", "\"" + path + "\" must end in .svg, .png or .pdf");
                file = {path, *format};
            },
            "file to write")
        ->type_name("FILE.svg|png|pdf")
        ->required();
}

int Put_Picture(Console& console, BatchRun& run, const Sheet& sheet, const PictureFile& file) {
    try {
        return console.Put_Out(run, Render_Sheet(sheet, file.format), file.path);
    } catch (const PictureModuleError& error) {
        return console.Complain(Failed, error.what());
    }
}

}  // namespace kervol
