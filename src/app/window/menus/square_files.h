#pragma once

#include <variant>

#include <QString>

#include "app/window/board/grid_view.h"
#include "files/stored_square.h"
#include "visual/drawing.h"

namespace numorra {

/// What files the window writes and reads, as the dialogs for their names have it: "Squares
/// (*.json);;Numbers alone (*.csv)".
QString SquareKinds();
QString ReadableKinds();
inline constexpr const char* kPictureKinds = "Pictures (*.png);;Documents (*.pdf)";

/// Reads a square from a regular file of at most kMostTextBytes, in the format that its content
/// says.
/// Throws FileError where the file cannot be read.
std::variant<StoredSquare, Unreadable> OpenSquare(const QString& name);

/// Writes it in the format of the name's suffix, JSON where that is none of theirs. Throws
/// FileError, also for the name of a picture.
void SaveSquare(const QString& name, const StoredSquare& square);

/// Writes what the board's place shows, on white: as a PDF page of its size where the name ends in
/// .pdf, otherwise as a PNG of twice the size. Throws FileError.
void ExportBoard(const QString& name, GridView& view);
void ExportDrawing(const QString& name, Drawing& drawing);

}  // namespace numorra
