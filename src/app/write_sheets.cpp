#include "app/write_sheets.h"

#include <utility>

#include "cli/make_puzzles.h"
#include "print/page_printer.h"
#include "print/worksheet.h"
#include "toolkit/pdf_file.h"
#include "toolkit/whole_file.h"
#include "words/say.h"

namespace numorra {
namespace {

/// Writes the pages from `first` up to `end`.
void WritePages(const std::string& file, const SheetsRequest& request, const Worksheet& sheet,
                int first, int end) {
  constexpr int kDotsPerInch = 1200;
  const auto orientation = request.Landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
  const QString title = sheet.TitleOf(first > 0);
  const QByteArray pdf = PdfOf([&](QPdfWriter& writer) {
    writer.setPageSize(QPageSize(request.Letter ? QPageSize::Letter : QPageSize::A4));
    writer.setPageOrientation(orientation);
    writer.setResolution(kDotsPerInch);
    writer.setTitle(title);
    PaintPages(writer, kDotsPerInch,
               {title, end - first, orientation, [&](QPainter& painter, QSizeF size, int page) {
                  sheet.PaintPage(painter, size, first + page);
                }});
  });
  WriteWholeFile(QString::fromLocal8Bit(file.c_str()), pdf);
}

}  // namespace

bool WriteSheets(const SheetsRequest& request, const Streams& streams) {
  std::vector<MadePuzzle> puzzles;
  bool all = true;
  all &= VisitPuzzles(request.Puzzles, streams, [&](const Puzzle&, const MadePuzzle* solved) {
    all &= solved != nullptr;
    if (solved) puzzles.push_back(*solved);
  });
  if (puzzles.empty()) throw Impossible{Say("no puzzle has exactly one solution")};
  const Worksheet sheet(
      std::move(puzzles),
      {request.PerPage, QString::fromStdString(request.Title), request.TotalGiven, request.Options},
      request.Landscape);
  if (const std::string why = sheet.WhyTooLarge(); !why.empty()) throw Impossible{why};
  const int split = request.Answers ? sheet.PuzzlePages() : sheet.Pages();
  WritePages(request.File, request, sheet, 0, split);
  if (request.Answers) WritePages(*request.Answers, request, sheet, split, sheet.Pages());
  return all;
}

}  // namespace numorra
