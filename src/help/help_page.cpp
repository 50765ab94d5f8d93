#include "help/help_page.h"

#include <algorithm>

#include <QFileInfo>
#include <QRegularExpression>

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

bool IsFlat(const QByteArray& html) {
  constexpr int kDeepestTables = 8;
  constexpr int kDeepestElements = 100;
  // What needs no tag that closes it does not count.
  static const QRegularExpression kTag(
      "<(/?)(?!(?:p|li|dt|dd|td|th|tr|br|hr|img|meta|link)\\b)([a-z]+)",
      QRegularExpression::CaseInsensitiveOption);
  int tables = 0;
  int elements = 0;
  for (const auto& tag : kTag.globalMatch(QString::fromUtf8(html))) {
    const int change = tag.capturedView(1).isEmpty() ? 1 : -1;
    elements = std::max(0, elements + change);
    if (tag.capturedView(2).compare(u"table", Qt::CaseInsensitive) == 0) {
      tables = std::max(0, tables + change);
    }
    if (tables > kDeepestTables || elements > kDeepestElements) return false;
  }
  return true;
}

}  // namespace numorra
