#include <QAccessible>
#include <QClipboard>
#include <QDialog>
#include <QPointer>

#include "support/window_fixture.h"

namespace numorra {
namespace {

/// No printer, and files in a folder that does not exist.
struct NoPages : PagePrinter {
  void Preview(QWidget*, const PaintedPages&) override {}
};
struct NoSheets : SheetPrinter {
  bool Choose(QWidget*) override { return false; }
  void Print(const std::string&) override {}
};
struct NoFiles : FileChooser {
  QString ToOpen(QWidget*, const QString&, const QString&) override { return "/nowhere/a.json"; }
  QString ToSave(QWidget*, const QString&, const QString&) override { return {}; }
};

class EveryActionTest : public WindowTest {
 protected:
  EveryActionTest() : WindowTest({.Printer = &sheets_, .Pages = &pages_, .Files = &files_}) {}

  void Trigger(const char* item) { Find<QAction>(item).trigger(); }

  template <class Object>
  std::vector<QPointer<Object>> All() {
    const auto found = window_.findChildren<Object*>();
    return {found.begin(), found.end()};
  }

  /// Presses everything that an assistive tool could press, including hidden and disabled objects.
  void PressEverything() {
    for (const auto& object : All<QObject>()) {
      QAccessibleInterface* seen = object ? QAccessible::queryAccessibleInterface(object) : nullptr;
      QAccessibleActionInterface* actions =
          seen && seen->isValid() ? seen->actionInterface() : nullptr;
      const QStringList names = actions ? actions->actionNames() : QStringList();
      for (const QString& name : names) {
        if (!object) break;
        SCOPED_TRACE(object->objectName().toStdString() + " " + name.toStdString());
        actions->doAction(name);
        QCoreApplication::processEvents();
        QApplication::closeAllWindows();
        window_.show();
        EXPECT_EQ(WhyInvalid(window_.TheBoard()), "");
      }
    }
    for (const auto& action : All<QAction>()) {
      if (action) action->trigger();
    }
    dialogs_.Take();
  }

  NoPages pages_;
  NoSheets sheets_;
  NoFiles files_;
};

/// No unexpected press ends the program, in any state of the window.
TEST_F(EveryActionTest, EndsInTheWindow) {
  const std::pair<const char*, std::function<void()>> states[] = {
      {"no board", [] {}},
      {"a board", [this] { Make("SolveAuto", "4"); }},
      {"a puzzle", [this] { Make("SolveManual", "3"), Trigger("EmptyBoardx"); }},
      {"a walk", [this] { Make("SolveAuto", "5"), Trigger("StepByStepx"); }},
      {"a drawing", [this] { Make("SolveAuto", "4"), Click("Command2"); }},
      {"a remark", [this] { Make("SolveAuto", "4"), Trigger("Hintx"); }},
      {"full screen", [this] { Make("SolveAuto", "4"), Trigger("FullScreenx"); }},
      {"a dialog", [this] { Make("SolveAuto", "4"), Trigger("HideNumbersx"); }}};
  for (const auto& [name, enter] : states) {
    SCOPED_TRACE(name);
    window_.setWindowState(Qt::WindowNoState);
    enter();
    QCoreApplication::processEvents();
    PressEverything();
  }
  window_.setWindowState(Qt::WindowNoState);
  Make("SolveAuto", "4");
  dialogs_.Take();
  ExpectSettled();
}

/// During a search, while it processes events.
TEST_F(EveryActionTest, EndsASearchAtMost) {
  QString text;
  for (int row = 0; row < 30; ++row) {
    for (int column = 0; column < 30; ++column)
      text += column == (row + 1) % 30 ? QString::number(7 * row + 3) + ' ' : ". ";
    text += '\n';
  }
  const auto paste = [&] {
    QGuiApplication::clipboard()->setText(text);
    Trigger("Pastex");
  };
  const auto& bar = Find<QWidget>("SearchBar");
  const auto searched = [&] { return bar.isVisible(); };
  for (int i = 0; i < 2; ++i)
    Trigger("StepByStepx");  // makes the panel's buttons
  for (const char* button : {"StepNextx", "StepBackx", "PlayStepsx", "CloseRemarkx", "SolveAgain",
                             "StopSearchx", "DoCor1", "SolveAuto"}) {
    SCOPED_TRACE(button);
    paste();
    const auto press = [&] {
      QAccessible::queryAccessibleInterface(&Find<QAbstractButton>(button))
          ->actionInterface()
          ->doAction(QAccessibleActionInterface::pressAction());
      Trigger("CheckTotalsx");
    };
    EXPECT_TRUE(ActWithin([&] { Trigger("FillGapsx"); }, searched, press));
    dialogs_.Take();
    ExpectSettled();
  }
}

}  // namespace
}  // namespace numorra
