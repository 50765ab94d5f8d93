#pragma once

#include <array>

#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include "app/board/colour.h"

namespace numorra {

/// A small area of one colour.
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

/// The "Colors" frame: mixes a colour from three bars, one a channel from 0 to 255, and shades the
/// board in it. The labels beside the bars are what counts.
class ColourPicker : public QGroupBox {
  Q_OBJECT

 public:
  explicit ColourPicker(QWidget* parent = nullptr);

  /// Brings labels and swatches in line with the bars, as a change of each of them does.
  void ShowBars();

  /// The mixed colour, as the labels have it.
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
