#pragma once

#include <functional>

#include <QByteArray>
#include <QPdfWriter>

namespace numorra {

/// The bytes of a PDF file with what `paint` paints. The same pages give the same
/// bytes: the file does not say when it was made, and its fonts are always in the same order.
QByteArray PdfOf(const std::function<void(QPdfWriter&)>& paint);

}  // namespace numorra
