#pragma once

#include <variant>

#include <QString>

#include "files/stored_square.h"

namespace numorra {

/// The file filters for writing and reading squares, in the form of file dialogs: "Squares
/// (*.json);;Numbers alone (*.csv)".
QString SquareKinds();
QString ReadableKinds();

/// Reads a square from a regular file of at most kMostTextBytes; the content determines the format.
/// Throws FileError if the file cannot be read.
std::variant<StoredSquare, Unreadable> OpenSquare(const QString& name);

/// Writes a square in the format of the name's suffix, JSON if it has no known one. Throws
/// FileError, also for a picture's suffix.
void SaveSquare(const QString& name, const StoredSquare& square);

}  // namespace numorra
