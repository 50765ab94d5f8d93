#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QAbstractScrollArea>

#include "app/board/grid.h"
#include "app/play/board_mouse.h"
#include "app/window/grid_painter.h"

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

  /// Scrolls until the cell is in sight.
  void BringIntoView(int row, int column);

  /// The whole table, in sight or not, without the current cell's marks.
  QImage Picture();

  /// The same on any painter, in other colours of the window's, and how large it is.
  void PaintPicture(QPainter& painter, const QPalette& palette);
  QSize PictureSize() const;

  QSize sizeHint() const override;

 Q_SIGNALS:
  void CellPressed(int row, int column, Qt::MouseButton button, QPoint globalPosition);

  /// A key asks for another current cell: the neighbour, which may lie in the frame, the end of the
  /// line, or a page on.
  void CellWanted(int row, int column);

  /// A character was typed, Backspace (8) and Enter (13) among them.
  void CharacterTyped(char32_t character);

  /// The keypad's plus (1) or minus (-1), or any with Ctrl.
  void KeypadPressed(int sign);

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
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QPoint Scrolled() const;
  GridPainter::Look Look() const;
  void UpdateScrollBars();
  bool CurrentInBlock() const;
  void PaintGuides(QPainter& painter);
  void PaintCurrentCell(QPainter& painter);
  bool Navigate(int key, bool toTheVeryEnd);
  void TellCurrentCell();

  struct ShownCell {
    int Row;
    int Column;
    std::string Text;
  };

  Grid& grid_;
  GridPainter painter_;
  std::optional<QSize> shape_;     ///< the table's lines when the scroll bars were last set
  std::optional<ShownCell> told_;  ///< the current cell as it was last told of
};

}  // namespace numorra
