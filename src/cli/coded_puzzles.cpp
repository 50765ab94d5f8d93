#include <ostream>

#include "app/board/random.h"
#include "app/ports/build_stage.h"
#include "cli/input_file.h"
#include "cli/make_puzzles.h"
#include "files/square_text.h"
#include "puzzle/code_list.h"
#include "puzzle/only_solution.h"
#include "words/say.h"

namespace numorra {
namespace {

/// The next line without its end; nothing at the end of the file.
std::optional<std::string> TakeLine(std::istream& in, std::size_t number) {
  std::string line;
  for (char character = 0; in.get(character);) {
    if (character == '\n') return line;
    if (line.size() == kMostTextBytes) {
      throw Impossible{Say("line %1 is too long for puzzle codes", number)};
    }
    line += character;
  }
  return line.empty() ? std::nullopt : std::optional(std::move(line));
}

}  // namespace

bool ReadCodedPuzzles(const SquareRequest& request, const Streams& streams,
                      const PuzzleVisitor& visit) {
  InputFile file(*request.Codes, streams.In);
  TickingClock clock(0);
  ClockSeededRandom random(clock);
  SilentStage stage;
  bool any = false;
  bool allRead = true;
  const auto tell = [&](const std::string& what) {
    streams.Err << streams.Program << what << "\n";
  };
  const auto pass = [&](const ListedPuzzle& listed) {
    const auto solved = WithOnlySolution(listed.Clues, {.Seconds = request.Seconds}, random, stage);
    if (const auto* cannot = std::get_if<CannotMake>(&solved)) {
      tell(Say("line %1: %2", listed.Line, cannot->Why));
    }
    any = true;
    visit(listed.Clues, std::get_if<MadePuzzle>(&solved));
  };
  for (std::size_t number = 1; streams.Out; ++number) {
    const auto line = TakeLine(file.In(), number);
    if (!line) break;
    const CodeList list = PuzzlesOfCodes(*line, number);
    for (const ListedPuzzle& listed : list.Puzzles)
      pass(listed);
    for (const Unreadable& wrong : list.Wrong) {
      tell(wrong.Why);
      allRead = false;
    }
  }
  if (streams.Out) file.CheckReadToEnd();
  if (!any && allRead) throw Impossible{Say("there is no puzzle code to read")};
  return allRead;
}

}  // namespace numorra
