#pragma once

#include <QComboBox>

#include "app/window/forms/clues_box.h"
#include "puzzle/making.h"

namespace numorra {

/// The controls for a puzzle's grade, clues and symmetry.
class PuzzleWishBox : public QWidget {
  Q_OBJECT

 public:
  explicit PuzzleWishBox(QWidget* parent = nullptr);

  PuzzleWish Wish() const;

  /// Adapts the controls to puzzles of this order.
  void SetOrder(int order) { clues_->SetOrder(order); }

 Q_SIGNALS:
  void Changed();

 private:
  QComboBox* grade_;
  CluesBox* clues_;
};

}  // namespace numorra
