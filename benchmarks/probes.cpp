#include <chrono>
#include <cstdio>
#include <fstream>

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QProcess>
#include <QStandardPaths>

#include "app/window/main_window.h"
#include "benches.h"
#include "toolkit/reader_language.h"
#include "words/language.h"

namespace numorra::bench {
namespace {

/// Ends the event loop at the first paint.
class FirstPaint : public QObject {
 public:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint)
      QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    return false;
  }
};

long PeakKilobytes() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    if (word != "VmHWM:") continue;
    long kilobytes = 0;
    status >> kilobytes;
    return kilobytes;
  }
  return 0;
}

struct Sample {
  double Seconds = 0;
  double Kilobytes = 0;
};

Sample RunChild(const char* program, const char* kind) {
  QProcess child;
  child.setProcessChannelMode(QProcess::SeparateChannels);
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("LC_ALL", "C.UTF-8");
  environment.insert("LANGUAGE", kind == std::string("german") ? "de" : "");
  child.setProcessEnvironment(environment);
  const auto start = std::chrono::steady_clock::now();
  child.start(program, {"--probe", kind});
  child.waitForReadyRead();
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
  child.waitForFinished();
  const QStringList lines = QString(child.readAllStandardOutput()).split('\n');
  return {elapsed.count(), lines.value(1).toDouble()};
}

}  // namespace

int RunProbeChild(const std::string& kind) {
  int argc = 1;
  char name[] = "probe";
  char* argv[] = {name, nullptr};
  SpeakLanguageOfDesktop();
  const QApplication application(argc, argv);
  FollowLanguage();
  SystemClock clock;
  Session session(clock);
  std::unique_ptr<QMainWindow> window;
  const bool panels = kind == "panels";
  const bool whole = kind == "ours" || kind == "german" || panels;
  if (whole) {
    window = std::make_unique<MainWindow>(session);
  } else {
    window = std::make_unique<QMainWindow>();
    window->resize(740, 700);
    if (kind == "word") window->setCentralWidget(new QLabel("magic"));
  }
  FirstPaint painted;
  window->installEventFilter(&painted);
  window->show();
  QApplication::exec();
  std::printf("painted\n");
  std::fflush(stdout);
  if (panels) window->findChild<QAction*>("Propertiesx")->trigger();
  if (whole) {
    window->findChild<QLineEdit*>("Text1")->setText("50");
    window->findChild<QPushButton*>("SolveAuto")->click();
    for (int i = 0; i < 3; ++i)
      QCoreApplication::processEvents();
  }
  std::printf("%ld\n", PeakKilobytes());
  return 0;
}

std::map<std::string, Probe> RunProbes(const char* program, int runs) {
  std::map<std::string, std::vector<double>> seconds, kilobytes;
  for (int run = 0; run <= runs; ++run) {
    for (const char* kind : kProbeKinds) {
      const Sample sample = RunChild(program, kind);
      if (run == 0) continue;  // to warm the caches
      seconds[kind].push_back(sample.Seconds);
      kilobytes[kind].push_back(sample.Kilobytes);
    }
  }
  std::map<std::string, Probe> probes;
  for (const char* kind : kProbeKinds) {
    probes[kind] = {FigureOf(seconds[kind]), FigureOf(kilobytes[kind])};
  }
  return probes;
}

Figure OctaveSeconds() {
  if (QStandardPaths::findExecutable("octave-cli").isEmpty()) return {};
  QProcess octave;
  octave.start("octave-cli", {"--norc", "--quiet", "--eval",
                              "for n=3:50 magic(n); end; for k=1:9 tic; for n=3:50 magic(n); end; "
                              "printf('%.9f\\n', toc); end"});
  octave.waitForFinished(-1);
  std::vector<double> seconds;
  for (const QString& line : QString(octave.readAllStandardOutput()).split('\n')) {
    if (!line.isEmpty()) seconds.push_back(line.toDouble());
  }
  return FigureOf(seconds);
}

}  // namespace numorra::bench
