#pragma once

#include <functional>

#include <QByteArray>
#include <QPdfWriter>

namespace numorra {

/// The bytes of a PDF file with what `paint` paints. The file does not say when it was made, so
/// that the same pages give the same bytes.
QByteArray PdfOf(const std::function<void(QPdfWriter&)>& paint);

}  // namespace numorra
