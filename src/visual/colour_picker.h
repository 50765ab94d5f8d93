#pragma once

#include <array>

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include "app/board/colour.h"

namespace numorra {

/// A small area filled with one colour.
class Swatch : public QWidget {
  Q_OBJECT

 public:
  explicit Swatch(QWidget* parent = nullptr);

  void Show(QColor colour);
  QColor Shown() const { return colour_; }

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor colour_;
};

/// The "Colors" frame: mixes a colour with three bars, one per channel from 0 to 255, and shades
/// the board with it. The labels beside the bars hold the values.
class ColourPicker : public QGroupBox {
  Q_OBJECT

 public:
  explicit ColourPicker(QWidget* parent = nullptr);

  /// Updates labels and swatches from the bars, as every change of a bar does.
  void ShowBars();

  /// The mixed colour, from the labels.
  Colour Picked() const;

 Q_SIGNALS:
  /// A bar has moved.
  void Changed();

 public:
  static constexpr int kChannels = 3;  // red, green, blue
  std::array<QScrollBar*, kChannels> const Bars;
  std::array<QLabel*, kChannels> const Degrees;
  std::array<Swatch*, kChannels> const PicRGB;
  Swatch* const picColorToUse;
  QPushButton* const Command3;

 private:
  void ChangeBar(std::size_t channel);
};

}  // namespace numorra
