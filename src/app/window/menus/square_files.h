#pragma once

#include <variant>

#include <QString>

#include "app/window/board/grid_view.h"
#include "files/stored_square.h"
#include "visual/drawing.h"

namespace numorra {

/// The file filters for writing and reading squares, in the form of file dialogs: "Squares
/// (*.json);;Numbers alone (*.csv)".
QString SquareKinds();
QString ReadableKinds();
inline constexpr const char* kPictureKinds = "Pictures (*.png);;Documents (*.pdf)";

/// Reads a square from a regular file of at most kMostTextBytes; the content determines the format.
/// Throws FileError if the file cannot be read.
std::variant<StoredSquare, Unreadable> OpenSquare(const QString& name);

/// Writes a square in the format of the name's suffix, JSON if it has no known one. Throws
/// FileError, also for a picture's suffix.
void SaveSquare(const QString& name, const StoredSquare& square);

/// Writes what the board's place shows, on white: as a PDF page of its size if the name ends in
/// .pdf, otherwise as a PNG of twice the size. Throws FileError.
void ExportBoard(const QString& name, GridView& view);
void ExportDrawing(const QString& name, Drawing& drawing);

}  // namespace numorra
