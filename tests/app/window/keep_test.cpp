#include <QCheckBox>
#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>

#include "app/board/position.h"
#include "support/window_fixture.h"

namespace numorra {
namespace {

/// A window that keeps what it is told to in a temporary folder, and others after it.
class KeepTest : public WindowTest {
 protected:
  explicit KeepTest(QTemporaryDir folder = {})
      : WindowTest({.Kept = {folder.filePath("settings/in"), folder.filePath("data")}}),
        folder_(std::move(folder)) {}

  /// Another start of the program, whether the first has ended or not.
  struct Another : WindowTest {
    explicit Another(const QTemporaryDir& folder)
        : WindowTest({.Kept = {folder.filePath("settings/in"), folder.filePath("data")}}) {}
    void TestBody() override {}
    using WindowTest::Find;
    using WindowTest::window_;
  };

  void Trigger(const char* action) { Find<QAction>(action).trigger(); }

  QStringList Files() {
    QStringList files;
    QDirIterator all(folder_.path(), QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext())
      files += QDir(folder_.path()).relativeFilePath(all.next());
    files.sort();
    return files;
  }

  void Overwrite(const char* name, const QByteArray& bytes) {
    QFile file(folder_.filePath(name));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(bytes);
  }

  /// Waits for the second after which a killed program has written what it had.
  bool Wrote(const char* text) {
    return QTest::qWaitFor([this, text] {
      QFile file(folder_.filePath("data/board.json"));
      return file.open(QFile::ReadOnly) && file.readAll().contains(text);
    });
  }

  QTemporaryDir folder_;
};

constexpr const char* kSettings = "settings/in/settings.ini";
constexpr const char* kBoard = "data/board.json";

TEST_F(KeepTest, NothingIsWrittenUnasked) {
  Make("SolveAuto", "5");
  for (const char* action : {"ZoomInx", "QuietTotalsx", "Propertiesx"})
    Trigger(action);
  window_.close();
  EXPECT_TRUE(QDir(folder_.path()).isEmpty());
}

TEST_F(KeepTest, AnotherWindowShowsWhatWasChosenUntilItIsUnticked) {
  Trigger("KeepSettingsx");
  EXPECT_EQ(Files(), QStringList{kSettings});
  for (const char* action :
       {"ZoomInx", "QuietTotalsx", "DrawingNumbersx", "NumberPadx", "Propertiesx", "FullScreenx"})
    Trigger(action);
  Trigger("PrintWorksheetx");
  Find<QComboBox>("PerPage").setCurrentText("2");
  Find<QLineEdit>("SheetTitle").setText("R\u00e4tsel, @ \"7\"");
  Find<QSpinBox>("Sheet_hard").setValue(9);
  for (const char* option : {"LargePrintx", "NameLinesx", "BookletMarginsx"})
    Click(option);
  Find<QDialog>("PrintWorksheet").close();
  window_.close();
  {
    Another next(folder_);
    EXPECT_EQ(next.window_.View().Zoom(), std::sqrt(2));
    EXPECT_FALSE(next.window_.View().Fitting());
    for (const char* action :
         {"QuietTotalsx", "DrawingNumbersx", "NumberPadx", "Propertiesx", "KeepSettingsx"})
      EXPECT_TRUE(next.Find<QAction>(action).isChecked()) << action;
    EXPECT_TRUE(next.window_.TheBoard().QuietTotals);
    EXPECT_FALSE(next.window_.TheBoard().Shown());
    next.Find<QAction>("PrintWorksheetx").trigger();
    EXPECT_EQ(next.Find<QComboBox>("PerPage").currentText(), "2");
    EXPECT_EQ(next.Find<QLineEdit>("SheetTitle").text(), "R\u00e4tsel, @ \"7\"");
    EXPECT_EQ(next.Find<QSpinBox>("Sheet_hard").value(), 9);
    for (const auto* box : next.Find<QWidget>("SheetOptions").findChildren<QCheckBox*>())
      EXPECT_EQ(box->isChecked(), !box->objectName().startsWith("Page"));
    next.Find<QAction>("KeepSettingsx").trigger();
  }
  EXPECT_EQ(Files(), QStringList());
  EXPECT_EQ(Another(folder_).window_.View().Zoom(), 1);
}

/// The first window does not end before the second begins, as if it had been killed.
TEST_F(KeepTest, TheBoardComesBackAfterAKill) {
  Trigger("KeepBoardx");
  EXPECT_FALSE(Another(folder_).window_.TheBoard().Shown());
  Make("SolveManual", "4");
  Trigger("EmptyBoardx");
  QTest::keyClicks(&window_.View(), "12");
  ASSERT_TRUE(Wrote("[12,")) << "not written";
  {
    Another next(folder_);
    EXPECT_EQ(PositionOf(next.window_.TheBoard()).Texts, PositionOf(window_.TheBoard()).Texts);
    EXPECT_EQ(next.window_.View().Zoom(), 1);
    next.Find<QAction>("KeepBoardx").trigger();
  }
  EXPECT_EQ(Files(), QStringList());
  dialogs_.Take();
}

TEST_F(KeepTest, DamagedFilesGiveTheUsualWindow) {
  Trigger("KeepSettingsx");
  Trigger("KeepBoardx");
  const std::pair<const char*, QByteArray> damages[] = {
      {kSettings, "\xff\xfe[View\nZoom"},
      {kSettings, "[View]\nZoom=1e300\nFitting=@Variant(\\0\\0\\0\\x7f\\xff)\nProperties=7, 8\n"},
      {kSettings, "[View]\nZoom=nan\n[Worksheet]\nSize=-3\nPerPage=5\n"},
      {kSettings, "[Worksheet]\nSize=4\nPerPage=5\nTotal=1e99\nhard=-1\nClues=x\n"},
      {kSettings, QByteArray(1 << 20, '=')},
      {kBoard, "{\"rows\": [[1"},
      {kBoard, "{\"rows\": [[1]]}"},
      {kBoard, QByteArray(2 << 20, '[')}};
  for (const auto& [file, bytes] : damages) {
    SCOPED_TRACE(bytes.left(60).toStdString());
    Overwrite(file, bytes);
    Another next(folder_);
    EXPECT_EQ(next.window_.View().Zoom(), 1);
    EXPECT_FALSE(next.window_.TheBoard().Shown());
    next.Find<QAction>("PrintWorksheetx").trigger();
    EXPECT_EQ(next.Find<QComboBox>("PerPage").currentText(), "6");
  }
}

/// What cannot be written is told, and the item stays unticked.
TEST_F(KeepTest, AFolderThatCannotBeMadeIsTold) {
  Overwrite("data", "a file in the way");
  Trigger("KeepBoardx");
  EXPECT_EQ(dialogs_.Take().size(), 1U);
  EXPECT_FALSE(Find<QAction>("KeepBoardx").isChecked());
}

}  // namespace
}  // namespace numorra
