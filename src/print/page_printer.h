#pragma once

#include <functional>

#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPrinter>
#include <QSizeF>
#include <QString>
#include <QWidget>

namespace numorra {

/// Pages that are painted on demand, in millimetres.
struct PaintedPages {
  QString Name;
  int Count = 0;
  QPageLayout::Orientation Orientation = QPageLayout::Portrait;
  std::function<void(QPainter& painter, QSizeF millimetres, int page)> Paint;
};

/// What shows pages to the player and prints them.
class PagePrinter {
 public:
  virtual ~PagePrinter() = default;

  /// Shows the pages; they are printed where the player says so. Throws PrinterError and FileError
  /// when that cannot begin or fails on the way.
  virtual void Preview(QWidget* window, const PaintedPages& pages) = 0;
};

/// The toolkit's preview, with its own way to the printer and to PDF files. Pages that take their
/// time are counted in a box that can stop them, which closes the preview.
class PreviewedPages : public PagePrinter {
 public:
  void Preview(QWidget* window, const PaintedPages& pages) override;
};

/// Paints the pages on a device of so many dots an inch, on to a new page between them.
void PaintPages(QPagedPaintDevice& device, int dpi, const PaintedPages& pages);

/// Thrown when the player stops pages that are being painted.
struct PagesStopped {};

/// Paints the pages on a printer, or into the preview that it stands for.
void PrintPages(QPrinter& printer, const PaintedPages& pages);

}  // namespace numorra
