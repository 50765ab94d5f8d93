#include <cstdio>
#include <cstdlib>

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>

#include "app/window/board/grid_accessible.h"
#include "app/window/main_window.h"
#include "toolkit/program_icon.h"

namespace {

/// The toolkit's first complaint before it could start: the reason if it then gives up.
QString& ReasonAtStart() {
  static QString reason;
  return reason;
}

/// Instead of aborting, prints one line with the reason and exits with a status.
void ReportFatally(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtFatalMsg) {
    QString reason = ReasonAtStart().isEmpty() ? message : ReasonAtStart();
    reason = reason.section('\n', 0, 0).trimmed();
    std::fprintf(stderr, "numorra: cannot open a window: %s\n", qPrintable(reason));
    std::_Exit(EXIT_FAILURE);
  }
  if (type == QtDebugMsg || type == QtInfoMsg) return;
  if (QCoreApplication::startingUp()) {
    if (ReasonAtStart().isEmpty()) ReasonAtStart() = message;
  } else {
    std::fprintf(stderr, "numorra: %s\n", qPrintable(message));
  }
}

/// The toolkit's file dialogs save their last folder in a settings file in the player's home. We
/// save nothing unasked, so we give them no place to write it.
void KeepNoSettings() {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, "/dev/null");
}

/// The desktop's folders for this program, used only if the player wants something kept.
numorra::KeptFolders FoldersAtHome() {
  const auto in = [](QStandardPaths::StandardLocation place) {
    return QStandardPaths::writableLocation(place) + "/numorra";
  };
  return {in(QStandardPaths::GenericConfigLocation), in(QStandardPaths::GenericDataLocation)};
}

}  // namespace

int main(int argc, char** argv) {
  qInstallMessageHandler(ReportFatally);
  KeepNoSettings();
  const QApplication application(argc, argv);
  QGuiApplication::setDesktopFileName("org.numorra.Numorra");
  QApplication::setWindowIcon(numorra::ProgramIcon());
  numorra::InstallGridAccessibility();
  numorra::SystemClock clock;
  numorra::Session session(clock);
  numorra::MainWindow window(session, {.Kept = FoldersAtHome()});
  window.show();
  return QApplication::exec();
}
