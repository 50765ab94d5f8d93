#pragma once

#include <functional>

#include <QPagedPaintDevice>
#include <QPrinter>

namespace numorra {

/// Paints pages on a printer. A PDF file is painted in memory and written in one piece, because the
/// toolkit forgets a failed write when a later one succeeds. The same pages give the same file.
/// Throws PrinterError, FileError, and what `paint` throws.
void PrintOn(QPrinter& printer, const std::function<void(QPagedPaintDevice&)>& paint);

}  // namespace numorra
