#pragma once

#include <variant>

#include <QByteArray>

#include "files/stored_square.h"

namespace numorra {

/// Whether a file's content is meant to be JSON, whatever its name says.
bool LooksLikeJson(const QByteArray& bytes);

/// Reads what JsonOf writes. Members that are not known are passed over; all that is known is held
/// to its kind and range, and a given needs a number. What cannot be read is told with its line, or
/// its row of the square.
std::variant<StoredSquare, Unreadable> ReadSquareJson(const QByteArray& bytes);

}  // namespace numorra
