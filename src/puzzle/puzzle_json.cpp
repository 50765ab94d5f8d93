#include "puzzle/puzzle_json.h"

#include "files/square_json.h"
#include "puzzle/code.h"
#include "puzzle/deduction.h"
#include "puzzle/step_words.h"
#include "words/language.h"

namespace numorra {
namespace {

const char* NameOf(StepRule rule) {
  switch (rule) {
    case StepRule::LastGap:
      return "last gap";
    case StepRule::TwoGaps:
      return "two gaps";
    case StepRule::AtLeast:
      return "at least";
    case StepRule::AtMost:
      return "at most";
    case StepRule::OneCandidate:
      return "one candidate";
    case StepRule::OnePlace:
      return "one place";
    case StepRule::FullLine:
      return "full line";
    case StepRule::Suppose:
      return "suppose";
    case StepRule::Refute:
      return "refute";
    case StepRule::Search:
      break;
  }
  return "search";
}

std::string JsonOfCell(int cell, int order) {
  const Place place = PlaceAt(cell, order);
  return JsonArray(2, [&](int i) { return std::to_string(i == 0 ? place.Row : place.Column); });
}

std::string JsonOfReason(const Step& step, const LineMap& map) {
  JsonLine reason;
  reason.Add("rule", JsonString(NameOf(step.By)));
  if (step.Line >= 0) {
    const InEnglish forPrograms;
    reason.Add("line", JsonString(map.NameOf(step.Line)));
  }
  if (step.Cell >= 0) reason.Add("cell", JsonOfCell(step.Cell, map.Order()));
  return reason.Add("says", JsonString(SentenceOf(step, map))).Text();
}

template <class T, class Write>
std::string JsonOfAll(const std::vector<T>& entries, Write write) {
  return JsonArray(static_cast<int>(entries.size()),
                   [&](int i) { return write(entries[static_cast<std::size_t>(i)]); });
}

}  // namespace

JsonLine JsonOfPuzzle(const Puzzle& clues, const MadePuzzle* solved) {
  const std::string code = CodeOf(clues);
  JsonLine line = JsonLineOf(StoredSquareOf(clues, true));
  line.Add("solution", solved ? JsonRowsOf(StoredSquareOf(solved->Solution, false).Cells) : "null")
      .Add("grade", solved ? JsonString(NameOf(solved->Needed)) : "null")
      .Add("clues", std::to_string(clues.Cells.Size() - clues.Gaps()))
      .Add("code", code.empty() ? "null" : JsonString(code));
  return line;
}

std::string JsonOfSteps(const MadePuzzle& puzzle, Yielding& yielding) {
  const LineMap& map = LineMap::Of(puzzle.Clues.Order(), puzzle.Clues.Kind);
  return JsonOfAll(
      WayToSolve(puzzle.Clues, puzzle.Solution, yielding), [&](const Deduction& deduction) {
        return JsonLine()
            .Add("cell", JsonOfCell(deduction.Cell, map.Order()))
            .Add("number", std::to_string(deduction.Number))
            .Add("grade", JsonString(numorra::NameOf(deduction.Needed)))
            .Add("because", JsonOfAll(deduction.Steps,
                                      [&](const Step& step) { return JsonOfReason(step, map); }))
            .Text();
      });
}

}  // namespace numorra
