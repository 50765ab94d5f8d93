#include <cstdio>

#include <QApplication>
#include <QDir>

#include "app/main_window.h"

/// Takes the documents' pictures: drives the real window, offscreen, with a clock of its own, and
/// saves what it shows.
namespace {

using numorra::Grid;
using numorra::MainWindow;

class Album {
 public:
  explicit Album(const QString& folder) : folder_(folder) {}

  void Save(const QWidget& widget, const QString& name) {
    QCoreApplication::processEvents();
    const QString path = folder_.filePath(name + ".png");
    if (!const_cast<QWidget&>(widget).grab().save(path)) {
      std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
      ok_ = false;
    }
  }

  bool Ok() const { return ok_; }

 private:
  QDir folder_;
  bool ok_ = true;
};

void ShowNormalSquare(MainWindow& window, int size) {
  window.findChild<QLineEdit*>("Text1")->setText(QString::number(size));
  window.findChild<QPushButton*>("SolveAuto")->click();
}

void ShowVariableSquare(MainWindow& window, int size, int sum) {
  window.findChild<QLineEdit*>("Text1")->setText(QString::number(size));
  window.findChild<QLineEdit*>("Text4")->setText(QString::number(sum));
  window.findChild<QPushButton*>("SolveAuto")->click();
}

/// A board in play: some lines right, some not.
void ShowManualBoard(MainWindow& window) {
  window.findChild<QLineEdit*>("Text1")->setText("5");
  window.findChild<QLineEdit*>("Text4")->setText("65");
  window.findChild<QPushButton*>("SolveManual")->click();
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

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  if (argc != 2) {
    std::fputs("usage: numorra-pictures FOLDER\n", stderr);
    return 2;
  }
  Album album(argv[1]);
  numorra::TickingClock clock(1514);
  MainWindow window({.TimeOfDay = &clock});
  window.show();
  for (const int size : {3, 11, 50}) {
    ShowNormalSquare(window, size);
    album.Save(window, QString("normal-%1").arg(size));
  }
  window.findChild<QRadioButton*>("Option4")->click();
  ShowVariableSquare(window, 10, 505);
  album.Save(window, "variable-10");
  ShowManualBoard(window);
  album.Save(window, "manual-5");
  return album.Ok() ? 0 : 1;
}
