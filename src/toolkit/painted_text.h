#pragma once

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

namespace numorra {

/// Whether a painter draws for a file that may be shown where our fonts are missing. There, text is
/// drawn as outlines.
inline bool DrawsOutlines(const QPainter& painter) {
  return painter.paintEngine()->type() == QPaintEngine::SVG;
}

/// Draws a line of text with the painter's font and pen; `start` is the left end of its base line.
inline void DrawLine(QPainter& painter, QPointF start, const QString& text) {
  if (!DrawsOutlines(painter)) return painter.drawText(start, text);
  QPainterPath letters;
  letters.addText(start, painter.font(), text);
  painter.fillPath(letters, painter.pen().color());
}

/// Draws a line of text in the middle of `place`.
inline void DrawCentred(QPainter& painter, const QRectF& place, const QString& text) {
  if (!DrawsOutlines(painter))
    return painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, text);
  const QFontMetricsF metrics(painter.font());
  const QPointF middle = place.center();
  DrawLine(painter,
           {middle.x() - metrics.horizontalAdvance(text) / 2,
            middle.y() - metrics.height() / 2 + metrics.ascent()},
           text);
}

}  // namespace numorra
