#pragma once

#include <optional>
#include <string>

#include <QAbstractScrollArea>

#include "app/board/grid.h"
#include "app/play/board_mouse.h"
#include "app/window/board/grid_painter.h"

namespace numorra {

/// Shows a Grid, scrolled where it is too large, and reports mouse and keys; it decides nothing.
class GridView : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit GridView(Grid& grid, QWidget* parent = nullptr);

  const Grid& Cells() const { return grid_; }

  /// The cell that is drawn at a point of the viewport, scrolled or not; none beside the table.
  std::optional<QPoint> CellAt(QPoint point) const;

  /// Where the cell (row, column) is drawn in the viewport, whether in sight or not.
  QRect CellRect(int row, int column) const;

  /// The middle of the current cell on the screen: where the keyboard opens a menu.
  QPoint CurrentCellPosition() const;

  /// How much larger than at 100 % cells are drawn; what is drawn at `fixed` stays there. Leaves
  /// the fitting.
  void SetZoom(double zoom, QPoint fixed);

  /// The same about the current cell where that is in sight, which then stays so, or else about the
  /// middle of the view.
  void SetZoom(double zoom);
  double Zoom() const { return painter_.Zoom(); }

  /// Draws the whole board as large as the view lets it be, whatever size the view takes on.
  void SetFitting(bool fitting);
  bool Fitting() const { return fitting_; }

  /// How far the table is scrolled, in pixels.
  QPoint Scrolled() const;
  void ScrollTo(QPoint scrolled);

  /// Scrolls until the cell is in sight.
  void BringIntoView(int row, int column);

  /// The whole table at 100 %, in sight or not, without the current cell's marks.
  QImage Picture() const;

  /// The same on any painter, in other colours of the window's, and how large it is.
  void PaintPicture(QPainter& painter, const QPalette& palette) const;
  QSize PictureSize() const;

  QSize sizeHint() const override;

 Q_SIGNALS:
  void CellPressed(int row, int column, Qt::MouseButton button, QPoint globalPosition);

  /// A key asks for another current cell: the neighbour, which may lie in the frame, the end of the
  /// line, or a page on.
  void CellWanted(int row, int column);

  /// A character was typed, Backspace (8) and Enter (13) among them.
  void CharacterTyped(char32_t character);

  /// The keypad's plus (1) or minus (-1), or Alt with an arrow up or down.
  void KeypadPressed(int sign);

  /// The wheel was turned with Ctrl at a point of the view: larger (1) or smaller (-1).
  void ZoomWanted(int steps, QPoint at);

  /// Space marks the current cell, with Shift its row, with Ctrl its column.
  void MarkWanted(MarkedLine line);

  /// The keyboard asks for the context menu.
  void MenuWanted();

  /// The cell that has the keyboard has come into sight: another one than before, or with another
  /// text.
  void CurrentCellShown(bool another);

 protected:
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  GridPainter::Look Look() const;
  void UpdateScrollBars();
  void Fit();
  void PaintInvitation(QPainter& painter);
  bool CurrentInBlock() const;
  void PaintGuides(QPainter& painter);
  void ClipToScrollingCells(QPainter& painter) const;
  void PaintCurrentCell(QPainter& painter);
  void PaintOutlined(QPainter& painter);
  bool Navigate(int key, bool toTheVeryEnd);
  void TellCurrentCell();

  struct ShownCell {
    int Row;
    int Column;
    std::string Text;
  };

  Grid& grid_;
  GridPainter painter_;
  bool fitting_ = false;
  int turned_ = 0;  ///< of the wheel with Ctrl, since the last step, in eighths of a degree
  std::optional<QSize> shape_;     ///< the table's lines when the scroll bars were last set
  std::optional<ShownCell> told_;  ///< the current cell as it was last told of
};

}  // namespace numorra
