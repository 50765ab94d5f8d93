#include <cstdio>
#include <gtest/gtest.h>

#include <QApplication>
#include <QStandardPaths>

#include "app/window/board/grid_accessible.h"
#include "words/language.h"

namespace {

/// The offscreen platform warns at every window about what it cannot do; other warnings are shown.
void LetRealWarningsThrough(QtMsgType, const QMessageLogContext&, const QString& message) {
  if (!message.startsWith("This plugin does not support")) {
    std::fprintf(stderr, "%s\n", qPrintable(message));
  }
}

}  // namespace

/// Runs the window tests without a display and without writing to the player's settings.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(LetRealWarningsThrough);
  QStandardPaths::setTestModeEnabled(true);
  testing::InitGoogleTest(&argc, argv);
  numorra::SpeakLanguageOfDesktop();
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  numorra::InstallGridAccessibility();
  return RUN_ALL_TESTS();
}
