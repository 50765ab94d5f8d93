#include "monkey/monkey.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QTest>

#include "support/invariants.h"

namespace numorra {
namespace {

const char* const kButtons[] = {"Option3",  "Option4",  "Option1",  "SolveRandum",
                                "DoCor1",   "DoCor2",   "Set4x4",   "Command1",
                                "Command2", "Command3", "Command4", "SolveManual"};

const char* const kItems[] = {"Set2Cellvaluex", "Set2Max",    "set2Min",     "set2Ran",
                              "Set2allran",     "SetAllRem",  "correctrowx", "correctcolx",
                              "correctdiagx",   "swapvaluex", "flipvx",      "fliphx",
                              "flipd1x",        "flipd2x",    "rot90x",      "rot180x",
                              "rot270x",        "transx",     "redox"};

const char* const kTexts[] = {"",      " ",          "3",       "7.5",     "-4",
                              "abc",   "12e3",       "0",       "51",      "50.7",
                              "99999", "1e9",        "+5",      "٣",       "  6  ",
                              "6\n7",  "0.4",        "32768",   "-32769",  "5,5",
                              "0x10",  "30,9,19,95", "1,1,1,1", "0 0 0 0", "9999,9999,9999,9999"};

const Qt::Key kKeys[] = {Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Left, Qt::Key_Right,
                         Qt::Key_Return, Qt::Key_Home,   Qt::Key_End,  Qt::Key_PageUp,
                         Qt::Key_Tab,    Qt::Key_Escape, Qt::Key_Menu, Qt::Key_Backspace,
                         Qt::Key_0,      Qt::Key_5,      Qt::Key_9,    Qt::Key_F5};

}  // namespace

bool Monkey::Printer::Choose(QWidget*) {
  const QString places[] = {monkey_.folder_.filePath("sheet.pdf"), "/nowhere/sheet.pdf", "/tmp"};
  PrintTo(monkey_.Any(places));
  return monkey_.Below(4) != 0;
}

Monkey::Monkey(unsigned seed)
    : dice_(seed),
      clock_(seed),
      window_({.TimeOfDay = &clock_, .Printer = &printer_, .FrameMilliseconds = 0}) {
  QObject::connect(&answerer_, &QTimer::timeout, [this] { AnswerBox(); });
  answerer_.start(0);
  window_.show();
}

Monkey::~Monkey() {
  answerer_.stop();
}

std::string Monkey::Step() {
  struct Habit {
    const char* Name;
    Deed Act;
    int Weight;
  };
  static constexpr Habit kHabits[] = {{"press a button", &Monkey::PressButton, 4},
                                      {"build", &Monkey::PressBuild, 4},
                                      {"type into a box", &Monkey::TypeIntoBox, 2},
                                      {"type a size", &Monkey::TypeSensibleSize, 4},
                                      {"press on the board", &Monkey::PressBoard, 8},
                                      {"press a key", &Monkey::PressKey, 8},
                                      {"choose from the menu", &Monkey::ChooseFromMenu, 8},
                                      {"drag a bar", &Monkey::DragBar, 1},
                                      {"choose a corner", &Monkey::ChooseCorner, 1},
                                      {"resize", &Monkey::ResizeWindow, 1},
                                      {"open a window to read", &Monkey::OpenReadingWindow, 1},
                                      {"close what is read", &Monkey::CloseReadingWindow, 2},
                                      {"close and reopen", &Monkey::CloseAndReopen, 1}};
  int total = 0;
  for (const Habit& habit : kHabits)
    total += habit.Weight;
  int left = Below(total);
  for (const Habit& habit : kHabits) {
    left -= habit.Weight;
    if (left >= 0) continue;
    LastDone = habit.Name;
    (this->*habit.Act)();
    break;
  }
  QCoreApplication::processEvents();
  return WhyWrong();
}

void Monkey::PressButton() {
  const char* name = Any(kButtons);
  LastDone = name;
  auto* button = window_.findChild<QAbstractButton*>(name);
  QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

/// Auto or Solve Again, half of the time with something else started in the middle.
void Monkey::PressBuild() {
  ++Builds;
  if (Below(2) == 0) {
    const Deed deeds[] = {&Monkey::PressButton,      &Monkey::ChooseFromMenu,
                          &Monkey::PressKey,         &Monkey::CloseAndReopen,
                          &Monkey::TypeSensibleSize, &Monkey::OpenReadingWindow};
    QTimer::singleShot(0, &window_, [this, deed = Any(deeds)] { (this->*deed)(); });
  }
  const char* name = Below(4) == 0 ? "SolveAgain" : "SolveAuto";
  QTest::mouseClick(window_.findChild<QPushButton*>(name), Qt::LeftButton);
}

void Monkey::TypeIntoBox() {
  auto* box = window_.findChild<QLineEdit*>(Below(2) ? "Text1" : "Text4");
  const QString text = Below(12) == 0 ? QString(400, '9') : QString(Any(kTexts));
  LastDone += ": " + text.toStdString();
  if (box->isEnabled()) box->setText(text);
}

void Monkey::TypeSensibleSize() {
  const int size = Below(8) == 0 ? 3 + Below(48) : 3 + Below(8);
  window_.findChild<QLineEdit*>("Text1")->setText(QString::number(size));
  auto* sum = window_.findChild<QLineEdit*>("Text4");
  if (sum->isEnabled()) sum->setText(QString::number(2 * size + Below(60 * size)));
}

void Monkey::PressBoard() {
  const int lines = window_.TheBoard().grid.Rows();
  if (lines == 0) return;
  const int row = Below(lines);
  const int column = Below(lines);
  window_.View().BringIntoView(row, column);
  QTest::mouseClick(window_.View().viewport(), Below(2) ? Qt::LeftButton : Qt::RightButton, {},
                    window_.View().CellRect(row, column).center());
  if (Below(3) != 0) window_.findChild<QMenu*>("ManualMenux")->close();
}

void Monkey::PressKey() {
  if (Below(6) == 0) {
    QTest::keyClick(&window_.View(), Below(2) ? Qt::Key_Plus : Qt::Key_Minus, Qt::KeypadModifier);
  } else {
    const Qt::Key key = Any(kKeys);
    LastDone += " " + std::to_string(key);
    QTest::keyClick(&window_.View(), key, Below(8) ? Qt::NoModifier : Qt::ControlModifier);
  }
}

void Monkey::ChooseFromMenu() {
  const char* name = Any(kItems);
  LastDone = name;
  window_.findChild<QMenu*>("ManualMenux")->close();
  window_.findChild<QAction*>(name)->trigger();
}

void Monkey::DragBar() {
  const char* const bars[] = {"hsrRed", "hsrGreen", "hsrBlue"};
  window_.findChild<QScrollBar*>(Any(bars))->setValue(Below(256));
}

void Monkey::ChooseCorner() {
  auto* combo = window_.findChild<QComboBox*>("Combo1");
  if (!combo->isEnabled()) return;
  combo->clearFocus();
  combo->setFocus(Qt::TabFocusReason);
  combo->setCurrentIndex(Below(combo->count()));
}

void Monkey::ResizeWindow() {
  window_.resize(1 + Below(1200), 1 + Below(900));
}

void Monkey::OpenReadingWindow() {
  const char* const actions[] = {"Helpx", "Aboutx", "PrintSol"};
  if (window_.findChildren<QDialog*>().isEmpty()) {
    window_.findChild<QAction*>(Any(actions))->trigger();
  }
}

/// Closes a reading window, after a press on one of its buttons.
void Monkey::CloseReadingWindow() {
  const auto dialogs = window_.findChildren<QDialog*>();
  if (dialogs.isEmpty()) return;
  const auto buttons = dialogs.first()->findChildren<QPushButton*>();
  if (!buttons.isEmpty()) QTest::mouseClick(Any(buttons), Qt::LeftButton);
  for (QDialog* dialog : window_.findChildren<QDialog*>())
    delete dialog;
}

void Monkey::CloseAndReopen() {
  window_.close();
  window_.show();
}

/// Answers whatever box waits for an answer, with any of its buttons, Esc, or its frame.
void Monkey::AnswerBox() {
  auto* modal = QApplication::activeModalWidget();
  if (auto* input = qobject_cast<QInputDialog*>(modal)) {
    ++BoxesAnswered;
    // A text that cannot be read is asked for again, so now and then one gives up.
    if (Below(3) != 0) input->setTextValue(Any(kTexts));
    Below(2) ? input->accept() : input->reject();
  } else if (auto* box = qobject_cast<QMessageBox*>(modal)) {
    ++BoxesAnswered;
    if (box->text() == "Overflow") overflowed_ = true;
    switch (Below(6)) {
      case 0:
        QTest::keyClick(box, Qt::Key_Escape);
        break;
      case 1:
        box->close();
        break;
      default:
        Any(box->buttons())->click();
        break;
    }
  }
}

std::string Monkey::WhyWrong() {
  const Board& board = window_.TheBoard();
  // A mirror that overflows leaves its exchanges behind the grid until the next check.
  if (overflowed_ && board.TotalsChecked && !board.OverlayShown()) {
    QTest::keyClick(&window_.View(), Qt::Key_Return);
    overflowed_ = false;
  }
  if (overflowed_) return {};
  if (QGuiApplication::overrideCursor()) return "the busy pointer is left over";
  if (!window_.findChild<QPushButton*>("SolveAuto")->isVisibleTo(&window_)) return "Auto is hidden";
  if (qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) return "a box is left open";
  if (board.Shown() && board.grid.Visible() == board.OverlayShown()) return "nothing is in sight";
  return WhyInvalid(board);
}

}  // namespace numorra
