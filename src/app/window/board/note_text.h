#pragma once

#include <array>
#include <optional>
#include <vector>

#include <QFont>
#include <QPainter>
#include <QStringList>

#include "app/board/notes.h"

namespace numorra {

/// Draws the notes of a gap in ascending order, line by line, as large as they all fit down to
/// `kSmallestPixels`, condensed if necessary. If they do not fit, it draws their count instead, as
/// "…12", and only the ellipsis in cells without room for that.
class NoteText {
 public:
  static constexpr int kSmallestPixels = 7;

  /// `side`: the side of a cell in pixels.
  NoteText(const QFont& font, int side);

  /// Draws with the painter's pen, and sets its font.
  void Draw(QPainter& painter, const QRect& cell, const NoteSet& notes) const;

  /// Whether all notes are drawn, and large enough to read.
  bool Readable(const NoteSet& notes) const;

 private:
  /// A font and its measures in pixels.
  struct Size {
    QFont Font;
    qreal Digit;   ///< the width of a digit
    qreal Space;   ///< the width of a space
    qreal Height;  ///< of a digit
  };
  struct Fitted {
    const Size* Used;
    QStringList Lines;
  };

  std::optional<Fitted> Fit(const NoteSet& notes) const;
  std::optional<QFont> FontForCount(int digits) const;

  static constexpr int kMostDigits = 4;  ///< of kMostNoted

  int margin_;                                                ///< around the notes
  qreal room_;                                                ///< the side of the area for notes
  std::vector<Size> sizes_;                                   ///< from the largest to the smallest
  std::array<std::optional<QFont>, kMostDigits + 1> counts_;  ///< for counts, by their digits
};

}  // namespace numorra
