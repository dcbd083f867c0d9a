// SPDX-License-Identifier: GPL-3.0-or-later
#include "plots/plot_sheets.h"

#include <algorithm>
#include <array>

#include "catalogue/table_rows.h"
#include "core/arithmetic.h"
#include "core/number_text.h"
#include "plots/plot_texts.h"
#include "plots/windows.h"

namespace kervol {
namespace {

constexpr double kMargin = 12, kGap = 10, kLine = 18, kSmall = 12;
constexpr double kLeftStrip = 84;  // beside a picture, for the labels of its y axis
constexpr double kLabel = 120;     // room for a centred label

/// The place of plot `index` of `count`: one, two over each other, or four in a square.
SheetBox Cell(std::size_t index, std::size_t count, PageSize size) {
    const std::size_t columns = count > 2 ? 2 : 1, rows = (count + columns - 1) / columns;
    const auto along = [](double all, std::size_t parts) {
        return (all - 2 * kMargin - double(parts - 1) * kGap) / double(parts);
    };
    const double width = along(size.width, columns), height = along(size.height, rows);
    const std::size_t column = index % columns, row = index / columns;
    return {kMargin + double(column) * (width + kGap), kMargin + double(row) * (height + kGap), width,
            height};
}

/// A line of small text about a point.
SheetText Centred(double x, double y, const Label& label) {
    return {{x - kLabel / 2, y - kLine / 2, kLabel, kLine}, label.caption, TextSide::Centre, kSmall};
}

/// Ends at a point.
SheetText Ending(double x, double y, const Label& label) {
    return {{x - kLabel, y - kLine / 2, kLabel, kLine}, label.caption, TextSide::Right, kSmall};
}

SheetDrawing Drawing(const SheetBox& box, const PictureList& picture, bool true_shape) {
    return {box, picture.Window(), true_shape, picture.Background(), picture.Strokes()};
}

void Add_Abscissa(Sheet& sheet, const OwnPlotView& form, std::size_t i, const SheetBox& picture,
                  const PlotMargins& margins) {
    const std::array<const Label*, 5> labels = {&form.lbl_Xmin[i], &form.lbl_X1[i], &form.lbl_X2[i],
                                                &form.lbl_X3[i], &form.lbl_Xmax[i]};
    const double y = picture.top + picture.height + kLine / 2;
    for (std::size_t k = 0; k < labels.size(); ++k)
        sheet.texts.push_back(
            Centred(picture.left + margins.Across(double(k) / 4) * picture.width, y, *labels[k]));
}

/// Below the abscissa: its title, and the extremes at the right.
void Add_Foot(Sheet& sheet, const OwnPlotView& form, std::size_t i, const SheetBox& picture) {
    const double top = picture.top + picture.height + kLine;
    sheet.texts.push_back({{picture.left, top, picture.width, kLine}, form.lbl_BottomTitle[i].caption});
    const std::string extremes = "Min " + form.lbl_Min[i].caption + "    Max " + form.lbl_Max[i].caption +
                                 "    Range " + form.lbl_Peak[i].caption;
    sheet.texts.push_back({{picture.left, top, picture.width, kLine}, extremes, TextSide::Right, kSmall});
}

void Add_Own_Plot(Sheet& sheet, const OwnPlotView& form, std::size_t i, const PictureList& list,
                  const PlotMargins& margins, const SheetBox& cell) {
    const SheetBox picture = {cell.left + kLeftStrip, cell.top + kLine, cell.width - kLeftStrip,
                              cell.height - 3 * kLine};
    sheet.drawings.push_back(Drawing(picture, list, false));
    const std::string title = form.lbl_LeftTitle[i].caption + "    " + form.lbl_Comp[i].caption + "    " +
                              form.lbl_PlotUnits[i].caption;
    sheet.texts.push_back({{picture.left, cell.top, picture.width, kLine}, title, TextSide::Left, 13, true});
    const double edge = picture.left - kGap / 2;
    sheet.texts.push_back(Ending(edge, picture.top + margins.Down(1) * picture.height, form.lbl_Ymax[i]));
    sheet.texts.push_back(Ending(edge, picture.top + margins.Down(-1) * picture.height, form.lbl_Ymin[i]));
    Add_Abscissa(sheet, form, i, picture, margins);
    Add_Foot(sheet, form, i, picture);
}

/// Of a step or harmonic, as exact as its value.
std::string Exact_Abscissa(const Program& program, std::int16_t index) {
    if (program.selections.SelFFT) return std::to_string(index);
    return Plain_Number(Single(Abscissa(program, index)));
}

}  // namespace

Sheet Chart_Sheet(const ChartView& form, std::size_t count, PageSize size) {
    Sheet sheet{.width = size.width, .height = size.height};
    for (std::size_t i = 0; i < count; ++i)
        sheet.charts.push_back({Cell(i, count, size), form.grf_Plot.at(i).look, {}});
    return sheet;
}

Sheet Own_Plot_Sheet(const OwnPlotView& form, std::int16_t plots, std::size_t first,
                     std::span<const PictureList* const> pictures, PageSize size) {
    Sheet sheet{.width = size.width, .height = size.height};
    const PlotMargins* margins = Margins_Of(plots);
    if (margins == nullptr) return sheet;
    for (std::size_t i = 0; i < pictures.size(); ++i)
        Add_Own_Plot(sheet, form, first + i, *pictures[i], *margins, Cell(i, pictures.size(), size));
    return sheet;
}

Sheet Polar_Plot_Sheet(const PolarPlotView& form, const PictureList& picture, PageSize size) {
    Sheet sheet{.width = size.width, .height = size.height};
    const double side =
        std::min(size.width - 2 * kLeftStrip - 2 * kMargin, size.height - 3 * kLine - 2 * kMargin);
    const SheetBox box = {(size.width - side) / 2, kMargin + 2 * kLine, side, side};
    sheet.drawings.push_back(Drawing(box, picture, true));
    sheet.texts.push_back({{kMargin, kMargin, size.width - 2 * kMargin, kLine},
                           form.lbl_LeftTitle.caption + "    " + form.lbl_PlotUnits.caption,
                           TextSide::Centre,
                           13,
                           true});
    const double middle_x = box.left + side / 2, middle_y = box.top + side / 2;
    sheet.texts.push_back(Centred(middle_x, box.top - kLine / 2, form.lbl_Ymax));
    sheet.texts.push_back(Centred(middle_x, box.top + side + kLine / 2, form.lbl_Ymin));
    sheet.texts.push_back(Ending(box.left - kGap / 2, middle_y, form.lbl_Xmin));
    sheet.texts.push_back({{box.left + side + kGap / 2, middle_y - kLine / 2, kLabel, kLine},
                           form.lbl_Xmax.caption,
                           TextSide::Left,
                           kSmall});
    return sheet;
}

std::string Plot_Values(Program& program, const SlotLabels& labels, std::int16_t count) {
    std::string text;
    for (int slot = 0; slot < count; ++slot)
        text +=
            '\t' + Slot_Caption(labels.lbl_Function, slot) + ' ' + Slot_Caption(labels.lbl_Component, slot);
    text += '\n';
    std::int16_t& current = program.selections.SelCurrent;
    const std::int16_t left = current;
    for (std::int16_t index = 0; index <= Last_Row(program); ++index) {
        text += Exact_Abscissa(program, index);
        for (current = 1; current <= count; ++current)
            text += '\t' + Plain_Number(Value_At(program, index, current));
        text += '\n';
    }
    current = left;
    return text;
}

std::string Polar_Plot_Values(const Program& program) {
    std::string text = "\tX\tY\n";
    for (std::int16_t step = 0; step <= program.model.NumSteps; ++step)
        text += Exact_Abscissa(program, step) + '\t' + Plain_Number(program.plots.PolarX(step)) + '\t' +
                Plain_Number(program.plots.PolarY(step)) + '\n';
    return text;
}

}  // namespace kervol
