#include "generate/top_row_command.h"

#include "app/board/numbers.h"
#include "app/board/orders.h"

namespace numorra {
namespace {

constexpr const char* kPrompt =
    "Top row: four numbers from 0 to 9999, such as 30,9,19,95, or a date, such as 14.3.2014";
constexpr const char* kNotATopRow = "top row should be four whole numbers from 0 to 9999";
constexpr const char* kNoSquare = "no 4x4 square has this top row";

/// Why a square is not of the best quality, and what that means.
std::string Explain(TopRowQuality quality) {
  const char* const better =
      quality == TopRowQuality::WithZeros ? "positive numbers" : "different numbers";
  return std::string("no 4x4 square of ") + better + " has this top row\n" + RemarkOn(quality);
}

}  // namespace

bool TopRowCommand::Run() {
  std::optional<TopRow> top;
  std::string text = Last4x4Preset;
  while (!top) {
    const auto answer = context_.TheDialogs.AskText(kPrompt, text);
    if (!answer) return false;
    text = *answer;
    top = ParseTopRow(text);
    if (!top) context_.TheDialogs.Tell(kNotATopRow);
  }
  std::optional<TopRowSquare> found;
  {
    const BusyPointer busy(stage_);
    found = FindTopRowSquare(*top, context_.TheRandom, stage_);
  }
  if (!found) {
    context_.TheDialogs.Tell(kNoSquare);
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
