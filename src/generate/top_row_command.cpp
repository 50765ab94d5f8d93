#include "generate/top_row_command.h"

#include <algorithm>

#include "app/board/numbers.h"

namespace numorra {
namespace {

constexpr const char* kPrompt = "Top row: four numbers, such as the parts of a date";
constexpr const char* kNotATopRow = "top row should be four whole numbers from 0 to 9999";
constexpr const char* kNoSquare = "no 4x4 square has this top row";

/// What a player should know about a square that is not of the best kind.
const char* Remark(TopRowQuality quality) {
  switch (quality) {
    case TopRowQuality::AllDifferent:
      return nullptr;
    case TopRowQuality::Repeated:
      return "no 4x4 square of different numbers has this top row\nsome numbers are repeated";
    case TopRowQuality::WithZeros:
      return "no 4x4 square of numbers from 1 on has this top row\nsome numbers are 0";
  }
  return nullptr;
}

}  // namespace

bool TopRowCommand::Run() {
  std::optional<TopRow> top;
  while (!top) {
    const auto answer = dialogs_.AskText(kPrompt, Last4x4Preset);
    if (!answer) return false;
    Last4x4Preset = *answer;
    top = ParseTopRow(*answer);
    if (!top) dialogs_.Tell(kNotATopRow);
  }
  std::optional<TopRowSquare> found;
  {
    const BusyPointer busy(stage_);
    found = FindTopRowSquare(*top, random_, [this] { stage_.Yield(); });
  }
  if (!found) {
    dialogs_.Tell(kNoSquare);
    return false;
  }
  board_.SolveMode = ModeVariable;
  board_.BaseValue = static_cast<std::int16_t>(std::max(2.0, Int(found->Total / 4)));
  board_.TotalsChecked = false;
  boxes_.SetSize("4");
  boxes_.SetSum(Decimal(found->Total));
  board_.ShowSquare(4, found->Total, found->Square);
  if (const char* remark = Remark(found->Quality)) dialogs_.Tell(remark);
  return true;
}

}  // namespace numorra
