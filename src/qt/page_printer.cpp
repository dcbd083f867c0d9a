// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/page_printer.h"

#include <QFile>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <algorithm>

#include "core/fault.h"
#include "rendering/qt_text.h"

namespace kervol {
namespace {

constexpr double kLargestFont = 10;  // points

/// The face whose characters are equally wide, in a size of which the page takes all lines.
QFont Fitting_Font(const QPrinter& printer, int lines) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(kLargestFont);
    const double room = printer.pageLayout().paintRectPixels(printer.resolution()).height() / double(lines);
    const double spacing = QFontMetricsF(font, &printer).lineSpacing();
    font.setPointSizeF(kLargestFont * std::min(1.0, room / spacing));
    return font;
}

}  // namespace

PagePrinter::PagePrinter(std::unique_ptr<QPrinter> printer, int lines) : printer_(std::move(printer)) {
    if (!painter_.begin(printer_.get())) Raise(fault::DeviceIO);
    painter_.setFont(Fitting_Font(*printer_, lines));
    line_height_ = QFontMetricsF(painter_.font(), printer_.get()).lineSpacing();
}

PagePrinter::~PagePrinter() {
    if (ended_) return;
    printer_->abort();
    painter_.end();
    if (printer_->outputFormat() == QPrinter::PdfFormat) QFile::remove(printer_->outputFileName());
}

/// A line that is too long for the page is drawn narrower.
void PagePrinter::Print_Line(std::string_view line) {
    const QString text = Qt_Text(line);
    const QFontMetricsF metrics(painter_.font(), printer_.get());
    const double room = painter_.viewport().width();
    painter_.save();
    painter_.translate(0, next_line_ + metrics.ascent());
    painter_.scale(std::min(1.0, room / std::max(room, metrics.horizontalAdvance(text))), 1);
    painter_.drawText(QPointF(), text);
    painter_.restore();
    next_line_ += line_height_;
}

void PagePrinter::New_Page() {
    if (!printer_->newPage()) Raise(fault::DeviceIO);
    ++page_;
    next_line_ = 0;
}

void PagePrinter::End_Document() {
    if (!painter_.end()) Raise(fault::DeviceIO);
    ended_ = true;
}

}  // namespace kervol
