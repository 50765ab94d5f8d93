#include <gtest/gtest.h>
#include <set>

#include <QAccessible>
#include <QMenuBar>
#include <QSignalSpy>

#include "support/window_fixture.h"

namespace numorra {
namespace {

class AccessibilityTest : public WindowTest {
 protected:
  QString Cell(int row, int column, QAccessible::Text kind = QAccessible::Name) {
    auto* table = QAccessible::queryAccessibleInterface(&window_.View());
    auto* cell = table->tableInterface()->cellAt(row, column);
    return cell ? cell->text(kind) : "none";
  }
};

TEST_F(AccessibilityTest, TheBoardIsReadCellByCell) {
  EXPECT_EQ(Cell(1, 1), "none");
  Make("SolveManual", "3", "18");
  const std::pair<std::pair<int, int>, const char*> cells[] = {
      {{2, 3}, "row 2, column 3, value 7"},
      {{2, 0}, "total of row 2, 21, wrong"},
      {{0, 3}, "total of column 3, 21, wrong"},
      {{0, 0}, "total of main diagonal, 21, wrong"},
      {{4, 0}, "total of other diagonal, 21, wrong"},
      {{0, 4}, "total of other diagonal, 21, wrong"},
      {{4, 4}, "frame"},
      {{5, 0}, "none"}};
  for (const auto& [place, name] : cells)
    EXPECT_EQ(Cell(place.first, place.second), name);
  EXPECT_EQ(Cell(2, 3, QAccessible::Value), "7");
  EXPECT_EQ(Cell(2, 3, QAccessible::Description),
            "total of row 2, 21, wrong; total of column 3, 21, wrong");
  Choose("correctrowx", 1, 1);
  EXPECT_EQ(Cell(1, 0), "total of row 1, 18, right");
  Click("SolveAuto");
  EXPECT_EQ(Cell(1, 0), "total of row 1, 18");
  auto* table = QAccessible::queryAccessibleInterface(&window_.View());
  EXPECT_EQ(table->childCount(), 25);
  EXPECT_EQ(table->child(8)->text(QAccessible::Name), Cell(1, 3));
  EXPECT_EQ(table->indexOfChild(table->child(8)), 8);
  const auto* cell = table->child(8)->tableCellInterface();
  EXPECT_EQ(
      std::tuple(cell->rowIndex(), cell->columnIndex(), cell->rowExtent(), cell->columnExtent()),
      std::tuple(1, 3, 1, 1));
}

TEST_F(AccessibilityTest, EveryCellIsFoundByIndexPlaceAndPoint) {
  auto* board = QAccessible::queryAccessibleInterface(&window_.View());
  auto* table = board->tableInterface();
  EXPECT_EQ(board->childCount() + table->selectedCellCount(), 0);
  EXPECT_TRUE(table->selectedCells().isEmpty());
  Make("SolveManual", "3", "15");
  ClickCell(2, 3);
  ClickCell(2, 4);
  for (int line = 0; line < 5; ++line) {
    for (int column = 0; column < 5; ++column) {
      auto* cell = table->cellAt(line, column);
      const QPoint at = cell->rect().center();
      EXPECT_EQ(board->childAt(at.x(), at.y()), cell) << line << ", " << column;
      EXPECT_EQ(board->child(5 * line + column), cell);
      EXPECT_TRUE(cell->isValid() && cell->childCount() == 0 && cell->parent() == board);
      const bool current = line == 2 && column == 3;
      EXPECT_EQ(cell->state().selected, current);
      EXPECT_EQ(cell->state().focused, current);
      EXPECT_EQ(cell->state().readOnly, line == 0 || column == 0);
    }
    EXPECT_FALSE(table->isRowSelected(line) || table->isColumnSelected(line));
    EXPECT_EQ(table->rowDescription(line), QString::number(line));
    EXPECT_EQ(table->columnDescription(line), QString::number(line));
  }
  EXPECT_EQ(table->selectedCells(), QList{table->cellAt(2, 3)});
  EXPECT_EQ(table->selectedCellCount(), 1);
  EXPECT_EQ(board->focusChild(), table->cellAt(2, 3));
  EXPECT_EQ(Cell(2, 4), "marked for a swap");
  for (const auto& [row, column] : {std::pair(-1, 0), {0, -1}, {5, 0}, {0, 5}})
    EXPECT_EQ(table->cellAt(row, column), nullptr);
  EXPECT_EQ(board->child(-1), nullptr);
  EXPECT_EQ(board->child(25), nullptr);
  auto* last = table->cellAt(4, 4);
  Make("SolveAuto", "2");
  EXPECT_FALSE(last->isValid());
}

TEST_F(AccessibilityTest, TheCurrentCellIsReadAloudWhereverTheKeysGo) {
  Make("SolveManual", "5", "25");
  QCoreApplication::processEvents();
  QSignalSpy told(&window_.View(), &GridView::CurrentCellShown);
  const std::pair<Qt::Key, QVariantList> keys[] = {
      {Qt::Key_Right, {true}}, {Qt::Key_9, {false}}, {Qt::Key_Up, {true}}, {Qt::Key_Escape, {}}};
  for (const auto& [key, another] : keys) {
    QTest::keyClick(&window_.View(), key);
    QCoreApplication::processEvents();
    EXPECT_EQ(told.isEmpty() ? QVariantList() : told.takeFirst(), another) << key;
    EXPECT_TRUE(told.isEmpty());
  }
}

/// Everything that can have the keyboard has a name; no two mnemonics are the same, including those
/// of menus.
TEST_F(AccessibilityTest, EveryControlHasANameAndAMnemonicOfItsOwn) {
  using Keys = std::map<QString, QString>;
  const auto take = [](Keys& keys, const QString& key, const QString& text) {
    const auto [taken, isNew] = keys.try_emplace(key, text);
    EXPECT_TRUE(isNew) << taken->second.toStdString() << " and " << text.toStdString()
                       << " have the same letter";
  };
  Keys mnemonics;
  const auto note = [&](const QString& key, const QString& text) {
    EXPECT_NE(key, "") << text.toStdString();
    take(mnemonics, key, text);
  };
  for (const QAction* menu : window_.menuBar()->actions()) {
    note(QKeySequence::mnemonic(menu->text()).toString(), menu->text());
    Keys letters;
    for (const QAction* item : menu->menu()->actions()) {
      const QString letter = QKeySequence::mnemonic(item->text()).toString();
      if (!letter.isEmpty()) take(letters, letter, item->text());
    }
  }
  for (QWidget* widget : window_.centralWidget()->findChildren<QWidget*>()) {
    if (const auto* button = qobject_cast<QAbstractButton*>(widget)) {
      const bool bars = button->toolTip() == "Esc";  // the bars use that key
      if (!bars) note(button->shortcut().toString(), button->text());
    } else if (const auto* label = qobject_cast<QLabel*>(widget); label && label->buddy()) {
      note(QKeySequence::mnemonic(label->text()).toString(), label->text());
    }
    if (!(widget->focusPolicy() & Qt::TabFocus)) continue;
    const auto* interface = QAccessible::queryAccessibleInterface(widget);
    ASSERT_NE(interface, nullptr);
    EXPECT_NE(interface->text(QAccessible::Name), "") << widget->objectName().toStdString();
  }
  EXPECT_GT(mnemonics.size(), 15U);
}

}  // namespace
}  // namespace numorra
