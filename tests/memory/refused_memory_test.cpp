#include <algorithm>
#include <new>
#include <sstream>

#include "app/board/position.h"
#include "app/play/enter_puzzle.h"
#include "app/play/fill_gaps.h"
#include "app/play/lay_out.h"
#include "app/play/study_commands.h"
#include "cli/square_program.h"
#include "memory/granted.h"
#include "puzzle/code.h"
#include "puzzle/fresh_square.h"
#include "puzzle/making.h"
#include "study/report.h"
#include "support/invariants.h"
#include "support/play_harness.h"

namespace numorra {
namespace {

class RefusedMemory : public PlayTest {
 protected:
  void LayOutText(std::string rows) {
    std::replace(rows.begin(), rows.end(), '/', '\n');
    LayOut(board_, boxes_, std::get<StoredSquare>(ReadSquareOrCode(rows)));
  }

  /// Runs a command repeatedly, each time refusing memory a little later, until all requests are
  /// granted; returns how often memory was refused. A sort that is refused memory goes on with
  /// less. After each refusal the board is complete, and if `searches` it is unchanged.
  template <class Command>
  int Refuse(const char* board, bool searches, Command command) {
    long later = 0;
    for (int refused = 0;; ++refused, later += 1 + later / 20) {
      LayOutText(board);
      const Position before = PositionOf(board_);
      try {
        granted = later;
        command();
        const bool all = granted >= 0;
        granted = -1;
        dialogs_.Take();
        if (all) return refused;
      } catch (const std::bad_alloc&) {
        granted = -1;
      }
      EXPECT_EQ(WhyInvalid(board_), "") << "after " << later << " requests";
      EXPECT_TRUE(!searches || PositionOf(board_) == before) << "after " << later << " requests";
      EXPECT_FALSE(stage_.Busy);
      dialogs_.Take();
    }
  }

  PlainBoxes boxes_{"4", "34"};
  NotingStage stage_;
  SeededRandom lot_{1};
  CommandContext context_{board_, boxes_, dialogs_, lot_};
};

constexpr const char* kOpen = "1 . . . / . 6 . . / . . 11 . / . . . .";
constexpr const char* kOne = "8 1 . / . 5 . / . . .";
constexpr const char* kFull = "16 3 2 13 / 5 10 11 8 / 9 6 7 12 / 4 15 14 1";

TEST_F(RefusedMemory, EndsASearchAndLeavesTheBoard) {
  const auto fill = [&] { FillGaps(context_, false, stage_); };
  EXPECT_GT(Refuse(kOpen, true, fill), 20);
  EXPECT_GT(Refuse(kOne, true, [&] { Hints(board_, lot_, stage_).Next(); }), 20);
  EXPECT_GT(Refuse(kOne, true, [&] { CheckEntries(board_, lot_, stage_); }), 10);
  EXPECT_GT(Refuse(kOpen, true, [&] { EnterPuzzle(context_, stage_); }), 20);
}

TEST_F(RefusedMemory, LeavesAWholeBoardBehind) {
  const auto vary = [&] { VaryBoard(context_); };
  EXPECT_GT(Refuse(kFull, false, vary), 5);
  EXPECT_GT(Refuse(kFull, false, [&] { ComplementBoard(context_); }), 1);
  EXPECT_GT(Refuse(kFull, false, [&] { BringToStandardForm(context_); }), 3);
  EXPECT_GT(Refuse(kFull, false, [&] { LayOutFamous(FamousSquares().back(), context_); }), 3);
  const auto special = [&] { LayOutSpecial(kSpecialKinds[1], context_); };
  EXPECT_GT(Refuse(kFull, false, special), 3);
  EXPECT_GT(Refuse(kFull, true, [&] { TextOf(Study(*SquareOn(board_))); }), 20);
  const auto make = [&] {
    const auto square = FreshSquare({4}, lot_, stage_);
    CodeOf(std::get<MadePuzzle>(MakePuzzle(*square, {Grade::Hard}, lot_, stage_)).Clues);
  };
  EXPECT_GT(Refuse(kFull, true, make), 20);
}

/// Streams that allocate no memory themselves, because they would not report a failure.
struct Room : std::streambuf {
  Room() { setp(Bytes, Bytes + sizeof Bytes); }
  std::string Text() const { return {pbase(), pptr()}; }
  char Bytes[20'000];
};

/// A sort takes less memory when more is refused: such a run continues and says nothing.
TEST(RefusedMemoryOfTheCompanion, IsOneSentenceAndAStatus) {
  const std::vector<std::vector<std::string>> lines = {
      {"complete", "--format", "json"}, {"study"}, {"--size", "9", "--corner", "3"}};
  for (const std::vector<std::string>& words : lines) {
    int told = 0;
    long later = 0;
    for (bool all = false; !all; ++later) {
      std::istringstream in("8 1 6\n3 5 7\n4 9 2\n{\"rows\": [[2, 7, 6], [9, 5, 1], [4, 3, 8]]}");
      Room said, remarked;
      std::ostream out(&said), err(&remarked);
      granted = later;
      const int status = RunSquareProgram(words, {in, out, err});
      all = granted >= 0;
      granted = -1;
      EXPECT_EQ(remarked.Text(),
                status == 0 ? "" : "numorra-square: there is not enough memory for this\n");
      EXPECT_TRUE(status == 5 || status == 0) << words[0] << " after " << later;
      told += status == 5 ? 1 : 0;
    }
    EXPECT_GT(told, 3) << words[0];
  }
}

}  // namespace
}  // namespace numorra
