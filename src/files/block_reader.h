#pragma once

#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>

namespace numorra {

/// A part of a text, and the number of its first line.
struct TextBlock {
  std::string Text;
  std::size_t FirstLine = 1;
};

/// Takes squares one by one from a text that has one below the other, with empty lines between
/// them, however many there are. A JSON object is a square by itself, on one line or on many, and
/// ends where its first brace is closed. A line that says "total 34", as this program's own texts
/// do, belongs to no square. Lines end by LF, CR or both.
class BlockReader {
 public:
  explicit BlockReader(std::istream& in) : in_(in) {}

  /// The text of the next square. Nothing at the end of the text, and where kMostTextBytes end no
  /// square: what follows is not read.
  std::optional<TextBlock> Next();

  /// The line from which on too much was to be read for a square.
  std::optional<std::size_t> TooLongFrom() const { return tooLongFrom_; }

 private:
  std::string TakeBlanks();
  std::string TakeLine();
  std::string TakeObject();
  std::optional<char> Take();

  std::istream& in_;
  std::size_t number_ = 1;     ///< of the line that is read next
  std::size_t bytesLeft_ = 0;  ///< that the next square may take
  std::optional<std::size_t> tooLongFrom_;
};

}  // namespace numorra
