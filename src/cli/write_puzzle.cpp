#include "cli/write_puzzle.h"

#include <ostream>

#include "puzzle/code.h"
#include "puzzle/grade.h"

namespace numorra {

void WritePuzzle(const Puzzle& clues, const MadePuzzle* solved, SquareFormat format,
                 std::ostream& out) {
  const StoredSquare stored = StoredSquareOf(clues, true);
  const std::string code = CodeOf(clues);
  const int number = clues.Cells.Size() - clues.Gaps();
  const std::string count = std::to_string(number);
  switch (format) {
    case SquareFormat::Csv:
      out << CsvOf(stored);
      break;
    case SquareFormat::Json: {
      JsonLine line = JsonLineOf(stored);
      line.Add("solution",
               solved ? JsonRowsOf(StoredSquareOf(solved->Solution, false).Cells) : "null");
      line.Add("grade", solved ? JsonString(NameOf(solved->Needed)) : "null").Add("clues", count);
      if (!code.empty()) line.Add("code", JsonString(code));
      out << line.Text() << "\n";
      break;
    }
    case SquareFormat::Text: {
      std::string text = TextOf(stored);
      text.pop_back();  // continue the total's line
      out << text;
      if (solved) out << ", " << NameOf(solved->Needed);
      out << ", " << count << (number == 1 ? " clue" : " clues")
          << (code.empty() ? "" : ", " + code) << "\n";
      break;
    }
  }
}

}  // namespace numorra
