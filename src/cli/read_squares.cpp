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

/// The reason alone, without advice for the window, and the line of the file that it is about.
std::string WhereAndWhy(const Unreadable& unreadable, std::size_t firstLine) {
  const std::string why = unreadable.Why.substr(0, unreadable.Why.find('\n'));
  return why.starts_with("line ") ? why : "line " + std::to_string(firstLine) + ": " + why;
}

}  // namespace

bool ReadSquares(const std::string& file, const Streams& streams,
                 const std::function<void(const StoredSquare&)>& visit) {
  const std::string all = TextOf(file, streams.In);
  const std::size_t first = all.find_first_not_of(" \t\r\n");
  if (first != std::string::npos && all[first] == '{') {
    throw Impossible{
        "this is JSON, which the window opens; here squares are read as text or codes"};
  }
  const std::vector<TextBlock> blocks = SquareBlocks(all);
  if (blocks.empty()) throw Impossible{"there is no square to read"};
  bool allRead = true;
  for (const auto& [text, firstLine] : blocks) {
    const auto square = ReadSquareOrCode(text, firstLine);
    if (const auto* unreadable = std::get_if<Unreadable>(&square)) {
      streams.Err << kProgramName << WhereAndWhy(*unreadable, firstLine) << "\n";
      allRead = false;
    } else {
      visit(std::get<StoredSquare>(square));
    }
  }
  return allRead;
}

}  // namespace numorra
