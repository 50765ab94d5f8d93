#include "help/help_page.h"

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

}  // namespace numorra
