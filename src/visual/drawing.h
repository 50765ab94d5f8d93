#pragma once

#include <QWidget>

#include "app/board/board.h"
#include "visual/drawing_kind.h"

namespace numorra {

/// The drawing that covers the board (`Picture1`): one picture of all its values at once, as large
/// as the window lets it be. Its tag names the kind of drawing that is shown, "" is none.
class Drawing : public QWidget {
  Q_OBJECT

 public:
  explicit Drawing(const Board& board, QWidget* parent = nullptr);

  /// Chooses what is drawn; null for nothing.
  void SetKind(const DrawingKind* kind);

  /// The colour that values are shaded with.
  void SetColour(Colour picked);

  /// Whether the numbers are written into the drawing.
  void SetNumbers(bool shown);

  /// Paints what is shown, in the colours of the palette, over the painter's ground, which is as
  /// large as the widget.
  void Paint(QPainter& painter, const QPalette& palette) const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Board& board_;
  const DrawingKind* kind_ = nullptr;
  Colour picked_;
  bool numbers_ = false;
};

}  // namespace numorra
