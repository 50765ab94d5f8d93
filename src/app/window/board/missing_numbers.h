#pragma once

#include <QAbstractScrollArea>
#include <QFrame>
#include <QLabel>

#include "app/play/puzzle_aids.h"

namespace numorra {

/// The numbers themselves: each has its place, wherever the width breaks the lines. More than a few
/// lines scroll.
class NumberStrip : public QAbstractScrollArea {
 public:
  explicit NumberStrip(QWidget* parent = nullptr);

  void Show(const NumbersToPlace& numbers);

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {CellWidth(), LineHeight()}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  int CellWidth() const;
  int LineHeight() const;
  int LinesAt(int width) const;
  void UpdateScrollBar();

  NumbersToPlace numbers_;
};

/// The panel below the board of a puzzle (`MissingNumbers`): how many numbers are missing, and all
/// numbers that are not given, those on the board struck out. A number keeps its place, and the
/// panel its height, as long as the puzzle is on the board.
class MissingNumbers : public QFrame {
  Q_OBJECT

 public:
  explicit MissingNumbers(QWidget* parent = nullptr);

  /// Shows the numbers, or nothing if there are none. `noting`: whether digits are notes now.
  void Show(const NumbersToPlace& numbers, bool noting);

 private:
  QLabel* told_;
  NumberStrip* strip_;
};

}  // namespace numorra
