#include "print/paper.h"

#include "app/board/runtime_error.h"
#include "toolkit/pdf_file.h"
#include "toolkit/whole_file.h"
#include "words/say.h"

namespace numorra {

void PrintOn(QPrinter& printer, const std::function<void(QPagedPaintDevice&)>& paint) {
  if (printer.outputFileName().isEmpty()) {
    paint(printer);
    if (printer.printerState() == QPrinter::Error) {
      throw RuntimeError(Fault::PrinterError, Say("the page could not be finished"));
    }
    return;
  }
  WriteWholeFile(printer.outputFileName(), PdfOf([&](QPdfWriter& writer) {
                   writer.setPageLayout(printer.pageLayout());
                   writer.setResolution(printer.resolution());
                   writer.setTitle(printer.docName());
                   paint(writer);
                 }));
}

}  // namespace numorra
