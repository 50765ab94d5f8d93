#pragma once

#include <random>
#include <string>

#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>

#include "app/window/main_window.h"

namespace numorra {

/// A monkey at the real window, with real boxes: it operates any control within reach, also in the
/// middle of builds, and answers boxes with any button, Esc or their frame. The same seed repeats
/// the same actions.
class Monkey {
 public:
  explicit Monkey(unsigned seed);

  /// Does one random action. Returns what is wrong afterwards, or nothing.
  std::string Step();

  /// Undoes everything, as far as the history reaches, and redoes it. Returns what is wrong at any
  /// step, or nothing.
  std::string UndoAndRedoEverything();

  /// The actions so far.
  int Builds = 0;
  int BoxesAnswered = 0;
  std::string LastDone;

 private:
  using Action = void (Monkey::*)();

  int Below(int bound) { return static_cast<int>(dice_() % static_cast<unsigned>(bound)); }
  template <class List>
  const auto& Any(const List& list) {
    return list[static_cast<decltype(std::size(list))>(Below(static_cast<int>(std::size(list))))];
  }
  template <class Control>
  void WithAny(void (Monkey::*use)(Control*));

  void Press(QAbstractButton* button);
  void Choose(QAction* action) { action->trigger(); }
  void Type(QLineEdit* box);
  void Drag(QScrollBar* bar) { bar->setValue(Below(bar->maximum() + 1)); }
  void Pick(QComboBox* combo);

  void PressButton() { WithAny(&Monkey::Press); }
  void ChooseAction() { WithAny(&Monkey::Choose); }
  void TypeText() { WithAny(&Monkey::Type); }
  void DragBar() { WithAny(&Monkey::Drag); }
  void PickEntry() { WithAny(&Monkey::Pick); }
  void TypeSensibleSize();
  void Build();
  void PressBoard();
  void PressKey();
  void ChangeState();
  void PressLikeATool();
  void TypeDigits();
  void CopyText();
  void Resize() { window_.resize(1 + Below(1200), 1 + Below(900)); }
  void Close() { Front()->close(); }

  /// What a person could reach now: a dialog in front, or the window.
  QWidget* Front();
  void AnswerBox();
  void LosePatience(QWidget* modal);
  std::string WhyWrong();

  struct Printer : PaperPrinter {
    explicit Printer(Monkey& monkey) : TheMonkey(monkey) {}
    bool Choose(QWidget*) override;
    Monkey& TheMonkey;
  };

  struct Files : FileChooser {
    explicit Files(Monkey& monkey) : TheMonkey(monkey) {}
    QString ToOpen(QWidget*, const QString&, const QString&) override { return Any(); }
    QString ToSave(QWidget*, const QString&, const QString&) override { return Any(); }
    QString Any();
    Monkey& TheMonkey;
  };

  /// Paints a page of what would be shown.
  struct Pages : PagePrinter {
    explicit Pages(Monkey& monkey) : TheMonkey(monkey) {}
    void Preview(QWidget*, const PaintedPages& pages) override;
    Monkey& TheMonkey;
  };

  std::mt19937 dice_;
  QTemporaryDir folder_;
  Printer printer_{*this};
  Files files_{*this};
  Pages pages_{*this};
  TickingClock clock_;
  Session session_{clock_};
  MainWindow window_;
  QTimer answerer_;
};

}  // namespace numorra
