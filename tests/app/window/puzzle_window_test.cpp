#include <QClipboard>
#include <QTimer>

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
  Trigger("FillGapsx");
  EXPECT_EQ(Rows(), ParseRows("8 1 6 / 3 5 7 / 4 9 2"));
  EXPECT_EQ(Find<QAction>("UndoMovex").text(), "&Undo Fill Gaps");
  Trigger("UndoMovex");
  EXPECT_EQ(TheGrid().Text(1, 3), "");
  EXPECT_FALSE(Find<QWidget>("SearchBar").isVisible());
  ExpectSettled();
}

/// Order 10, a dozen numbers: the search takes its seconds, and Stop ends it at once.
TEST_F(PuzzleWindowTest, StopEndsASearchAtOnce) {
  QString text;
  for (int row = 0; row < 10; ++row) {
    for (int column = 0; column < 10; ++column)
      text += column == (row + 1) % 10 ? QString::number(7 * row + 3) + ' ' : ". ";
    text += '\n';
  }
  Paste(text);
  const std::string before = TheGrid().Text(1, 1);
  auto& bar = Find<QWidget>("SearchBar");
  bool shown = false;
  QTimer::singleShot(100, &window_, [&] {
    shown = bar.isVisible();
    Click("StopSearchx");
  });
  Trigger("FillGapsx");
  EXPECT_TRUE(shown);
  EXPECT_FALSE(bar.isVisible());
  EXPECT_EQ(TheGrid().Text(1, 3), "");
  EXPECT_EQ(TheGrid().Text(1, 1), before);
  ExpectSettled();
}

}  // namespace
}  // namespace numorra
