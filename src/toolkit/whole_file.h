#pragma once

#include <QByteArray>
#include <QString>

namespace numorra {

/// Reads a regular file. Throws FileError with a sentence for the player where it is none, is
/// larger than `mostBytes`, which is seen before it is read, or cannot be read.
QByteArray ReadWholeFile(const QString& name, qint64 mostBytes);

/// Writes a new file beside `name` and puts it in its place when all is written: a full disk leaves
/// what was there. Throws FileError, also where something else than a file has that name: a folder,
/// a device, a pipe, or a link that leads nowhere but to itself.
void WriteWholeFile(const QString& name, const QByteArray& bytes);

}  // namespace numorra
