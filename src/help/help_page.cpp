#include "help/help_page.h"

#include <algorithm>

#include <QFileInfo>
#include <QRegularExpression>
#include <QStringDecoder>

#include "words/language.h"

namespace numorra {

QString HelpPageIn(const QString& folder) {
  const QString page = folder + (folder.endsWith('/') ? "nrhelp." : "/nrhelp.");
  const QString language = QString::fromStdString(Language()) + ".";
  return QFileInfo::exists(page + language + "htm") ? page + language + "htm" : page + "htm";
}

bool StandsIn(const QString& folder, const QUrl& link) {
  if (!link.isLocalFile() || !link.host().isEmpty()) return false;
  const QString home = QFileInfo(folder).canonicalFilePath();
  const QString file = QFileInfo(link.toLocalFile()).canonicalFilePath();
  return !home.isEmpty() && file.startsWith(home.endsWith('/') ? home : home + '/');
}

bool IsFlat(const QByteArray& html) {
  constexpr int kDeepestTables = 3;
  constexpr int kMostTables = 100;
  constexpr int kDeepestElements = 100;
  static const QRegularExpression kComment("<!--.*?(?:-->|$)",
                                           QRegularExpression::DotMatchesEverythingOption);
  // Void elements, which need no closing tag, do not count.
  static const QRegularExpression kTag(
      "<\\s*(/?)\\s*(?!(?:p|li|dt|dd|td|th|tr|thead|tbody|tfoot|col|br|wbr|hr|img|meta|link|base|"
      "input|option)\\b)([a-z]+)",
      QRegularExpression::CaseInsensitiveOption);
  const QString page = QString(QStringDecoder::decoderForHtml(html).decode(html)).remove(kComment);
  int tables = 0;
  int elements = 0;
  int tablesInAll = 0;
  for (const auto& tag : kTag.globalMatch(page)) {
    const int change = tag.capturedView(1).isEmpty() ? 1 : -1;
    elements = std::max(0, elements + change);
    if (tag.capturedView(2).compare(u"table", Qt::CaseInsensitive) == 0) {
      tables = std::max(0, tables + change);
      tablesInAll += change > 0 ? 1 : 0;
    }
    if (tables > kDeepestTables || elements > kDeepestElements || tablesInAll > kMostTables) {
      return false;
    }
  }
  return true;
}

}  // namespace numorra
