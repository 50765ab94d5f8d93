#pragma once

#include <functional>

#include <QPagedPaintDevice>
#include <QPrinter>

namespace numorra {

/// Has pages painted on a printer. A PDF file is painted in memory and written once it is whole,
/// since the toolkit forgets a write that failed when a later one does not. Throws PrinterError,
/// FileError, and what `paint` throws.
void PrintOn(QPrinter& printer, const std::function<void(QPagedPaintDevice&)>& paint);

}  // namespace numorra
