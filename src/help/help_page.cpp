#include "help/help_page.h"

#include <algorithm>

#include <QFileInfo>

namespace numorra {

QString HelpPageIn(const QString& folder) {
  return folder + (folder.endsWith('/') ? "" : "/") + "nrhelp.htm";
}

bool StandsIn(const QString& folder, const QUrl& link) {
  if (!link.isLocalFile() || !link.host().isEmpty()) return false;
  const QString home = QFileInfo(folder).canonicalFilePath();
  const QString file = QFileInfo(link.toLocalFile()).canonicalFilePath();
  return !home.isEmpty() && file.startsWith(home.endsWith('/') ? home : home + '/');
}

int DepthOfTables(const QByteArray& html) {
  const QByteArray page = html.toLower();
  int depth = 0;
  int deepest = 0;
  for (qsizetype at = page.indexOf("table"); at > 0; at = page.indexOf("table", at + 1)) {
    if (page[at - 1] == '<') deepest = std::max(deepest, ++depth);
    if (page[at - 1] == '/' && at > 1 && page[at - 2] == '<') --depth;
  }
  return deepest;
}

}  // namespace numorra
