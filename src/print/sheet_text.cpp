#include "print/sheet_text.h"

#include <algorithm>

#include <QFontMetricsF>
#include <QStaticText>
#include <QTextOption>

namespace numorra {
namespace {

constexpr double kReadable = 1;  // millimetres

/// Texts are laid out in thousandths of a millimetre; otherwise font sizes are rounded to whole
/// millimetres.
constexpr double kUnits = 1000;

QFont InUnits(SheetFont wished) {
  QFont font("DejaVu Sans");
  font.setStyleHint(QFont::SansSerif);
  font.setBold(wished.Bold);
  font.setPixelSize(std::max(1, static_cast<int>(wished.Height * kUnits)));
  return font;
}

/// Breaks lines between words, and words that are wider than a line, such as long codes.
QStaticText Wrapped(const QString& text, double width, Qt::Alignment alignment, const QFont& font) {
  QTextOption option(alignment);
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  QStaticText wrapped(text);
  wrapped.setTextFormat(Qt::PlainText);
  wrapped.setTextOption(option);
  wrapped.setTextWidth(width * kUnits);
  wrapped.prepare({}, font);
  return wrapped;
}

}  // namespace

void WriteFitted(QPainter& painter, const QRectF& area, int flags, const QString& text,
                 SheetFont font) {
  painter.save();
  painter.scale(1 / kUnits, 1 / kUnits);
  const double width = QFontMetricsF(InUnits(font), painter.device()).horizontalAdvance(text);
  const double room = area.width() * kUnits;
  const double fits = width > room ? font.Height * room / width : font.Height;
  painter.setFont(InUnits({fits, font.Bold}));
  if (fits >= kReadable) {
    painter.drawText(QRectF(area.topLeft() * kUnits, area.size() * kUnits), flags, text);
  }
  painter.restore();
}

void WriteWrapped(QPainter& painter, const QRectF& area, Qt::Alignment alignment,
                  const QString& text, SheetFont font) {
  painter.save();
  painter.scale(1 / kUnits, 1 / kUnits);
  painter.setFont(InUnits(font));
  painter.drawStaticText(area.topLeft() * kUnits,
                         Wrapped(text, area.width(), alignment, painter.font()));
  painter.restore();
}

double WrappedHeight(const QString& text, double width, SheetFont font) {
  return Wrapped(text, width, Qt::AlignLeft, InUnits(font)).size().height() / kUnits;
}

double LineWidth(const QString& text, SheetFont font) {
  return QFontMetricsF(InUnits(font)).horizontalAdvance(text) / kUnits;
}

}  // namespace numorra
