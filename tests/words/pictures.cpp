#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QVBoxLayout>

#include "app/ports/build_stage.h"
#include "app/window/main_window.h"
#include "generate/construction.h"
#include "print/worksheet.h"
#include "puzzle/puzzle_set.h"
#include "words/texts.h"
#include "words/turning_world.h"

namespace numorra {
namespace {

/// Takes pictures of what texts do not tell: boards and drawings of several sizes, walks, sheets.
class Photographer {
 public:
  explicit Photographer(const std::string& folder) : folder_(QString::fromStdString(folder)) {
    window_.show();
    QCoreApplication::processEvents();
  }

  void Walks() {
    for (const Construction* const construction : kConstructions) {
      const int order = construction->WhyNone(9).empty()    ? 9
                        : construction->WhyNone(10).empty() ? 10
                                                            : 12;
      Find<QLineEdit>("Text1").setText(QString::number(order));
      Trigger(construction->Name);
      Trigger("StepByStepx");
      auto& steps = Find<QSlider>("StepSlider");
      for (const int part : {1, 2, 3, 4}) {
        steps.setValue(steps.maximum() * part / 4);
        Save(QString("walk-%1-%2").arg(construction->Term).arg(part));
      }
    }
  }

  void Drawings() {
    for (const int order : {4, 11, 30}) {
      Build(order);
      for (const char* const numbers : {"-", "-numbers-"}) {
        for (const char* const item : {"BoardCriclesx", "BoardVectorsx", "Digitsx"}) {
          Trigger(item);
          Save(item + QString(numbers) + QString::number(order));
        }
        Trigger("DrawingNumbersx");
      }
    }
  }

  void Boards() {
    for (const int order : {3, 11, 50}) {
      Build(order);
      for (const char* const zoom :
           {"NormalSizex", "ZoomInx", "ZoomInx", "FitBoardx", "ZoomOutx"}) {
        Trigger(zoom);
        QTest::keyClick(&window_.View(), Qt::Key_End, Qt::ControlModifier);
        QTest::keyClick(&window_.View(), Qt::Key_Left);
        Save(QString("board-%1-%2").arg(order).arg(++count_));
      }
    }
  }

  void Sheets() {
    TickingClock time(7);
    ClockSeededRandom random(time);
    SilentStage stage;
    PuzzleSet set({{4}, {{Grade::Easy, 7}}}, random, stage);
    std::vector<MadePuzzle> puzzles;
    while (auto made = set.Next())
      puzzles.push_back(std::move(*made));
    const SheetOptions plain, all{false, true, true, false, false, true}, large{true, true};
    for (const SheetOptions& options : {plain, all, large}) {
      for (const bool landscape : {false, true}) {
        const Worksheet sheet(puzzles, {6, "Sheets", true, options}, landscape);
        const QSize millimetres = landscape ? QSize(297, 210) : QSize(210, 297);
        for (int page = 0; page < sheet.Pages(); ++page) {
          QImage paper(millimetres * 3, QImage::Format_RGB32);
          paper.fill(Qt::white);
          QPainter painter(&paper);
          painter.scale(3, 3);
          sheet.PaintPage(painter, millimetres, page);
          painter.end();
          paper.save(folder_ + QString("/sheet-%1.png").arg(++count_));
        }
      }
    }
  }

  /// Widgets of the toolkit alone, to see whether it looks here as it does elsewhere.
  void Toolkit() const {
    QGroupBox box("Toolkit 0123456789");
    auto* column = new QVBoxLayout(&box);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{new QPushButton("magic"), new QComboBox,
                                         new QLineEdit("magic"), new QCheckBox("magic")})
      column->addWidget(widget);
    box.grab().save(folder_ + "/toolkit.png");
  }

 private:
  template <class Control>
  Control& Find(const char* name) {
    return *window_.findChild<Control*>(name);
  }
  void Trigger(const char* item) { Find<QAction>(item).trigger(); }
  void Build(int order) {
    Find<QAbstractButton>("Option3").click();
    Find<QLineEdit>("Text1").setText(QString::number(order));
    Find<QAbstractButton>("SolveAuto").click();
  }
  void Save(const QString& name) {
    for (int i = 0; i < 5; ++i)  // until layouts have settled
      QCoreApplication::processEvents();
    window_.grab().save(folder_ + "/" + name + ".png");
  }

  QString folder_;
  int count_ = 0;
  Texts unread_;
  TurningDialogs dialogs_{unread_};
  NoPaper paper_;
  TickingClock clock_{99};
  Session session_{clock_};
  MainWindow window_{session_, {&dialogs_, &paper_, &paper_}};
};

}  // namespace

void TakePictures(const std::string& folder) {
  Photographer photographer(folder);
  photographer.Toolkit();
  photographer.Sheets();
  photographer.Boards();
  photographer.Drawings();
  photographer.Walks();
}

}  // namespace numorra
