#include "print/page_printer.h"

#include <exception>

#include <QAction>
#include <QPagedPaintDevice>
#include <QPaintEngine>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProgressDialog>

#include "app/board/runtime_error.h"
#include "print/paper.h"
#include "toolkit/tr.h"

namespace numorra {
namespace {

constexpr int kMoment = 300;  // milliseconds

/// The same pages, with a progress box over the window if they take longer than a moment.
PaintedPages Counted(const PaintedPages& pages, QWidget* window) {
  const auto box = std::make_shared<QProgressDialog>("", Tr("&Stop"), 0, pages.Count, window);
  box->setObjectName("PagesProgress");
  box->setWindowTitle(pages.Name);
  box->setWindowModality(Qt::WindowModal);
  box->setMinimumDuration(kMoment);
  PaintedPages counted = pages;
  counted.Paint = [paint = pages.Paint, count = pages.Count, box](QPainter& painter, QSizeF size,
                                                                  int page) {
    box->setLabelText(Tr("Laying out page %1 of %2", page + 1, count));
    box->setValue(page);  // processes events
    if (box->wasCanceled()) throw PagesStopped();
    paint(painter, size, page);
  };
  return counted;
}

/// Whether the pages are recorded for a preview, which cannot be aborted.
bool IsPreview(const QPrinter& printer) {
  return printer.paintEngine()->type() == QPaintEngine::Picture;
}

/// The toolkit's preview prints by a button only.
void AddPrintKey(QPrintPreviewDialog& preview) {
  for (QAction* action : preview.findChildren<QAction*>()) {
    if (action->text() == QPrintPreviewDialog::tr("Print")) {
      action->setShortcuts(QKeySequence::Print);
    }
  }
}

}  // namespace

void PaintPages(QPagedPaintDevice& device, int dpi, const PaintedPages& pages) {
  constexpr double kMillimetresPerInch = 25.4;
  QPainter painter;
  if (!painter.begin(&device))
    throw RuntimeError(Fault::PrinterError, Say("cannot begin to print"));
  const QSizeF size = device.pageLayout().fullRect(QPageLayout::Millimeter).size();
  const QRect area = device.pageLayout().paintRectPixels(dpi);
  for (int page = 0; page < pages.Count; ++page) {
    if (page > 0 && !device.newPage()) {
      throw RuntimeError(Fault::PrinterError, Say("cannot start a new page"));
    }
    painter.resetTransform();
    painter.translate(-area.topLeft());
    painter.scale(dpi / kMillimetresPerInch, dpi / kMillimetresPerInch);
    pages.Paint(painter, size, page);
  }
  if (!painter.end())
    throw RuntimeError(Fault::PrinterError, Say("the page could not be finished"));
}

void PrintPages(QPrinter& printer, const PaintedPages& pages) {
  const auto paint = [&](QPagedPaintDevice& paper) {
    PaintPages(paper, printer.resolution(), pages);
  };
  if (IsPreview(printer)) return paint(printer);
  PrintOn(printer, paint);
}

void PreviewedPages::Preview(QWidget* window, const PaintedPages& pages) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageOrientation(pages.Orientation);
  printer.setDocName(pages.Name);
  QPrintPreviewDialog dialog(&printer, window);
  dialog.setWindowTitle(pages.Name);
  AddPrintKey(dialog);
  std::exception_ptr failed;
  QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, [&](QPrinter* device) {
    try {
      PrintPages(*device, Counted(pages, &dialog));
    } catch (const PagesStopped&) {
      if (!IsPreview(*device)) device->abort();
      QMetaObject::invokeMethod(&dialog, "reject", Qt::QueuedConnection);
    } catch (...) {
      failed = std::current_exception();  // it must not pass through the toolkit
    }
  });
  dialog.exec();
  if (failed) std::rethrow_exception(failed);
}

}  // namespace numorra
