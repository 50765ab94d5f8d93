#include "print/sheet_printer.h"

#include <algorithm>

#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QPrintDialog>

#include "app/board/runtime_error.h"

namespace numorra {
namespace {

/// A full disk shows only in what is left: a file without its last line.
bool IsWholePdf(const QString& path) {
  constexpr qint64 kTrailer = 16;
  QFile file(path);
  if (!QFileInfo(path).isFile() || !file.open(QFile::ReadOnly)) return false;
  file.seek(std::max<qint64>(0, file.size() - kTrailer));
  return file.read(kTrailer).contains("%%EOF");
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
  QPrinter& device = Device();
  QPainter painter;
  if (!painter.begin(&device)) throw RuntimeError(Fault::PrinterError, "cannot begin to print");
  QFont font("courier new", 8);
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  painter.setFont(font);
  const int lineHeight = painter.fontMetrics().lineSpacing();
  const int pageHeight = painter.viewport().height();
  int top = 0;
  for (const QString& line : QString::fromStdString(text).split("\r\n", Qt::KeepEmptyParts)) {
    if (top + lineHeight > pageHeight && !line.isEmpty()) {
      if (!device.newPage()) throw RuntimeError(Fault::PrinterError, "cannot go on to a new page");
      top = 0;
    }
    painter.drawText(0, top + painter.fontMetrics().ascent(), line);
    top += lineHeight;
  }
  if (!painter.end() || device.printerState() == QPrinter::Error) {
    throw RuntimeError(Fault::PrinterError, "the page could not be finished");
  }
  const QString file = device.outputFileName();
  if (!file.isEmpty() && !IsWholePdf(file)) {
    throw RuntimeError(Fault::PrinterError, "cannot write " + file.toStdString());
  }
}

}  // namespace numorra
