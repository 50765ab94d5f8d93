#include "files/block_reader.h"

#include <istream>
#include <string_view>

#include "files/square_text.h"

namespace numorra {
namespace {

constexpr int kEnd = std::istream::traits_type::eof();

}  // namespace

std::optional<TextBlock> BlockReader::Next() {
  if (tooLongFrom_) return std::nullopt;
  bytesLeft_ = kMostTextBytes;
  TextBlock block{"", number_};
  while (bytesLeft_ > 0 && in_.peek() != kEnd) {
    const std::size_t number = number_;
    std::string line = TakeBlanks();
    if (in_.peek() == '{' || in_.peek() == '[') {
      if (!block.Text.empty()) return block;
      block = {TakeObject(), number};
      break;
    }
    line += TakeLine();
    const bool comment = block.Text.empty() && line.find_first_not_of(" \t") == line.find('#');
    const bool between = comment || IsEmptyLine(line) || line.starts_with("total ");
    if (between && !block.Text.empty()) return block;
    if (between) continue;
    if (block.Text.empty()) block.FirstLine = number;
    block.Text += line + "\n";
  }
  if (bytesLeft_ == 0) {
    tooLongFrom_ = block.FirstLine;
  } else if (!block.Text.empty()) {
    return block;
  }
  return std::nullopt;
}

/// What may precede a text in its line: blanks, and a byte-order mark at the very beginning.
std::string BlockReader::TakeBlanks() {
  constexpr std::string_view kBlanks = " \t\xEF\xBB\xBF";
  std::string blanks;
  while (bytesLeft_ > 0 && in_.peek() != kEnd &&
         kBlanks.find(static_cast<char>(in_.peek())) != std::string_view::npos)
    blanks += Take().value_or(' ');
  return blanks;
}

/// The rest of a line, without its end.
std::string BlockReader::TakeLine() {
  std::string line;
  for (auto byte = Take(); byte && *byte != '\n'; byte = Take())
    line += *byte;
  return line;
}

/// The text from an opening brace or bracket to the matching closing one.
std::string BlockReader::TakeObject() {
  std::string object;
  int open = 0;
  bool quoted = false;
  bool escaped = false;
  while (const auto byte = Take()) {
    object += *byte;
    if (escaped) {
      escaped = false;
    } else if (*byte == '"') {
      quoted = !quoted;
    } else if (quoted) {
      escaped = *byte == '\\';
    } else if (*byte == '{' || *byte == '[') {
      ++open;
    } else if ((*byte == '}' || *byte == ']') && --open == 0) {
      break;
    }
  }
  return object;
}

/// The next byte, with every kind of line end as LF. Nothing at the end of the text or when no
/// bytes are left for this square.
std::optional<char> BlockReader::Take() {
  const int byte = bytesLeft_ > 0 ? in_.get() : kEnd;
  if (byte == kEnd) return std::nullopt;
  --bytesLeft_;
  if (byte == '\r' && in_.peek() == '\n') in_.get();
  if (byte != '\r' && byte != '\n') return static_cast<char>(byte);
  ++number_;
  return '\n';
}

}  // namespace numorra
