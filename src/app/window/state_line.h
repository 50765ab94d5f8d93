#pragma once

#include <QWidget>

#include "app/board/board.h"

namespace numorra {

/// The line in the menu bar's corner (`BoardState`) that says what is true of the board: of a width
/// that never changes with it, smaller only where the menus need the room, cut with dots when it
/// must be, whole in its tool-tip and for screen readers. It paints itself: a label would have the
/// whole window laid out anew at every change.
class StateLine : public QWidget {
  Q_OBJECT

 public:
  explicit StateLine(QWidget* parent = nullptr);

  /// Shows the board's state, and has a new one read aloud.
  void Show(const Board& board);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString state_;
};

}  // namespace numorra
