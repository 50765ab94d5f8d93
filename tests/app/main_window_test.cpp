#include "app/main_window.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QMessageBox>
#include <QMimeData>
#include <QTimer>

#include "support/window_fixture.h"

namespace numorra {
namespace {

TEST_F(WindowTest, OpensWithAProposalAndNoBoard) {
  const double size = Find<QLineEdit>("Text1").text().toDouble();
  EXPECT_GE(size, 3);
  EXPECT_LE(size, 14);
  EXPECT_EQ(SumBox(), std::to_string(static_cast<int>(size * (size * size + 1) / 2)));
  EXPECT_FALSE(TheGrid().Visible());
  EXPECT_FALSE(window_.TheBoard().Shown());
  EXPECT_FALSE(Find<QLineEdit>("Text4").isEnabled());
  EXPECT_EQ(window_.windowTitle(), "Numorra");
}

TEST_F(WindowTest, AutoShowsANormalSquareOfEverySize) {
  for (int size = 3; size <= 50; ++size) {
    Type("Text1", std::to_string(size).c_str());
    Click("SolveAuto");
    ASSERT_EQ(slow::WhyNotNormal(Rows()), "") << size;
    const std::string total = std::to_string(size * (size * size + 1) / 2);
    EXPECT_EQ(SumBox(), total);
    for (int line = 0; line <= size + 1; ++line) {
      EXPECT_EQ(TheGrid().Text(line, 0), total);
      EXPECT_EQ(TheGrid().Text(0, line), total);
    }
    EXPECT_FALSE(TheGrid().RedrawLocked());
    EXPECT_TRUE(Find<QPushButton>("SolveAuto").isVisible());
    EXPECT_FALSE(Find<QLabel>("IterationCount").isVisible());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  }
}

TEST_F(WindowTest, AutoRefusesSizesItCannotBuildAndKeepsTheBoard) {
  Type("Text1", "5");
  Click("SolveAuto");
  const auto before = Rows();
  const std::pair<const char*, const char*> cases[] = {
      {"51", "grid size should be 50x50 or smaller"},
      {"99999", "grid size should be 50x50 or smaller"},
      {"0", "Invalid property value"},
      {"", "Invalid property value"},
      {"-3", "Invalid property value"},
      {"-99999", "Overflow"}};
  for (const auto& [size, message] : cases) {
    Type("Text1", size);
    Click("SolveAuto");
    EXPECT_EQ(dialogs_.Take(), std::vector<std::string>{message}) << size;
    EXPECT_EQ(Rows(), before);
    EXPECT_EQ(window_.TheBoard().GridSize, 5);
    EXPECT_TRUE(Find<QPushButton>("SolveAuto").isVisible());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  }
}

TEST_F(WindowTest, TheSumFollowsTheSizeInTheNormalModeAlone) {
  Type("Text1", "4");
  EXPECT_EQ(SumBox(), "34");
  Click("Option4");
  EXPECT_TRUE(Find<QLineEdit>("Text4").isEnabled());
  EXPECT_EQ(SumBox(), "34");
  Type("Text1", "5");
  EXPECT_EQ(SumBox(), "34");
  Click("Option3");
  EXPECT_EQ(SumBox(), "65");
}

TEST_F(WindowTest, SymmetriesAreRecordedAndRepeated) {
  struct Case {
    const char* item;
    const char* tag;
    const char* caption;
  };
  const Case cases[] = {{"flipvx", "9", "Flip vertical"},     {"fliphx", "10", "Flip horizontal"},
                        {"flipd1x", "11", "Flip diagonal 1"}, {"flipd2x", "12", "Flip diagonal 2"},
                        {"rot90x", "13", "Rotate 90d"},       {"rot180x", "14", "Rotate 180d"},
                        {"rot270x", "15", "Rotate 270d"}};
  auto& redox = Find<QAction>("redox");
  Type("Text1", "4");
  Click("SolveAuto");
  const auto first = Rows();
  EXPECT_EQ(redox.text(), "Redo last command");
  Choose("redox");
  EXPECT_EQ(Rows(), first) << "nothing to repeat yet";
  for (const Case& c : cases) {
    const auto before = Rows();
    Choose(c.item);
    const auto once = Rows();
    EXPECT_NE(once, before) << c.item;
    EXPECT_EQ(redox.property("tag"), c.tag);
    EXPECT_EQ(redox.text(), c.caption);
    Choose("redox");
    if (std::string(c.item) == "rot90x" || std::string(c.item) == "rot270x") {
      EXPECT_NE(Rows(), before);
    } else {
      EXPECT_EQ(Rows(), before) << "its own inverse";
    }
    const auto kept = Rows();
    Choose("transx");
    EXPECT_EQ(Rows(), kept);
    EXPECT_EQ(redox.text(), c.caption) << "Transpose records nothing";
  }
}

TEST_F(WindowTest, TheClipboardTakesAndGivesTheBoard) {
  Find<QAction>("Copyx").trigger();
  Type("Text1", "50");
  Click("SolveAuto");
  const auto square = Rows();
  Find<QAction>("Copyx").trigger();
  const auto* copied = QGuiApplication::clipboard()->mimeData();
  EXPECT_EQ(copied->text().count('\t'), 50 * 49);
  EXPECT_EQ(qvariant_cast<QImage>(copied->imageData()).width(),
            window_.View().CellRect(0, 52).left());
  Click("SolveManual");
  dialogs_.Take();
  Find<QAction>("Pastex").trigger();
  EXPECT_EQ(dialogs_.Take(), std::vector<std::string>{"WELL DONE, YOU GOT IT"});
  EXPECT_EQ(Rows(), square);
  EXPECT_TRUE(Find<QRadioButton>("Option4").isChecked());
  EXPECT_EQ(SumBox(), "62525");
  QGuiApplication::clipboard()->setText("no square");
  Find<QAction>("Pastex").trigger();
  EXPECT_EQ(dialogs_.Take().size(), 1U);
  EXPECT_EQ(Rows(), square);
}

TEST(RealBoxes, ShowTheMessageUnderTheApplicationTitle) {
  MainWindow window;
  window.show();
  window.findChild<QLineEdit*>("Text1")->setText("51");
  QString shown;
  QTimer::singleShot(0, &window, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    shown = box->windowTitle() + ": " + box->text();
    box->accept();
  });
  QTest::mouseClick(window.findChild<QPushButton*>("SolveAuto"), Qt::LeftButton);
  EXPECT_EQ(shown, "Numorra: grid size should be 50x50 or smaller");
}

}  // namespace
}  // namespace numorra
