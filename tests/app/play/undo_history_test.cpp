#include "app/play/undo_history.h"

#include "support/invariants.h"
#include "support/play_harness.h"

namespace numorra {
namespace {

class UndoHistoryTest : public PlayTest {
 protected:
  UndoHistoryTest() {
    watch_.Listen([this](const CommandResult& result) { undo_.Note(result); });
  }

  template <class Command>
  void Run(const std::string& name, Command command) {
    watch_.Begin();
    command();
    watch_.End(name);
  }

  void Type(const char* keys) {
    for (; *keys; ++keys)
      Run(UndoHistory::kTyping, [&] { entry_.TypeCharacter(static_cast<char32_t>(*keys)); });
  }

  void Undo() {
    Run("Undo", [this] { undo_.Undo(board_); });
  }
  void Redo() {
    Run("Redo", [this] { undo_.Redo(board_); });
  }
  std::string Names() {
    return (undo_.CanUndo() ? undo_.UndoName() : "-") + "/" +
           (undo_.CanRedo() ? undo_.RedoName() : "-");
  }

  BoardWatch watch_{board_};
  UndoHistory undo_;
};

TEST_F(UndoHistoryTest, GroupsOnlyTheDigitsOfOneCell) {
  Show("1 2 3 / 4 5 6 / 7 8 9");
  Run("Rotate 90d", [this] { Do("rot90x"); });
  Type("x");
  Type("12");
  EXPECT_EQ(At(1, 1), "12");
  Run("move", [this] { Go(1, 2); });
  Type("3");
  Run("move", [this] { Go(1, 1); });
  Run("move", [this] { Go(1, 2); });
  Type("45");
  const char* const back[] = {"3", "4", "4", "2"};
  for (const char* text : back) {
    EXPECT_EQ(WhyInvalid(board_), "");
    Undo();
    EXPECT_EQ(At(1, 2), text) << Names();
  }
  EXPECT_EQ(Names(), "-/Rotate 90d");
  Undo();
  Redo();
  Type("9");
  EXPECT_EQ(Names(), "typing/-") << "a new step drops what could be done again";
  Undo();
  EXPECT_EQ(Names(), "Rotate 90d/typing");
  Type("7");
  Type("8");
  Undo();
  EXPECT_EQ(At(1, 1), "7") << "not taken together with what was undone";
}

TEST_F(UndoHistoryTest, ChecksMovesAndRefusalsAreNoStepsButComeBack) {
  Show("1 2 3 / 4 5 6 / 7 8 9");
  Run("check", [this] { entry_.PressEnter(); });
  Run("move", [this] { Go(2, 2); });
  Run("correct diagnonal", [this] { Go(1, 2), Do("correctdiagx"); });
  EXPECT_EQ(dialogs_.Take().size(), 1U);
  EXPECT_EQ(Names(), "-/-");
  Undo();
  Redo();
  EXPECT_EQ(ShownRows(board_.grid), ParseRows("1 2 3 / 4 5 6 / 7 8 9"));
  Run("move", [this] { Go(1, 1); });
  Type("2\b1");
  EXPECT_EQ(Names(), "-/-") << "typed back to what was there";
  Run("Rotate 90d", [this] { Do("rot90x"); });
  Run("move", [this] { Go(3, 3); });
  Undo();
  EXPECT_EQ(Where(), (std::pair{1, 1}));
  Redo();
  EXPECT_EQ(Where(), (std::pair{3, 3}));
}

TEST_F(UndoHistoryTest, KeepsTheLastFiveHundredSteps) {
  std::string flat;
  for (int row = 0; row < 50; ++row)
    flat +=
        "1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 "
        "1 1 1 1 1 /";
  Show(flat.substr(0, flat.size() - 2), 100, 2);
  constexpr int kSteps = 1200;
  for (int step = 0; step < kSteps; ++step)
    Run("step", [this, step] { board_.grid.SetText(1, 1, std::to_string(step)); });
  int undone = 0;
  for (; undo_.CanUndo(); ++undone)
    Undo();
  EXPECT_EQ(undone, static_cast<int>(UndoHistory::kMostSteps));
  EXPECT_EQ(At(1, 1), std::to_string(kSteps - undone - 1));
}

}  // namespace
}  // namespace numorra
