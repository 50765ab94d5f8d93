#pragma once

#include <QByteArray>
#include <QString>

namespace numorra {

/// Reads a regular file. Throws FileError with a sentence for the player if it is not one, cannot
/// be read or is larger than `mostBytes`; the size is checked before reading.
QByteArray ReadWholeFile(const QString& name, qint64 mostBytes);

/// Writes a new file beside `name` and then renames it, so that a full disk leaves the old file.
/// Throws FileError, also if `name` is a folder, a device, a pipe, or a link that leads only to
/// itself.
void WriteWholeFile(const QString& name, const QByteArray& bytes);

}  // namespace numorra
