#include "print/sheet_words.h"

#include <algorithm>

#include <QStringList>

#include "toolkit/tr.h"

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
  return Tr("Missing: %1", missing.join("  "));
}

QString Numbers(const MadePuzzle& made) {
  return IsNormal(made) ? Tr("each missing number once") : Tr("whole numbers of 1 or more");
}

bool AreMixed(const std::vector<MadePuzzle>& puzzles) {
  const auto normal = std::count_if(puzzles.begin(), puzzles.end(), IsNormal);
  return normal > 0 && normal < static_cast<std::ptrdiff_t>(puzzles.size());
}

QString RulesText(const std::vector<MadePuzzle>& puzzles) {
  if (puzzles.empty() || AreMixed(puzzles)) {
    return Tr(
        "Fill the gaps so that all rows, columns and both diagonals add up to the same total.");
  }
  return IsNormal(puzzles.front())
             ? Tr("Fill the gaps with each missing number once, so that all rows, columns and both "
                  "diagonals add up to the same total.")
             : Tr("Fill the gaps with whole numbers of 1 or more, so that all rows, columns and "
                  "both "
                  "diagonals add up to the same total.");
}

}  // namespace numorra
