#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace numorra {

/// Where the help page stands: in the folder of the program. `folder` may end with a separator or
/// not.
QString HelpPageIn(const QString& folder);

/// Whether `link`, resolved, is a file in `folder` itself or below it, however its path is written.
bool StandsIn(const QString& folder, const QUrl& link);

/// Whether a page can be laid out at once: the toolkit's time doubles with each table in a table,
/// and grows with the square of the depth of all other elements.
bool IsFlat(const QByteArray& html);

}  // namespace numorra
