#pragma once

#include <optional>

#include <QCheckBox>
#include <QSpinBox>
#include <QWidget>

namespace numorra {

/// The controls for the clues of a puzzle: how many, and whether its gaps are symmetric.
class CluesBox : public QWidget {
  Q_OBJECT

 public:
  explicit CluesBox(QWidget* parent = nullptr);

  /// The number of clues; nothing for as few as possible.
  std::optional<int> Count() const;
  bool Symmetric() const { return symmetric_->isChecked(); }
  void Show(std::optional<int> count, bool symmetric);

  /// Adapts the controls to puzzles of this order.
  void SetOrder(int order);

 Q_SIGNALS:
  void Changed();

 private:
  QCheckBox* fewest_;
  QSpinBox* clues_;
  QCheckBox* symmetric_;
};

}  // namespace numorra
