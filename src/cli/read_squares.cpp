#include "cli/read_squares.h"

#include <ostream>

#include "cli/input_file.h"
#include "files/block_reader.h"
#include "files/square_text.h"
#include "puzzle/code.h"
#include "words/say.h"

namespace numorra {
namespace {

/// The reason without the advice for the window, and with the line of the file.
std::string WhereAndWhy(const Unreadable& unreadable, std::size_t firstLine) {
  const std::string why = unreadable.Why.substr(0, unreadable.Why.find('\n'));
  return unreadable.NamesLine ? why : Say("line %1: %2", firstLine, why);
}

}  // namespace

bool ReadSquares(const std::string& file, const Streams& streams,
                 const std::function<void(const StoredSquare&)>& visit) {
  InputFile input(file, streams.In);
  BlockReader blocks(input.In());
  bool any = false;
  bool allRead = true;
  const auto tell = [&](const std::string& what) {
    streams.Err << streams.Program << what << "\n";
    allRead = false;
  };
  while (streams.Out) {
    const auto block = blocks.Next();
    if (!block) break;
    any = true;
    const auto square = ReadSquareOrCode(block->Text, block->FirstLine);
    if (const auto* unreadable = std::get_if<Unreadable>(&square)) {
      tell(WhereAndWhy(*unreadable, block->FirstLine));
    } else {
      visit(std::get<StoredSquare>(square));
    }
  }
  if (const auto line = blocks.TooLongFrom()) {
    // Translators: %2 is "this is too long for a square of numbers".
    tell(Say("line %1: %2; reading stops here", *line, Say(kTooLongForASquare)));
    return false;
  }
  if (streams.Out) input.CheckReadToEnd();
  if (!any) throw Impossible{Say("there is no square to read")};
  return allRead;
}

}  // namespace numorra
