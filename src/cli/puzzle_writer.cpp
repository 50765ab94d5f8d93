#include "cli/puzzle_writer.h"

#include <ostream>

#include "publish/play_page.h"
#include "puzzle/code.h"
#include "puzzle/puzzle_json.h"
#include "words/say.h"

namespace numorra {
namespace {

/// "hard, 5 clues, NP2..."
std::string CaptionOf(const Puzzle& clues, const MadePuzzle* solved) {
  const std::string code = CodeOf(clues);
  const int number = clues.Cells.Size() - clues.Gaps();
  return (solved ? std::string(NameOf(solved->Needed)) + ", " : "") + std::to_string(number) +
         (number == 1 ? " clue, " : " clues, ") + (code.empty() ? "no code" : code);
}

}  // namespace

void PuzzleWriter::Write(const Puzzle& clues, const MadePuzzle* solved) {
  std::ostream& out = streams_.Out;
  const bool page = request_.Format == SquareFormat::Html;
  if (page || request_.Format == SquareFormat::Json) {
    JsonLine line = JsonOfPuzzle(clues, solved);
    if (page || request_.Steps) line.Add("steps", solved ? JsonOfSteps(*solved, stage_) : "null");
    if (page) {
      page_.push_back(line.Text());
    } else {
      out << line.Text() << "\n";
    }
  } else if (any_ && request_.Format == SquareFormat::Svg) {
    throw Impossible{Say("a picture has room for one square, not several")};
  } else {
    if (any_) out << "\n";
    out << Of(request_.Format).Write(StoredSquareOf(clues, true), CaptionOf(clues, solved));
  }
  any_ = true;
  out.flush();
}

void PuzzleWriter::Finish() {
  if (!page_.empty())
    streams_.Out << PlayPage(request_.Title.value_or(Say("Magic squares")), page_);
}

}  // namespace numorra
