#include "toolkit/reader_language.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "words/language.h"

namespace numorra {

void FollowLanguage() {
  const QString language = QString::fromStdString(Language());
  const QString desktop = QLocale::system().uiLanguages().value(0);
  if (QLocale(language.isEmpty() ? desktop : language).textDirection() == Qt::RightToLeft) {
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
  }
  if (language.isEmpty()) return;
  auto* translator = new QTranslator(QCoreApplication::instance());
  if (translator->load("qtbase_" + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(translator);
  }
}

}  // namespace numorra
