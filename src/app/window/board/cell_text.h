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

/// Draws the texts of cells so that they fit. A text that is too wide is first drawn in a condensed
/// font, then in smaller sizes down to `kSmallestPixels`; if it still does not fit, it is cut.
/// Texts that are cut or smaller than `kSmallestReadable` are not Readable(), so that they can be
/// shown elsewhere.
///
/// Laid-out texts are cached, because a board of 2,500 numbers is painted again and again.
class CellText {
 public:
  static constexpr int kSmallestPixels = 6;
  static constexpr int kSmallestReadable = 9;

  /// `side`: the side of a cell in pixels.
  CellText(const QFont& font, int side);

  /// Draws `text` centred in `cell` with the painter's pen; sets the painter's font to the text's.
  void Draw(QPainter& painter, const QRect& cell, const std::string& text);

  bool Readable(const std::string& text);

 private:
  struct Prepared {
    QStaticText Text;
    qreal Width;
    std::size_t Font;
    bool Fits;
  };

  /// A font with the cached widths of its characters: numbers are measured by the thousand, and
  /// their digits have no kerning.
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

  std::vector<Measured> fonts_;  ///< from the preferred one to the smallest
  qreal room_;                   ///< largest width of a text, in pixels
  std::unordered_map<std::string, Prepared> prepared_;
};

}  // namespace numorra
