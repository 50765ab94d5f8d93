#include "generate/top_row_command.h"

#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr const char* kPrompt =
    Mark("Top row: four numbers from 0 to 9999, such as 30,9,19,95, or a date, such as 14.3.2014");
constexpr const char* kNotATopRow = Mark("top row should be four whole numbers from 0 to 9999");
constexpr const char* kNoSquare = Mark("no 4x4 square has this top row");

/// Why a square is not of the best quality, and what that means.
std::string Explain(TopRowQuality quality) {
  // Translators: %1 is a remark on the square that is shown: "some numbers are 0"
  return Say(quality == TopRowQuality::WithZeros
                 ? Mark("no 4x4 square of positive numbers has this top row\n%1")
                 : Mark("no 4x4 square of different numbers has this top row\n%1"),
             Say(RemarkOn(quality)));
}

}  // namespace

bool TopRowCommand::Run() {
  std::optional<TopRow> top;
  std::string text = Last4x4Preset;
  while (!top) {
    const auto answer = context_.TheDialogs.AskText(Say(kPrompt), text);
    if (!answer) return false;
    text = *answer;
    top = ParseTopRow(text);
    if (!top) context_.TheDialogs.Tell(Say(kNotATopRow));
  }
  std::optional<TopRowSquare> found;
  {
    const BusyPointer busy(stage_);
    found = FindTopRowSquare(*top, context_.TheRandom, stage_);
  }
  if (!found) {
    context_.TheDialogs.Tell(Say(kNoSquare));
    return false;
  }
  Last4x4Preset = text;
  Board& board = context_.TheBoard;
  board.SolveMode = ModeVariable;
  board.BaseValue = ToInt16(BaseOf(found->Total, 4));
  board.TotalsChecked = false;
  context_.Boxes.SetSize("4");
  context_.Boxes.SetSum(Decimal(found->Total));
  board.ShowSquare(4, found->Total, Rules::Positive, found->Square);
  if (found->Quality != TopRowQuality::AllNew) context_.TheDialogs.Tell(Explain(found->Quality));
  return true;
}

}  // namespace numorra
