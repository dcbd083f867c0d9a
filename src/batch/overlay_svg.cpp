// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>

#include "animation/linkage_svg.h"
#include "batch/comparison.h"
#include "core/markup_text.h"

namespace kervol {
namespace {

constexpr int kSize = 720;
constexpr int kLine = 20;
constexpr std::array<Colour, 2> kColours = {{{38, 122, 204}, {213, 62, 45}}};

std::string Name_Of(const LinkageModel& model) {
    return model.ModelName + "  " + model.ModelTitle;
}

/// The second model is dashed too, so that it is told apart in grey.
std::string Position(const Program& program, std::int16_t step, const FittedView& view, std::size_t which) {
    const Colour colour = kColours.at(which);
    const std::string dashes = which == 0 ? "" : " stroke-dasharray=\"7 4\"";
    std::string text = Svg_Paths(program, view, {colour, colour}, dashes + " stroke-opacity=\"0.7\"");
    for (const LinkShape& shape : Link_Shapes(program, step)) {
        // A polygon runs back over a bar, and would fill the gaps of its dashes.
        text += shape.corners.size() > 2 ? "<polygon" : "<polyline";
        text += " points=\"" + Svg_Corners(shape, view) + "\" fill=\"" + Colour_Text(colour) +
                "\" fill-opacity=\"0.1\" stroke=\"" + Colour_Text(colour) + "\" stroke-width=\"2.5\"" +
                dashes + " stroke-linejoin=\"round\"/>\n";
    }
    for (const UserPoint pivot : Fixed_Pivots(program.model))
        text += "<circle cx=\"" + Fixed_Number(view.X(pivot.x)) + "\" cy=\"" + Fixed_Number(view.Y(pivot.y)) +
                "\" r=\"4\" fill=\"#fff\" stroke=\"" + Colour_Text(colour) + "\" stroke-width=\"2\"/>\n";
    return text;
}

std::string Legend(const std::string& name, std::size_t which, const FittedView& view) {
    const auto y =
        static_cast<double>(view.Height()) - kLine * (2.0 - static_cast<double>(which)) + kLine / 2.0;
    const std::string colour = Colour_Text(kColours.at(which));
    return "<path d=\"M12 " + Fixed_Number(y - 4) + "h30\" stroke-width=\"2.5\" stroke=\"" + colour + "\"" +
           (which == 0 ? "" : " stroke-dasharray=\"7 4\"") + "/><text x=\"50\" y=\"" + Fixed_Number(y) +
           "\" font-family=\"sans-serif\" font-size=\"13\">" + Markup_Text(name) + "</text>\n";
}

}  // namespace

std::string Overlay_Svg(const Program& first, const Program& second,
                        std::pair<std::int16_t, std::int16_t> steps) {
    Extent extent = Motion_Extent(first);
    const Extent other = Motion_Extent(second);
    extent.Widen(other.left, other.bottom);
    extent.Widen(other.right, other.top);
    // Room for the legend.
    const double line = std::max(extent.Width(), extent.Height()) * kLine / kSize;
    extent.Widen(extent.left, extent.bottom - 2 * line);
    const FittedView view(extent, kSize);
    return Svg_Start(view, Name_Of(first.model) + " / " + Name_Of(second.model), SvgUse::File) +
           Svg_Pivots(first.model, view) + Position(first, steps.first, view, 0) +
           Position(second, steps.second, view, 1) + Legend("A: " + Name_Of(first.model), 0, view) +
           Legend("B: " + Name_Of(second.model), 1, view) + "</svg>\n";
}

}  // namespace kervol
