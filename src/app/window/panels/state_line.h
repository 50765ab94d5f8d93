#pragma once

#include <QLabel>

#include "app/board/board.h"
#include "app/play/walk.h"

namespace numorra {

/// The line in the menu bar's corner (`BoardState`) that says what is true of the board: of a width
/// that never changes with it, smaller only where the menus need the room, cut with dots when it
/// must be, whole in its tool-tip and for screen readers.
class StateLine : public QLabel {
  Q_OBJECT

 public:
  explicit StateLine(QWidget* parent = nullptr);

  /// Shows the state of the board, or of a walk in its place, and has a new one read aloud.
  void Show(const Board& board);
  void Show(const Walk& walk);

  QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowText(const std::string& state, const QString& more);
  void Cut();

  QString state_;
};

}  // namespace numorra
