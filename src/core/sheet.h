// SPDX-License-Identifier: GPL-3.0-or-later
// What a picture file shows: charts, drawings and texts at their places on one page. A toolkit renders it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/chart.h"
#include "core/picture_list.h"

namespace kervol {

/// In the pixels of the page, whatever the size of the file.
struct SheetBox {
    double left, top, width, height;
};

enum class TextSide { Left, Centre, Right };

/// One line, in the middle of the box's height.
struct SheetText {
    SheetBox box;
    std::string text;
    TextSide side = TextSide::Left;
    double size = 13;  ///< of the letters
    bool bold = false;
};

struct SheetDrawing {
    SheetBox box;
    WorldWindow window;
    bool true_shape = true;  ///< a unit across is as long as one up; else the window fills the box
    Colour background{255, 255, 255};
    std::vector<Stroke> strokes = {};
};

/// The part of the plane that a chart shows.
struct PlaneView {
    double x_low, x_high, y_low, y_high;
};

struct SheetChart {
    SheetBox box;
    ChartLook look;
    std::optional<PlaneView> view = {};  ///< nothing for the whole
};

struct Sheet {
    double width, height;
    double pixels = 1;  ///< of the file for one of the page
    std::vector<SheetDrawing> drawings = {};
    std::vector<SheetChart> charts = {};
    std::vector<SheetText> texts = {};
};

enum class PictureFormat { Svg, Png, Pdf };

/// By the ending of a file's name, in capitals or not; nothing for any other.
std::optional<PictureFormat> Picture_Format(std::string_view path);

/// The one entry of the module that renders sheets for programs which are not linked with the toolkit: hands
/// the file's bytes to `take`. False where it cannot, and where the caller's layout of a sheet is not its
/// own.
using RenderEntry = bool (*)(std::size_t sheet_size, const Sheet* sheet, PictureFormat format,
                             void (*take)(void* target, const char* bytes, std::size_t count), void* target);
inline constexpr const char* RenderEntryName = "kervol_render_sheet";

}  // namespace kervol
