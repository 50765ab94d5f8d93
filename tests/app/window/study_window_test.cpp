#include <QClipboard>
#include <QDockWidget>
#include <QTreeWidget>

#include "study/terms.h"
#include "support/window_fixture.h"

namespace numorra {
namespace {

class StudyWindowTest : public WindowTest {
 protected:
  QTreeWidgetItem* Entry(const char* name) {
    const auto found =
        Find<QTreeWidget>("PropertyTree").findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
    EXPECT_EQ(found.size(), 1) << name;
    return found.isEmpty() ? nullptr : found.front();
  }
  void Trigger(const char* item) { Find<QAction>(item).trigger(); }
  void Open() {
    Trigger("Propertiesx");
    QCoreApplication::processEvents();
  }
};

/// There is a line between an outlined cell and any other, and nowhere else.
TEST_F(StudyWindowTest, EvidenceIsOutlinedOnBoardAndDrawing) {
  Open();
  const auto lines = [](const QImage& picture, QRect around) {
    int found = 0;
    for (int y = around.top(); y <= around.bottom(); ++y) {
      for (int x = around.left(); x <= around.right(); ++x)
        found += picture.valid(x, y) && picture.pixelColor(x, y) == QColor(150, 30, 140) ? 1 : 0;
    }
    return found;
  };
  const std::tuple<const char*, const char*, std::size_t> cases[] = {
      {"8 1 6\n3 5 7\n4 9 2", "pandiagonal", 3},
      {"8 1 6\n8 5 7\n4 9 2", "normal", 2},
      {"8 1 6\n3 5 7\n4 9 3", "magic", 3}};
  for (const auto& [text, term, cells] : cases) {
    QGuiApplication::clipboard()->setText(text);
    Trigger("Pastex");
    dialogs_.Take();
    Find<QTreeWidget>("PropertyTree").setCurrentItem(Entry(term));
    const std::vector<Place>& outlined = TheGrid().Outlined();
    EXPECT_EQ(outlined.size(), cells);
    const auto marked = [&](int row, int column) {
      return std::find(outlined.begin(), outlined.end(), Place{row, column}) != outlined.end();
    };
    const QImage board = window_.View().viewport()->grab().toImage();
    for (int row = 1; row <= 3; ++row) {
      for (int column = 1; column <= 4; ++column) {
        const bool upright = marked(row, column - 1) != marked(row, column);
        const bool level = marked(column - 1, row) != marked(column, row);
        const QPoint left = window_.View().CellRect(row, column).topLeft();
        const QPoint top = window_.View().CellRect(column, row).topLeft();
        const int half = window_.View().CellRect(1, 1).width() / 2;
        EXPECT_EQ(lines(board, QRect(left + QPoint(-2, half), QSize(5, 1))) > 0, upright) << term;
        EXPECT_EQ(lines(board, QRect(top + QPoint(half, -2), QSize(1, 5))) > 0, level) << term;
      }
    }
  }
  Click("Command1");
  auto& drawing = Find<Drawing>("Picture1");
  const QImage drawn = drawing.grab().toImage();
  EXPECT_GT(lines(drawn, drawing.rect()), 100);
  EXPECT_EQ(lines(drawn, QRect(0, 0, drawing.width(), drawing.height() / 2)), 0) << "row 3";
}

TEST_F(StudyWindowTest, ThePanelFollowsTheBoardAndPointsAtEvidence) {
  auto& panel = Find<QDockWidget>("PropertiesPanel");
  EXPECT_FALSE(panel.isVisible());
  EXPECT_FALSE(Find<QAction>("Varyx").isEnabled());
  const QSize before = window_.size();
  Open();
  EXPECT_TRUE(panel.isVisible());
  EXPECT_GT(window_.width(), before.width());
  EXPECT_EQ(window_.height(), before.height());
  EXPECT_EQ(Find<QLabel>("PropertyEvidence").text(), "There is no board to study.");

  Trigger("LoShux");
  EXPECT_EQ(Entry("magic")->text(1), QString::fromUtf8("\u2713 holds"));
  EXPECT_EQ(Entry("compact")->text(1), QString::fromUtf8("\u2013 does not apply"));
  EXPECT_TRUE(Entry("famous")->text(1).startsWith("Lo Shu"));
  EXPECT_TRUE(Entry("census number")->isHidden());
  EXPECT_EQ(Entry("sum")->text(1), "15 in 8 of 8 lines");
  for (const Term& term : Terms())
    EXPECT_EQ(Entry(term.Name)->parent()->text(0), term.Group->Name);
  EXPECT_EQ(Entry("sum")->parent()->text(0), "The square");
  EXPECT_EQ(Entry("Lines")->text(1), "semi-magic, magic");
  EXPECT_EQ(Entry("Powers")->text(1), "none");
  auto& tree = Find<QTreeWidget>("PropertyTree");
  for (const char* group : {"Lines", "Digits and moves"})
    EXPECT_FALSE(Entry(group)->isExpanded());
  tree.setCurrentItem(Entry("Lines"));
  QTest::keyClick(&tree, Qt::Key_Right);

  Find<QTreeWidget>("PropertyTree").setCurrentItem(Entry("magic"));
  EXPECT_TRUE(TheGrid().Outlined().empty());
  ClickCell(3, 1);
  QTest::keyClicks(&window_.View(), "9");
  QTest::keyClick(&window_.View(), Qt::Key_Up);
  EXPECT_EQ(Entry("magic")->text(1), QString::fromUtf8("\u2717 fails"));
  EXPECT_EQ(TheGrid().Outlined(), (std::vector<Place>{{3, 1}, {3, 2}, {3, 3}}));
  EXPECT_TRUE(Find<QLabel>("PropertyEvidence").text().contains("row 3 adds up to 16, not 15"));
  EXPECT_EQ(Entry("magic")->data(0, Qt::AccessibleTextRole).toString(),
            "magic: fails, row 3 adds up to 16, not 15");
  Find<QTreeWidget>("PropertyTree").setCurrentItem(Entry("pandiagonal"));
  EXPECT_LT(panel.minimumSizeHint().width(), 2 * before.width() / 3) << "its text is wrapped";
  Click("CopyPropertiesx");
  EXPECT_TRUE(
      QGuiApplication::clipboard()->text().contains("\nprime: fails, 1 in row 3, column 2"));

  QTest::keyClick(&window_.View(), Qt::Key_Backspace);
  EXPECT_EQ(TheGrid().Outlined().size(), 0U);
  panel.close();
  Open();
  EXPECT_TRUE(Entry("Lines")->isExpanded()) << "what the reader opened stays open";
  EXPECT_FALSE(Entry("Digits and moves")->isExpanded());
  panel.close();
  EXPECT_FALSE(Find<QAction>("Propertiesx").isChecked());
  EXPECT_EQ(window_.size(), before);
}

/// Values are shown in full: a long one takes as many lines as it needs.
TEST_F(StudyWindowTest, LongValuesAreWrapped) {
  Open();
  Trigger("Melencoliax");
  auto& tree = Find<QTreeWidget>("PropertyTree");
  const int line = tree.visualItemRect(Entry("smallest")).height();
  for (const char* name : {"famous", "standard form", "census number"}) {
    const QRect place = tree.visualItemRect(Entry(name));
    const QString value = Entry(name)->text(1);
    const int width = tree.columnWidth(1) - 6;
    const QRect needed =
        tree.fontMetrics().boundingRect(QRect(0, 0, width, 9999), Qt::TextWordWrap, value);
    EXPECT_GE(place.height(), needed.height()) << name;
    EXPECT_LE(needed.width(), width + 6) << name;
  }
  EXPECT_GT(tree.visualItemRect(Entry("famous")).height(), 2 * line);
}

TEST_F(StudyWindowTest, FullScreenHidesThePanelAndBringsItBack) {
  Open();
  Trigger("FullScreenx");
  EXPECT_FALSE(Find<QDockWidget>("PropertiesPanel").isVisible());
  Trigger("FullScreenx");
  EXPECT_TRUE(Find<QDockWidget>("PropertiesPanel").isVisible());
  EXPECT_TRUE(Find<QAction>("Propertiesx").isChecked());
}

TEST_F(StudyWindowTest, SquaresAreLaidOutToPlayOn) {
  const std::pair<const char*, int> menus[] = {{"Famousx", 0}, {"Constructx", 2}, {"Specialx", 2}};
  for (const auto& [menu, which] : menus) {
    Make("SolveAuto", "4");
    EXPECT_FALSE(Find<QAction>("redox").isEnabled());
    Find<QLineEdit>("Text1").setFocus();
    Find<QMenu>(menu).actions().at(which)->trigger();
    EXPECT_TRUE(Find<QRadioButton>("Option4").isChecked()) << menu;
    EXPECT_TRUE(Find<QAction>("redox").isEnabled()) << menu;
    EXPECT_EQ(window_.focusWidget(), &window_.View()) << menu;
  }
}

TEST_F(StudyWindowTest, RelativesAreCommandsLikeOthers) {
  Type("Text1", "8");
  Trigger("MostPerfectx");
  const slow::Rows built = Rows();
  EXPECT_EQ(slow::WhyNotNormal(built), "");
  for (const char* item : {"Varyx", "Complementx", "StandardFormx"}) {
    const slow::Rows last = Rows();
    Trigger(item);
    EXPECT_NE(Rows(), last) << item;
    EXPECT_EQ(slow::WhyNotNormal(Rows()), "") << item;
  }
  for (int step = 0; step < 3; ++step)
    Trigger("UndoMovex");
  EXPECT_EQ(Rows(), built);
  EXPECT_EQ(Find<QAction>("UndoMovex").text(), "&Undo Most-perfect");
  ExpectSettled();
}

}  // namespace
}  // namespace numorra
