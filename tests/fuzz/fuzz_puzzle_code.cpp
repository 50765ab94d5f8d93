#include "fuzz/check.h"
#include "puzzle/code.h"
#include "puzzle/code_list.h"
#include "puzzle/code_text.h"

using namespace numorra;

namespace {

/// A code is refused with one sentence, or is a puzzle whose own code reads back the same.
void CheckCode(const std::string& code) {
  const auto read = PuzzleOfCode(code);
  const auto* puzzle = std::get_if<Puzzle>(&read);
  if (!puzzle) {
    Check(!std::get<Unreadable>(read).Why.empty());
    return;
  }
  const auto again = PuzzleOfCode(CodeOf(*puzzle));
  Check(std::get_if<Puzzle>(&again) && std::get<Puzzle>(again).Cells == puzzle->Cells &&
        std::get<Puzzle>(again).Target == puzzle->Target);
}

}  // namespace

/// The text as a list of codes; as a code of version 1 with any check character; and its bytes as
/// the digits of a code of version 2.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = TextOf(data, size);
  for (const char check : std::string("0123456789ABCDEFGHJKMNPQRSTVWXYZ"))
    CheckCode(text + check);
  std::vector<unsigned> digits;
  for (const char byte : text)
    digits.push_back(static_cast<unsigned char>(byte) % 32U);
  CheckCode(CodeOfDigits(digits));
  for (const ListedPuzzle& listed : PuzzlesOfCodes(text).Puzzles)
    Check(!CodeOf(listed.Clues).empty());
  return 0;
}
