#pragma once

#include <array>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>

#include "app/window/forms/clues_box.h"
#include "puzzle/puzzle_set.h"

namespace numorra {

/// The controls for a set of fresh puzzles: the size, numbers and total of their squares, how many
/// of each grade, their clues and symmetry.
class FreshSetBox : public QWidget {
  Q_OBJECT

 public:
  explicit FreshSetBox(const PuzzleSetWish& wish, QWidget* parent = nullptr);

  /// The set as it is chosen; grades without puzzles are left out.
  PuzzleSetWish Wish() const;

  const QFormLayout* Rows() const { return rows_; }

 Q_SIGNALS:
  void Changed();

 private:
  void FollowSize();

  QSpinBox* size_;
  QComboBox* numbers_;
  QDoubleSpinBox* total_;
  std::array<QSpinBox*, kGrades.size()> counts_;
  CluesBox* clues_;
  QFormLayout* rows_;
};

/// The set in words: "6 puzzles of size 4, total 34, with the numbers 1 to 16, each once: 4 easy, 2
/// hard".
QString InWords(const PuzzleSetWish& wish);

}  // namespace numorra
