// SPDX-License-Identifier: GPL-3.0-or-later
// Printing and copying a screen, and printing lines.
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStyle>
#include <algorithm>

#include "core/fault.h"
#include "qt/page_printer.h"
#include "qt/qt_port.h"
#include "rendering/qt_text.h"

namespace kervol {
namespace {

constexpr double kPageMargin = 15;  // millimetres
/// A table's header, its rows and the empty lines below them.
constexpr int kLinesPerPage = 71;

/// The form as large as the page takes it. Drawn anew in light colours, so that its texts stay texts and a
/// dark desktop does not fill the page with ink.
void Paint_Form(QPrinter& printer, QWidget& form) {
    QPainter painter;
    if (!painter.begin(&printer)) Raise(fault::DeviceIO);
    const QRectF page = printer.pageLayout().paintRectPixels(printer.resolution());
    const double scale = std::min(page.width() / form.width(), page.height() / form.height());
    painter.translate((page.width() - scale * form.width()) / 2, 0);
    painter.scale(scale, scale);
    const QPalette own = form.palette();
    form.setPalette(form.style()->standardPalette());
    form.render(&painter);
    form.setPalette(own);
}

}  // namespace

bool QtPort::Choose_Printer(QPrinter& printer, const QString& document) {
    printer.setDocName(document);
    if (!QPrinterInfo::availablePrinterNames().isEmpty()) {
        QPrintDialog dialog(&printer, Front_Window());
        dialog.setWindowTitle("Print " + document);
        return dialog.exec() == QDialog::Accepted;
    }
    const auto file = Ask_File_To_Save({"No printer was found: save as PDF", "PDF (*.pdf)|*.pdf|",
                                        screens_->program.model.ModelName + ".pdf"});
    if (!file) return false;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(Qt_Text(*file));
    return true;
}

void QtPort::Print_Screen(ScreenId screen) {
    FormWindow& form = Form(screen);
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageOrientation(form.width() > form.height() ? QPageLayout::Landscape : QPageLayout::Portrait);
    if (!Choose_Printer(printer, form.windowTitle())) return;
    // A screen may have hidden what does not belong on paper.
    Push_All();
    Paint_Form(printer, form);
}

std::unique_ptr<Printer> QtPort::Ask_Printer() {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPageMargins({kPageMargin, kPageMargin, kPageMargin, kPageMargin}, QPageLayout::Millimeter);
    if (!Choose_Printer(*printer, Qt_Text(screens_->program.model.ModelName))) return nullptr;
    return std::make_unique<PagePrinter>(std::move(printer), kLinesPerPage);
}

void QtPort::Copy_Screen(ScreenId screen) {
    QApplication::clipboard()->setPixmap(Form(screen).grab());
}

void QtPort::Copy_Text(const std::string& text) {
    QApplication::clipboard()->setText(Qt_Text(text));
}

}  // namespace kervol
