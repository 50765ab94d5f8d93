#include "app/window/board/cell_text.h"

#include <algorithm>

#include <QFontMetricsF>

#include "toolkit/painted_text.h"

namespace numorra {
namespace {

constexpr double kTextHeight = 0.45;  // of the cell's side
constexpr int kNarrowPercent = 78;
constexpr std::size_t kKeptTexts = 8192;
constexpr int kSizesToHalf = 24;  // how many sizes are tried at least while a large text is halved

/// The next smaller size to try: one pixel less, or more where cells are large.
int SmallerThan(int pixels) {
  return pixels - std::max(1, pixels / (2 * kSizesToHalf));
}

}  // namespace

CellText::CellText(const QFont& font, int side) : room_(side - 2) {
  const int wished = std::max(kSmallestPixels, static_cast<int>(side * kTextHeight));
  QFont plain = font;
  plain.setPixelSize(wished);
  fonts_.emplace_back(plain);
  for (int pixels = wished; pixels >= kSmallestPixels; pixels = SmallerThan(pixels)) {
    QFont narrow = plain;
    narrow.setPixelSize(pixels);
    narrow.setStretch(kNarrowPercent);
    fonts_.emplace_back(narrow);
  }
}

CellText::Measured::Measured(const QFont& font) : Font(font), Metrics(font) {
  advances_.fill(kUnknown);
}

qreal CellText::Measured::WidthOf(const std::string& text) {
  qreal width = 0;
  for (const char c : text) {
    qreal& advance = advances_[static_cast<unsigned char>(c)];
    if (advance == kUnknown) advance = Metrics.horizontalAdvance(QLatin1Char(c));
    width += advance;
  }
  return width;
}

void CellText::Draw(QPainter& painter, const QRect& cell, const std::string& text) {
  const Prepared& prepared = Prepare(text);
  const Measured& font = fonts_[prepared.Font];
  if (painter.font() != font.Font) painter.setFont(font.Font);
  const qreal left = prepared.Fits ? (cell.width() - 1 - prepared.Width) / 2 : 1;
  const qreal top = (cell.height() - 1 - font.Metrics.height()) / 2;
  const QPointF corner(cell.left() + left, cell.top() + top);
  if (DrawsOutlines(painter)) {
    DrawLine(painter, corner + QPointF(0, font.Metrics.ascent()), prepared.Text.text());
  } else {
    painter.drawStaticText(corner, prepared.Text);
  }
}

bool CellText::Readable(const std::string& text) {
  const Prepared& prepared = Prepare(text);
  return prepared.Fits && fonts_[prepared.Font].Font.pixelSize() >= kSmallestReadable;
}

const CellText::Prepared& CellText::Prepare(const std::string& text) {
  const auto known = prepared_.find(text);
  if (known != prepared_.end()) return known->second;
  if (prepared_.size() >= kKeptTexts) prepared_.clear();

  const QString shown = QString::fromStdString(text);
  const auto fits = [&](Measured& font) { return font.WidthOf(text) <= room_; };
  const auto font = std::find_if(fonts_.begin(), fonts_.end(), fits);
  const bool found = font != fonts_.end();
  Measured& used = found ? *font : fonts_.back();
  Prepared prepared{
      QStaticText(found ? shown : used.Metrics.elidedText(shown, Qt::ElideRight, room_)),
      used.WidthOf(text), static_cast<std::size_t>(&used - fonts_.data()), found};
  prepared.Text.setTextFormat(Qt::PlainText);
  prepared.Text.setPerformanceHint(QStaticText::AggressiveCaching);
  prepared.Text.prepare({}, used.Font);
  return prepared_.emplace(text, std::move(prepared)).first->second;
}

}  // namespace numorra
