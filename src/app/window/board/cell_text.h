#pragma once

#include <array>
#include <string>
#include <unordered_map>
#include <vector>

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QStaticText>

namespace numorra {

/// Draws the texts of cells so that they fit. A text that is too wide is first drawn in a narrowed
/// font, then in ever smaller ones down to `kSmallestPixels`; what still does not fit is cut. What
/// is cut or smaller than `kSmallestReadable` is not Readable(), so that it can be shown elsewhere.
///
/// Laid-out texts are kept, as a board of 2,500 numbers is painted again and again.
class CellText {
 public:
  static constexpr int kSmallestPixels = 6;
  static constexpr int kSmallestReadable = 9;

  /// `side`: the side of a cell in pixels.
  CellText(const QFont& font, int side);

  /// Draws `text` centred in `cell` with the painter's pen; the painter's font becomes the text's.
  void Draw(QPainter& painter, const QRect& cell, const std::string& text);

  bool Readable(const std::string& text);

 private:
  struct Prepared {
    QStaticText Text;
    qreal Width;
    std::size_t Font;
    bool Fits;
  };

  /// A font with the widths of the characters that have been asked for: numbers are measured by the
  /// thousand, and their digits stand side by side as they are.
  class Measured {
   public:
    explicit Measured(const QFont& font);
    qreal WidthOf(const std::string& text);

    QFont Font;
    QFontMetricsF Metrics;

   private:
    static constexpr qreal kUnknown = -1;
    std::array<qreal, 256> advances_{};  ///< by character code
  };

  const Prepared& Prepare(const std::string& text);

  std::vector<Measured> fonts_;  ///< from the one wished for to the smallest
  qreal room_;                   ///< the widest a text may be, in pixels
  std::unordered_map<std::string, Prepared> prepared_;
};

}  // namespace numorra
