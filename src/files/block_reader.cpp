#include "files/block_reader.h"

#include <istream>
#include <utility>

#include "files/square_text.h"

namespace numorra {

std::optional<TextBlock> BlockReader::Next() {
  if (tooLongFrom_) return std::nullopt;
  bytesLeft_ = kMostTextBytes;
  TextBlock block{"", number_ + 1};
  while (ReadLine()) {
    const bool between = IsEmptyLine(line_) || line_.starts_with("total ");
    if (between && !block.Text.empty()) return block;
    if (between) continue;
    if (block.Text.empty()) block.FirstLine = number_;
    block.Text += line_ + "\n";
  }
  if (bytesLeft_ == 0) {
    const bool begins = block.Text.empty() && !line_.empty();
    tooLongFrom_ = begins ? number_ : block.FirstLine;
  } else if (!block.Text.empty()) {
    return block;
  }
  return std::nullopt;
}

/// False at the end of the text, and of the bytes that are left.
bool BlockReader::ReadLine() {
  line_.clear();
  for (; bytesLeft_ > 0; --bytesLeft_) {
    const int byte = in_.get();
    if (byte == std::istream::traits_type::eof()) break;
    const bool afterReturn = std::exchange(afterReturn_, byte == '\r');
    if (byte == '\n' && afterReturn) continue;
    if (byte == '\n' || byte == '\r') {
      --bytesLeft_;
      ++number_;
      return true;
    }
    line_ += static_cast<char>(byte);
  }
  ++number_;
  return bytesLeft_ > 0 && !line_.empty();
}

}  // namespace numorra
