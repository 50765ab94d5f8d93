#include "app/window/menus/export_picture.h"

#include <algorithm>

#include "app/play/lay_out.h"
#include "app/window/board/board_picture.h"
#include "toolkit/tr.h"

namespace numorra {
namespace {

/// The light theme of pictures, whatever the theme of the window is.
QPalette OnWhite() {
  QPalette palette;
  for (const auto ground : {QPalette::Window, QPalette::Base})
    palette.setColor(ground, Qt::white);
  for (const auto ink : {QPalette::WindowText, QPalette::Text})
    palette.setColor(ink, Qt::black);
  palette.setColor(QPalette::Mid, QColor(160, 160, 160));
  return palette;
}

/// The puzzle on the board, and its solution.
struct PuzzleParts {
  std::optional<StoredSquare> Clues;
  std::optional<StoredSquare> Solution;
};

PuzzleParts PartsOf(Session& session) {
  PuzzleParts parts;
  const auto puzzle = session.PuzzleOnBoard();
  if (!puzzle) return parts;
  parts.Clues = StoredSquareOf(*puzzle, true);
  if (const auto solved = session.SolvedPuzzleOnBoard()) {
    parts.Solution = StoredSquareOf(solved->Solution, false);
    parts.Solution->Givens = parts.Clues->Givens;
  }
  return parts;
}

/// Paints the drawing as on a screen of its own and then to size, so that its pens keep their share
/// of the picture.
void PaintDrawing(QPainter& painter, const Desk& desk, int side) {
  constexpr double kScreen = 640;
  constexpr double kLeastCell = 24;  // its number is readable
  const double screen =
      std::min<double>(side, std::max(kScreen, kLeastCell * desk.TheBoard().GridSize));
  const double margin = screen * kPictureMargin;
  painter.scale(side / screen, side / screen);
  desk.Place.Picture->Paint(
      painter, OnWhite(), QRectF(0, 0, screen, screen).adjusted(margin, margin, -margin, -margin));
}

void PaintBoard(QPainter& painter, const Desk& desk, const PuzzleParts& parts, int side) {
  const PictureChoice& choice = desk.Picture;
  const auto paint = [&](const Grid& grid) {
    PaintBoardPicture(painter, grid, desk.Place.View->font(), OnWhite(), side, choice.Totals);
  };
  const auto& apart = choice.Subject == PictureSubject::Puzzle     ? parts.Clues
                      : choice.Subject == PictureSubject::Solution ? parts.Solution
                                                                   : std::nullopt;
  if (!apart) return paint(desk.TheBoard().grid);
  Board board;
  ShowApart(board, *apart);
  paint(board.grid);
}

void Write(const Desk& desk, FileChooser& files, const PuzzleParts& parts, QWidget* window) {
  const PictureChoice& choice = desk.Picture;
  const PictureFormat& format = FormatOf(choice.Kind);
  const QString kind = KindOfFiles(Tr(format.Files), QString("*.") + format.Suffix);
  const QString name = files.ToSave(window, Tr("Export Picture"), kind);
  if (name.isEmpty() || !desk.TheBoard().Shown()) return;
  const int side = UnitsOf(choice.Kind, choice.Size());
  WritePicture(name, choice.Kind, choice.Size(), [&](QPainter& painter) {
    if (desk.TheBoard().OverlayShown) {
      PaintDrawing(painter, desk, side);
    } else {
      PaintBoard(painter, desk, parts, side);
    }
  });
}

}  // namespace

void OpenExport(Desk& desk, FileChooser& files, QWidget* window) {
  if (!desk.TheBoard().Shown()) return;
  const bool drawn = desk.TheBoard().OverlayShown;
  const PuzzleParts parts = drawn ? PuzzleParts() : PartsOf(desk.TheSession);
  auto* form =
      new ExportForm(desk.Picture, {parts.Clues.has_value(), parts.Solution.has_value(), !drawn},
                     desk.TheDialogs, window);
  QObject::connect(form, &ExportForm::Taken, window,
                   [&desk, &files, parts, window](const PictureChoice& choice) {
                     desk.Runner.RunBeside([&] {
                       desk.Picture = choice;
                       Write(desk, files, parts, window);
                     });
                   });
  form->open();
}

}  // namespace numorra
