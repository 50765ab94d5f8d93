#include "words/texts.h"

#include <cstdio>
#include <string>

#include <QApplication>
#include <QStandardPaths>

#include "app/window/board/grid_accessible.h"
#include "toolkit/reader_language.h"
#include "words/language.h"

/// Writes all texts of the program, sorted, in the language that the desktop asks for. Fails if one
/// does not fit its place.
///   texts [FOLDER]   with a picture of every window in the folder
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  QStandardPaths::setTestModeEnabled(true);
  numorra::SpeakLanguageOfDesktop();
  const QApplication application(argc, argv);
  numorra::FollowLanguage();
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setCursorFlashTime(0);  // pictures must not depend on the moment
  numorra::InstallGridAccessibility();
  numorra::Texts texts;
  numorra::AddTextsOfCompanion(texts);
  numorra::AddTextsOfLogic(texts);
  numorra::AddTextsOfWindow(texts, argc > 1 ? argv[1] : "");
  if (argc > 1) numorra::TakePictures(argv[1]);
  for (const std::string& text : texts.All)
    std::puts(text.c_str());
  for (const std::string& text : texts.Clipped)
    std::fprintf(stderr, "does not fit: %s\n", text.c_str());
  return texts.Clipped.empty() ? 0 : 1;
}
