// SPDX-License-Identifier: GPL-3.0-or-later
#include "rendering/render.h"

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <cmath>

#include "rendering/chart_plot.h"
#include "rendering/qt_text.h"
#include "rendering/strokes.h"

namespace kervol {
namespace {

constexpr int kPagePixelsPerInch = 96;
constexpr int kPdfPixelsPerInch = 1200;
constexpr int kChartText = 13;  // pixels of the page
/// Other programs find a font by this name, or one that is like it.
constexpr auto kFont = "DejaVu Sans";

QRectF Rect(const SheetBox& box) {
    return {box.left, box.top, box.width, box.height};
}

QFont Page_Font(double size) {
    QFont font(kFont);
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(size))));
    return font;
}

void Paint_Drawing(QPainter& painter, const SheetDrawing& drawing) {
    const QRectF room = Rect(drawing.box);
    painter.fillRect(room, Qt_Colour(drawing.background));
    Paint_Strokes(painter, drawing.strokes, drawing.window,
                  Window_Area(drawing.window, room, drawing.true_shape), room);
}

void Paint_Chart(QCPPainter& painter, const SheetChart& chart) {
    ChartPlot plot;
    plot.Set_Text_Font(Page_Font(kChartText));
    plot.Show(chart.look);
    if (chart.view) plot.Show_View(*chart.view);
    painter.save();
    painter.translate(chart.box.left, chart.box.top);
    plot.Paint(painter, QSizeF(chart.box.width, chart.box.height).toSize());
    painter.restore();
}

void Paint_Text(QPainter& painter, const SheetText& text) {
    QFont font = Page_Font(text.size);
    font.setBold(text.bold);
    painter.setFont(font);
    painter.setPen(Qt::black);
    const Qt::Alignment side = text.side == TextSide::Left     ? Qt::AlignLeft
                               : text.side == TextSide::Centre ? Qt::AlignHCenter
                                                               : Qt::AlignRight;
    painter.drawText(Rect(text.box), static_cast<int>(side | Qt::AlignVCenter) | Qt::TextDontClip,
                     Qt_Text(text.text));
}

/// Scaled from the page to the device. False where the device takes no painter.
bool Paint_Sheet(QPaintDevice& device, const Sheet& sheet, double scale, bool vectors) {
    QCPPainter painter;
    if (!painter.begin(&device)) return false;
    painter.setMode(QCPPainter::pmNoCaching);
    painter.setMode(QCPPainter::pmVectorized, vectors);
    // Pens of one pixel whatever the scale would vanish on paper.
    painter.setMode(QCPPainter::pmNonCosmetic);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.fillRect(QRectF(0, 0, sheet.width, sheet.height), Qt::white);
    for (const SheetDrawing& drawing : sheet.drawings) Paint_Drawing(painter, drawing);
    for (const SheetChart& chart : sheet.charts) Paint_Chart(painter, chart);
    for (const SheetText& text : sheet.texts) Paint_Text(painter, text);
    return painter.end();
}

QSize File_Size(const Sheet& sheet) {
    return (QSizeF(sheet.width, sheet.height) * sheet.pixels).toSize();
}

bool Write_Svg(QIODevice& file, const Sheet& sheet) {
    QSvgGenerator svg;
    svg.setOutputDevice(&file);
    svg.setResolution(kPagePixelsPerInch);
    svg.setSize(File_Size(sheet));
    svg.setViewBox(QRectF(0, 0, sheet.width, sheet.height));
    svg.setTitle("KERVOL");
    return Paint_Sheet(svg, sheet, 1, true);
}

bool Write_Png(QIODevice& file, const Sheet& sheet) {
    QImage image(File_Size(sheet), QImage::Format_RGB32);
    if (image.isNull()) return false;
    return Paint_Sheet(image, sheet, sheet.pixels, false) && image.save(&file, "PNG");
}

bool Write_Pdf(QIODevice& file, const Sheet& sheet) {
    QPdfWriter pdf(&file);
    pdf.setResolution(kPdfPixelsPerInch);
    pdf.setCreator("KERVOL");
    const QSizeF inches = QSizeF(sheet.width, sheet.height) * sheet.pixels / kPagePixelsPerInch;
    pdf.setPageSize(QPageSize(inches, QPageSize::Inch, {}, QPageSize::ExactMatch));
    pdf.setPageMargins(QMarginsF());
    return Paint_Sheet(pdf, sheet, sheet.pixels * kPdfPixelsPerInch / kPagePixelsPerInch, true);
}

}  // namespace

std::string Rendered(const Sheet& sheet, PictureFormat format) {
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    bool written = false;
    switch (format) {
        case PictureFormat::Svg:
            written = Write_Svg(file, sheet);
            break;
        case PictureFormat::Png:
            written = Write_Png(file, sheet);
            break;
        case PictureFormat::Pdf:
            written = Write_Pdf(file, sheet);
            break;
    }
    return written ? file.data().toStdString() : std::string();
}

}  // namespace kervol
