#include <cstdio>

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QDir>
#include <QMenu>
#include <QTreeWidget>

#include "app/window/main_window.h"
#include "print/worksheet.h"
#include "puzzle/fresh_square.h"
#include "toolkit/reader_language.h"
#include "toolkit/tr.h"

/// Takes the pictures of the documents: operates the real window, offscreen, with a clock of its
/// own, and saves what it shows.
namespace {

using numorra::Grid;
using numorra::MainWindow;

class Album {
 public:
  explicit Album(const QString& folder) : folder_(folder) {}

  /// `width`: of the picture, 0 for the widget's own width.
  void Save(const QWidget& widget, const QString& name, int width = 0) {
    // A text that wraps needs a second round: its height follows from the width of the first.
    for (int round = 0; round < 3; ++round)
      QCoreApplication::processEvents();
    const QString path = folder_.filePath(name + ".png");
    QPixmap picture(widget.size());
    const_cast<QWidget&>(widget).render(&picture);
    if (width > 0) picture = picture.scaledToWidth(width, Qt::SmoothTransformation);
    if (!picture.save(path)) {
      std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
      ok_ = false;
    }
  }

  bool Ok() const { return ok_; }

 private:
  QDir folder_;
  bool ok_ = true;
};

void Click(MainWindow& window, const char* button) {
  window.findChild<QAbstractButton*>(button)->click();
}

void ShowNormalSquare(MainWindow& window, int size) {
  window.findChild<QLineEdit*>("Text1")->setText(QString::number(size));
  Click(window, "SolveAuto");
}

void ShowVariableSquare(MainWindow& window, int size, int sum) {
  window.findChild<QLineEdit*>("Text1")->setText(QString::number(size));
  window.findChild<QLineEdit*>("Text4")->setText(QString::number(sum));
  Click(window, "SolveAuto");
}

/// A board in play: some lines right, some not.
void ShowManualBoard(MainWindow& window) {
  window.findChild<QLineEdit*>("Text1")->setText("5");
  window.findChild<QLineEdit*>("Text4")->setText("65");
  Click(window, "SolveManual");
  const int typed[] = {17, 24, 1, 8, 15, 23, 5, 7, 14, 16, 4, 6};
  for (const int value : typed) {
    for (const QChar digit : QString::number(value)) {
      Q_EMIT window.View().CharacterTyped(digit.unicode());
    }
    const Grid& grid = window.TheBoard().grid;
    const int column = grid.CurrentColumn();
    Q_EMIT window.View().CellWanted(grid.CurrentRow() + column / 5, column % 5 + 1);
  }
}

/// The properties panel, on why Dürer's square is not ultramagic.
void ShowPanel(MainWindow& window) {
  window.findChild<QAction*>("Propertiesx")->trigger();
  window.findChild<QAction*>("Melencoliax")->trigger();
  auto* tree = window.findChild<QTreeWidget*>("PropertyTree");
  tree->setCurrentItem(
      tree->findItems(numorra::Tr("ultramagic"), Qt::MatchExactly | Qt::MatchRecursive).front());
}

/// Why a number follows in a hard puzzle.
void ShowHint(MainWindow& window) {
  QGuiApplication::clipboard()->setText("NP1MBASXYY956Y0JJN");
  window.findChild<QAction*>("Pastex")->trigger();
  for (int press = 0; press < 5; ++press)
    window.findChild<QAction*>("Hintx")->trigger();
}

/// A step of each construction.
void ShowSteps(MainWindow& window, Album& documents, Album& help) {
  window.findChild<QAction*>("StepByStepx")->trigger();
  auto* choice = window.findChild<QComboBox*>("WalkChoice");
  for (const auto& [size, step] : {std::pair(5, 8), std::pair(8, 12), std::pair(6, 6)}) {
    choice->setCurrentIndex(choice->findText(numorra::Tr("an example of size %1", size)));
    Q_EMIT choice->activated(choice->currentIndex());
    window.findChild<QSlider*>("StepSlider")->setValue(step);
    documents.Save(window, QString("step-%1").arg(size));
    help.Save(window, QString("step-%1").arg(size), 560);
  }
  window.findChild<QAction*>("StepByStepx")->trigger();
}

/// Six fresh puzzles on a page.
void SaveWorksheet(Album& documents, numorra::Clock& clock) {
  numorra::ClockSeededRandom random(clock);
  numorra::SilentStage stage;
  std::vector<numorra::MadePuzzle> puzzles;
  for (const auto grade : {numorra::Grade::Easy, numorra::Grade::Medium, numorra::Grade::Hard}) {
    for (int puzzle = 0; puzzle < 2; ++puzzle) {
      puzzles.push_back(std::get<numorra::MadePuzzle>(
          numorra::MakePuzzle(*numorra::FreshSquare({4}, random, stage), {grade}, random, stage)));
    }
  }
  constexpr double kPixelsPerMillimetre = 3;
  const QSizeF paper(210, 297);
  QLabel page;
  QPixmap picture((paper * kPixelsPerMillimetre).toSize());
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.scale(kPixelsPerMillimetre, kPixelsPerMillimetre);
  numorra::Worksheet(puzzles, {.PerPage = 6, .Title = "Magic squares"})
      .PaintPage(painter, paper, 0);
  painter.end();
  page.setPixmap(picture);
  page.resize(picture.size());
  documents.Save(page, "worksheet");
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  numorra::SpeakLanguageOfDesktop();
  const QApplication application(argc, argv);
  numorra::FollowLanguage();
  if (argc != 3) {
    std::fputs("usage: numorra-pictures DOCUMENTS HELP\n", stderr);
    return 2;
  }
  Album documents(argv[1]);
  Album help(argv[2]);
  numorra::TickingClock clock(1514);
  numorra::Session session(clock);
  MainWindow window(session);
  window.show();
  const auto& drawing = *window.findChild<numorra::Drawing*>();

  for (const int size : {3, 11, 50}) {
    ShowNormalSquare(window, size);
    documents.Save(window, QString("normal-%1").arg(size));
    if (size == 11) help.Save(window, "normal", 560);
  }
  ShowNormalSquare(window, 10);
  Click(window, "Command1");
  documents.Save(window, "circles-10");
  if (numorra::SpeaksEnglish()) help.Save(drawing, "circles", 300);  // no words in it
  for (const int size : {5, 8, 10}) {
    ShowNormalSquare(window, size);
    Click(window, "Command2");
    documents.Save(window, QString("vectors-%1").arg(size));
    if (numorra::SpeaksEnglish()) help.Save(drawing, QString("vectors-%1").arg(size), 300);
  }
  Click(window, "Option4");
  ShowVariableSquare(window, 10, 505);
  documents.Save(window, "variable-10");
  Click(window, "Command3");
  documents.Save(window, "shaded-10");
  ShowManualBoard(window);
  documents.Save(window, "manual-5");
  help.Save(window, "manual", 560);
  auto* menu = window.findChild<QMenu*>("ManualMenux");
  menu->popup(QPoint(0, 0));
  help.Save(*menu, "menu");
  menu->close();
  ShowPanel(window);
  documents.Save(window, "properties");
  help.Save(window, "properties", 560);
  window.findChild<QAction*>("Propertiesx")->trigger();
  ShowHint(window);
  documents.Save(window, "hint");
  help.Save(window, "hint", 560);
  SaveWorksheet(documents, clock);
  ShowSteps(window, documents, help);
  window.findChild<QAction*>("UndoMovex")->trigger();
  Click(window, "SolveManual");
  window.findChild<QAction*>("PrintSol")->trigger();
  documents.Save(*window.findChild<QDialog*>("PrintSolution"), "print");
  return documents.Ok() && help.Ok() ? 0 : 1;
}
