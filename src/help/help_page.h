#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace numorra {

/// The path of the help page in the program's folder, in the language that the program speaks if
/// there is such a page: "nrhelp.de.htm", or else "nrhelp.htm". `folder` may end with a separator.
QString HelpPageIn(const QString& folder);

/// Whether `link`, resolved, is a file in or below `folder`, however its path is written.
bool StandsIn(const QString& folder, const QUrl& link);

/// Whether a page can be laid out quickly: the toolkit's time doubles with each nested table, and
/// grows with the square of the depth of all other elements.
bool IsFlat(const QByteArray& html);

}  // namespace numorra
