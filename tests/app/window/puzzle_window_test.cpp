#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QSpinBox>

#include "support/window_fixture.h"

namespace numorra {
namespace {

class PuzzleWindowTest : public WindowTest {
 protected:
  void Paste(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    Find<QAction>("Pastex").trigger();
  }
  void Trigger(const char* item) { Find<QAction>(item).trigger(); }
};

TEST_F(PuzzleWindowTest, FillsGapsInOneStep) {
  EXPECT_FALSE(Find<QAction>("FillGapsx").isEnabled());
  Paste("8 1 .\n. 5 .\n. . .");
  Trigger("CopyPuzzleCodex");
  Trigger("Pastex");
  EXPECT_TRUE(TheGrid().Given(1, 2));
  Trigger("Propertiesx");
  Trigger("Hintx");
  EXPECT_EQ(Find<QWidget>("RemarkBar").accessibleName(), "Look at row 1.");
  Trigger("Propertiesx");
  EXPECT_FALSE(TheGrid().Outlined().empty());
  Trigger("FillGapsx");
  EXPECT_TRUE(TheGrid().Outlined().empty());
  EXPECT_EQ(Rows(), ParseRows("8 1 6 / 3 5 7 / 4 9 2"));
  const Messages noCode = {
      "only puzzles of size 3 to 20 have a code: boards with gaps and numbers that break no rule"};
  Trigger("CopyPuzzleCodex");
  EXPECT_EQ(dialogs_.Take(), noCode);
  EXPECT_EQ(Find<QAction>("UndoMovex").text(), "&Undo Fill Gaps");
  Trigger("UndoMovex");
  EXPECT_EQ(TheGrid().Text(1, 3), "");
  EXPECT_FALSE(Find<QWidget>("SearchBar").isVisible());
  Make("SolveAuto", "21");
  QTest::keyClick(&window_.View(), Qt::Key_Backspace);
  Trigger("CopyPuzzleCodex");
  EXPECT_EQ(dialogs_.Take(), noCode);
  ExpectSettled();
}

/// A hint of several steps: the bar leads through them.
TEST_F(PuzzleWindowTest, HintsGoStepByStep) {
  Paste(". . . 5\n. . . .\n9 1 8 16\n. 7 2 .");
  const auto& bar = Find<QWidget>("RemarkBar");
  auto& back = Find<QAbstractButton>("RemarkBackx");
  auto& next = Find<QAbstractButton>("RemarkNextx");
  Trigger("Hintx");
  EXPECT_FALSE(next.isVisible());
  Trigger("Hintx");
  EXPECT_EQ(
      bar.accessibleName(),
      "1 of 2: Column 4 needs 13 for its two gaps, so row 4, column 4 can hold only 3 or 10.");
  EXPECT_FALSE(back.isEnabled());
  window_.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  QTest::keyClick(&window_.View(), Qt::Key_Right, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([&] { return back.isEnabled(); }))
      << "the button shows that it is down";
  EXPECT_EQ(bar.accessibleName(),
            "2 of 2: Row 4 needs 25 for its two gaps; row 4, column 4 can hold 3 or 10, so row 4, "
            "column 1 can hold only 15.");
  EXPECT_EQ(TheGrid().Outlined(), (std::vector<Place>{{4, 1}, {4, 2}, {4, 3}, {4, 4}}));
  EXPECT_FALSE(next.isEnabled());
  back.click();
  EXPECT_TRUE(next.isEnabled());
  Trigger("Hintx");
  EXPECT_EQ(TheGrid().Text(4, 1), "15");
  EXPECT_FALSE(back.isVisible());
  ExpectSettled();
}

/// Auto also builds one or two rows: nothing that can be done to them destroys the board.
TEST_F(PuzzleWindowTest, TinyBoardsAreHandledSafely) {
  Trigger("Propertiesx");
  for (const char* size : {"1", "2"}) {
    for (const bool gap : {false, true}) {
      Make("SolveAuto", size);
      Trigger("CheckTotalsx");
      if (gap) QTest::keyClick(&window_.View(), Qt::Key_Backspace);
      Type("Text1", "4");
      for (const char* item :
           {"Copyx", "Varyx", "Complementx", "StandardFormx", "EnterPuzzlex", "Hintx",
            "CheckEntriesx", "HideNumbersx", "PrintWorksheetx", "CopyPuzzleCodex", "EnterCodex",
            "StepByStepx", "FillGapsx", "UndoMovex", "RedoMovex", "DrawingNumbersx", "FitBoardx",
            "FitBoardx"}) {
        Trigger(item);
        for (auto* form : window_.findChildren<QDialog*>())
          form->close();
        QCoreApplication::processEvents();
        ExpectSettled();
      }
      dialogs_.Take();
    }
  }
}

/// Order 30 with a few numbers: the search takes several yields, and Stop ends it at once.
TEST_F(PuzzleWindowTest, StopEndsASearchAtOnce) {
  QString text;
  for (int row = 0; row < 30; ++row) {
    for (int column = 0; column < 30; ++column)
      text += column == (row + 1) % 30 ? QString::number(7 * row + 3) + ' ' : ". ";
    text += '\n';
  }
  Paste(text);
  const std::string before = TheGrid().Text(1, 1);
  auto& bar = Find<QWidget>("SearchBar");
  const auto searched = [&] { return bar.isVisible(); };
  EXPECT_TRUE(ActWithin([&] { Trigger("FillGapsx"); }, searched, [&] { Click("StopSearchx"); }));
  EXPECT_FALSE(bar.isVisible());
  EXPECT_EQ(TheGrid().Text(1, 3), "");
  EXPECT_EQ(TheGrid().Text(1, 1), before);
  ExpectSettled();
}

}  // namespace
}  // namespace numorra
