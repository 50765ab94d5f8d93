#include "app/window/board/grid_painter.h"

#include <algorithm>

#include "toolkit/colours.h"
#include "toolkit/twips.h"

namespace numorra {
namespace {

constexpr int kLowestDpi = 24;  // below it a cell would be a mere dot

QFont Heavier(QFont font) {
  font.setWeight(QFont::Black);
  return font;
}

}  // namespace

GridPainter::GridPainter(const Grid& grid, const QFont& font, int dpi)
    : grid_(grid),
      font_(font),
      dpi_(std::max(kLowestDpi, dpi)),
      texts_(font, Edge(1)),
      givens_(Heavier(font), Edge(1)) {}

void GridPainter::SetFont(const QFont& font) {
  font_ = font;
  texts_ = CellText(font, Edge(1));
  givens_ = CellText(Heavier(font), Edge(1));
  notes_.reset();
}

const NoteText& GridPainter::Notes() {
  if (!notes_) notes_.emplace(font_, Edge(1));
  return *notes_;
}

void GridPainter::SetZoom(double zoom) {
  const double smallest = 1.0 / PixelsOf(Grid::kCellTwips, dpi_);
  const int before = Edge(1);
  zoom_ = std::max(smallest, zoom);
  edges_.clear();
  if (Edge(1) != before) SetFont(font_);
}

double GridPainter::ZoomThatFits(int lines, int pixels) const {
  constexpr double kRoundedDown = 0.49;  // how much rounding may take from the last edge
  constexpr double kTwipsPerInch = 1440;
  return (pixels + kRoundedDown) * kTwipsPerInch / (lines * Grid::kCellTwips * dpi_);
}

int GridPainter::Edge(int line) const {
  const auto index = static_cast<std::size_t>(line);
  while (edges_.size() <= index)
    edges_.push_back(PixelsOf(static_cast<int>(edges_.size()) * Grid::kCellTwips, dpi_ * zoom_));
  return edges_[index];
}

int GridPainter::LineAt(int position, int scrolled, int lines) const {
  if (position >= Edge(Grid::kFixedLines)) position += scrolled;
  int line = std::max(0, position / Edge(1));
  while (Edge(line + 1) <= position)
    ++line;
  while (line > 0 && Edge(line) > position)
    --line;
  return position >= 0 && line < lines ? line : -1;
}

QRect GridPainter::CellRect(int row, int column, QPoint scrolled) const {
  const auto at = [this](int line, int moved) {
    return line < Grid::kFixedLines ? Edge(line) : Edge(line) - moved;
  };
  return {at(column, scrolled.x()), at(row, scrolled.y()), Edge(column + 1) - Edge(column),
          Edge(row + 1) - Edge(row)};
}

bool GridPainter::Readable(int row, int column) {
  const Grid::Cell& cell = grid_.At(row, column);
  if (!cell.Text.empty()) return TextsFor(cell).Readable(cell.Text);
  const NoteSet notes = grid_.NotesIn(row, column);
  return notes.none() || Notes().Readable(notes);
}

/// The four blocks of cells that scroll differently.
void GridPainter::PaintCells(QPainter& painter, const Look& look, QSize size, const QRect& dirty) {
  constexpr int kFixed = Grid::kFixedLines;
  const int fixed = Edge(kFixed);
  const int rows = grid_.Rows();
  const int columns = grid_.Columns();
  const int width = size.width() - fixed;
  const int height = size.height() - fixed;
  const auto paint = [&](const QRect& whole, const Block& block) {
    const QRect area = whole & dirty;
    if (!area.isEmpty()) PaintBlock(painter, look, area, block);
  };
  paint({fixed, fixed, width, height}, {kFixed, rows, kFixed, columns});
  paint({fixed, 0, width, fixed}, {0, kFixed, kFixed, columns});
  paint({0, fixed, fixed, height}, {kFixed, rows, 0, kFixed});
  paint({0, 0, fixed, fixed}, {0, kFixed, 0, kFixed});
}

/// Paints the cells of one block that lie in `area`.
void GridPainter::PaintBlock(QPainter& painter, const Look& look, const QRect& area,
                             const Block& block) {
  painter.setClipRect(area);
  const auto from = [](int line, int first) { return line < 0 ? first : std::max(line, first); };
  const auto upTo = [](int line, int end) { return line < 0 ? end : std::min(line + 1, end); };
  const QPoint scrolled = look.Scrolled;
  const int top = from(LineAt(area.top(), scrolled.y(), grid_.Rows()), block.FirstRow);
  const int bottom = upTo(LineAt(area.bottom(), scrolled.y(), grid_.Rows()), block.RowEnd);
  const int left = from(LineAt(area.left(), scrolled.x(), grid_.Columns()), block.FirstColumn);
  const int right = upTo(LineAt(area.right(), scrolled.x(), grid_.Columns()), block.ColumnEnd);

  const QColor line = look.Palette.color(QPalette::Mid);
  for (int row = top; row < bottom; ++row) {
    for (int column = left; column < right; ++column) {
      const QRect place = CellRect(row, column, scrolled);
      const QRect inside = place.adjusted(0, 0, -look.LineWidth, -look.LineWidth);
      const Grid::Cell& cell = grid_.At(row, column);
      const Colour background = cell.Background();
      if (!background.SeeThrough) {
        painter.fillRect(place, line);
        painter.fillRect(inside, ToQColor(background));
      } else {
        PaintBlockEdge(painter, look, place, row, column);
      }
      if (cell.Judged == Verdict::Wrong) PaintWrongMark(painter, place);
      PaintText(painter, look, inside.adjusted(0, 0, 1, 1), row, column);
    }
  }
}

void GridPainter::PaintText(QPainter& painter, const Look& look, const QRect& place, int row,
                            int column) {
  const Grid::Cell& cell = grid_.At(row, column);
  if (!cell.Text.empty()) {
    painter.setPen(TextColour(look, cell));
    TextsFor(cell).Draw(painter, place, cell.Text);
    return;
  }
  const NoteSet notes = grid_.NotesIn(row, column);
  if (notes.none()) return;
  constexpr int kAlphaOfNotes = 190;  // of 255
  QColor ink = TextColour(look, cell);
  ink.setAlpha(kAlphaOfNotes);
  painter.setPen(ink);
  Notes().Draw(painter, place, notes);
}

QColor GridPainter::TextColour(const Look& look, const Grid::Cell& cell) {
  return cell.Background().SeeThrough ? look.Palette.color(QPalette::WindowText)
                                      : ToQColor(cell.Foreground());
}

/// A notch in the corner of a wrong total, for players who cannot distinguish the two colours.
void GridPainter::PaintWrongMark(QPainter& painter, const QRect& cell) {
  const int side = cell.width() / 4;
  const QPoint corner = cell.topRight();
  painter.setPen(Qt::NoPen);
  painter.setBrush(ToQColor(ColorTable[kTotalText]));
  painter.drawPolygon(QPolygon({corner, corner - QPoint(side, 0), corner + QPoint(0, side)}));
}

/// The block's upper and left edges follow the cells of the fixed lines.
void GridPainter::PaintBlockEdge(QPainter& painter, const Look& look, const QRect& cell, int row,
                                 int column) {
  const QColor line = look.Palette.color(QPalette::Mid);
  const int width = look.LineWidth;
  const bool above = row == 0 && column > 0 && column < grid_.Columns() - 1;
  const bool before = column == 0 && row > 0 && row < grid_.Rows() - 1;
  if (above) painter.fillRect(cell.adjusted(0, cell.height() - width, 0, 0), line);
  if (before) painter.fillRect(cell.adjusted(cell.width() - width, 0, 0, 0), line);
}

}  // namespace numorra
