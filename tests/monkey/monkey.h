#pragma once

#include <random>
#include <string>
#include <vector>

#include <QTemporaryDir>
#include <QTimer>

#include "app/main_window.h"

namespace numorra {

/// A monkey at the real window, with real boxes: it clicks, types, drags bars, opens menus and
/// windows, answers boxes with any button or Esc, resizes, prints, closes and reopens, in the
/// middle of builds too. The same seed does the same again.
class Monkey {
 public:
  explicit Monkey(unsigned seed);
  ~Monkey();

  /// Does one thing. Returns what does not hold afterwards, or nothing.
  std::string Step();

  /// What has been done so far.
  int Builds = 0;
  int BoxesAnswered = 0;
  std::string LastDone;

 private:
  using Deed = void (Monkey::*)();

  int Below(int bound) { return static_cast<int>(dice_() % static_cast<unsigned>(bound)); }
  template <class List>
  const auto& Any(const List& list) {
    return list[static_cast<std::size_t>(Below(static_cast<int>(std::size(list))))];
  }

  void PressButton();
  void PressBuild();
  void TypeIntoBox();
  void TypeSensibleSize();
  void PressBoard();
  void PressKey();
  void ChooseFromMenu();
  void DragBar();
  void ChooseCorner();
  void ResizeWindow();
  void OpenReadingWindow();
  void CloseReadingWindow();
  void CloseAndReopen();

  void AnswerBox();
  std::string WhyWrong();

  class Printer : public PaperPrinter {
   public:
    explicit Printer(Monkey& monkey) : monkey_(monkey) {}
    bool Choose(QWidget*) override;

   private:
    Monkey& monkey_;
  };

  std::mt19937 dice_;
  QTemporaryDir folder_;
  Printer printer_{*this};
  TickingClock clock_;
  MainWindow window_;
  QTimer answerer_;
  bool overflowed_ = false;
};

}  // namespace numorra
