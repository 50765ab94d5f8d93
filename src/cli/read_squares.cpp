#include "cli/read_squares.h"

#include <fstream>
#include <istream>
#include <ostream>
#include <sstream>

#include "files/square_text.h"
#include "puzzle/code.h"

namespace numorra {
namespace {

std::string TextOf(const std::string& file, std::istream& standardInput) {
  std::ifstream opened;
  if (file != "-") opened.open(file, std::ios::binary);
  std::istream& in = file == "-" ? standardInput : opened;
  std::string text;
  char block[1 << 16];
  while (in.read(block, sizeof block) || in.gcount() > 0)
    text.append(block, static_cast<std::size_t>(in.gcount()));
  if (!in.eof() || in.bad()) throw Impossible{"'" + file + "' cannot be read"};
  return text;
}

}  // namespace

bool ReadSquares(const std::string& file, const Streams& streams,
                 const std::function<void(const StoredSquare&)>& visit) {
  const std::vector<TextBlock> blocks = SquareBlocks(TextOf(file, streams.In));
  if (blocks.empty()) throw Impossible{"there is no square to read"};
  bool all = true;
  for (const auto& [text, firstLine] : blocks) {
    const auto square = ReadSquareOrCode(text, firstLine);
    if (const auto* unreadable = std::get_if<Unreadable>(&square)) {
      streams.Err << kProgramName << unreadable->Why << "\n";
      all = false;
    } else {
      visit(std::get<StoredSquare>(square));
    }
  }
  return all;
}

}  // namespace numorra
