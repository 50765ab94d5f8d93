#include "print/worksheet.h"

#include <algorithm>

#include "puzzle/candidates.h"
#include "puzzle/code.h"
#include "puzzle/grade.h"

namespace numorra {
namespace {

// Millimetres.
constexpr double kMargin = 12;
constexpr double kHeader = 24;  // title, name, rules
constexpr double kCaption = 7;  // above a board
constexpr double kBelow = 16;   // missing numbers and code
constexpr double kBetween = 6;  // between puzzles
constexpr double kLargestCell = 22;
constexpr double kTextHeight = 4;
constexpr double kSmallText = 3;
constexpr double kReadable = 1;

/// Texts are laid out in thousandths of a millimetre; otherwise font sizes are rounded to whole
/// millimetres.
constexpr double kUnits = 1000;

/// Writes a line into `area`, smaller if it does not fit; writes nothing if it would be too small
/// to read.
void Write(QPainter& painter, const QRectF& area, int flags, const QString& text, double height,
           bool bold = false) {
  painter.save();
  painter.scale(1 / kUnits, 1 / kUnits);
  QFont font("DejaVu Sans");
  font.setStyleHint(QFont::SansSerif);
  font.setBold(bold);
  font.setPixelSize(static_cast<int>(height * kUnits));
  const double width = QFontMetricsF(font, painter.device()).horizontalAdvance(text);
  const double room = area.width() * kUnits;
  const double fits = width > room ? height * room / width : height;
  font.setPixelSize(std::max(1, static_cast<int>(fits * kUnits)));
  painter.setFont(font);
  if (fits >= kReadable)
    painter.drawText(QRectF(area.topLeft() * kUnits, area.size() * kUnits), flags, text);
  painter.restore();
}

/// The place of a board in its slot: in the middle, with room above and below it.
QRectF BoardIn(const QRectF& slot, double side, int order) {
  QRectF board(0, 0, order * side, order * side);
  board.moveCenter(slot.adjusted(0, kCaption, 0, -kBelow).center());
  return board;
}

/// Paints the board with the numbers of `puzzle`; those of `clues` in bold.
void PaintBoard(QPainter& painter, const QRectF& board, double side, const Puzzle& puzzle,
                const Puzzle& clues) {
  constexpr double kThin = 0.2;
  constexpr double kThick = 0.6;
  constexpr double kShareOfCell = 0.5;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Qt::black, kThick));
  painter.drawRect(board);
  painter.setPen(QPen(Qt::black, kThin));
  for (int cell = 0; cell < puzzle.Cells.Size(); ++cell) {
    const Place place = puzzle.Cells.PlaceOf(cell);
    const QRectF here(board.left() + (place.Column - 1) * side,
                      board.top() + (place.Row - 1) * side, side, side);
    painter.drawRect(here);
    if (puzzle.Cells[cell] == 0) continue;
    Write(painter, here.adjusted(side / 10, 0, -side / 10, 0), Qt::AlignCenter,
          QString::number(puzzle.Cells[cell]), side * kShareOfCell, clues.Cells[cell] != 0);
  }
}

QString Missing(const Puzzle& puzzle) {
  if (puzzle.Asked != Rules::Normal) return {};
  QStringList missing;
  for (std::int64_t number = 1; number <= puzzle.Most(); ++number) {
    if (std::find(puzzle.Cells.begin(), puzzle.Cells.end(), number) == puzzle.Cells.end()) {
      missing << QString::number(number);
    }
  }
  return "Missing: " + missing.join("  ");
}

bool IsNormal(const MadePuzzle& made) {
  return made.Clues.Asked == Rules::Normal;
}

QString Numbers(const MadePuzzle& made) {
  return IsNormal(made) ? "each missing number once" : "whole numbers of 1 or more";
}

bool AreMixed(const std::vector<MadePuzzle>& puzzles) {
  const auto normal = std::count_if(puzzles.begin(), puzzles.end(), IsNormal);
  return normal > 0 && normal < static_cast<std::ptrdiff_t>(puzzles.size());
}

/// If the puzzles have different rules, each names its own.
QString RulesText(const std::vector<MadePuzzle>& puzzles) {
  const QString numbers =
      AreMixed(puzzles) || puzzles.empty() ? "" : "with " + Numbers(puzzles.front()) + ", ";
  return "Fill the gaps " + numbers +
         "so that all rows, columns and both diagonals add up to the same total.";
}

}  // namespace

bool TotalCanBeFound(const Puzzle& puzzle) {
  if (puzzle.Asked == Rules::Normal) return true;
  const Candidates board(puzzle);
  for (int line = 0; line < board.Map().Lines(); ++line) {
    if (board.GapsOf(line).empty()) return true;
  }
  return false;
}

Worksheet::Worksheet(std::vector<MadePuzzle> puzzles, WorksheetWish wish)
    : puzzles_(std::move(puzzles)), wish_(std::move(wish)) {}

int Worksheet::PuzzlePages() const {
  return (static_cast<int>(puzzles_.size()) + wish_.PerPage - 1) / wish_.PerPage;
}

/// The number of puzzles side by side and one below another.
QSize Worksheet::Slots(QSizeF size) const {
  constexpr int kSix = 6;
  const QSize tall = wish_.PerPage == 1      ? QSize(1, 1)
                     : wish_.PerPage == 2    ? QSize(1, 2)
                     : wish_.PerPage == kSix ? QSize(2, 3)
                                             : QSize(2, 2);
  return size.width() > size.height() ? tall.transposed() : tall;
}

QRectF Worksheet::SlotArea(QSizeF size, int place) const {
  const QSize grid = Slots(size);
  const double width = (size.width() - 2 * kMargin - (grid.width() - 1) * kBetween) / grid.width();
  const double height =
      (size.height() - 2 * kMargin - kHeader - (grid.height() - 1) * kBetween) / grid.height();
  const int row = place / grid.width();
  const int column = place % grid.width();
  return {kMargin + column * (width + kBetween), kMargin + kHeader + row * (height + kBetween),
          width, height};
}

double Worksheet::CellSide(QSizeF size, int order) const {
  const QRectF area = SlotArea(size, 0);
  return std::min(
      {kLargestCell, area.width() / order, (area.height() - kCaption - kBelow) / order});
}

void Worksheet::PaintPage(QPainter& painter, QSizeF size, int page) const {
  const bool answers = page >= PuzzlePages();
  const int first = page % PuzzlePages() * wish_.PerPage;
  const double width = size.width() - 2 * kMargin;
  const QRectF header(kMargin, kMargin, width, kHeader);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::black);
  constexpr double kTitle = 7;
  const QRectF title(header.left(), header.top(), width * 0.55, kTitle * 1.4);
  Write(painter, title, Qt::AlignLeft | Qt::AlignVCenter,
        wish_.Title + (answers ? ": answers" : ""), kTitle, true);
  if (!answers) {
    const QRectF name(header.left() + width * 0.6, header.top(), width * 0.4, kTitle * 1.4);
    Write(painter, name, Qt::AlignLeft | Qt::AlignVCenter, "Name:", kTextHeight);
    painter.setPen(QPen(Qt::black, 0.2));
    painter.drawLine(name.bottomLeft() + QPointF(14, -2), name.bottomRight() + QPointF(0, -2));
    Write(painter, {header.left(), header.top() + 13, width, kTextHeight * 1.5}, Qt::AlignLeft,
          RulesText(puzzles_), kTextHeight);
  }
  for (int place = 0; place < wish_.PerPage; ++place) {
    const int number = first + place;
    if (number >= static_cast<int>(puzzles_.size())) break;
    const int order = puzzles_[static_cast<std::size_t>(number)].Clues.Order();
    const Slot slot{SlotArea(size, place), number};
    (answers ? PaintAnswer(painter, slot, CellSide(size, order))
             : PaintPuzzle(painter, slot, CellSide(size, order)));
  }
}

void Worksheet::PaintPuzzle(QPainter& painter, const Slot& slot, double side) const {
  const MadePuzzle& made = puzzles_[static_cast<std::size_t>(slot.Number)];
  const Puzzle& clues = made.Clues;
  const bool given = wish_.TotalGiven || !TotalCanBeFound(clues);
  const QString total = given ? QString::number(clues.Target) : "________";
  const QString numbers = AreMixed(puzzles_) ? "; " + Numbers(made) : QString();
  PaintCaptioned(painter, slot, side, clues,
                 QString("%1.   Total: %2%3").arg(slot.Number + 1).arg(total, numbers),
                 Missing(clues));
}

void Worksheet::PaintAnswer(QPainter& painter, const Slot& slot, double side) const {
  const MadePuzzle& made = puzzles_[static_cast<std::size_t>(slot.Number)];
  PaintCaptioned(painter, slot, side, made.Solution,
                 QString("%1.   %2, total %3")
                     .arg(slot.Number + 1)
                     .arg(NameOf(made.Needed))
                     .arg(made.Clues.Target),
                 {});
}

/// Paints a board with the text above it and, if there is one, the line below it; then its puzzle
/// code.
void Worksheet::PaintCaptioned(QPainter& painter, const Slot& slot, double side,
                               const Puzzle& shown, const QString& above,
                               const QString& below) const {
  const Puzzle& clues = puzzles_[static_cast<std::size_t>(slot.Number)].Clues;
  const QRectF board = BoardIn(slot.Area, side, clues.Order());
  const double left = slot.Area.left();
  const double width = slot.Area.width();
  Write(painter, {left, board.top() - kCaption, width, kCaption}, Qt::AlignCenter, above,
        kTextHeight, true);
  PaintBoard(painter, board, side, shown, clues);
  constexpr double kGap = 2;
  constexpr double kLine = 7;
  const double under = board.bottom() + kGap;
  if (!below.isEmpty()) {
    Write(painter, {left, under, width, kTextHeight * 1.4}, Qt::AlignCenter, below, kTextHeight);
  }
  Write(painter, {left, under + (below.isEmpty() ? 0 : kLine), width, kSmallText * 1.4},
        Qt::AlignCenter, QString::fromStdString(CodeOf(clues)), kSmallText);
}

}  // namespace numorra
