#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>
#include <QWidget>

#include "puzzle/making.h"

namespace numorra {

/// The controls for a puzzle's grade, clues and symmetry.
class PuzzleWishBox : public QWidget {
  Q_OBJECT

 public:
  explicit PuzzleWishBox(QWidget* parent = nullptr);

  PuzzleWish Wish() const;

  /// Adapts the controls to puzzles of this order.
  void SetOrder(int order);

 Q_SIGNALS:
  void Changed();

 private:
  QComboBox* grade_;
  QCheckBox* fewest_;
  QSpinBox* clues_;
  QCheckBox* symmetric_;
};

}  // namespace numorra
