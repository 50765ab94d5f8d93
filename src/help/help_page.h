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

/// How deep tables stand in each other on a page. The toolkit's time to lay them out doubles with
/// each level and more.
int DepthOfTables(const QByteArray& html);

}  // namespace numorra
