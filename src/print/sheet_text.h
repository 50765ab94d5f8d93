#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>

namespace numorra {

/// How a text is written: the height of its font in millimetres, and its weight.
struct SheetFont {
  double Height;
  bool Bold = false;
};

/// Writes a line into `area`, in millimetres, smaller if it does not fit; writes nothing if it
/// would be too small to read.
void WriteFitted(QPainter& painter, const QRectF& area, int flags, const QString& text,
                 SheetFont font);

/// Writes a text from the top of `area` on in lines as wide as the area, never smaller.
void WriteWrapped(QPainter& painter, const QRectF& area, Qt::Alignment alignment,
                  const QString& text, SheetFont font);

/// The height of such a text, and the width of a text in one line, in millimetres.
double WrappedHeight(const QString& text, double width, SheetFont font);
double LineWidth(const QString& text, SheetFont font);

}  // namespace numorra
