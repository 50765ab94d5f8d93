#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <optional>

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>

#include "app/board/runtime_error.h"
#include "app/program_arguments.h"
#include "app/window/board/grid_accessible.h"
#include "app/window/main_window.h"
#include "app/write_sheets.h"
#include "toolkit/program_icon.h"
#include "toolkit/reader_language.h"
#include "words/language.h"
#include "words/say.h"

namespace {

int Fail(int status, const std::string& why) {
  std::fprintf(stderr, "numorra: %s\n", why.c_str());
  return status;
}

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
    std::_Exit(Fail(EXIT_FAILURE, numorra::Say("cannot open a window: %1", reason.toStdString())));
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

/// The words after the program's name.
std::vector<std::string> WordsOf(int argc, char** argv) {
  return {argv + std::min(argc, 1), argv + argc};
}

using Wanted = numorra::ProgramRequest::Kind;

/// Answers what needs no display. Only the toolkit knows its own options, so nothing is wrong yet.
std::optional<int> AnswerWithoutWindow(const numorra::ProgramRequest& request) {
  if (request.Wanted == Wanted::Help)
    return std::fputs(numorra::ProgramUsage().c_str(), stdout) < 0;
  if (request.Wanted == Wanted::Version) return std::puts("numorra " NUMORRA_VERSION) < 0;
  return std::nullopt;
}

/// Writes worksheets; the statuses are the companion's.
int WriteSheets(const std::vector<std::string>& words) {
  constexpr int kBadArguments = 2;
  constexpr int kFellShort = 6;
  const auto parsed = numorra::ParseSheetsArguments(words);
  if (const auto* why = std::get_if<std::string>(&parsed)) return Fail(kBadArguments, *why);
  try {
    const auto& request = std::get<numorra::SheetsRequest>(parsed);
    return numorra::WriteSheets(request, {std::cin, std::cout, std::cerr, "numorra: "})
               ? EXIT_SUCCESS
               : kFellShort;
  } catch (const numorra::Impossible& impossible) {
    return Fail(EXIT_FAILURE, impossible.Why);
  } catch (const std::exception& error) {
    return Fail(EXIT_FAILURE, error.what());
  }
}

void Begin(numorra::MainWindow& window, const numorra::ProgramRequest& request) {
  switch (request.Wanted) {
    case Wanted::Open:
      window.OpenFileOrCode(QString::fromLocal8Bit(request.What.c_str()));
      break;
    case Wanted::NewBoard:
      window.BeginBoard();
      break;
    case Wanted::NewPuzzle:
      window.BeginPuzzle();
      break;
    default:
      break;
  }
}

}  // namespace

int main(int argc, char** argv) {
  qInstallMessageHandler(ReportFatally);
  KeepNoSettings();
  numorra::SpeakLanguageOfDesktop();
  const auto answered = AnswerWithoutWindow(numorra::ParseProgramArguments(WordsOf(argc, argv)));
  if (answered) return *answered;
  const bool sheets = numorra::AsksForSheets(WordsOf(argc, argv));
  if (sheets) qputenv("QT_QPA_PLATFORM", "offscreen");  // no window is opened
  const QApplication application(argc, argv);
  numorra::FollowLanguage();
  if (sheets) return WriteSheets(WordsOf(argc, argv));
  const numorra::ProgramRequest request = numorra::ParseProgramArguments(WordsOf(argc, argv));
  if (request.Wanted == Wanted::Wrong) {
    constexpr int kBadArguments = 2;
    return Fail(kBadArguments, request.What);
  }
  QGuiApplication::setDesktopFileName("org.numorra.numorra");
  QApplication::setWindowIcon(numorra::ProgramIcon());
  numorra::InstallGridAccessibility();
  numorra::SystemClock clock;
  numorra::Session session(clock);
  numorra::MainWindow window(session, {.Kept = FoldersAtHome()});
  window.show();
  constexpr int kPlaced = 100;  // milliseconds until the desktop has placed the window
  QTimer::singleShot(kPlaced, &window, [&] { Begin(window, request); });
  return QApplication::exec();
}
