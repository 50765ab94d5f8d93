#include "print/sheet_printer.h"

#include <QPainter>
#include <QPrintDialog>

#include "app/board/runtime_error.h"
#include "print/paper.h"
#include "words/say.h"

namespace numorra {
namespace {

/// Paints the lines from the top of the first page, on as many pages as needed.
void PaintSheet(QPagedPaintDevice& device, const std::string& text) {
  QPainter painter;
  if (!painter.begin(&device))
    throw RuntimeError(Fault::PrinterError, Say("cannot begin to print"));
  QFont font("courier new", 8);
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  painter.setFont(font);
  const int lineHeight = painter.fontMetrics().lineSpacing();
  const int pageHeight = painter.viewport().height();
  int top = 0;
  for (const QString& line : QString::fromStdString(text).split("\r\n", Qt::KeepEmptyParts)) {
    if (top + lineHeight > pageHeight && !line.isEmpty()) {
      if (!device.newPage())
        throw RuntimeError(Fault::PrinterError, Say("cannot start a new page"));
      top = 0;
    }
    painter.drawText(0, top + painter.fontMetrics().ascent(), line);
    top += lineHeight;
  }
  if (!painter.end())
    throw RuntimeError(Fault::PrinterError, Say("the page could not be finished"));
}

}  // namespace

QPrinter& PaperPrinter::Device() {
  if (!device_) {
    device_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    device_->setPageOrientation(QPageLayout::Landscape);
    device_->setDocName("Numorra");
  }
  return *device_;
}

bool PaperPrinter::Choose(QWidget* window) {
  QPrintDialog dialog(&Device(), window);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  return dialog.exec() == QDialog::Accepted;
}

void PaperPrinter::PrintTo(const QString& pdfFile) {
  Device().setOutputFormat(QPrinter::PdfFormat);
  Device().setOutputFileName(pdfFile);
}

void PaperPrinter::Print(const std::string& text) {
  PrintOn(Device(), [&](QPagedPaintDevice& paper) { PaintSheet(paper, text); });
}

}  // namespace numorra
