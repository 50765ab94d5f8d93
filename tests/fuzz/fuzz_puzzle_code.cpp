#include "fuzz/check.h"
#include "puzzle/code.h"

using namespace numorra;

/// A code, with any check character, is refused with one sentence, or is a puzzle whose own code
/// reads back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = TextOf(data, size);
  for (const char check : std::string("0123456789ABCDEFGHJKMNPQRSTVWXYZ")) {
    const auto read = PuzzleOfCode(text + check);
    const auto* puzzle = std::get_if<Puzzle>(&read);
    if (!puzzle) {
      Check(!std::get<Unreadable>(read).Why.empty());
      continue;
    }
    const auto again = PuzzleOfCode(CodeOf(*puzzle));
    Check(std::get_if<Puzzle>(&again) && std::get<Puzzle>(again).Cells == puzzle->Cells &&
          std::get<Puzzle>(again).Target == puzzle->Target);
  }
  return 0;
}
