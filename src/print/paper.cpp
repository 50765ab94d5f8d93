#include "print/paper.h"

#include <QBuffer>
#include <QPdfWriter>

#include "app/board/runtime_error.h"
#include "toolkit/whole_file.h"

namespace numorra {

void PrintOn(QPrinter& printer, const std::function<void(QPagedPaintDevice&)>& paint) {
  if (printer.outputFileName().isEmpty()) {
    paint(printer);
    if (printer.printerState() == QPrinter::Error) {
      throw RuntimeError(Fault::PrinterError, "the page could not be finished");
    }
    return;
  }
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&file);
    writer.setPageLayout(printer.pageLayout());
    writer.setResolution(printer.resolution());
    writer.setTitle(printer.docName());
    paint(writer);
  }
  WriteWholeFile(printer.outputFileName(), file.data());
}

}  // namespace numorra
