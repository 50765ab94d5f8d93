#include "print/sheet_words.h"

#include <algorithm>

#include <QStringList>

namespace numorra {
namespace {

bool IsNormal(const MadePuzzle& made) {
  return made.Clues.Asked == Rules::Normal;
}

}  // namespace

QString Missing(const Puzzle& puzzle) {
  if (puzzle.Asked != Rules::Normal) return {};
  QStringList missing;
  for (std::int64_t number = 1; number <= puzzle.Most(); ++number) {
    if (std::find(puzzle.Cells.begin(), puzzle.Cells.end(), number) == puzzle.Cells.end()) {
      missing << QString::number(number);
    }
  }
  return "Missing: " + missing.join("  ");
}

QString Numbers(const MadePuzzle& made) {
  return IsNormal(made) ? "each missing number once" : "whole numbers of 1 or more";
}

bool AreMixed(const std::vector<MadePuzzle>& puzzles) {
  const auto normal = std::count_if(puzzles.begin(), puzzles.end(), IsNormal);
  return normal > 0 && normal < static_cast<std::ptrdiff_t>(puzzles.size());
}

QString RulesText(const std::vector<MadePuzzle>& puzzles) {
  const QString numbers =
      AreMixed(puzzles) || puzzles.empty() ? "" : "with " + Numbers(puzzles.front()) + ", ";
  return "Fill the gaps " + numbers +
         "so that all rows, columns and both diagonals add up to the same total.";
}

}  // namespace numorra
