#pragma once

#include <QWidget>

#include "app/board/board.h"

namespace numorra {

/// The drawing that covers the board (`Picture1`): one picture of all its values at once, as large
/// as the window lets it be. What it draws is the board's `Overlay`, also kept in its tag: "C" for
/// circles, "V" for vectors, "" for none.
class Drawing : public QWidget {
  Q_OBJECT

 public:
  explicit Drawing(const Board& board, QWidget* parent = nullptr);

  /// The colour that circles are shaded with.
  void SetColour(Colour picked);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void PaintCells(QPainter& painter) const;
  void PaintCircles(QPainter& painter) const;
  void PaintVectors(QPainter& painter) const;
  double Side() const;
  QPointF Origin() const;
  QPointF Centre(int row, int column) const;

  const Board& board_;
  Colour picked_;
};

}  // namespace numorra
