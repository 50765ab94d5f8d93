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

/// Pages painted on demand, in millimetres.
struct PaintedPages {
  QString Name;
  int Count = 0;
  QPageLayout::Orientation Orientation = QPageLayout::Portrait;
  std::function<void(QPainter& painter, QSizeF millimetres, int page)> Paint;
};

/// Shows pages to the player and prints them.
class PagePrinter {
 public:
  virtual ~PagePrinter() = default;

  /// Shows the pages; the player decides whether to print them. Throws PrinterError and FileError
  /// if printing cannot begin or fails.
  virtual void Preview(QWidget* window, const PaintedPages& pages) = 0;
};

/// The toolkit's preview, which prints and writes PDF files itself. A box counts slow pages; its
/// stop button closes the preview.
class PreviewedPages : public PagePrinter {
 public:
  void Preview(QWidget* window, const PaintedPages& pages) override;
};

/// Paints the pages on a device with the given resolution in dots per inch, starting a new page
/// between them.
void PaintPages(QPagedPaintDevice& device, int dpi, const PaintedPages& pages);

/// Thrown when the player stops the painting of pages.
struct PagesStopped {};

/// Paints the pages on a printer, or into its preview.
void PrintPages(QPrinter& printer, const PaintedPages& pages);

}  // namespace numorra
