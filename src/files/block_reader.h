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

/// Reads squares one by one from a text of any length, with empty lines between squares. A JSON
/// object or a list in brackets is a square of its own, on one line or many, and ends where its
/// first brace or bracket is closed. Comments before a square are skipped. A
/// line that begins with "total ", as in this program's own output, belongs to no square. Lines end
/// with LF, CR or both.
class BlockReader {
 public:
  explicit BlockReader(std::istream& in) : in_(in) {}

  /// The text of the next square. Nothing at the end of the text, or if a square is longer than
  /// kMostTextBytes: the rest is then not read.
  std::optional<TextBlock> Next();

  /// The first line of a square that was too long.
  std::optional<std::size_t> TooLongFrom() const { return tooLongFrom_; }

 private:
  std::string TakeBlanks();
  std::string TakeLine();
  std::string TakeObject();
  std::optional<char> Take();

  std::istream& in_;
  std::size_t number_ = 1;     ///< of the line that is read next
  std::size_t bytesLeft_ = 0;  ///< left for the next square
  std::optional<std::size_t> tooLongFrom_;
};

}  // namespace numorra
