#include <functional>
#include <memory>

#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSlider>
#include <QTableWidget>

#include "app/window/main_window.h"
#include "benches.h"

namespace numorra::bench {
namespace {

/// Answers yes to everything at once.
class Yes : public Dialogs {
 public:
  void Tell(const std::string&) override {}
  bool Ask(const std::string&) override { return true; }
  std::optional<std::string> AskText(const std::string&, const std::string& initial) override {
    return initial;
  }
};

/// Counts the paints of the board's widgets.
class PaintCounter : public QObject {
 public:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++Paints;
    return false;
  }
  int Paints = 0;
};

/// One real window for all measurements, large enough to show a whole board of order 50.
class Stand {
 public:
  static Stand& Get() {
    static auto* stand = new Stand;  // leaked: the application ends before statics do
    return *stand;
  }

  template <class Control>
  Control& Find(const char* name) {
    return *window_.findChild<Control*>(name);
  }

  void Trigger(const char* action) { Find<QAction>(action).trigger(); }

  /// Makes the window smaller than at first by this much.
  void Resize(int smaller) { window_.resize(1700 - smaller, 1500 - smaller); }

  void Click(const char* button) { Find<QAbstractButton>(button).click(); }

  void Key(int key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&window_.View(), &event);
  }

  /// Processes events until the board, or a drawing of it, has been painted.
  void AwaitPaint() {
    const int before = counter_.Paints;
    while (counter_.Paints == before)
      QCoreApplication::processEvents();
  }

  void Type(int order, int sum) {
    Find<QLineEdit>("Text1").setText(QString::number(order));
    Find<QLineEdit>("Text4").setText(QString::number(sum));
  }

  /// Lays out a checked board in the Variable mode, with nothing left to paint.
  void Prepare(int order) {
    Trigger("NormalSizex");
    Find<QWidget>("PropertiesPanel").hide();
    Find<QWidget>("StepPanel").hide();
    if (Find<QAction>("DrawingNumbersx").isChecked()) Trigger("DrawingNumbersx");
    Resize(0);
    Find<QRadioButton>("Option4").setChecked(true);
    Find<QCheckBox>("Option1").setChecked(false);
    Find<QComboBox>("Combo1").setCurrentText("any");
    Type(order, 60 * order + order / 2);
    Click("SolveAuto");
    Click("SolveManual");
    Settle();
  }

  static void Settle() {
    for (int i = 0; i < 3; ++i)
      QCoreApplication::processEvents();
  }

  /// Repaints everything in the window through the event loop, as after a command.
  void Repaint() {
    for (QWidget* widget : window_.findChildren<QWidget*>())
      widget->update();
    window_.update();
    AwaitPaint();
  }
  void RepaintBoard() { window_.View().viewport()->repaint(); }

 private:
  Stand() {
    Resize(0);
    window_.show();
    window_.View().viewport()->installEventFilter(&counter_);
    Find<Drawing>("Picture1").installEventFilter(&counter_);
    Find<WalkView>("WalkBoard").viewport()->installEventFilter(&counter_);
    Settle();
  }

  Yes yes_;
  PaintCounter counter_;
  SystemClock clock_;
  Session session_{clock_};
  MainWindow window_{session_, {.TheDialogs = &yes_}};
};

struct Command {
  const char* Name;
  std::function<void(Stand&, int order)> Before;  ///< not measured
  std::function<void(Stand&)> Act;
};

void Nothing(Stand&, int) {}

Command Item(const char* name, const char* item) {
  return {name, Nothing, [item](Stand& stand) { stand.Trigger(item); }};
}

Command Button(const char* name, const char* button) {
  return {name, Nothing, [button](Stand& stand) { stand.Click(button); }};
}

Command Auto(const char* name, std::function<void(Stand&, int)> before) {
  return {name, std::move(before), [](Stand& stand) { stand.Click("SolveAuto"); }};
}

std::vector<Command> Commands() {
  return {
      Auto("Auto, Normal", [](Stand& s, int) { s.Find<QRadioButton>("Option3").setChecked(true); }),
      Auto("Auto, sum a multiple of n", [](Stand& s, int n) { s.Type(n, 60 * n); }),
      Auto("Auto, any sum", [](Stand& s, int n) { s.Type(n, 60 * n + n / 2); }),
      Auto("Auto, limit to 9",
           [](Stand& s, int n) {
             s.Find<QCheckBox>("Option1").setChecked(true);
             s.Type(n, 5 * n);
           }),
      Auto("Auto, a corner",
           [](Stand& s, int n) {
             s.Type(n, 60 * n);
             auto& combo = s.Find<QComboBox>("Combo1");
             combo.addItem("37");
             combo.setCurrentText("37");
           }),
      Button("Manual", "SolveManual"),
      Item("Flip vertical", "flipvx"),
      Item("Flip horizontal", "fliphx"),
      Item("Flip diagonal 1", "flipd1x"),
      Item("Flip diagonal 2", "flipd2x"),
      Item("Rotate 90d", "rot90x"),
      Item("Rotate 180d", "rot180x"),
      Item("Rotate 270d", "rot270x"),
      Item("set to base value", "Set2Cellvaluex"),
      Item("maximum value in grid", "Set2Max"),
      Item("mimimum value in grid", "set2Min"),
      Item("a random value", "set2Ran"),
      Item("entire grid random", "Set2allran"),
      Item("all other values", "SetAllRem"),
      Item("correct row total", "correctrowx"),
      Item("correct column total", "correctcolx"),
      Item("correct diagnonal", "correctdiagx"),
      {"Undo", [](Stand& s, int) { s.Trigger("rot90x"); },
       [](Stand& s) { s.Trigger("UndoMovex"); }},
      Item("Check Totals", "CheckTotalsx"),
      {"Vary", [](Stand& s, int) { s.Trigger("Set2allran"); },
       [](Stand& s) { s.Trigger("Varyx"); }},
      {"a step of a walk",
       [](Stand& s, int) {
         if (!s.Find<QWidget>("StepPanel").isVisible()) {
           s.Find<QRadioButton>("Option3").setChecked(true);
           s.Click("SolveAuto");
           s.Trigger("StepByStepx");
           Stand::Settle();
         }
         auto& steps = s.Find<QSlider>("StepSlider");
         steps.setValue(steps.maximum() / 2);
       },
       [](Stand& s) { s.Click("StepNextx"); }},
      {"Rotate 90d, panel open", [](Stand& s, int) { s.Find<QWidget>("PropertiesPanel").show(); },
       [](Stand& s) { s.Trigger("rot90x"); }},
      {"Zoom Out", [](Stand& s, int) { s.Trigger("NormalSizex"); },
       [](Stand& s) { s.Trigger("ZoomOutx"); }},
      {"a resize, fitted",
       [](Stand& s, int) {
         s.Resize(0);
         if (!s.Find<QAction>("FitBoardx").isChecked()) s.Trigger("FitBoardx");
       },
       [](Stand& s) { s.Resize(100); }},
      {"totals check (Enter)", Nothing, [](Stand& s) { s.Key(Qt::Key_Return); }},
      Button("Show (fill)", "Command3"),
      {"Cricles, numbers",
       [](Stand& s, int) {
         if (!s.Find<QAction>("DrawingNumbersx").isChecked()) s.Trigger("DrawingNumbersx");
         s.Click("Command4"), Stand::Settle();
       },
       [](Stand& s) { s.Click("Command1"); }},
      {"Cricles", [](Stand& s, int) { s.Click("Command4"), Stand::Settle(); },
       [](Stand& s) { s.Click("Command1"); }},
      {"Vectors", [](Stand& s, int) { s.Click("Command4"), Stand::Settle(); },
       [](Stand& s) { s.Click("Command2"); }},
  };
}

void MeasureCommand(benchmark::State& state, const Command& command, int order) {
  Stand& stand = Stand::Get();
  stand.Prepare(order);
  const auto run = [&] {
    command.Before(stand, order);
    Stand::Settle();
    QElapsedTimer timer;
    timer.start();
    command.Act(stand);
    stand.AwaitPaint();
    return static_cast<double>(timer.nsecsElapsed()) * 1e-9;
  };
  run();  // an earlier measurement of the zoom leaves texts of another size
  for (auto _ : state)
    state.SetIterationTime(run());
}

void MeasureRepaint(benchmark::State& state, void (Stand::*repaint)(), int order) {
  Stand& stand = Stand::Get();
  stand.Prepare(order);
  for (auto _ : state)
    (stand.*repaint)();
}

/// The same cells, texts and colours in the toolkit's own table.
void MeasureTable(benchmark::State& state, int order) {
  QTableWidget table(order + 2, order + 2);
  table.horizontalHeader()->hide();
  table.verticalHeader()->hide();
  table.horizontalHeader()->setMinimumSectionSize(1);
  table.horizontalHeader()->setDefaultSectionSize(27);
  table.verticalHeader()->setDefaultSectionSize(27);
  for (int row = 0; row < order + 2; ++row) {
    for (int column = 0; column < order + 2; ++column) {
      auto* item = new QTableWidgetItem(QString::number(row * order + column));
      item->setBackground(QColor(240, 240, 240));
      item->setTextAlignment(Qt::AlignCenter);
      table.setItem(row, column, item);
    }
  }
  table.resize(1500, 1450);
  table.show();
  QCoreApplication::processEvents();
  for (auto _ : state)
    table.viewport()->repaint();
}

}  // namespace

std::vector<std::string> RegisterWindowBenches() {
  static const std::vector<Command> commands = Commands();
  std::vector<std::string> names;
  names.reserve(commands.size());
  for (const Command& command : commands)
    names.emplace_back(command.Name);
  for (const int order : kOrders) {
    benchmark::RegisterBenchmark(At(kRepaint, order).c_str(), MeasureRepaint, &Stand::Repaint,
                                 order);
    for (const Command& command : commands) {
      benchmark::RegisterBenchmark(At(command.Name, order).c_str(), MeasureCommand, command, order)
          ->UseManualTime();
    }
  }
  benchmark::RegisterBenchmark(At(kBoardRepaint, 50).c_str(), MeasureRepaint, &Stand::RepaintBoard,
                               50);
  benchmark::RegisterBenchmark(At(kTableRepaint, 50).c_str(), MeasureTable, 50);
  return names;
}

}  // namespace numorra::bench
