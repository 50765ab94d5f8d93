#include <filesystem>
#include <functional>
#include <utility>
#include <vector>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTest>
#include <QTreeWidget>

#include "app/program_arguments.h"
#include "app/sheets_arguments.h"
#include "app/window/main_window.h"
#include "words/texts.h"
#include "words/turning_world.h"

namespace numorra {
namespace {

constexpr int kMostChildren = 40;  // of an object, for assistive tools

class WindowReader {
 public:
  WindowReader(Texts& texts, std::string pictures)
      : texts_(texts), pictures_(std::move(pictures)), dialogs_(texts) {
    files_.Told = &texts;
    window_.show();
    QCoreApplication::processEvents();
  }

  void Read() {
    const std::pair<const char*, std::function<void()>> states[] = {
        {"none", [] {}},
        {"normal", [this] { Make("SolveAuto", "Option3", "5"); }},
        {"variable", [this] { Make("SolveAuto", "Option4", "4", "50"); }},
        {"manual", [this] { Make("SolveManual", "Option4", "3", "15"); }},
        {"typed", [this] { QTest::keyClicks(&window_.View(), "77777777777777777"); }},
        {"refused", [this] { QTest::keyClicks(&window_.View(), "x"); }},
        {"empty", [this] { Trigger("EmptyBoardx"); }},
        {"size", [this] { Make("SolveAuto", "Option3", "2"); }},
        {"large", [this] { Make("SolveAuto", "Option3", "51"); }},
        {"broken", [this] { Make("SolveAuto", "Option3", "x"); }},
        {"none with this sum", [this] { Make("SolveAuto", "Option4", "3", "7"); }},
        {"puzzle", [this] { Paste(". . . 5\n. . . .\n9 1 8 16\n. 7 2 ."); }},
        {"wrong puzzle", [this] { Paste("8 1 .\n. 5 2\n. . 8"); }},
        {"hopeless puzzle", [this] { Paste("8 1 .\n. 4 .\n. . ."); }},
        {"open puzzle", [this] { Paste("8 . .\n. . .\n. . ."); }},
        {"full", [this] { Paste("8 1 6\n3 5 7\n4 9 2"); }},
        {"repeated", [this] { Paste("2 2 2\n2 2 2\n2 2 2"); }},
        {"unreadable", [this] { Paste("nothing"); }},
        {"notes", [this] { Paste("8 1 .\n. 5 .\n. . ."), Trigger("FillNotesx"); }},
        {"noting", [this] { Trigger("Notesx"), QTest::keyClicks(&window_.View(), "99"); }},
        {"code", [this] { Trigger("CopyPuzzleCodex"), Trigger("Pastex"); }},
        {"walk", [this] { Make("SolveAuto", "Option3", "5"), Trigger("StepByStepx"); }},
        {"step", [this] { Press("StepNextx"), Press("AskMex"); }},
        {"asked", [this] { Press("StepNextx"), QTest::keyClick(&window_.View(), Qt::Key_Return); }},
        {"circles", [this] { Make("SolveAuto", "Option3", "8"), Press("Command1"); }},
        {"vectors", [this] { Press("Command2"); }},
        {"shaded", [this] { Press("Command4"), Press("Command3"); }},
        {"fifty", [this] { Make("SolveAuto", "Option3", "50"); }}};
    for (const auto& [name, enter] : states) {
      state_ = name;
      enter();
      ReadWindows();
      EveryItem();
    }
  }

 private:
  void Trigger(const char* item) {
    if (auto* action = window_.findChild<QAction*>(item)) action->trigger();
  }
  void Press(const char* button) {
    if (auto* control = window_.findChild<QAbstractButton*>(button)) control->click();
  }
  void Make(const char* button, const char* mode, const char* size, const char* sum = nullptr) {
    Press(mode);
    window_.findChild<QLineEdit*>("Text1")->setText(size);
    if (sum) window_.findChild<QLineEdit*>("Text4")->setText(sum);
    Press(button);
  }
  void Paste(const char* text) {
    QGuiApplication::clipboard()->setText(text);
    Trigger("Pastex");
  }

  /// Chooses every item of every menu, and reads what it opens.
  void EveryItem() {
    QList<QAction*> items;
    for (const QMenu* menu : window_.findChildren<QMenu*>())
      items += menu->actions();
    const QString position = Copied();
    for (QAction* item : items) {
      if (!item->isEnabled() || item->menu() || item->isSeparator()) continue;
      if (item->objectName() == "Exitx") continue;
      item->trigger();
      QCoreApplication::processEvents();
      ReadWindows();
      const bool pictured = state_ == "full" || state_ == "notes";
      if (pictured) Picture(window_, "-" + item->objectName());
      for (QWidget* top : QApplication::topLevelWidgets()) {
        if (qobject_cast<QDialog*>(top) && top->isVisible()) TurnEverything(*top);
      }
      CloseDialogs();
      window_.show();
      const bool grew = window_.windowState() != Qt::WindowNoState;
      window_.setWindowState(Qt::WindowNoState);
      if (pictured && grew) QTest::qWait(200);  // until panels have their room again
    }
    QGuiApplication::clipboard()->setText(position);
    Trigger("Pastex");
  }

  QString Copied() {
    Trigger("Copyx");
    return QGuiApplication::clipboard()->text();
  }

  void CloseDialogs() {
    for (QWidget* top : QApplication::topLevelWidgets()) {
      if (top != &window_ && top->isVisible()) top->close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  /// Every choice of a dialog once, and its wrong entries.
  void TurnEverything(QWidget& dialog) {
    for (QComboBox* box : dialog.findChildren<QComboBox*>()) {
      for (int i = 0; i < box->count(); ++i) {
        box->setCurrentIndex(i);
        ReadWindows();
      }
    }
    for (QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
      if (button->isCheckable() && button->isEnabled()) button->click(), ReadWindows();
    }
    for (QLineEdit* edit : dialog.findChildren<QLineEdit*>()) {
      for (const char* text : {"x", "0", "99999"})
        edit->setText(text), ReadWindows();
    }
    for (QPlainTextEdit* edit : dialog.findChildren<QPlainTextEdit*>()) {
      for (const char* text : {"x", "NP2ABC\nNP3ABCDE FGHIJ", ""})
        edit->setPlainText(text), ReadWindows();
    }
  }

  void ReadWindows() {
    for (int round = 0; round < 2; ++round)
      QCoreApplication::processEvents();
    for (QWidget* top : QApplication::topLevelWidgets()) {
      if (!top->isVisible()) continue;
      texts_.Add(top->windowTitle().toStdString());
      ReadObject(*top);
      for (const QObject* object : top->findChildren<QObject*>())
        ReadObject(*object);
      ReadAccessible(QAccessible::queryAccessibleInterface(top));
      Picture(*top);
    }
  }

  /// Notes labels and buttons that are too small for their texts.
  void Measure(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const bool button = qobject_cast<const QAbstractButton*>(&widget) != nullptr;
    if (!widget.isVisible() || (!label && !button)) return;
    const QSizePolicy::Policy policy = widget.sizePolicy().horizontalPolicy();
    if (policy == QSizePolicy::Ignored) return;
    const bool wraps = label && label->wordWrap();
    const int high = wraps ? widget.heightForWidth(widget.width()) : widget.sizeHint().height();
    const bool fits =
        (wraps || widget.sizeHint().width() <= widget.width()) && high <= widget.height();
    const std::string text = widget.property("text").toString().toStdString();
    const std::string window = widget.window()->objectName().toStdString();
    if (!fits && !text.empty()) texts_.Clipped.insert(window + ": " + OnOneLine(text));
  }

  void ReadObject(const QObject& object) {
    if (const auto* widget = qobject_cast<const QWidget*>(&object)) Measure(*widget);
    for (const char* name :
         {"text", "title", "toolTip", "placeholderText", "accessibleName", "accessibleDescription",
          "labelText", "prefix", "suffix", "specialValueText"}) {
      if (qobject_cast<const QLineEdit*>(&object) && name == std::string("text")) continue;
      texts_.Add(object.property(name).toString().toStdString());
    }
    if (const auto* box = qobject_cast<const QComboBox*>(&object)) {
      for (int i = 0; i < box->count(); ++i)
        texts_.Add(box->itemText(i).toStdString());
    }
    if (const auto* tree = qobject_cast<const QTreeWidget*>(&object)) {
      for (int i = 0; i < tree->topLevelItemCount(); ++i)
        ReadEntry(*tree->topLevelItem(i));
    }
  }

  void ReadEntry(const QTreeWidgetItem& item) {
    for (int column = 0; column < item.columnCount(); ++column) {
      for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole})
        texts_.Add(item.data(column, role).toString().toStdString());
    }
    for (int i = 0; i < item.childCount(); ++i)
      ReadEntry(*item.child(i));
  }

  void ReadAccessible(QAccessibleInterface* seen) {
    if (!seen || !seen->isValid() || qobject_cast<QMenuBar*>(seen->object())) return;
    for (const auto kind : {QAccessible::Name, QAccessible::Description})
      texts_.Add(seen->text(kind).toStdString());
    for (int i = 0; i < std::min(seen->childCount(), kMostChildren); ++i)
      ReadAccessible(seen->child(i));
  }

  void Picture(QWidget& widget, const QString& after = {}) {
    const QString name = widget.objectName() + after;
    const bool growing = name == "HelpForm";  // its page is laid out bit by bit
    if (pictures_.empty() || widget.objectName().isEmpty() || growing) return;
    const std::string path = pictures_ + "/" + state_ + "-" + name.toStdString() + ".png";
    if (std::filesystem::exists(path)) return;
    for (int i = 0; i < 5; ++i)  // until layouts have settled
      QCoreApplication::processEvents();
    widget.grab().save(QString::fromStdString(path));
  }

  Texts& texts_;
  std::string pictures_;
  std::string state_;
  TurningDialogs dialogs_;
  NoPaper paper_;
  TurningFiles files_;
  TickingClock clock_{99};
  Session session_{clock_};
  MainWindow window_{session_, {&dialogs_, &paper_, &paper_, &files_}};
};

}  // namespace

void AddTextsOfWindow(Texts& texts, const std::string& pictures) {
  texts.Add(ProgramUsage());
  texts.Add(ParseProgramArguments({"a", "b"}).What);
  texts.Add(ParseProgramArguments({"--nonsense"}).What);
  for (const std::vector<std::string>& words :
       std::initializer_list<std::vector<std::string>>{{},
                                                       {"a.pdf", "b.pdf"},
                                                       {"a.pdf", "--per-page", "5"},
                                                       {"a.pdf", "--paper", "a0"},
                                                       {"a.pdf", "--steps"},
                                                       {"a.pdf", "--size", "99"},
                                                       {"a.pdf", "--title"}}) {
    std::vector<std::string> all = words;
    all.insert(all.begin(), "--sheets");
    const auto parsed = ParseSheetsArguments(all);
    if (const auto* why = std::get_if<std::string>(&parsed)) texts.Add(*why);
  }
  WindowReader(texts, pictures).Read();
}

}  // namespace numorra
