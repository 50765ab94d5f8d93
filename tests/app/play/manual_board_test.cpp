#include "app/play/manual_board.h"

#include "support/play_harness.h"
#include "support/solve_harness.h"

namespace numorra {
namespace {

using Messages = std::vector<std::string>;

TEST(ManualBoard, StartsEveryCellAboveItsShare) {
  SolveHarness h;
  CellEntry entry(h.TheBoard, h.Speech);
  h.Boxes = PlainBoxes("3", "15");
  BuildManualBoard(h.TheBoard, h.Boxes, h.Speech, h.Stage);
  EXPECT_EQ(h.TheBoard.BaseValue, 5);
  EXPECT_EQ(ShownRows(h.TheBoard.grid), slow::Rows(3, {6, 6, 6}));
  for (const auto& [r, c] : {std::pair{1, 0}, {0, 3}, {0, 0}, {0, 4}, {4, 0}}) {
    EXPECT_EQ(h.TheBoard.grid.Text(r, c), "18");
    EXPECT_EQ(h.TheBoard.grid.Background(r, c), ColorTable[kWrongTotal]);
  }
  EXPECT_EQ(h.TheBoard.grid.CurrentRow(), 1);
  EXPECT_FALSE(h.Stage.Busy);

  h.Boxes = PlainBoxes("4", "5");
  BuildManualBoard(h.TheBoard, h.Boxes, h.Speech, h.Stage);
  EXPECT_EQ(h.Boxes.SumText, " 8");
  EXPECT_EQ(h.TheBoard.BaseValue, 2);
  EXPECT_EQ(h.TheBoard.TargetTotal, 8);
  EXPECT_EQ(h.TheBoard.grid.Text(4, 4), "3");

  h.TheBoard.SolveMode = ModeNormal;
  h.Boxes = PlainBoxes("3", "15");
  BuildManualBoard(h.TheBoard, h.Boxes, h.Speech, h.Stage);
  EXPECT_EQ(ShownRows(h.TheBoard.grid), ParseRows("1 2 3 / 4 5 6 / 7 8 9"));
  EXPECT_EQ(h.TheBoard.grid.Background(0, 0), ColorTable[kRightTotal]);
  EXPECT_EQ(h.TheBoard.grid.Background(1, 0), ColorTable[kWrongTotal]);
}

TEST(ManualBoard, RefusesAndKeepsWhatWas) {
  SolveHarness h;
  h.Boxes = PlainBoxes("3", "15");
  BuildManualBoard(h.TheBoard, h.Boxes, h.Speech, h.Stage);
  struct Case {
    const char *size, *sum, *said, *sumAfter;
  };
  const Case cases[] = {{"2", "30", "grid size should be 3x3 or bigger", "30"},
                        {"2", "1", "grid size should be 3x3 or bigger", " 4"},
                        {"", "30", "grid size should be 3x3 or bigger", "30"},
                        {"0", "30", "grid size should be 3x3 or bigger", "30"},
                        {"-7", "30", "grid size should be 3x3 or bigger", "30"},
                        {"51", "3000", "grid size should be 50x50 or smaller", "3000"}};
  for (const Case& c : cases) {
    h.Boxes = PlainBoxes(c.size, c.sum);
    BuildManualBoard(h.TheBoard, h.Boxes, h.Speech, h.Stage);
    EXPECT_EQ(h.Speech.Take(), Messages{c.said}) << c.size;
    EXPECT_EQ(h.Boxes.SumText, c.sumAfter);
    EXPECT_EQ(h.TheBoard.GridSize, 3);
    EXPECT_EQ(h.TheBoard.BaseValue, 5);
    EXPECT_EQ(h.TheBoard.TargetTotal, 15);
  }
  h.Boxes = PlainBoxes("3", "1000000");
  EXPECT_THROW(BuildManualBoard(h.TheBoard, h.Boxes, h.Speech, h.Stage), RuntimeError);
  EXPECT_EQ(h.TheBoard.BaseValue, 5);
  h.Boxes = PlainBoxes("21", "2100");
  BuildManualBoard(h.TheBoard, h.Boxes, h.Speech, h.Stage);
  EXPECT_EQ(h.Speech.Take(), Messages{"solution may be too complex to solve"});
  EXPECT_EQ(h.TheBoard.GridSize, 21);
}

}  // namespace
}  // namespace numorra
