#include "monkey/monkey.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDockWidget>
#include <QInputDialog>
#include <QMessageBox>
#include <QTest>

#include "app/board/position.h"
#include "support/invariants.h"

namespace numorra {
namespace {

const QStringList& Texts() {
  static const QStringList texts =
      QString(
          "| |3|7.5|-4|abc|12e3|0|51|50.7|99999|1e9|+5|٣|  6  |6\n7|0.4|32768|-32769|5,5|0x10|"
          "30,9,19,95|1,1,1,1|0 0 0 0|9999,9999,9999,9999|2 7 6\n9 5 1\n4 3 8")
          .split('|');
  return texts;
}

const Qt::Key kKeys[] = {Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left, Qt::Key_Right,
                         Qt::Key_Home,  Qt::Key_End,    Qt::Key_Tab,  Qt::Key_PageUp,
                         Qt::Key_Space, Qt::Key_Return, Qt::Key_Menu, Qt::Key_Backspace,
                         Qt::Key_0,     Qt::Key_5,      Qt::Key_9,    Qt::Key_Escape};

}  // namespace

bool Monkey::Printer::Choose(QWidget*) {
  const QString places[] = {TheMonkey.folder_.filePath("sheet.pdf"), "/nowhere/sheet.pdf", "/tmp"};
  PrintTo(TheMonkey.Any(places));
  return TheMonkey.Below(4) != 0;
}

void Monkey::Pages::Preview(QWidget*, const PaintedPages& pages) {
  QImage picture(210, 297, QImage::Format_RGB32);
  QPainter painter(&picture);
  pages.Paint(painter, {210, 297}, TheMonkey.Below(pages.Count));
}

QString Monkey::Files::Any() {
  const QString names[] = {"a.json", "a.json", "b.csv", "b.csv", "c.png", "d.pdf", "e", ""};
  const QString name = TheMonkey.Any(names);
  if (name.isEmpty()) return TheMonkey.Below(2) ? "" : "/nowhere/at.all";
  return TheMonkey.folder_.filePath(name);
}

Monkey::Monkey(unsigned seed)
    : dice_(seed),
      clock_(seed),
      window_(session_,
              {.Printer = &printer_, .Pages = &pages_, .Files = &files_, .FrameMilliseconds = 0}) {
  QObject::connect(&answerer_, &QTimer::timeout, [this] { AnswerBox(); });
  answerer_.start(0);
}

std::string Monkey::Step() {
  static constexpr struct {
    const char* Name;
    Action Act;
    int Weight;
  } kHabits[] = {{"build", &Monkey::Build, 4},         {"size", &Monkey::TypeSensibleSize, 4},
                 {"button ", &Monkey::PressButton, 5}, {"action ", &Monkey::ChooseAction, 8},
                 {"board", &Monkey::PressBoard, 8},    {"key ", &Monkey::PressKey, 8},
                 {"text ", &Monkey::TypeText, 2},      {"copy", &Monkey::CopyText, 1},
                 {"bar", &Monkey::DragBar, 1},         {"entry", &Monkey::PickEntry, 1},
                 {"resize", &Monkey::Resize, 1},       {"close", &Monkey::Close, 1},
                 {"state", &Monkey::ChangeState, 1},   {"tool ", &Monkey::PressLikeATool, 5},
                 {"digits", &Monkey::TypeDigits, 6}};
  if (!window_.isVisible()) window_.show();
  if (QWidget* popup = QApplication::activePopupWidget(); popup && Below(3) != 0) popup->close();
  int weights = 0;
  for (const auto& habit : kHabits)
    weights += habit.Weight;
  int left = Below(weights);
  for (const auto& habit : kHabits) {
    left -= habit.Weight;
    if (left >= 0) continue;
    LastDone = habit.Name;
    (this->*habit.Act)();
    break;
  }
  QCoreApplication::processEvents();
  return WhyWrong();
}

QWidget* Monkey::Front() {
  QWidget* dialog = QApplication::activeModalWidget();
  return dialog ? dialog : &window_;
}

template <class Control>
void Monkey::WithAny(void (Monkey::*use)(Control*)) {
  QList<Control*> inReach;
  for (auto* control : Front()->findChildren<Control*>()) {
    if (control->isVisible() && control->isEnabled()) inReach.append(control);
  }
  if (inReach.isEmpty()) return;
  Control* chosen = Any(inReach);
  LastDone += chosen->objectName().toStdString();
  (this->*use)(chosen);
}

void Monkey::Press(QAbstractButton* button) {
  QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
}

void Monkey::Type(QLineEdit* box) {
  box->setText(Below(12) == 0 ? QString(400, '9') : Any(Texts()));
}

void Monkey::Pick(QComboBox* combo) {
  combo->clearFocus();
  combo->setFocus(Qt::TabFocusReason);
  if (combo->count() > 0) combo->setCurrentIndex(Below(combo->count()));
}

void Monkey::TypeSensibleSize() {
  const int size = Below(8) == 0 ? 3 + Below(48) : 3 + Below(8);
  window_.findChild<QLineEdit*>("Text1")->setText(QString::number(size));
  auto* sum = window_.findChild<QLineEdit*>("Text4");
  if (sum->isEnabled()) sum->setText(QString::number(2 * size + Below(60 * size)));
}

/// Auto or Solve Again, half of the time with another command started in the middle.
void Monkey::Build() {
  ++Builds;
  if (Below(2) == 0) {
    const Action actions[] = {&Monkey::PressButton, &Monkey::ChooseAction,     &Monkey::PressKey,
                              &Monkey::Close,       &Monkey::TypeSensibleSize, &Monkey::PressBoard};
    QTimer::singleShot(0, &window_, [this, action = Any(actions)] { (this->*action)(); });
  }
  Press(window_.findChild<QPushButton*>(Below(4) == 0 ? "SolveAgain" : "SolveAuto"));
}

void Monkey::PressBoard() {
  const int lines = window_.TheBoard().grid.Rows();
  if (lines == 0) return;
  const int row = Below(lines);
  const int column = Below(lines);
  window_.View().BringIntoView(row, column);
  QTest::mouseClick(window_.View().viewport(), Below(2) ? Qt::LeftButton : Qt::RightButton, {},
                    window_.View().CellRect(row, column).center());
}

/// Most keys go to the board, some to the widget with the keyboard.
void Monkey::PressKey() {
  QWidget* focus = QApplication::focusWidget();
  QWidget* target = focus && Below(4) == 0 ? focus : &window_.View();
  if (Below(6) == 0) {
    QTest::keyClick(target, Below(2) ? Qt::Key_Plus : Qt::Key_Minus, Qt::KeypadModifier);
  } else {
    const Qt::Key key = Any(kKeys);
    LastDone += std::to_string(key);
    const Qt::KeyboardModifier modifiers[] = {Qt::NoModifier, Qt::NoModifier, Qt::NoModifier,
                                              Qt::ShiftModifier, Qt::ControlModifier};
    QTest::keyClick(target, key, Any(modifiers));
  }
}

/// Maximizes, enters full screen, or ends either, in any order.
void Monkey::ChangeState() {
  const Qt::WindowStates states[] = {Qt::WindowMaximized, Qt::WindowFullScreen, Qt::WindowNoState,
                                     Qt::WindowMaximized | Qt::WindowFullScreen};
  window_.setWindowState(Any(states));
}

/// Presses anything an assistive tool could, hidden or disabled.
void Monkey::PressLikeATool() {
  const auto widgets = Front()->findChildren<QWidget*>();
  if (widgets.isEmpty()) return;
  QWidget* widget = Any(widgets);
  LastDone += widget->objectName().toStdString();
  QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(widget);
  QAccessibleActionInterface* actions = seen && seen->isValid() ? seen->actionInterface() : nullptr;
  const QStringList names = actions ? actions->actionNames() : QStringList();
  if (!names.isEmpty()) actions->doAction(Any(names));
}

/// Types into the current cell and leaves it there.
void Monkey::TypeDigits() {
  const Qt::Key digits[] = {Qt::Key_1, Qt::Key_6, Qt::Key_8, Qt::Key_Backspace};
  for (int typed = Below(3); typed >= 0; --typed)
    QTest::keyClick(&window_.View(), Any(digits));
}

void Monkey::CopyText() {
  QGuiApplication::clipboard()->setText(Any(Texts()));
}

void Monkey::AnswerBox() {
  // A button's own menu blocks everything until it is closed.
  QWidget* popup = QApplication::activePopupWidget();
  if (popup && popup->objectName() != "ManualMenux") popup->close();
  QWidget* modal = QApplication::activeModalWidget();
  if (auto* input = qobject_cast<QInputDialog*>(modal)) {
    ++BoxesAnswered;
    // A text that cannot be read is asked for again, so it gives up now and then.
    if (Below(3) != 0) input->setTextValue(Any(Texts()));
    Below(2) ? input->accept() : input->reject();
  } else if (auto* box = qobject_cast<QMessageBox*>(modal)) {
    ++BoxesAnswered;
    const int answer = Below(6);
    if (answer == 0) QTest::keyClick(box, Qt::Key_Escape);
    if (answer == 1) box->close();
    if (answer > 1) Any(box->buttons())->click();
  } else {
    LosePatience(modal);
  }
}

/// Stops searches, and the making of puzzles, sooner or later.
void Monkey::LosePatience(QWidget* modal) {
  if (Below(20) != 0) return;
  auto* stop = window_.findChild<QPushButton*>("StopSearchx");
  if (!modal && stop->isVisible()) stop->click();
  if (modal && (modal->objectName() == "HideNumbers" || modal->objectName() == "PrintWorksheet")) {
    for (const auto* told : modal->findChildren<QLabel*>()) {
      if (told->text().endsWith("...")) return modal->close(), void();
    }
  }
}

std::string Monkey::UndoAndRedoEverything() {
  while (QWidget* popup = QApplication::activePopupWidget())
    popup->close();
  while (Front() != &window_)
    Front()->close();
  auto* undo = window_.findChild<QAction*>("UndoMovex");
  auto* redo = window_.findChild<QAction*>("RedoMovex");
  while (redo->isEnabled())
    redo->trigger();
  std::vector<Position> positions{PositionOf(window_.TheBoard())};
  std::string why;
  while (undo->isEnabled() && why.empty()) {
    undo->trigger();
    positions.push_back(PositionOf(window_.TheBoard()));
    why = WhyWrong();
  }
  if (positions.size() <= UndoHistory::kMostSteps && why.empty() &&
      positions.back() != Position()) {
    return "the first board is not there again";
  }
  for (; positions.size() > 1 && why.empty(); why += WhyWrong()) {
    positions.pop_back();
    redo->trigger();
    const Position now = PositionOf(window_.TheBoard());
    if (IsChange(now, positions.back())) return "another board than before";
    if (positions.size() > 1 && now != positions.back()) return "another position than before";
  }
  return redo->isEnabled() ? "more is done again than was taken back" : why;
}

}  // namespace numorra
