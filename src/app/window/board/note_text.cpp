#include "app/window/board/note_text.h"

#include <algorithm>

#include <QFontMetricsF>

#include "app/window/board/cell_text.h"
#include "toolkit/painted_text.h"

namespace numorra {
namespace {

constexpr int kMarginsInCell = 14;
constexpr double kLargestOfCell = 0.36;  // a digit's font size, of the cell's side
constexpr int kCondensed = 78;           // percent
constexpr qreal kBetweenLines = 0.25;    // of a digit's height
constexpr QChar kEllipsis(0x2026);

}  // namespace

NoteText::NoteText(const QFont& font, int side)
    : margin_(std::max(2, side / kMarginsInCell)), room_(side - 1 - 2 * margin_) {
  const auto add = [this](const QFont& sized) {
    const QFontMetricsF metrics(sized);
    sizes_.push_back({sized, metrics.horizontalAdvance('0'), metrics.horizontalAdvance(' '),
                      metrics.tightBoundingRect("0").height()});
  };
  QFont small = font;
  for (int pixels = std::max(kSmallestPixels, static_cast<int>(side * kLargestOfCell));
       pixels >= kSmallestPixels; --pixels) {
    small.setPixelSize(pixels);
    for (const int stretch : {int{QFont::Unstretched}, kCondensed}) {
      small.setStretch(stretch);
      add(small);
    }
  }
  for (int digits = 0; digits <= kMostDigits; ++digits)
    counts_[static_cast<std::size_t>(digits)] = FontForCount(digits);
}

/// Breaks the notes into lines, in the largest size in which they fit.
std::optional<NoteText::Fitted> NoteText::Fit(const NoteSet& notes) const {
  const auto count = static_cast<qreal>(notes.count());
  for (const Size& size : sizes_) {
    const qreal between = size.Height * kBetweenLines;
    const auto most = static_cast<int>((room_ + between) / (size.Height + between));
    if (count * (size.Digit + size.Space) > most * (room_ + size.Space)) continue;
    QStringList lines{""};
    qreal width = 0;
    for (int number = 1; number <= kMostNoted; ++number) {
      if (!notes[static_cast<std::size_t>(number)]) continue;
      const QString text = QString::number(number);
      const qreal own = static_cast<qreal>(text.size()) * size.Digit;
      const bool first = lines.back().isEmpty();
      if (!first && width + size.Space + own > room_) lines << "";
      const bool begins = lines.back().isEmpty();
      width = begins ? own : width + size.Space + own;
      lines.back() += begins ? text : ' ' + text;
    }
    if (lines.size() <= most && width <= room_) return Fitted{&size, lines};
  }
  return std::nullopt;
}

bool NoteText::Readable(const NoteSet& notes) const {
  const auto fitted = Fit(notes);
  return fitted && fitted->Used->Font.pixelSize() >= CellText::kSmallestReadable;
}

void NoteText::Draw(QPainter& painter, const QRect& cell, const NoteSet& notes) const {
  if (const auto fitted = Fit(notes)) {
    painter.setFont(fitted->Used->Font);
    const qreal height = fitted->Used->Height;
    QPointF start(cell.left() + margin_, cell.top() + margin_ + height);
    for (const QString& line : fitted->Lines) {
      DrawLine(painter, start, line);
      start.ry() += height * (1 + kBetweenLines);
    }
    return;
  }
  const QString count = QString::number(notes.count());
  const auto& fitting = counts_[static_cast<std::size_t>(count.size())];
  painter.setFont(fitting.value_or(sizes_.back().Font));
  DrawCentred(painter, cell.adjusted(0, 0, -1, -1),
              fitting ? kEllipsis + count : QString(kEllipsis));
}

/// The largest font in which an ellipsis and so many digits fit the cell; none if none does.
std::optional<QFont> NoteText::FontForCount(int digits) const {
  constexpr int kSmallestCount = 5;
  const QString text = kEllipsis + QString(digits, '0');
  QFont count = sizes_.front().Font;
  for (int pixels = count.pixelSize(); pixels >= kSmallestCount; --pixels) {
    count.setPixelSize(pixels);
    if (pixels < kSmallestPixels) count.setStretch(kCondensed);
    if (QFontMetricsF(count).horizontalAdvance(text) <= room_) return count;
  }
  return std::nullopt;
}

}  // namespace numorra
