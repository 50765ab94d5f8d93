#include <QAbstractScrollArea>
#include <QAccessible>
#include <QClipboard>

#include "app/play/puzzle_aids.h"
#include "support/window_fixture.h"

namespace numorra {
namespace {

class NotesWindowTest : public WindowTest {
 protected:
  void Paste(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    Find<QAction>("Pastex").trigger();
    QCoreApplication::processEvents();
  }
  void Trigger(const char* item) {
    auto& action = Find<QAction>(item);
    EXPECT_TRUE(action.isEnabled()) << item;
    action.trigger();
    QCoreApplication::processEvents();
  }
  void Press(const QString& keys) {
    for (const QChar key : keys) {
      const int code = key == '|' ? Qt::Key_Space : key == '\n' ? Qt::Key_Return : 0;
      code ? QTest::keyClick(&window_.View(), static_cast<Qt::Key>(code))
           : QTest::keyClicks(&window_.View(), key);
    }
    QCoreApplication::processEvents();
  }
  QString Spoken(int row, int column) {
    auto* table = QAccessible::queryAccessibleInterface(&window_.View())->tableInterface();
    return table->cellAt(row, column)->text(QAccessible::Name);
  }
  std::string Enabled() {
    std::string enabled;
    for (const char* item : {"Notesx", "FillNotesx", "ClearNotesx", "LastRightx"})
      enabled += Find<QAction>(item).isEnabled() ? *item : '-';
    return enabled;
  }
  /// How the cell is painted, and how much of that is dark.
  QImage Painted(int row, int column) {
    return window_.View().viewport()->grab(window_.View().CellRect(row, column)).toImage();
  }
  int Ink(int row, int column) {
    const QImage cell = Painted(row, column);
    int dark = 0;
    for (int y = 2; y < cell.height() - 3; ++y) {
      for (int x = 2; x < cell.width() - 3; ++x)
        dark += cell.pixelColor(x, y).lightness() < 150;
    }
    return dark;
  }
};

TEST_F(NotesWindowTest, NotesAreTypedReadAndTakenBack) {
  EXPECT_EQ(Enabled(), "----");
  Make("SolveAuto", "4");
  EXPECT_EQ(Enabled(), "----");
  Paste("4 . . 16\n. . . .\n. . . .\n1 . . 13");
  EXPECT_EQ(Enabled(), "NF--");
  ClickCell(2, 2);
  EXPECT_EQ(Ink(2, 3), 0);
  QTest::keyClick(&window_.View(), Qt::Key_N, Qt::ControlModifier);
  EXPECT_TRUE(Find<QAction>("Notesx").isChecked());
  Press("2|12\n7");
  EXPECT_EQ(Spoken(2, 2), "row 2, column 2, empty, notes 2, 7, 12");
  EXPECT_EQ(Enabled(), "NFC-");
  EXPECT_EQ(Find<QAction>("UndoMovex").text(), "&Undo note");
  Press("\n");
  EXPECT_EQ(TheGrid().CurrentRow(), 2) << "Enter ends the number first";
  Press("\n");
  EXPECT_EQ(TheGrid().CurrentRow(), 3);
  EXPECT_GT(Ink(2, 2), 0);
  Trigger("FillNotesx");
  EXPECT_EQ(Spoken(2, 2), "row 2, column 2, empty, notes 2 to 3, 5 to 12, 14 to 15");
  const QImage all = Painted(2, 2);
  Trigger("ClearNotesx");
  EXPECT_NE(Painted(2, 2), all);
  EXPECT_EQ(Ink(2, 2), 0);
  Trigger("FillGapsx");
  dialogs_.Take();
  EXPECT_FALSE(Find<QAction>("Notesx").isChecked()) << "no gap is left";
  EXPECT_EQ(Enabled(), "----");
  ExpectSettled();
}

TEST_F(NotesWindowTest, MissingNumbersStandBelowThePuzzle) {
  const auto& panel = Find<QFrame>("MissingNumbers");
  const auto& strip = Find<QAbstractScrollArea>("NumberStrip");
  const QSize size = window_.size();
  EXPECT_FALSE(panel.isVisible());
  Paste("NP12S3W04");  // . . . / . 5 . / 2 9 .
  EXPECT_TRUE(panel.isVisible());
  EXPECT_EQ(panel.accessibleName(), "Missing: 6 of 6 numbers");
  const QRect place = panel.geometry();
  ClickCell(1, 1);
  Press("7");
  EXPECT_EQ(strip.accessibleDescription(), "1, 3 to 4, 6, 8");
  Trigger("Notesx");
  EXPECT_EQ(panel.accessibleName(),
            "Missing: 5 of 6 numbers. Digits write notes (Ctrl+N ends this)");
  EXPECT_EQ(panel.geometry(), place) << "nothing jumps";
  EXPECT_EQ(window_.size(), size);
  Trigger("StepByStepx");
  EXPECT_FALSE(panel.isVisible()) << "the walk is of another square";
  Trigger("StepByStepx");
  EXPECT_TRUE(panel.isVisible());
  Trigger("FillGapsx");
  EXPECT_TRUE(dialogs_.Take().size() == 1 && panel.isVisible());
  QString large;
  for (int cell = 0; cell < 900; ++cell)
    large += cell % 30 == 29 ? ".\n" : ". ";
  Paste(large);
  EXPECT_TRUE(panel.accessibleName().startsWith("Missing: 900 of 900 numbers"));
  EXPECT_LT(panel.height(), window_.height() / 5);
  EXPECT_EQ(strip.focusPolicy(), Qt::TabFocus) << "it scrolls";
  EXPECT_EQ(window_.size(), size);
  Make("SolveManual", "4", "34");
  EXPECT_FALSE(panel.isVisible());
}

TEST_F(NotesWindowTest, EqualNumbersAreMarkedAndTheWayBackIsTold) {
  Paste("NP12S3W04");
  ClickCell(1, 1);
  const QImage given = Painted(2, 2);
  const QImage other = Painted(3, 1);
  Press("5");
  EXPECT_EQ(Spoken(1, 1), "row 1, column 1, value 5, more than once");
  EXPECT_EQ(Spoken(2, 2), "row 2, column 2, value 5, given, more than once");
  EXPECT_EQ(Painted(3, 1), other);
  EXPECT_GT(Ink(2, 2), 0);
  EXPECT_NE(Painted(2, 2), given);
  Press("\n6");
  Trigger("LastRightx");
  EXPECT_EQ(Find<QWidget>("RemarkBar").accessibleName(),
            "The board is as it was before 5 in row 1, column 1, which cannot stay.");
  EXPECT_EQ(TheGrid().Outlined(), (std::vector<Place>{{1, 1}}));
  EXPECT_EQ(TheGrid().Text(1, 1) + TheGrid().Text(2, 1), "");
  Click("CloseRemarkx");
  EXPECT_EQ(Painted(2, 2), given);
  Trigger("RedoMovex");
  EXPECT_EQ(TheGrid().Text(1, 1), "5");
}

TEST_F(NotesWindowTest, QuietTotalsSayNothingBeforeTheEnd) {
  EXPECT_FALSE(Find<QAction>("QuietTotalsx").isChecked());
  Paste("8 1 6\n3 5 7\n4 . 2");
  EXPECT_EQ(Spoken(1, 0), "total of row 1, 15, right");
  Trigger("QuietTotalsx");
  EXPECT_EQ(Spoken(1, 0), "total of row 1, 15");
  EXPECT_EQ(Spoken(0, 2), "total of column 2, 6");
  ClickCell(3, 2);
  Press("8\n");
  EXPECT_EQ(Spoken(1, 0), "total of row 1, 15, right");
  EXPECT_EQ(Spoken(0, 2), "total of column 2, 14, wrong");
  Trigger("UndoMovex");
  EXPECT_EQ(Spoken(0, 2), "total of column 2, 6");
  Trigger("QuietTotalsx");
  EXPECT_EQ(Spoken(0, 2), "total of column 2, 6, wrong");
  ExpectSettled();
}

}  // namespace
}  // namespace numorra
