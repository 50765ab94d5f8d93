#include "app/window/cell_text.h"

#include <algorithm>

#include <QFontMetricsF>

namespace numorra {
namespace {

constexpr double kTextHeight = 0.45;  // of the cell's side
constexpr int kNarrowPercent = 78;
constexpr std::size_t kKeptTexts = 8192;

}  // namespace

CellText::CellText(const QFont& font, int side) : room_(side - 2) {
  const int wished = std::max(kSmallestPixels, static_cast<int>(side * kTextHeight));
  QFont plain = font;
  plain.setPixelSize(wished);
  fonts_.push_back(plain);
  for (int pixels = wished; pixels >= kSmallestPixels; --pixels) {
    QFont narrow = plain;
    narrow.setPixelSize(pixels);
    narrow.setStretch(kNarrowPercent);
    fonts_.push_back(narrow);
  }
}

void CellText::Draw(QPainter& painter, const QRect& cell, const std::string& text) {
  const Prepared& prepared = Prepare(text);
  if (painter.font() != fonts_[prepared.Font]) painter.setFont(fonts_[prepared.Font]);
  const qreal left = prepared.Fits ? (cell.width() - 1 - prepared.Size.width()) / 2 : 1;
  const qreal top = (cell.height() - 1 - prepared.Size.height()) / 2;
  painter.drawStaticText(QPointF(cell.left() + left, cell.top() + top), prepared.Text);
}

bool CellText::Readable(const std::string& text) {
  const Prepared& prepared = Prepare(text);
  return prepared.Fits && fonts_[prepared.Font].pixelSize() >= kSmallestReadable;
}

const CellText::Prepared& CellText::Prepare(const std::string& text) {
  const auto known = prepared_.find(text);
  if (known != prepared_.end()) return known->second;
  if (prepared_.size() >= kKeptTexts) prepared_.clear();

  const QString shown = QString::fromStdString(text);
  const auto fits = [&](const QFont& font) {
    return QFontMetricsF(font).horizontalAdvance(shown) <= room_;
  };
  const auto font = std::find_if(fonts_.begin(), fonts_.end(), fits);
  const bool found = font != fonts_.end();
  const auto index =
      static_cast<std::size_t>(found ? font - fonts_.begin() : std::ssize(fonts_) - 1);
  Prepared prepared{
      QStaticText(found ? shown
                        : QFontMetricsF(fonts_[index]).elidedText(shown, Qt::ElideRight, room_)),
      {},
      index,
      found};
  prepared.Text.setTextFormat(Qt::PlainText);
  prepared.Text.setPerformanceHint(QStaticText::AggressiveCaching);
  prepared.Text.prepare({}, fonts_[index]);
  prepared.Size = prepared.Text.size();
  return prepared_.emplace(text, std::move(prepared)).first->second;
}

}  // namespace numorra
