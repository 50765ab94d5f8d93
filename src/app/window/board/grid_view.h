#pragma once

#include <functional>
#include <optional>
#include <string>

#include <QAbstractScrollArea>

#include "app/board/grid.h"
#include "app/play/board_mouse.h"
#include "app/window/board/grid_painter.h"

namespace numorra {

/// Shows a Grid, scrolled if it is too large, and reports mouse and keys; it makes no decisions.
class GridView : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit GridView(Grid& grid, QWidget* parent = nullptr);

  const Grid& Cells() const { return grid_; }

  /// The cell at a point of the viewport, scrolled or not; none beside the table.
  std::optional<QPoint> CellAt(QPoint point) const;

  /// The rectangle of the cell (row, column) in the viewport, visible or not.
  QRect CellRect(int row, int column) const;

  /// The middle of the current cell on the screen, where the keyboard opens a menu.
  QPoint CurrentCellPosition() const;

  /// Sets the zoom, relative to 100 %; the point `fixed` keeps its place on the board. Ends
  /// fitting.
  void SetZoom(double zoom, QPoint fixed);

  /// The same, keeping the current cell in place if it is visible, otherwise the middle of the
  /// view.
  void SetZoom(double zoom);
  double Zoom() const { return painter_.Zoom(); }

  /// Makes the whole board as large as fits the view, in its middle, and follows the view's size.
  void SetFitting(bool fitting);
  bool Fitting() const { return fitting_; }

  /// While fitting: the rectangle of all cells without the totals, in a view of this size.
  std::optional<QRect> FittedBlock(QSize room) const;

  /// Shows that digits write notes.
  void SetNoting(bool noting);

  /// The scroll position, in pixels.
  QPoint Scrolled() const;
  void ScrollTo(QPoint scrolled);

  /// Scrolls until the cell is visible.
  void BringIntoView(int row, int column);

  /// Paints the whole table at 100 %, visible or not, without the marks of the current cell.
  QImage Picture() const;

  QSize sizeHint() const override;

  /// The tool-tip of a cell; where it is empty, a cell shows what is not readable in it.
  std::function<std::string(int row, int column)> TipOf;

 Q_SIGNALS:
  void CellPressed(int row, int column, Qt::MouseButton button, QPoint globalPosition);

  /// A key moves the current cell: to a neighbour, which may lie in the frame, to the end of the
  /// line, or by a page.
  void CellWanted(int row, int column);

  /// A character was typed, also Backspace (8) or Enter (13).
  void CharacterTyped(char32_t character);

  /// The keypad's plus (1) or minus (-1), or Alt with an arrow up or down.
  void KeypadPressed(int sign);

  /// The wheel was turned with Ctrl at a point of the view: zoom in (1) or out (-1).
  void ZoomWanted(int steps, QPoint at);

  /// Space marks the current cell, with Shift its row, with Ctrl its column.
  void MarkWanted(MarkedLine line);

  /// The keyboard requests the context menu.
  void MenuWanted();

  /// The current cell has been painted while the view has the keyboard, at another place or with
  /// another text.
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
  QString Tip(int row, int column);
  void Fit();
  double ZoomFor(QSize room) const;
  static QMargins MarginsAround(QSize table, QSize room);
  void PaintInvitation(QPainter& painter);
  bool CurrentInBlock() const;
  void PaintGuides(QPainter& painter);
  void ClipToScrollingCells(QPainter& painter) const;
  void PaintCurrentCell(QPainter& painter);
  void PaintOutlined(QPainter& painter);
  void PaintRepeated(QPainter& painter);
  std::optional<Place> Destination(int key, bool toTheVeryEnd) const;
  void TellCurrentCell();

  struct ShownCell {
    int Row;
    int Column;
    std::string Text;
    bool Repeated;
    NoteSet Notes;
    bool operator==(const ShownCell&) const = default;
  };

  Grid& grid_;
  GridPainter painter_;
  bool fitting_ = false;
  bool noting_ = false;
  int turned_ = 0;  ///< turn of the wheel with Ctrl since the last step, in eighths of a degree
  std::optional<QSize> shape_;     ///< the table's lines when the scroll bars were last set
  std::optional<ShownCell> told_;  ///< the current cell as last reported
};

}  // namespace numorra
