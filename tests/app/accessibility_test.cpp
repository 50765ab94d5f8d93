#include <gtest/gtest.h>
#include <set>

#include <QAccessible>

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
  Click("Option4");
  Type("Text1", "3");
  Type("Text4", "18");
  Click("SolveManual");
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
  Choose("correctrowx", 1, 1);
  EXPECT_EQ(Cell(1, 0), "total of row 1, 18, right");
  Click("SolveAuto");
  EXPECT_EQ(Cell(1, 0), "total of row 1, 18");
  auto* table = QAccessible::queryAccessibleInterface(&window_.View());
  EXPECT_EQ(table->childCount(), 25);
  EXPECT_EQ(table->child(8)->text(QAccessible::Name), Cell(1, 3));
  EXPECT_EQ(table->indexOfChild(table->child(8)), 8);
}

/// Whatever takes the keyboard has a name, and a mnemonic where it is a button.
TEST_F(AccessibilityTest, EveryControlHasAName) {
  std::set<QString> mnemonics;
  for (QWidget* widget : window_.centralWidget()->findChildren<QWidget*>()) {
    if (!(widget->focusPolicy() & Qt::TabFocus)) continue;
    const auto* interface = QAccessible::queryAccessibleInterface(widget);
    ASSERT_NE(interface, nullptr);
    EXPECT_NE(interface->text(QAccessible::Name), "") << widget->objectName().toStdString();
    if (const auto* button = qobject_cast<QAbstractButton*>(widget)) {
      const QString key = button->shortcut().toString();
      EXPECT_NE(key, "") << button->text().toStdString();
      EXPECT_TRUE(mnemonics.insert(key).second) << key.toStdString() << " twice";
    }
  }
  EXPECT_GT(mnemonics.size(), 10U);
}

}  // namespace
}  // namespace numorra
