#include <cstdio>
#include <cstdlib>

#include <QApplication>

#include "app/grid_accessible.h"
#include "app/main_window.h"
#include "app/program_icon.h"

namespace {

/// Without a display the toolkit would abort; a person deserves one line and an exit status.
void ReportFatally(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtFatalMsg) {
    std::fputs("numorra: cannot open a window, there is no display to show it on\n", stderr);
    std::_Exit(EXIT_FAILURE);
  }
  if (type != QtDebugMsg && type != QtInfoMsg && !QCoreApplication::startingUp()) {
    std::fprintf(stderr, "numorra: %s\n", qPrintable(message));
  }
}

}  // namespace

int main(int argc, char** argv) {
  qInstallMessageHandler(ReportFatally);
  const QApplication application(argc, argv);
  QGuiApplication::setDesktopFileName("org.numorra.Numorra");
  QApplication::setWindowIcon(numorra::ProgramIcon());
  numorra::InstallGridAccessibility();
  numorra::MainWindow window;
  window.show();
  return QApplication::exec();
}
