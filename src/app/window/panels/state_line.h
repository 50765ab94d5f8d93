#pragma once

#include <QLabel>
#include <QTimer>

#include "app/board/board.h"
#include "app/play/walk.h"

namespace numorra {

/// The line in the menu bar's corner (`BoardState`) that shows the state of the board. Its width
/// does not depend on its text and shrinks only if the menus need the room; a text that is too long
/// is elided, and complete in the tool-tip and for screen readers.
class StateLine : public QLabel {
  Q_OBJECT

 public:
  explicit StateLine(QWidget* parent = nullptr);

  /// Shows the state of the board, or of a walk in its place; screen readers read a changed one.
  void Show(const Board& board);
  void Show(const Walk& walk);

  /// Shows a text for a moment, in place of the state; screen readers read it.
  void ShowBriefly(const std::string& text);

  QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowText(const std::string& told, const QString& more);
  void Cut();

  QString state_;
  QTimer brief_;  ///< runs while another text is shown
};

}  // namespace numorra
