#pragma once

#include <functional>
#include <optional>

#include <QWidget>

#include "app/board/board.h"
#include "visual/drawing_kind.h"

namespace numorra {

/// The drawing that covers the board (`Picture1`): one picture of all its values, as large as the
/// window allows. Its tag names the kind of drawing that is shown; "" means none.
class Drawing : public QWidget {
  Q_OBJECT

 public:
  explicit Drawing(const Board& board, QWidget* parent = nullptr);

  /// Chooses the kind of drawing; null for none.
  void SetKind(const DrawingKind* kind);

  /// The colour that shades the values.
  void SetColour(Colour picked);

  /// Whether the drawing shows the numbers.
  void SetNumbers(bool shown);

  /// Where all cells of the drawing go in a widget of a size, if not in its middle and as large as
  /// possible.
  std::function<std::optional<QRect>(QSize)> BlockIn = [](QSize) { return std::nullopt; };

  /// Paints the drawing in the colours of the palette on the square `block`.
  void Paint(QPainter& painter, const QPalette& palette, const QRectF& block) const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QRectF Block() const;

  const Board& board_;
  const DrawingKind* kind_ = nullptr;
  Colour picked_;
  bool numbers_ = false;
};

}  // namespace numorra
