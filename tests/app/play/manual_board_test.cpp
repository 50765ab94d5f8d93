#include "app/play/manual_board.h"

#include "support/play_harness.h"
#include "support/solve_harness.h"

namespace numorra {
namespace {

TEST(ManualBoard, StartsEveryCellAboveItsShare) {
  SolveHarness h;
  CellEntry entry(h.TheBoard, h.TheDialogs);
  h.Boxes = PlainBoxes("3", "15");
  BuildManualBoard(h.Context(), h.Stage);
  EXPECT_EQ(h.TheBoard.BaseValue, 5);
  EXPECT_EQ(h.TheBoard.Asked, Rules::Positive);
  EXPECT_EQ(ShownRows(h.TheBoard.grid), slow::Rows(3, {6, 6, 6}));
  for (const auto& [r, c] : {std::pair{1, 0}, {0, 3}, {0, 0}, {0, 4}, {4, 0}}) {
    EXPECT_EQ(h.TheBoard.grid.Text(r, c), "18");
    EXPECT_EQ(h.TheBoard.grid.Background(r, c), ColorTable[kWrongTotal]);
  }
  EXPECT_EQ(h.TheBoard.grid.CurrentRow(), 1);
  EXPECT_FALSE(h.Stage.Busy);

  h.Boxes = PlainBoxes("4", "5");
  BuildManualBoard(h.Context(), h.Stage);
  EXPECT_EQ(h.Boxes.SumText, " 8");
  EXPECT_EQ(h.TheBoard.BaseValue, 2);
  EXPECT_EQ(h.TheBoard.TargetTotal, 8);
  EXPECT_EQ(h.TheBoard.grid.Text(4, 4), "3");

  h.TheBoard.SolveMode = ModeNormal;
  h.TheBoard.CellFlags(2, 2) = 7;
  h.Boxes = PlainBoxes("3", "15");
  BuildManualBoard(h.Context(), h.Stage);
  EXPECT_EQ(ShownRows(h.TheBoard.grid), ParseRows("1 2 3 / 4 5 6 / 7 8 9"));
  EXPECT_EQ(h.TheBoard.CellFlags(2, 2), 0);
  EXPECT_EQ(h.TheBoard.Asked, Rules::Normal);
  EXPECT_EQ(h.TheBoard.grid.Background(0, 0), ColorTable[kRightTotal]);
  EXPECT_EQ(h.TheBoard.grid.Background(1, 0), ColorTable[kWrongTotal]);
}

TEST(ManualBoard, RefusesAndKeepsWhatWas) {
  SolveHarness h;
  const auto manual = [&h](const char* size, const char* sum) {
    h.Boxes = PlainBoxes(size, sum);
    BuildManualBoard(h.Context(), h.Stage);
    return h.TheDialogs.Take();
  };
  manual("3", "15");
  for (const char* size : {"2", "", "0", "-7", "51"}) {
    const char* bound = size == std::string("51") ? "50x50 or smaller" : "3x3 or bigger";
    EXPECT_EQ(manual(size, "3000"), Messages{std::string("grid size should be ") + bound});
    EXPECT_EQ(h.Boxes.SumText, "3000");
    EXPECT_EQ(ShownRows(h.TheBoard.grid), slow::Rows(3, {6, 6, 6}));
  }
  EXPECT_EQ(manual("2", "1").size(), 1U);
  EXPECT_EQ(h.Boxes.SumText, " 4") << "the sum is corrected before the size is judged";
  EXPECT_THROW(manual("3", "1000000"), RuntimeError);
  EXPECT_EQ(h.TheBoard.BaseValue + h.TheBoard.TargetTotal, 5 + 15);
  EXPECT_EQ(manual("21", "2100"), Messages{"solution may be too complex to solve"});
  EXPECT_EQ(h.TheBoard.GridSize, 21);
}

}  // namespace
}  // namespace numorra
